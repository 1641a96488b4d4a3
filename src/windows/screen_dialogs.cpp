#include "windows/screen_dialogs.h"

#include "windows/centred.h"
#include "windows/file_dialog.h"
#include "windows/free_screen.h"
#include "windows/wrapped_text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>

#include <algorithm>

namespace pixano {
namespace {

QMessageBox::Icon IconOf(BoxIcon icon)
{
    switch (icon) {
    case BoxIcon::None:
        return QMessageBox::NoIcon;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

/// What the icon says to those who do not see it.
QString NameOf(BoxIcon icon)
{
    switch (icon) {
    case BoxIcon::None:
        return {};
    case BoxIcon::Question:
        return "Domanda";
    case BoxIcon::Exclamation:
        return "Avviso";
    case BoxIcon::Critical:
        return "Errore";
    }
    return {};
}

/// A question with the answers yes and no. Escape is no answer, and there is no close button: "no"
/// throws work away, so it has to be said.
class YesNoBox : public QMessageBox {
  public:
    explicit YesNoBox(QWidget* parent) : QMessageBox(parent)
    {
        setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override
    {
        if (clickedButton() == nullptr)
            event->ignore();
        else
            QMessageBox::closeEvent(event);
    }
    void showEvent(QShowEvent* event) override
    {
        QMessageBox::showEvent(event);
        if (windowTitle().isEmpty()) ShowNoTitle(*this);
    }
};

/// A word that is wider than a line makes the box wider than the screen: then other lines take the
/// place of the box's own.
void WrapLongNames(QMessageBox& box)
{
    constexpr int Comfortable = 500;
    auto* const own = box.findChild<QLabel*>("qt_msgbox_label");
    const QSize most = LargestInside(box);
    const int width = std::min(Comfortable, most.width() / 2);
    own->setWordWrap(true);
    // A small screen has no room for a long text at half its width either.
    const bool tall = own->heightForWidth(width) > most.height() / 2;
    if (own->minimumSizeHint().width() <= width && !tall) return;
    auto* const text =
        new WrappedText(box.text(), tall ? std::min(Comfortable, most.width() * 3 / 4) : width);
    delete box.layout()->replaceWidget(own, text);
    box.layout()->setAlignment(text, Qt::AlignLeft | Qt::AlignVCenter);
    own->hide();
}

/// Brings the text close to its icon, and to the edge where there is none: the toolkit leaves the
/// icon's column empty then.
void PlaceText(QMessageBox& box)
{
    auto* const text = box.findChild<QLabel*>("qt_msgbox_label");
    auto* const grid = qobject_cast<QGridLayout*>(box.layout());
    if (text == nullptr || grid == nullptr) return;
    text->setContentsMargins(0, 0, 0, 0);
    text->setIndent(0);
    text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // A short text stands at the middle of its icon; a longer one is seen whole.
    const qreal beside = box.iconPixmap().deviceIndependentSize().height();
    text->setMinimumHeight(std::max(qRound(beside), text->sizeHint().height()));
    QLayoutItem* const first = grid->itemAtPosition(0, 0);
    if (first == nullptr || first->spacerItem() == nullptr) return;
    first->spacerItem()->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
    grid->setHorizontalSpacing(0);
    // What the buttons need besides is the text's.
    grid->setColumnStretch(1, 1);
}

void Fill(QMessageBox& box, BoxIcon icon, const QString& title, const QString& text)
{
    box.setObjectName("MsgBox");
    box.setIcon(IconOf(icon));
    if (auto* const shown = box.findChild<QLabel*>("qt_msgboxex_icon_label"))
        shown->setAccessibleName(NameOf(icon));
    box.setWindowTitle(title);
    // A file's name must not be taken for markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    PlaceText(box);
    WrapLongNames(box);
}

}  // namespace

bool ScreenDialogs::Ask(BoxIcon icon, const QString& title, const QString& text)
{
    YesNoBox box(QApplication::activeWindow());
    Fill(box, icon, title, text);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::Yes);
    return box.exec() == QMessageBox::Yes;
}

void ScreenDialogs::Tell(BoxIcon icon, const QString& title, const QString& text)
{
    QMessageBox box(QApplication::activeWindow());
    Fill(box, icon, title, text);
    box.exec();
}

std::optional<QString> ScreenDialogs::AskOpenName(const QString& folder)
{
    FileLooks looks;
    FileDialog dialog(looks, "Apri", folder);
    dialog.setNameFilter("(*.Bmp) (*.Jpg) (*.Gif) (*.bmp *.jpg *.gif)");
    // The endings that the filter lets through are in its text already.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    return dialog.AskName();
}

std::optional<QString> ScreenDialogs::AskSaveName(const QString& folder, const QString& name)
{
    FileLooks looks;
    FileDialog dialog(looks, "Salva con nome", folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter("Bitmap (*.bmp)");
    dialog.setDefaultSuffix("bmp");
    // The program asks for itself whether a file may be replaced.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.BeginWith(name);
    return dialog.AskName();
}

}  // namespace pixano
