// Runs effects one after another on one picture, as the effect frame does but without history and
// windows. Knows no file.
#pragma once

#include "batch/step.h"
#include "canvas/work.h"

#include <span>
#include <stdexcept>
#include <string>

namespace pixano::batch {

/// A run-time error in an effect. `what()` names the effect and the error.
class EffectFailed : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Told which effect is running, besides how far it is.
class ChainProgress : public Progress {
  public:
    virtual void Begins(const Effect& /*effect*/) {}
};

/// The canvas caption: the text, three blanks, and the size.
std::string Caption(std::string_view text, const Work& w);

/// Runs the effects in order; matrices, `Larg`, `Alt` and the random numbers live on from one to
/// the next. `valori` are the strengths of the effects that are given none. Gives the canvas
/// caption at the end, `before` when no effect has set one. Throws EffectFailed.
std::string RunChain(Work& w, std::span<const Step> steps, const Strengths& valori,
                     std::string_view before, ChainProgress& progress);

}  // namespace pixano::batch
