// The shape of message boxes: every line of the text is seen, close to its picture or to the edge.
#include "support/modal_steps.h"
#include "windows/screen_dialogs.h"

#include <QLabel>

namespace pixano::test {
namespace {

struct Told {
    const char* what;
    QString text;
};

const std::vector<Told>& Texts()
{
    static const std::vector<Told> texts{
        {"a word", "Fatto."},
        {"four short lines",
         "Errore durante il comando\nprima riga\nseconda\nIl programma termina."},
        {"a paragraph", QString("Le parole si seguono una dopo l'altra. ").repeated(12)},
        {"a long name", "L'immagine resta nel file «/" + QString(180, 'x') + "/foto.bmp»."},
        {"a long name and lines", QString(180, 'y') + "\nseconda\nterza\nIl programma termina."},
    };
    return texts;
}

/// Where the text of a box is painted; by its own lines where they take the toolkit's place.
QWidget* TextOf(const QDialog& box)
{
    auto* const own = box.findChild<QWidget*>("WrappedText");
    return own != nullptr ? own : box.findChild<QWidget*>("qt_msgbox_label");
}

void ExpectWhole(const QDialog& box, const QString& text)
{
    const QWidget& shown = *TextOf(box);
    const QRect needed =
        QFontMetrics(shown.font())
            .boundingRect(QRect(0, 0, shown.width(), 10000),
                          static_cast<int>(Qt::TextWordWrap) | Qt::TextWrapAnywhere, text);
    EXPECT_GE(shown.height(), needed.height());
    EXPECT_TRUE(box.rect().contains(shown.geometry()));
}

TEST(BoxShapes, ShowTheWholeTextCloseToTheEdgeOrToTheirPicture)
{
    constexpr int Margin = 30;
    for (const auto& [what, text] : Texts())
        for (const BoxIcon icon :
             {BoxIcon::None, BoxIcon::Question, BoxIcon::Exclamation, BoxIcon::Critical}) {
            SCOPED_TRACE(what + std::string(", icon ") + std::to_string(static_cast<int>(icon)));
            const ModalSteps steps({[&, said = text](QDialog& box) {
                ExpectWhole(box, said);
                const auto* const picture = box.findChild<QLabel*>("qt_msgboxex_icon_label");
                const bool pictured = picture != nullptr && picture->isVisible();
                EXPECT_EQ(pictured, icon != BoxIcon::None);
                const int before = pictured ? picture->geometry().right() : 0;
                EXPECT_LE(TextOf(box)->x() - before, Margin);
            }});
            ScreenDialogs().Tell(icon, "Attenzione!", text);
        }
}

}  // namespace
}  // namespace pixano::test
