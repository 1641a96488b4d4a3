// The start-up picture, which goes at a click or a key.
#pragma once

#include <QDialog>

namespace pixano {

class Form6 : public QDialog {
    Q_OBJECT

  public:
    Form6();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
};

}  // namespace pixano
