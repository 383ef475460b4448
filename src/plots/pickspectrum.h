#pragma once

#include "plots/pickcloud.h"

#include <array>

namespace Zel3D {

/// The points of a family of spectra, in double precision.
class PickSpectrum : public PickCloud
{
public:
    /// The points as drawn, counted from \a origin; \a logarithmic directions (x, y, z) are drawn as decimal
    /// exponents.
    PickSpectrum(std::vector<ValueXYZ<double>> drawnPoints, const std::array<bool, 3>& logarithmic,
                 const ValueXYZ<double>& origin);

    int size() const override { return int(points.size()); }
    QVector3D position(int index) const override;
    SelectedObjectsInfo info(int index) const override;

private:
    std::vector<ValueXYZ<double>> points;
    std::array<bool, 3> exponents;
    ValueXYZ<double> origin;
};

} // namespace Zel3D
