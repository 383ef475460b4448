#pragma once

#include "core/parametricsurface.h"

namespace Zel3D {

/// A ring around the z axis with a tilted tube: 41 by 31 samples, u and v each from -2 pi to 0.
class VORANPLOT_EXPORT Toroid : public ParametricSurface
{
public:
    Toroid();
    explicit Toroid(SHPlot& target);
    explicit Toroid(SHPlot* target);

    /// (cos u (R + cos v), sin u (R + cos v), cos v + sin v) with R = 1.9. The height adds the cosine and the
    /// sine, which flattens and tilts the cross-section of the tube.
    QVector3D operator()(double u, double v) override;
};

} // namespace Zel3D
