#include "gridplacement.h"

#include <algorithm>
#include <cmath>

namespace {

// A turn that moves no node by more than this part of a cell is a rounding error of the file.
constexpr double negligibleTurn = 1e-3;

bool spreads(double lower, double upper)
{
    // The plot's box is in single precision: it must still have a width there.
    return std::isfinite(static_cast<float>(lower)) && std::isfinite(static_cast<float>(upper)) &&
           static_cast<float>(lower) < static_cast<float>(upper);
}

} // namespace

GridPlacement GridPlacement::numbered(int columns, int rows)
{
    GridPlacement placement;
    placement.xMax = columns - 1;
    placement.yMax = rows - 1;
    return placement;
}

GridPlacement GridPlacement::fromTransform(const double (&transform)[6], int columns, int rows,
                                           Problem& problem)
{
    const double stepX = transform[1];
    const double stepY = transform[5];
    const double turnX = std::abs(transform[2]) * rows;
    const double turnY = std::abs(transform[4]) * columns;
    GridPlacement placement;
    if (turnX > negligibleTurn * std::abs(stepX) || turnY > negligibleTurn * std::abs(stepY)) {
        problem = Rotated;
        return placement;
    }
    const double firstX = transform[0] + 0.5 * stepX;
    const double lastX = transform[0] + (columns - 0.5) * stepX;
    const double firstY = transform[3] + 0.5 * stepY;
    const double lastY = transform[3] + (rows - 0.5) * stepY;
    placement.columnsReversed = stepX < 0.0;
    placement.rowsReversed = stepY < 0.0;
    placement.xMin = std::min(firstX, lastX);
    placement.xMax = std::max(firstX, lastX);
    placement.yMin = std::min(firstY, lastY);
    placement.yMax = std::max(firstY, lastY);
    const bool usable = spreads(placement.xMin, placement.xMax) && spreads(placement.yMin, placement.yMax);
    problem = usable ? None : Unusable;
    return placement;
}
