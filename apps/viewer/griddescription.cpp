#include "griddescription.h"

#include "grid.h"

#include <QCoreApplication>

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("GridSource", text);
}

QString range(double lower, double upper)
{
    return tr("%1 to %2").arg(lower, 0, 'g', 6).arg(upper, 0, 'g', 6);
}

} // namespace

double drawingSeconds(const Grid& grid)
{
    constexpr double perNode = 2e-6;
    return perNode * double(grid.heights.size());
}

QString describeGrid(const Grid& grid)
{
    QString text =
        tr("%1 x %2 nodes, x %3, y %4, z %5")
            .arg(grid.columns)
            .arg(grid.rows)
            .arg(range(grid.xMin, grid.xMax), range(grid.yMin, grid.yMax), range(grid.zMin, grid.zMax));
    if (!grid.unit.isEmpty())
        text += ' ' + grid.unit;
    const std::size_t missing = grid.heights.size() - grid.validNodes;
    return missing > 0 ? tr("%1, %2 missing").arg(text).arg(missing) : text;
}
