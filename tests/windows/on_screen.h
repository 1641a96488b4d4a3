// Whether a window stands on the screen as a whole, whatever screen there is.
#pragma once

#include "support/program.h"

#include <QScreen>

namespace pixano::test {

inline QRect Screen()
{
    return QApplication::primaryScreen()->availableGeometry();
}

inline void ExpectOnScreen(const QWidget& window)
{
    EXPECT_TRUE(Screen().contains(window.frameGeometry()))
        << window.objectName().toStdString() << " stands at " << window.frameGeometry().x() << ", "
        << window.frameGeometry().y() << " and takes " << window.frameGeometry().width() << " x "
        << window.frameGeometry().height();
}

class AnyScreen : public Program {
  protected:
    void OpenSquare(int side) { Open(QString::number(side) + ".bmp", Varied(side, side)); }
};

}  // namespace pixano::test
