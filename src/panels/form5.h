// "Informazioni": the program's emblem.
#pragma once

#include <QDialog>

namespace pixano {

class Form5 : public QDialog {
    Q_OBJECT

  public:
    Form5();
};

}  // namespace pixano
