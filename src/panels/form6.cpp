#include "panels/form6.h"

#include "panels/fitted_picture.h"
#include "windows/centred.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace pixano {

Form6::Form6()
{
    setObjectName("Form6");
    setWindowTitle(QString());
    // Without a title and without buttons there is nothing for a frame to hold.
    setWindowFlag(Qt::FramelessWindowHint);
    setAccessibleName("Pixano");
    setAccessibleDescription("Immagine d'apertura: premi Invio per cominciare");
    auto* const picture = FittedPicture("apertura.jpg", QSize(0, 0));
    picture->setObjectName("Picture1");
    picture->setAccessibleName("Immagine d'apertura");
    picture->installEventFilter(this);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(picture);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    Centre(*this);
}

bool Form6::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) accept();
    return QDialog::eventFilter(watched, event);
}

void Form6::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Escape:
        accept();
        break;
    default:
        QDialog::keyPressEvent(event);
    }
}

void Form6::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    ShowNoTitle(*this);
}

}  // namespace pixano
