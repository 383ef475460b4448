#pragma once

#include "core/gridmapping.h"

namespace Zel3D {

/// (x, y, z) = f(u, v), sampled into a grid of points.
///
/// A point outside the restriction has one coordinate corrected: the first violated bound in the order
/// maximum x, y, z, minimum x, y, z.
class VORANPLOT_EXPORT ParametricSurface : public GridMapping
{
public:
    ParametricSurface();
    explicit ParametricSurface(SHPlot& target);
    explicit ParametricSurface(SHPlot* target);

    /// The point of a parameter pair of the area.
    virtual QVector3D operator()(double u, double v) = 0;

    using GridMapping::create;
    /// Needs three columns and three rows. The distances between the parameters become the steps of the
    /// data.
    bool create() override;
};

} // namespace Zel3D
