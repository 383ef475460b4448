#include "core/parametricsurface.h"

#include "core/columnarray.h"
#include "plots/shplot.h"

namespace Zel3D {

ParametricSurface::ParametricSurface() = default;

ParametricSurface::ParametricSurface(SHPlot& target) : GridMapping(target) {}

ParametricSurface::ParametricSurface(SHPlot* target) : GridMapping(target) {}

bool ParametricSurface::create()
{
    const unsigned int columns = getColumns();
    const unsigned int rows = getRows();
    if (!getPlot()) {
        qWarning("ParametricSurface: Not Plot assigned");
        return false;
    }
    if (columns < 3 || rows < 3 || !fitsInMemory("ParametricSurface", columns, rows, sizeof(QVector3D)))
        return false;
    ColumnArray<QVector3D> points(columns, rows);
    const double du = sampleStepX();
    const double dv = sampleStepY();
    for (unsigned int i = 0; i < columns; ++i) {
        for (unsigned int j = 0; j < rows; ++j) {
            points[i][j] = (*this)(getXMin() + i * du, getYMin() + j * dv);
            correct(points[i][j]);
        }
    }
    // The definition is the host's and may have deleted the plot.
    SHPlot* const plot = getPlot();
    if (!plot) {
        qWarning("ParametricSurface: Not Plot assigned");
        return false;
    }
    return plot->loadFromData(points.columns(), columns, rows, du, dv);
}

} // namespace Zel3D
