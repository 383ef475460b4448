#include "grid.h"

#include <algorithm>
#include <cmath>

void Grid::allocate(int columnCount, int rowCount)
{
    const std::size_t height = static_cast<std::size_t>(rowCount);
    const std::size_t width = static_cast<std::size_t>(columnCount);
    heights.assign(width * height, std::numeric_limits<double>::quiet_NaN());
    columnStarts.resize(width);
    for (std::size_t column = 0; column < width; ++column)
        columnStarts[column] = heights.data() + column * height;
    columns = columnCount;
    rows = rowCount;
}

void Grid::measure()
{
    zMin = std::numeric_limits<double>::quiet_NaN();
    zMax = std::numeric_limits<double>::quiet_NaN();
    validNodes = 0;
    for (const double height : heights) {
        if (std::isnan(height))
            continue;
        zMin = validNodes == 0 ? height : std::min(zMin, height);
        zMax = validNodes == 0 ? height : std::max(zMax, height);
        ++validNodes;
    }
}
