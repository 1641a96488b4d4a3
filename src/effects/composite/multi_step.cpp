// The picture squeezed more and more towards one edge, then again from the start.
#include "canvas/captures.h"
#include "canvas/rounding.h"
#include "effects/composite/composite.h"

#include <algorithm>
#include <span>
#include <vector>

namespace pixano {
namespace {

/// How many lines a pass reads before its step changes; 0 for a picture of less than 6 pixels. The
/// two divisors differ: kept exactly.
int ColumnBand(const Work& w)
{
    return CLng(Int(w.Larg / 5.9));
}

int RowBand(const Work& w)
{
    return CLng(Int(w.Alt / 5.8));
}

/// Which lines of `lines` a pass reads, one after another: ever wider apart up to the last one,
/// then from the first one again with a step that shrinks, turns negative and leads out at the
/// start. With a `band` of 0 there is no end.
class Stride {
  public:
    Stride(int lines, int band) : last_(lines - 1), band_(band) {}

    int Position() const { return position_; }

    /// Goes to the next line. False when there is none.
    bool Advance()
    {
        if (++count_ == band_) {
            count_ = 0;
            step_ += change_;
        }
        position_ += step_;
        if (position_ < 0) return false;
        if (position_ > last_) {
            count_ = 0;
            change_ = -1;
            position_ = 0;
        }
        return true;
    }

  private:
    int last_;
    int band_;
    int position_ = 0;
    int step_ = 1;
    int count_ = 0;
    int change_ = 1;
};

/// The lines of `lines` that a pass reads for the places 0 to `lines`. What is left over when place
/// `lines` is reached piles up there, in a line that is never painted, and the last one stays. Just
/// the first line where there is no end.
std::vector<int> LinesRead(int lines, int band)
{
    std::vector<int> read;
    Stride line(lines, band);
    do {
        if (static_cast<int>(read.size()) > lines)
            read.back() = line.Position();
        else
            read.push_back(line.Position());
    } while (band != 0 && line.Advance());
    return read;
}

/// Squeezes every row, as `source` gives it, into `target`.
template <typename Source>
void ColumnPass(const Work& w, Source source, Matrix& target)
{
    const std::vector<int> columns = LinesRead(w.Larg, ColumnBand(w));
    const int count = static_cast<int>(columns.size());
    for (int y = 0; y < w.Alt; ++y) {
        const auto from = source(y);
        const auto to = target.Row(y);
        for (int t = 0; t < count; ++t)
            to(t) = from[columns[t]];
    }
}

/// The same with all rows of the canvas, into `Vettore`.
void RowPass(Work& w)
{
    const std::vector<int> rows = LinesRead(w.Alt, RowBand(w));
    const int count = static_cast<int>(rows.size());
    for (int t = 0; t < count; ++t)
        CattuRiga(w, rows[t], w.Larg, t);
}

/// Throws InvalidCall where a column pass would never end; a pass without rows ends at once.
void RefuseEndlessColumnPass(const Work& w)
{
    if (w.Alt > 0 && ColumnBand(w) == 0)
        throw Fault(FaultKind::InvalidCall,
                    "Operazione impossibile: l'immagine è larga meno di 6 pixel");
}

/// Throws InvalidCall where a row pass would never end. One that is too wide for the matrix ends in
/// its first row, with the fault that this is.
void RefuseEndlessRowPass(const Work& w)
{
    if (w.Larg - 1 <= Matrix::LastIndex && RowBand(w) == 0)
        throw Fault(FaultKind::InvalidCall,
                    "Operazione impossibile: l'immagine è alta meno di 6 pixel");
}

/// A row of the matrix is given as it lies in memory, unchecked beyond its end. That is safe: a
/// picture wider than the matrix has ended in a fault before, since every pass that fills `cells`
/// first writes or reads the cell behind the last one, checked.
void Paint(Work& w, Matrix& cells)
{
    w.ShowProgress();
    for (int y = 0; y < w.Alt; ++y) {
        w.Avanzamento(y);
        w.Picture1.PaintRow(y, cells.Row(y, w.Larg));
    }
}

}  // namespace

/// "Multi Step Verticale": the columns squeezed. Throws InvalidCall below 6 pixels of width.
void Vertstep(Work& w)
{
    RefuseEndlessColumnPass(w);
    std::vector<Colour> row(static_cast<std::size_t>(w.Larg));
    ColumnPass(
        w,
        [&](int y) {
            w.Picture1.ReadRow(y, row);
            return std::span(row);
        },
        w.Vettore);
    Paint(w, w.Vettore);
}

/// "Multi Step Orizzontale": the rows squeezed. Throws InvalidCall below 6 pixels of height.
void Orizstep(Work& w)
{
    RefuseEndlessRowPass(w);
    RowPass(w);
    Paint(w, w.Vettore);
}

/// "MultiFoto Step": the rows squeezed, then the columns of that. Throws InvalidCall below 6 pixels
/// of either side, before anything is painted.
void MultiFotoStep(Work& w)
{
    RefuseEndlessRowPass(w);
    RowPass(w);
    RefuseEndlessColumnPass(w);
    const auto squeezed = [&](int y) { return w.Vettore.Row(y, w.Larg); };
    ColumnPass(w, squeezed, w.Vettore2);
    Paint(w, w.Vettore2);
}

}  // namespace pixano
