// How fractions become whole numbers: `Int` down, `CLng` to the nearest with halves to the even
// one; and division that faults by zero.
#pragma once

#include "canvas/fault.h"

#include <cmath>
#include <cstdint>

namespace pixano {

/// The largest whole number that is not above `value`.
inline double Int(double value)
{
    return std::floor(value);
}

/// `value` as a 32-bit integer, to nearest, halves to the even neighbour. Throws Overflow where it
/// does not fit.
inline std::int32_t CLng(double value)
{
    // The least and the first too large of the values that round to such an integer.
    const bool fits = value >= -0x1p31 - 0.5 && value < 0x1p31 - 0.5;
    if (!fits) throw Fault(FaultKind::Overflow);
    return static_cast<std::int32_t>(std::lrint(value));
}

/// The quotient. Throws DivisionByZero.
inline double Quotient(double dividend, double divisor)
{
    if (divisor == 0) throw Fault(FaultKind::DivisionByZero);
    return dividend / divisor;
}

}  // namespace pixano
