#include "plots/pickspectrum.h"

#include "core/tofloat.h"

#include <cmath>
#include <utility>

namespace Zel3D {

PickSpectrum::PickSpectrum(std::vector<ValueXYZ<double>> drawnPoints, const std::array<bool, 3>& logarithmic,
                           const ValueXYZ<double>& drawnOrigin)
    : points(std::move(drawnPoints)), exponents(logarithmic), origin(drawnOrigin)
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
    return {origin.x + plain(p.x, 0), origin.y + plain(p.y, 1), origin.z + plain(p.z, 2), true};
}

} // namespace Zel3D
