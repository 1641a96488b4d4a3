// "?": what the program is for.
#pragma once

#include <QDialog>

namespace pixano {

class Form7 : public QDialog {
    Q_OBJECT

  public:
    Form7();

  protected:
    void showEvent(QShowEvent* event) override;
};

}  // namespace pixano
