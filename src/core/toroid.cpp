#include "core/toroid.h"

#include <cmath>

namespace Zel3D {

namespace {

constexpr double ringRadius = 1.9;
constexpr double fullTurn = 6.283185307179586;

} // namespace

Toroid::Toroid() : Toroid(nullptr) {}

Toroid::Toroid(SHPlot& target) : Toroid(&target) {}

Toroid::Toroid(SHPlot* target) : ParametricSurface(target)
{
    ParametricSurface::setMesh(41, 31);
    setAreaLimits(-fullTurn, 0.0, -fullTurn, 0.0);
}

QVector3D Toroid::operator()(double u, double v)
{
    const double distance = ringRadius + std::cos(v);
    return {float(std::cos(u) * distance), float(std::sin(u) * distance), float(std::cos(v) + std::sin(v))};
}

} // namespace Zel3D
