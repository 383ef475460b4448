#include "core/function.h"

#include "core/columnarray.h"
#include "plots/shplot.h"

namespace Zel3D {

Function::Function() = default;

Function::Function(SHPlot& target) : GridMapping(target) {}

Function::Function(SHPlot* target) : GridMapping(target) {}

void Function::setMeshCheck(bool on)
{
    meshCheck = on;
}

bool Function::create()
{
    const unsigned int columns = getColumns();
    const unsigned int rows = getRows();
    if (!getPlot()) {
        qWarning("Function: Not Plot assigned");
        return false;
    }
    if (meshCheck && (columns < 3 || rows < 3))
        return false;
    if (!fitsInMemory("Function", columns, rows, sizeof(double)))
        return false;
    ColumnArray<double> z(columns, rows);
    const double dx = sampleStepX();
    const double dy = sampleStepY();
    const double lowest = double(getRestriction().minimum.z());
    const double highest = double(getRestriction().maximum.z());
    for (unsigned int i = 0; i < columns; ++i) {
        for (unsigned int j = 0; j < rows; ++j) {
            const double height = (*this)(getXMin() + i * dx, getYMin() + j * dy);
            z[i][j] = height > highest ? highest : (height < lowest ? lowest : height);
        }
    }
    // The function is the host's and may have deleted the plot.
    SHPlot* const plot = getPlot();
    if (!plot) {
        qWarning("Function: Not Plot assigned");
        return false;
    }
    const auto tell = [](const char* name, const QVector3D& p) {
        qDebug("\t%s: x=%f; y=%f; z=%f;", name, double(p.x()), double(p.y()), double(p.z()));
    };
    tell("minVertex", getRestriction().minimum);
    tell("maxVertex", getRestriction().maximum);
    return plot->loadFromData(z.columns(), columns, rows, getXMin(), getXMax(), getYMin(), getYMax());
}

} // namespace Zel3D
