// The name "Pixano" in the project's own letters, and lines of plain text, as outlines. Knows no
// picture.
#include "lettering.h"

#include <QFont>
#include <QFontInfo>
#include <QPainterPathStroker>
#include <QTransform>

#include <stdexcept>

namespace pixano::art {

namespace {

// The letters are lines and circles of one thickness on a grid where small letters are 100 high.
constexpr double Small = 100;
constexpr double Capital = 152;
constexpr double Thickness = 19;

void Stem(QPainterPath& path, double x, double height)
{
    path.moveTo(x, 0);
    path.lineTo(x, -height);
}

void Bowl(QPainterPath& path, double left)
{
    const double inset = Thickness / 2;
    path.addEllipse(QRectF(left, -Small + inset, Small - Thickness, Small - Thickness));
}

void LetterP(QPainterPath& path, double x)
{
    const double inset = Thickness / 2;
    const double waist = -Capital * 0.40;
    const double top = -Capital + inset;
    Stem(path, x, Capital);
    path.moveTo(x, top);
    path.lineTo(x + 36, top);
    path.arcTo(QRectF(x + 36 + top / 2 - waist / 2, top, waist - top, waist - top), 90, -180);
    path.lineTo(x, waist);
}

/// Two bars cut off level with the other letters.
void LetterX(QPainterPath& path, double left)
{
    constexpr double Breadth = 92;
    constexpr double Cut = Thickness * 1.22;  // of a slanting bar, measured level
    const double right = left + Breadth;
    path.addPolygon(QPolygonF{
        {left, -Small}, {left + Cut, -Small}, {right, 0}, {right - Cut, 0}, {left, -Small}});
    path.addPolygon(QPolygonF{
        {right - Cut, -Small}, {right, -Small}, {left + Cut, 0}, {left, 0}, {right - Cut, -Small}});
}

void LetterN(QPainterPath& path, double x)
{
    const double arch = 70;
    const double top = -Small + Thickness / 2;
    Stem(path, x, Small);
    path.moveTo(x, top + arch / 2);
    path.arcTo(QRectF(x, top, arch, arch), 180, -180);
    path.lineTo(x + arch, 0);
}

QPainterPath Skeleton()
{
    QPainterPath path;
    LetterP(path, 0);
    Stem(path, 112, Small);
    Bowl(path, 254);
    Stem(path, 254 + Small - Thickness, Small);
    LetterN(path, 380);
    Bowl(path, 487);
    return path;
}

/// The stroker flattens curves by a fixed measure, so it is given large ones.
QPainterPath Stroked(const QPainterPath& skeleton)
{
    constexpr double Large = 32;
    QPainterPathStroker pen;
    pen.setWidth(Thickness * Large);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    const QPainterPath stroke = pen.createStroke(QTransform::fromScale(Large, Large).map(skeleton));
    return QTransform::fromScale(1 / Large, 1 / Large).map(stroke);
}

QPainterPath CentredOn(const QPainterPath& path, double left, double width, double scale)
{
    return QTransform::fromScale(scale, scale).translate(-left - width / 2, 0).map(path);
}

}  // namespace

Wordmark Name(double width)
{
    QPainterPath letters = Stroked(Skeleton());
    LetterX(letters, 140);
    QPainterPath dot;
    const double side = Thickness * 1.25;
    dot.addRect(QRectF(112 - side / 2, -Capital, side, side));
    const QRectF box = letters.boundingRect();
    const double scale = width / box.width();
    return {CentredOn(letters, box.left(), box.width(), scale),
            CentredOn(dot, box.left(), box.width(), scale)};
}

QPainterPath TextLine(const QString& text, const TextStyle& style)
{
    QFont font("DejaVu Sans");
    font.setPixelSize(100);
    font.setBold(style.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::AbsoluteSpacing, style.spacing * 100 / style.size);
    if (QFontInfo(font).family() != "DejaVu Sans")
        throw std::runtime_error("the font DejaVu Sans is missing");
    QPainterPath path;
    path.addText(0, 0, font, text);
    const QRectF box = path.boundingRect();
    return CentredOn(path, box.left(), box.width(), style.size / 100);
}

}  // namespace pixano::art
