#include "panels/form5.h"

#include "panels/fitted_picture.h"
#include "windows/centred.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace pixano {

Form5::Form5()
{
    setObjectName("Form5");
    setWindowTitle("Informazioni");
    setAccessibleName("Informazioni");
    constexpr QSize Beside(24, 60);  // margins, and the button below
    auto* const picture = FittedPicture("emblema.jpg", Beside);
    picture->setObjectName("Picture1");
    picture->setAccessibleName("Emblema di Pixano");
    auto* const close = new QPushButton("OK");
    close->setObjectName("Command1");
    close->setAccessibleName("OK");
    close->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(picture);
    layout->addWidget(close, 0, Qt::AlignHCenter);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    Centre(*this);
}

}  // namespace pixano
