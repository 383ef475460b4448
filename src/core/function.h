#pragma once

#include "core/gridmapping.h"

namespace Zel3D {

/// z = f(x, y), sampled into a grid of heights.
///
/// A height above the restriction's maximum z or below its minimum z becomes that bound; x and y are not
/// restricted.
///
/// \code
/// class Saddle : public Zel3D::Function
/// {
/// public:
///     using Function::Function;
///     double operator()(double x, double y) override { return x * x - y * y; }
/// };
///
/// Saddle saddle(plot);
/// saddle.setMesh(41, 41);
/// saddle.setAreaLimits(-1.0, 1.0, -1.0, 1.0);
/// saddle.create();
/// \endcode
class VORANPLOT_EXPORT Function : public GridMapping
{
public:
    Function();
    explicit Function(SHPlot& target);
    explicit Function(SHPlot* target);

    /// The height at a point of the area.
    virtual double operator()(double x, double y) = 0;

    using GridMapping::create;
    /// Needs three columns and three rows while the mesh is checked. Writes the restriction's corners as
    /// debug messages.
    bool create() override;

    /// Whether create() refuses fewer than three columns or rows; it does at first.
    void setMeshCheck(bool on);
    bool isMeshCheck() const { return meshCheck; }

private:
    bool meshCheck = true;
};

} // namespace Zel3D
