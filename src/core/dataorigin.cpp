#include "core/dataorigin.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zel3D {

namespace {
/// Below it, steps are seen where the coordinates have none: a window is some thousands of pixels wide.
constexpr double fewestPlaces = 8192.0;
} // namespace

double dataOrigin(double lowest, double highest)
{
    const double range = highest - lowest;
    const double farthest = std::max(std::abs(lowest), std::abs(highest));
    if (!std::isfinite(range) || range <= 0.0)
        return 0.0;
    const double step = farthest * double(std::numeric_limits<float>::epsilon());
    return range < fewestPlaces * step ? lowest + 0.5 * range : 0.0;
}

} // namespace Zel3D
