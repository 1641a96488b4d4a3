// The tools palette: push buttons for the most used commands. Tells which one was pressed; knows no
// command.
#pragma once

#include "panels/palette_table.h"

#include <QPushButton>
#include <QWidget>

#include <optional>

namespace pixano {

/// On, off, or as it is.
using Switch = std::optional<bool>;

struct HistorySwitches {
    Switch annulla;
    Switch originale;
    Switch ripristina;
};

class Form10 : public QWidget {
    Q_OBJECT

  public:
    Form10();

    void EnableHistory(const HistorySwitches& switches);
    /// The mouse pointer of a program that is at work, or the usual one.
    void ShowHourglass(bool shown);

  signals:
    void Pressed(const pixano::PaletteButton& button);

  protected:
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QWidget* BuildFrame(PaletteFrame frame, const QString& caption, int columns);
    QWidget* BuildZoomButtons();
    QPushButton* BuildButton(const PaletteButton& row);
};

}  // namespace pixano
