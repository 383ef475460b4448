#include "core/types.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace Zel3D {

namespace {
constexpr double pi = 3.141592653589793;
}

template <>
bool isZero<double>(double a, double b)
{
    if (b == 0.0)
        return std::abs(a) <= DBL_MIN;
    return std::abs(a - b) <= DBL_EPSILON * std::min(std::abs(a), std::abs(b));
}

double translateToRadian(double degrees)
{
    return degrees * pi / 180.0;
}

double getRotationAngle(QVector3D& axis, const QVector3D& from, const QVector3D& to)
{
    const QVector3D up(0.0F, 0.0F, 1.0F);
    const QVector3D direction = (to - from).normalized();
    axis = QVector3D::crossProduct(up, direction).normalized();
    const double cosine = std::clamp(double(QVector3D::dotProduct(up, direction)), -1.0, 1.0);
    return std::acos(cosine) * 180.0 / pi;
}

bool operator==(const Parallelepiped& a, const Parallelepiped& b)
{
    return a.minimum.x() == b.minimum.x() && a.minimum.y() == b.minimum.y() &&
           a.minimum.z() == b.minimum.z() && a.maximum.x() == b.maximum.x() &&
           a.maximum.y() == b.maximum.y() && a.maximum.z() == b.maximum.z();
}

} // namespace Zel3D
