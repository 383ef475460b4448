#include "startview.h"

#include <algorithm>
#include <cmath>

namespace StartView {

namespace {

constexpr double mostUnlikeSides = 4.0;

} // namespace

Zel3D::ValueXYZ<double> scale(const Zel3D::Parallelepiped& box, double relief)
{
    const QVector3D extent = box.maximum - box.minimum;
    const double x = std::abs(double(extent.x()));
    const double y = std::abs(double(extent.y()));
    const double z = std::abs(double(extent.z()));
    if (!(x > 0.0 && y > 0.0 && z > 0.0))
        return {1.0, 1.0, 1.0};
    const double longer = std::max(x, y);
    const double largest = std::max(longer, z);
    const bool alike = longer <= mostUnlikeSides * std::min(x, y);
    return {largest / (alike ? longer : x), largest / (alike ? longer : y), relief * largest / z};
}

Zel3D::ValueXYZ<double> rotation()
{
    return {45.0, 0.0, 25.0};
}

Zel3D::ValueXYZ<double> rotationWithYUp()
{
    return {110.0, -25.0, 0.0};
}

} // namespace StartView
