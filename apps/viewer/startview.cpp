#include "startview.h"

#include <algorithm>
#include <cmath>

namespace StartView {

namespace {

constexpr double mostUnlikeSides = 4.0;

struct NamedView
{
    const char* name;
    Zel3D::ValueXYZ<double> rotation;
};

// As the actions of the plots show them.
constexpr NamedView views[] = {{"top", {90.0, 0.0, 0.0}},  {"bottom", {-90.0, 0.0, 0.0}},
                               {"left", {0.0, 0.0, 90.0}}, {"right", {0.0, 0.0, -90.0}},
                               {"front", {0.0, 0.0, 0.0}}, {"back", {0.0, 0.0, 180.0}}};

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

QStringList names()
{
    QStringList found;
    for (const NamedView& view : views)
        found.append(view.name);
    return found;
}

std::optional<Zel3D::ValueXYZ<double>> named(const QString& name)
{
    for (const NamedView& view : views) {
        if (name.compare(QLatin1String(view.name), Qt::CaseInsensitive) == 0)
            return view.rotation;
    }
    return std::nullopt;
}

} // namespace StartView
