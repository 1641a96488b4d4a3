// The emblem and the start-up picture: the four quarters with the program's name. Knows no file.
#include "colours.h"
#include "drawings.h"
#include "lettering.h"
#include "quarters.h"

namespace pixano::art {

namespace {

constexpr int EmblemWidth = 480;
constexpr int EmblemHeight = 320;
constexpr int StartWidth = 640;
constexpr int StartHeight = 420;
constexpr int BandHeight = 84;

void PaintAt(QPainter& painter, const QPointF& place, const QPainterPath& path,
             const QColor& colour)
{
    painter.fillPath(path.translated(place), colour);
}

void PaintName(QPainter& painter, const QPointF& place, double width)
{
    const Wordmark name = Name(width);
    PaintAt(painter, place, name.letters, Ink);
    PaintAt(painter, place, name.dot, Coral);
}

void PaintBand(QPainter& painter)
{
    const int top = StartHeight - BandHeight;
    painter.fillRect(0, top, StartWidth, BandHeight, Ink);
    painter.fillRect(0, top, StartWidth, 3, Gold);
    PaintAt(painter, {StartWidth / 2.0, top + 39.0},
            TextLine("Effetti speciali per le tue fotografie", {21, false, 0.8}), Cream);
    PaintAt(painter, {StartWidth / 2.0, top + 65.0},
            TextLine("fai clic per cominciare", {12, false, 0.8}), Mixed(Cream, Ink, 0.3));
}

}  // namespace

QImage Emblem()
{
    QImage picture(EmblemWidth, EmblemHeight, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintQuarters(painter, EmblemWidth, EmblemHeight);
    const QPointF centre(EmblemWidth / 2.0, EmblemHeight / 2.0);
    PaintDisc(painter, centre, 94);
    PaintName(painter, centre + QPointF(0, 19), 140);
    return picture;
}

QImage StartPicture()
{
    QImage picture(StartWidth, StartHeight, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintQuarters(painter, StartWidth, StartHeight - BandHeight);
    const QPointF centre(StartWidth / 2.0, (StartHeight - BandHeight) / 2.0);
    PaintDisc(painter, centre, 122);
    PaintName(painter, centre + QPointF(0, 12), 176);
    PaintAt(painter, centre + QPointF(0, 56), TextLine("2.3", {26, false, 3}), Teal);
    PaintBand(painter);
    return picture;
}

}  // namespace pixano::art
