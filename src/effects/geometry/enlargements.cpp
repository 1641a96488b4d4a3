// One half, one quarter or the middle of the picture, doubled to fill the canvas.
#include "canvas/captures.h"
#include "canvas/rounding.h"
#include "effects/geometry/geometry.h"

namespace pixano {
namespace {

/// The rows or columns of a region: from the first in steps of 1, as long as they do not exceed the
/// last. A first one at a half keeps its fraction on the way.
struct Range {
    double first;
    double last;
};

Range Whole(int side)
{
    return {.first = 0, .last = static_cast<double>(side)};
}

Range FirstHalf(int side)
{
    return {.first = 0, .last = side / 2.0};
}

Range SecondHalf(int side)
{
    return {.first = side / 2.0, .last = static_cast<double>(side)};
}

Range Middle(int side)
{
    return {.first = Int(side / 4.0), .last = Int(side - side / 4.0)};
}

void CaptureRow(Work& w, double y, Range columns)
{
    for (double x = columns.first; x <= columns.last; ++x)
        w.ElabSer.Write(w.Picture1.Point(static_cast<float>(x), static_cast<float>(y)));
}

void Capture(Work& w, Range rows, Range columns)
{
    w.ElabSer.OpenForOutput();
    for (double y = rows.first; y <= rows.last; ++y)
        CaptureRow(w, y, columns);
    w.ElabSer.Close();
}

void DoubleRows(Work& w)
{
    for (int y = 0; y <= w.Alt; y += 2) {
        w.Avanzamento(y);
        for (int x = 0; x <= w.Larg; ++x) {
            const Colour c = w.Input();
            w.Picture1.PSet(x, y, c);
            w.Picture1.PSet(x, y + 1, c);
        }
    }
}

void DoubleColumnsOfRow(Work& w, int y)
{
    for (int x = 0; x <= w.Larg; x += 2) {
        const Colour c = w.Input();
        w.Picture1.PSet(x, y, c);
        w.Picture1.PSet(x + 1, y, c);
    }
}

/// Doubles a region both ways. Repainting takes no notice of the rows captured: a row with more
/// values than are taken here shears the rest of the picture.
void DoubleBoth(Work& w, Range rows, Range columns)
{
    Capture(w, rows, columns);
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; y += 2) {
        w.Avanzamento(y);
        for (int x = 0; x <= w.Larg; x += 2) {
            const Colour c = w.Input();
            w.Picture1.PSet(x, y, c);
            w.Picture1.PSet(x + 1, y, c);
            w.Picture1.PSet(x, y + 1, c);
            w.Picture1.PSet(x + 1, y + 1, c);
        }
    }
}

}  // namespace

/// "Ingr. Top": the top half. The whole picture is captured; the reading stops early.
void Top(Work& w)
{
    Cattura(w);
    w.ShowProgress();
    DoubleRows(w);
}

/// "Ingr. Bottom": the bottom half.
void Bottom(Work& w)
{
    Capture(w, SecondHalf(w.Alt), Whole(w.Larg));
    w.ShowProgress();
    DoubleRows(w);
}

/// "Ingr. Sinistro": the left half. The progress is that of the capture, told before the progress
/// window is there; the repainting tells none: kept exactly.
void Sini(Work& w)
{
    w.ElabSer.OpenForOutput();
    for (int y = 0; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        CaptureRow(w, y, FirstHalf(w.Larg));
    }
    w.ElabSer.Close();
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; ++y)
        DoubleColumnsOfRow(w, y);
}

/// "Ingr. Destro": the right half.
void Destro(Work& w)
{
    Capture(w, Whole(w.Alt), SecondHalf(w.Larg));
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        DoubleColumnsOfRow(w, y);
    }
}

/// "Ingr. Top Sinistro": the top left quarter.
void Sintop(Work& w)
{
    DoubleBoth(w, FirstHalf(w.Alt), FirstHalf(w.Larg));
}

/// "Ingr. Top Destro": the top right quarter.
void Destop(Work& w)
{
    DoubleBoth(w, FirstHalf(w.Alt), SecondHalf(w.Larg));
}

/// "Ingr. Bottom Sinistro": the bottom left quarter.
void Sinbot(Work& w)
{
    DoubleBoth(w, SecondHalf(w.Alt), FirstHalf(w.Larg));
}

/// "Ingr. Bottom Destro": the bottom right quarter.
void Desbot(Work& w)
{
    DoubleBoth(w, SecondHalf(w.Alt), SecondHalf(w.Larg));
}

/// "Ingr. Centro": the middle, half as wide and high as the picture. Widths that leave 3 when
/// divided by 4 come out sheared: kept exactly.
void Incentro(Work& w)
{
    DoubleBoth(w, Middle(w.Alt), Middle(w.Larg));
}

}  // namespace pixano
