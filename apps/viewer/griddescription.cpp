#include "griddescription.h"

#include "grid.h"

#include <QCoreApplication>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(GridSource)
};

QString range(double lower, double upper)
{
    return Words::tr("%L1 to %L2").arg(lower, 0, 'g', 6).arg(upper, 0, 'g', 6);
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
        Words::tr("%L1 x %L2 nodes, x %3, y %4, z %5")
            .arg(grid.columns)
            .arg(grid.rows)
            .arg(range(grid.xMin, grid.xMax), range(grid.yMin, grid.yMax), range(grid.zMin, grid.zMax));
    if (!grid.unit.isEmpty())
        text += ' ' + grid.unit;
    const std::size_t missing = grid.heights.size() - grid.validNodes;
    return missing > 0 ? Words::tr("%1, %L2 missing").arg(text).arg(missing) : text;
}
