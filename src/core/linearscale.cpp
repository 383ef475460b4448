#include "core/linearscale.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace Zel3D {

namespace {

// Limits so far outside the major span that the minors would fill the memory get none there.
constexpr double mostOutside = 1e6;

/// a + b, exactly 0 when the sum is only rounding error.
double snappedSum(double a, double b)
{
    const double sum = a + b;
    if (b == 0.0)
        return std::abs(a) <= DBL_MIN ? 0.0 : sum;
    return std::abs(sum) <= DBL_EPSILON * std::min(std::abs(a), std::abs(b)) ? 0.0 : sum;
}

} // namespace

void LinearScale::calculate()
{
    majors.clear();
    minors.clear();
    if (!calculateMajors())
        return;
    if (majors.isEmpty()) {
        majorInterval = 0;
        minorInterval = 0;
        return;
    }
    majorInterval = majors.size() - 1;
    if (majorInterval == 0)
        minorInterval = 0;
    if (minorInterval > 0)
        calculateMinors();
}

std::shared_ptr<Scale> LinearScale::clone() const
{
    return std::make_shared<LinearScale>(*this);
}

bool LinearScale::calculateMajors()
{
    if (majorInterval == 0)
        return true;
    const double step = (majorStop - majorStart) / majorInterval;
    if (!std::isfinite(step) || std::abs(step) <= DBL_MIN)
        return false;
    for (int i = 0; i <= majorInterval; ++i)
        majors.append(snappedSum(majorStart, i * step));
    return true;
}

void LinearScale::calculateMinors()
{
    const double minorStep = (majors.at(1) - majors.at(0)) / minorInterval;
    if (std::abs(minorStep) <= DBL_MIN)
        return;
    if ((majorStart - start) / minorStep < mostOutside) {
        for (double v = majorStart - minorStep; v > start && v - minorStep < v; v -= minorStep)
            minors.append(v);
    }
    for (int k = 0; k < majorInterval; ++k) {
        for (int m = 1; m <= minorInterval; ++m)
            minors.append(majors.at(k) + m * minorStep);
    }
    if ((stop - majorStop) / minorStep < mostOutside) {
        for (double v = majorStop + minorStep; v < stop && v < v + minorStep; v += minorStep)
            minors.append(v);
    }
}

} // namespace Zel3D
