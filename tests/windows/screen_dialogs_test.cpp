// The real boxes, answered by keys and clicks.
#include "support/program.h"
#include "windows/screen_dialogs.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QStyle>

#include <tuple>

namespace pixano::test {
namespace {

class RealBox : public testing::Test {
  protected:
    /// What is done to the box once it is up.
    static void Meanwhile(const std::function<void(QMessageBox&)>& action)
    {
        QTimer::singleShot(0, [action] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            action(*box);
        });
    }
    ScreenDialogs dialogs;
};

TEST_F(RealBox, AsksInItalianWithIconTitleAndText)
{
    Meanwhile([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Avviso!");
        EXPECT_EQ(box.text(), "Salvare <b>ora</b>?");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.button(QMessageBox::Yes)->text().remove('&'), QString::fromUtf8("S\xC3\xAC"));
        EXPECT_EQ(box.button(QMessageBox::No)->text().remove('&'), "No");
        box.button(QMessageBox::Yes)->click();
    });
    EXPECT_TRUE(dialogs.Ask(BoxIcon::Exclamation, "Avviso!", "Salvare <b>ora</b>?"));
}

TEST_F(RealBox, GivesTheAnswerNo)
{
    Meanwhile([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    EXPECT_FALSE(dialogs.Ask(BoxIcon::Question, "Messaggio!", "?"));
}

TEST_F(RealBox, TakesNeitherEscapeNorClosingForAnAnswer)
{
    Meanwhile([](QMessageBox& box) {
        // A button that did nothing would only puzzle.
        EXPECT_FALSE(box.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        QTest::keyClick(&box, Qt::Key_Escape);
        EXPECT_TRUE(box.isVisible());
        EXPECT_FALSE(box.close());
        EXPECT_TRUE(box.isVisible());
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_TRUE(dialogs.Ask(BoxIcon::None, "", "?"));
}

TEST_F(RealBox, ShowsNoTitleWhereThereIsNone)
{
    Meanwhile([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "");
        // The desktop would put the program's name where the title is quite empty.
        EXPECT_EQ(box.windowHandle()->title(), " ");
        EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
        box.button(QMessageBox::No)->click();
    });
    EXPECT_FALSE(dialogs.Ask(BoxIcon::None, "", "?"));
}

TEST_F(RealBox, TellsUntilItIsClosed)
{
    bool shown = false;
    Meanwhile([&](QMessageBox& box) {
        shown = true;
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.windowTitle(), "Attenzione!");
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    dialogs.Tell(BoxIcon::Critical, "Attenzione!", "testo");
    EXPECT_TRUE(shown);
}

/// The program's own drawing of that name, at twice its size.
QImage Drawn(const QString& name)
{
    return QImage(":/pixano/icons/" + name + "@2x.png").convertToFormat(QImage::Format_ARGB32);
}

TEST_F(RealBox, ShowsTheProgramsOwnIconsAndNoneOnButtons)
{
    for (const auto& [icon, name, shown] :
         {std::tuple(BoxIcon::Question, "domanda", QMessageBox::Question),
          {BoxIcon::Exclamation, "avviso", QMessageBox::Warning},
          {BoxIcon::Critical, "errore", QMessageBox::Critical}}) {
        Meanwhile([&, drawing = name, kind = shown](QMessageBox& box) {
            EXPECT_EQ(box.icon(), kind);
            const QIcon standard = box.style()->standardIcon(
                kind == QMessageBox::Question  ? QStyle::SP_MessageBoxQuestion
                : kind == QMessageBox::Warning ? QStyle::SP_MessageBoxWarning
                                               : QStyle::SP_MessageBoxCritical);
            const QImage fine =
                standard.pixmap(QSize(48, 48), 2).toImage().convertToFormat(QImage::Format_ARGB32);
            EXPECT_EQ(fine.size(), QSize(96, 96)) << drawing;
            EXPECT_EQ(fine.pixel(48, 70), Drawn(drawing).pixel(48, 70)) << drawing;
            EXPECT_EQ(box.iconPixmap().deviceIndependentSize(), QSizeF(48, 48)) << drawing;
            for (const QAbstractButton* const button : box.buttons())
                EXPECT_TRUE(button->icon().isNull()) << drawing;
            box.button(QMessageBox::No)->click();
        });
        EXPECT_FALSE(dialogs.Ask(icon, "Avviso!", "?"));
    }
}

TEST_F(RealBox, LeavesNoEmptyColumnWhereItHasNoIcon)
{
    Meanwhile([](QMessageBox& box) {
        const auto* const text = box.findChild<QLabel*>("qt_msgbox_label");
        const auto* const buttons = box.findChild<QDialogButtonBox*>();
        EXPECT_EQ(text->x() + text->contentsMargins().left() + text->indent(), buttons->x());
        box.button(QMessageBox::No)->click();
    });
    EXPECT_FALSE(dialogs.Ask(BoxIcon::None, "", "Salvare i cambiamenti del file elaborato?"));
}

TEST_F(RealBox, NamesItsIconForThoseWhoDoNotSeeIt)
{
    for (const auto& [icon, name] : {std::pair(BoxIcon::Question, "Domanda"),
                                     {BoxIcon::Exclamation, "Avviso"},
                                     {BoxIcon::Critical, "Errore"}}) {
        QString told;
        Meanwhile([&](QMessageBox& box) {
            for (const QLabel* const label : box.findChildren<QLabel*>())
                if (!label->pixmap().isNull()) told = label->accessibleName();
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        dialogs.Tell(icon, "Attenzione!", "testo");
        EXPECT_EQ(told, name);
    }
}

}  // namespace
}  // namespace pixano::test
