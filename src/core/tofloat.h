#pragma once

#include <limits>

namespace Zel3D {

/// A double as a float; what a float cannot hold becomes an infinity of the same sign.
///
/// The language leaves a plain conversion of such a value undefined.
inline float toFloat(double value)
{
    using Float = std::numeric_limits<float>;
    constexpr double most = double(Float::max());
    const double clamped = value > most ? most : (value < -most ? -most : value);
    const float converted = float(clamped);
    return value > most ? Float::infinity() : (value < -most ? -Float::infinity() : converted);
}

} // namespace Zel3D
