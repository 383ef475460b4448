#pragma once

#include "core/gridmapping.h"

namespace Zel3D {

/// A surface made of separate quadrilateral cells, for trying out a plot of cells. The restriction does not
/// apply.
class VORANPLOT_EXPORT TestCellData : public GridMapping
{
public:
    TestCellData();
    explicit TestCellData(SHPlot& target);
    explicit TestCellData(SHPlot* target);

    /// (x, y, (sin x sin y / x) y); at x = 0 the height is not a number, and the cells that touch such a
    /// corner are holes.
    virtual QVector3D operator()(double x, double y);

    using GridMapping::create;
    /// One cell between four neighbouring samples, with four vertices of its own. Without two columns and
    /// two rows there are no cells, which the plot refuses.
    bool create() override;
};

} // namespace Zel3D
