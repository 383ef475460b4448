#include "plots/pickspectrum.h"

#include "core/tofloat.h"

#include <cmath>
#include <utility>

namespace Zel3D {

PickSpectrum::PickSpectrum(std::vector<ValueXYZ<double>> drawnPoints, const std::array<bool, 3>& logarithmic)
    : points(std::move(drawnPoints)), exponents(logarithmic)
{
    orderPoints();
}

QVector3D PickSpectrum::position(int index) const
{
    const ValueXYZ<double>& p = points[std::size_t(index)];
    return {toFloat(p.x), toFloat(p.y), toFloat(p.z)};
}

SelectedObjectsInfo PickSpectrum::info(int index) const
{
    const ValueXYZ<double>& p = points[std::size_t(index)];
    const auto plain = [this](double value, std::size_t k) {
        return exponents[k] ? std::pow(10.0, value) : value;
    };
    return {plain(p.x, 0), plain(p.y, 1), plain(p.z, 2), true};
}

} // namespace Zel3D
