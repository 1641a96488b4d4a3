// The program with a small picture that has two effects, stepped back and forward, so that every
// working file is there.
#pragma once

#include "support/desk.h"

namespace pixano::test {

/// Eight columns and six rows, no two pixels alike.
inline Surface OpenedPicture()
{
    Surface picture(8, 6);
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            picture.PSet(x, y, (x * 4099 + y * 70001) & White);
    return picture;
}

class Busy {
  public:
    explicit Busy(const QString& name = "a.bmp")
    {
        WriteWorkingBitmap(OpenedPicture(), Folders::Path(name).toStdString());
        WriteWorkingBitmap(Surface(3, 2, 0xFF), Folders::Path("b.bmp").toStdString());
        QFile strengths("valori.tip");
        EXPECT_TRUE(strengths.open(QIODevice::WriteOnly));
        strengths.write("1\r\n2\r\n3\r\n4\r\n5\r\n");
        strengths.close();
        desk.session.programFolder = QDir::currentPath();
        desk.Open(Folders::Path(name));
        desk.Apply("Specchio");
        first = desk.Canvas();
        desk.Apply("Capovolgi");
        second = desk.Canvas();
        desk.ClickEntry(entry::Undo);
        desk.ClickEntry(entry::Redo);
        EXPECT_EQ(desk.Canvas(), second);
        EXPECT_TRUE(desk.dialogs.told.empty());
    }

    StartedDesk desk;
    /// After one effect, and after both.
    Surface first;
    Surface second;
};

}  // namespace pixano::test
