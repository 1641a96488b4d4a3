// Double clicks, by a real mouse, on what one click closes.
#include "screen/desktop.h"

#include <QDialog>

namespace pixano::test {
namespace {

class DoubleClick : public Desktop {
  protected:
    static QPoint MiddleOf(const QWidget& widget)
    {
        return widget.mapToGlobal(widget.rect().center());
    }
    /// Clicks twice on that button of the modal window, with a button of the palette behind it.
    void ClickTwiceOn(const QString& caption)
    {
        const auto& dialog = *static_cast<QDialog*>(QApplication::activeModalWidget());
        EXPECT_TRUE(ComesToHold([&] { return IsActive(dialog); }));
        const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
        const auto named = [&](const QPushButton* button) {
            return button->text().remove('&') == caption;
        };
        const QPoint place = MiddleOf(**std::ranges::find_if(buttons, named));
        session.form10.move(session.form10.pos() + place - MiddleOf(Button("SSCommand8")));
        EXPECT_TRUE(Stays([&] { return MiddleOf(Button("SSCommand8")) == place; }));
        // The window closes between the two clicks, and not once both were waited for.
        const QStringList at{QString::number(place.x()), QString::number(place.y())};
        QProcess::startDetached("xdotool",
                                QStringList{"mousemove"} + at +
                                    QStringList{"click", "--repeat", "2", "--delay", "80", "1"});
    }
};

TEST_F(DoubleClick, StartsNothingBehindTheWindowThatItsFirstClickCloses)
{
    constexpr int Patience = 5000;
    constexpr int TimeForASecondEffect = 500;
    OpenSized(300, 200);
    for (const auto& [caption, effects] : {std::pair("OK", 1), {"Annulla", 0}}) {
        SCOPED_TRACE(caption);
        const int before = session.doc.NumEffetti;
        QTimer::singleShot(0, [this, name = caption] { ClickTwiceOn(name); });
        QTimer::singleShot(Patience, &session.form10, [] {
            if (QWidget* const dialog = QApplication::activeModalWidget()) dialog->close();
        });
        Button("SSCommand4").click();
        QTest::qWait(TimeForASecondEffect);
        EXPECT_EQ(session.doc.NumEffetti, before + effects);
    }
    // A click that comes later is one of its own.
    const int before = session.doc.NumEffetti;
    ClickAt(MiddleOf(Button("SSCommand8")));
    EXPECT_TRUE(ComesToHold([&] { return session.doc.NumEffetti == before + 1; }));
}

}  // namespace
}  // namespace pixano::test
