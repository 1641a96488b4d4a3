// The tools palette: push buttons for the most used commands. Tells which one was pressed; knows no
// command.
#pragma once

#include "panels/palette_button.h"

#include <QPushButton>
#include <QWidget>

#include <optional>
#include <utility>
#include <vector>

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
    /// `buttons` outlives the window.
    explicit Form10(PaletteTable buttons);

    void EnableHistory(const HistorySwitches& switches);
    /// The mouse pointer of a program that is at work, or the usual one.
    void ShowHourglass(bool shown);

    /// Sizes the buttons for a screen that is so high.
    void ArrangeFor(int height);

    void setVisible(bool visible) override;

  signals:
    void Pressed(const pixano::PaletteButton& button);

  protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    struct ButtonSize {
        int height;
        int picture;
    };

    QPushButton* BuildButton(const PaletteButton& row);
    void DrawPictures();
    void Size(const ButtonSize& size);
    bool FitsItsWidth();

    /// The boxes of the buttons, from top to bottom; the last one has no frame.
    std::vector<QWidget*> boxes_;
    /// The buttons that show a picture, and its file.
    std::vector<std::pair<QPushButton*, const char*>> pictures_;
};

}  // namespace pixano
