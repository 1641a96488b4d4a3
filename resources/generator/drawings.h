// Every drawing of the project, one function a picture. Knows no file.
#pragma once

#include <QByteArray>
#include <QImage>

namespace pixano::art {

/// The emblem of the "Informazioni" window.
QImage Emblem();
/// The picture that greets at the start.
QImage StartPicture();
/// The sample picture: a bay at the end of the day, exactly 640 x 480.
QImage Scene();

enum class Zooming { Enlarge, Reduce };
/// The palette's picture for a change of the preview's scale, at twice its size on the button.
QImage Magnifier(Zooming zooming);

enum class KeptHalf { Upper, Lower };
/// The palette's picture for a reflection, at twice its size on the button; clear around the tile.
QImage Reflection(KeptHalf half);

/// The program's icon, `side` x `side`; small sides get a drawing made for them.
QImage ApplicationIcon(int side);
/// The same icon as an SVG document.
QByteArray ApplicationIconSvg();

}  // namespace pixano::art
