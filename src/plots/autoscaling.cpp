#include "plots/autoscaling.h"

#include <algorithm>
#include <cmath>

namespace Zel3D::AutoScaling {

ValueXYZ<double> scaleOf(const Parallelepiped& box)
{
    const double dx = std::abs(double(box.maximum.x()) - double(box.minimum.x()));
    const double dy = std::abs(double(box.maximum.y()) - double(box.minimum.y()));
    const double dz = std::abs(double(box.maximum.z()) - double(box.minimum.z()));
    const double largest = std::max({dx, dy, dz});
    if (dx == 0.0 || dy == 0.0 || dz == 0.0 || !std::isfinite(dx + dy + dz))
        return {1.0, 1.0, 1.0};
    return {largest / dx, largest / dy, largest / dz};
}

ValueXYZ<double> inverseOf(const ValueXYZ<double>& scale)
{
    const double largest = std::max({scale.x, scale.y, std::abs(scale.z)});
    const auto inverse = [largest](double component) {
        return isZero(component, 0.0) ? 1.0 : largest / std::abs(component);
    };
    return {inverse(scale.x), inverse(scale.y), inverse(scale.z)};
}

} // namespace Zel3D::AutoScaling
