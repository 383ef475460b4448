#include "plots/pickvolume.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace Zel3D {

namespace {
/// Rounding steps of the products and sums behind one clip coordinate, generously.
constexpr double roundingSteps = 64.0;
} // namespace

PickVolume::PickVolume(const std::array<double, 16>& matrix)
{
    // Inside: -w <= x, y, z <= w; see glOrtho(3G).
    const auto row = [&](std::size_t r, std::size_t column) { return matrix[4 * column + r]; };
    for (std::size_t i = 0; i < planes.size(); ++i) {
        const double sign = i % 2 == 0 ? 1.0 : -1.0;
        for (std::size_t k = 0; k < 4; ++k) {
            planes[i].factors[k] = row(3, k) + sign * row(i / 2, k);
            planes[i].reach[k] =
                roundingSteps * double(FLT_EPSILON) * (std::abs(row(3, k)) + std::abs(row(i / 2, k)));
        }
    }
}

bool PickVolume::inside(const Plane& plane, double x, double y, double z)
{
    const auto& [a, b, c, d] = plane.factors;
    const auto& [ra, rb, rc, rd] = plane.reach;
    return a * x + b * y + c * z + d + ra * std::abs(x) + rb * std::abs(y) + rc * std::abs(z) + rd >= 0.0;
}

bool PickVolume::mayHold(const QVector3D& p) const
{
    for (const Plane& plane : planes) {
        if (!inside(plane, double(p.x()), double(p.y()), double(p.z())))
            return false;
    }
    return true;
}

bool PickVolume::mayHold(const Parallelepiped& box) const
{
    const QVector3D& low = box.minimum;
    const QVector3D& high = box.maximum;
    if (!(low.x() <= high.x() && low.y() <= high.y() && low.z() <= high.z()))
        return false;
    for (const Plane& plane : planes) {
        // The sum of each term's greatest value is a bound for every point of the box.
        double most = plane.factors[3] + plane.reach[3];
        for (int k = 0; k < 3; ++k) {
            const double factor = plane.factors[std::size_t(k)];
            const double reach = plane.reach[std::size_t(k)];
            const auto atLow = double(low[k]);
            const auto atHigh = double(high[k]);
            most += std::max(factor * atLow, factor * atHigh) +
                    reach * std::max(std::abs(atLow), std::abs(atHigh));
        }
        if (most < 0.0)
            return false;
    }
    return true;
}

} // namespace Zel3D
