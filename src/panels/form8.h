// The colour-subtraction window "Parametri": a value from 10 to 200, typed or chosen. Complete,
// though nothing opens it.
#pragma once

#include <QComboBox>
#include <QDialog>

namespace pixano {

/// What the window leaves behind.
struct Subtraction {
    QString TestoSottrazione;
    QString ValoreSottrazione;
    int ParametriAnnullati = 0;
};

class Form8 : public QDialog {
    Q_OBJECT

  public:
    /// `result` outlives the window.
    explicit Form8(Subtraction& result);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void BuildCombo();
    /// Below 1 becomes "10", not "1": kept exactly; above 200 becomes "200".
    void BoundText();

    Subtraction& result_;
    QComboBox* combo1_;
};

}  // namespace pixano
