// Every window for people without a screen: what its parts are called, and what they are.
#include "windows/all_windows.h"

#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QSlider>

#include <set>

namespace pixano::test {
namespace {

/// What assistive tools are told that the widget is called.
std::string NameOf(QWidget& widget)
{
    QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(&widget);
    return told != nullptr ? told->text(QAccessible::Name).toStdString() : "";
}

/// Something that a person uses or looks at.
bool IsControl(const QWidget& widget)
{
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    return (label != nullptr && !label->pixmap().isNull()) || widget.inherits("QAbstractButton") ||
           widget.inherits("QAbstractSlider") || widget.inherits("QComboBox") ||
           widget.inherits("QLineEdit") || widget.inherits("QTextEdit") ||
           widget.inherits("QProgressBar") || widget.inherits("QMenuBar") ||
           widget.inherits("pixano::PictureBox") || widget.inherits("pixano::ImageControl");
}

/// The controls inside, in the order of their making; not the parts that the toolkit makes them of.
std::vector<QWidget*> ControlsOf(const QWidget& window)
{
    std::vector<QWidget*> controls;
    for (QWidget* const child : window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (child->isWindow() || child->inherits("QScrollBar")) continue;
        if (IsControl(*child)) {
            controls.push_back(child);
            continue;
        }
        const auto inside = ControlsOf(*child);
        controls.insert(controls.end(), inside.begin(), inside.end());
    }
    return controls;
}

TEST_F(Accessibility, EveryWindowHasAName)
{
    std::set<QString> names;
    for (QWidget* const window : Windows()) {
        EXPECT_TRUE(window->objectName().startsWith("Form")) << window->objectName().toStdString();
        EXPECT_TRUE(names.insert(window->objectName()).second) << "two windows of one name";
        EXPECT_NE(NameOf(*window), "") << window->objectName().toStdString();
    }
}

TEST_F(Accessibility, EveryControlHasANameForToolsAndOneForPeople)
{
    for (const QWidget* const window : Windows()) {
        const auto controls = ControlsOf(*window);
        EXPECT_FALSE(controls.empty()) << window->objectName().toStdString();
        std::set<QString> names;
        for (QWidget* const control : controls) {
            const std::string where =
                (window->objectName() + " > " + control->objectName()).toStdString();
            EXPECT_FALSE(control->objectName().isEmpty()) << where;
            EXPECT_TRUE(names.insert(control->objectName()).second) << where << " twice";
            EXPECT_NE(NameOf(*control), "") << where;
        }
    }
}

TEST_F(Accessibility, WindowsAndPicturesAreToldAsWhatTheyAre)
{
    const auto roleOf = [](QWidget& widget) {
        return QAccessible::queryAccessibleInterface(&widget)->role();
    };
    for (QWidget* const window : std::initializer_list<QWidget*>{
             &session.form1, &session.form2, &session.form4, &session.form9, &session.form10})
        EXPECT_EQ(roleOf(*window), QAccessible::Window) << window->objectName().toStdString();
    for (QWidget* const dialog :
         std::initializer_list<QWidget*>{&form5, &form6, &form7, &form8, &form11})
        EXPECT_EQ(roleOf(*dialog), QAccessible::Dialog) << dialog->objectName().toStdString();
    EXPECT_EQ(roleOf(session.form2.Picture1()), QAccessible::Graphic);
    EXPECT_EQ(roleOf(session.form9.Image1()), QAccessible::Graphic);
}

TEST_F(Accessibility, AWindowTellsItsTitleToo)
{
    EXPECT_EQ(NameOf(session.form2), "Immagine elaborata: a.bmp 9x7");
    EXPECT_EQ(NameOf(session.form9), "Anteprima: a.bmp (9 x 7) - 100%");
    EXPECT_EQ(NameOf(session.form10), "Strumenti");
    Apply("Specchio");
    EXPECT_EQ(NameOf(session.form2), "Immagine elaborata: Specchio 9x7");
    // Once only, and not as what would be read after the name.
    for (const auto other : {QAccessible::Description, QAccessible::Value, QAccessible::Help,
                             QAccessible::Accelerator})
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&session.form2)->text(other), "");
}

TEST_F(Accessibility, EveryMenuHasAName)
{
    int menus = 0;
    for (QMenu* const menu : session.form1.findChildren<QMenu*>(Qt::FindDirectChildrenOnly)) {
        ++menus;
        EXPECT_NE(NameOf(*menu), "") << menu->objectName().toStdString();
        EXPECT_THAT(NameOf(*menu), testing::Not(testing::HasSubstr("&")));
    }
    EXPECT_EQ(menus, 15);
}

TEST_F(Accessibility, ControlsAreThereAtAll)
{
    const auto countOf = [](const QWidget& window) { return ControlsOf(window).size(); };
    EXPECT_EQ(countOf(session.form1), 1U);                        // the menu bar
    EXPECT_EQ(countOf(session.form2), 1U);                        // the canvas
    EXPECT_EQ(countOf(session.form9), 1U);                        // the preview
    EXPECT_EQ(countOf(session.form4), 1U);                        // the progress bar
    EXPECT_EQ(countOf(session.form10), PaletteButtons().size());  // the palette's buttons
    EXPECT_EQ(countOf(form5), 2U);                                // picture and button
    EXPECT_EQ(countOf(form6), 1U);                                // the picture
    EXPECT_EQ(countOf(form7), 2U);                                // text and button
    EXPECT_EQ(countOf(form8), 3U);                                // combo box and two buttons
    EXPECT_EQ(countOf(form11), 3U);                               // slider and two buttons
}

TEST_F(Accessibility, EveryMenuEntryHasItsNameAndText)
{
    for (std::size_t i = 0; i < MenuEntries().size(); ++i) {
        const QAction& action = session.form1.Control(static_cast<int>(i));
        EXPECT_EQ(action.objectName(), MenuEntries()[i].name);
        EXPECT_TRUE(action.isSeparator() || !action.text().isEmpty()) << MenuEntries()[i].name;
    }
}

TEST_F(Accessibility, TheSliderWindowsLabelTellsTheValue)
{
    form11.show();
    form11.ShowStrength(2500);
    EXPECT_EQ(NameOf(*form11.findChild<QLabel*>("Label1")), "2500");
    QAccessibleInterface* const slider =
        QAccessible::queryAccessibleInterface(form11.findChild<QSlider*>());
    ASSERT_NE(slider->valueInterface(), nullptr);
    EXPECT_EQ(slider->valueInterface()->currentValue().toInt(), 2500);
}

}  // namespace
}  // namespace pixano::test
