#pragma once

#include <limits>

namespace Zel3D {

/// A double as a float; what is beyond the range of a float becomes an infinity of the same sign.
///
/// That is what IEC 60559 says of the conversion; the language alone would leave it undefined.
inline float toFloat(double value)
{
    static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);
    return float(value);
}

} // namespace Zel3D
