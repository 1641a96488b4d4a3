// The picture squeezed unevenly, then stretched back over the canvas.
#include "canvas/rounding.h"
#include "effects/composite/composite.h"

namespace pixano {
namespace {

/// Lines read with a step of 1, 2, ..., `largest`, 1, 2, ..., which changes every `band` lines.
class UnevenStride {
  public:
    UnevenStride(int band, int largest) : band_(band), largest_(largest) {}

    int Position() const { return position_; }

    void Advance()
    {
        if (++count_ == band_) {
            count_ = 0;
            ++step_;
        }
        position_ += step_;
        // Too large a step has been taken once before it starts again at 1: kept exactly.
        if (step_ > largest_) step_ = 1;
    }

  private:
    int band_;
    int largest_;
    int position_ = 0;
    int step_ = 1;
    int count_ = 0;
};

struct Squeezed {
    int columns = 0;
    int rows = 0;
};

/// Copies the lines of the canvas that the two strides read into the first cells of `Vettore`.
Squeezed Squeeze(Work& w, const UnevenStride& firstColumn, UnevenStride row)
{
    Squeezed size;
    do {
        UnevenStride column = firstColumn;
        size.columns = 0;
        do {
            w.Vettore(size.columns, size.rows) =
                w.Picture1.Point(column.Position(), row.Position());
            ++size.columns;
            column.Advance();
        } while (column.Position() <= w.Larg - 1);
        ++size.rows;
        row.Advance();
    } while (row.Position() <= w.Alt - 1);
    return size;
}

/// Spreads the cells over the canvas, `fx` columns and `fy` rows a pixel. What lies behind the last
/// column or row keeps its pixels.
void Stretch(Work& w, const Squeezed& size, double fx, double fy)
{
    double v = 0;
    for (int y = 0; y < w.Alt && v <= size.rows; ++y) {
        w.Avanzamento(y);
        double u = 0;
        for (int x = 0; x < w.Larg && u <= size.columns; ++x) {
            w.Picture1.PSet(x, y, w.Vettore(CLng(u), CLng(v)));
            u += fx;
        }
        v += fy;
    }
}

}  // namespace

/// "Deformazione Casuale": a wavy enlargement, different each time. Throws DivisionByZero or
/// SubscriptOutOfRange on pictures of a few pixels, which can hardly be squeezed.
void MulStepRnd(Work& w)
{
    const int r1 = CLng(Int(w.Rnd() * 20)) + 15;
    const int r2 = CLng(Int(w.Rnd() * 20)) + 10;
    const int r3 = CLng(Int(w.Rnd() * 2)) + 2;
    const int r4 = CLng(Int(w.Rnd() * 2)) + 2;
    const Squeezed size = Squeeze(w, UnevenStride(r1, r3), UnevenStride(r2, r4));
    // The two divisors differ: kept exactly.
    const double fx = Quotient(w.Larg - 1, (w.Larg - 1) - size.columns) / 4.7;
    const double fy = Quotient(w.Alt - 1, (w.Alt - 1) - size.rows) / 4.5;
    w.ShowProgress();
    Stretch(w, size, fx, fy);
}

}  // namespace pixano
