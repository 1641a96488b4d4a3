// Everything that an effect may touch, and nothing else: no window, no picture file, no history.
#pragma once

#include "canvas/matrix.h"
#include "canvas/pixel_file.h"
#include "canvas/progress.h"
#include "canvas/random.h"
#include "canvas/strengths.h"
#include "canvas/surface.h"

#include <cstdint>
#include <memory>

namespace pixano {

/// The canvas and what lives on from one effect to the next beside it.
class Work {
  public:
    /// `store` keeps the pixel working file, `progress` outlives this object, `timer` seeds the
    /// random numbers.
    Work(std::unique_ptr<PixelFile::Store> store, Progress& progress, Timer timer = {})
        : ElabSer(std::move(store)), progress_(progress), random_(timer)
    {
    }

    Surface Picture1;
    /// Width and height of the picture in pixels. Some effects make them even for good, while the
    /// surface keeps its size.
    int Larg = 0;
    int Alt = 0;

    Matrix Vettore;
    Matrix Vettore2;
    PixelFile ElabSer;

    /// The strengths of the five effects that take one, cells 1 to 5, and the cell in use.
    Strengths Valori{};
    std::int16_t IndValore = 0;
    /// The strength in use.
    double Strength() const { return Valori.at(static_cast<std::size_t>(IndValore)); }

    /// The next value of the pixel working file.
    Colour Input() { return ElabSer.Input(); }
    /// The next `count` values, handed to `step(i, value)` one by one.
    template <typename Step>
    void Input(int count, Step step)
    {
        ElabSer.Input(count, std::move(step));
    }

    /// Uniform in [0, 1).
    double Rnd() { return random_.Rnd(); }
    /// Reseeds the random numbers from the timer.
    void Randomize() { random_.Randomize(); }

    void ShowProgress() { progress_.Show(); }
    /// `n` rows are done. Throws DivisionByZero when `Alt` is 0.
    void Avanzamento(double n) { progress_.Avanzamento(n, Alt); }

  private:
    Progress& progress_;
    Random random_;
};

}  // namespace pixano
