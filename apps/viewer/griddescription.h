#pragma once

#include <QString>

struct Grid;

/// Nodes, ranges and missing heights of a grid: "403 x 344 nodes, x 1 to 2, y 3 to 4, z 236 to 1076 m".
QString describeGrid(const Grid& grid);

/// About how long a plot takes for the first picture of a grid.
double drawingSeconds(const Grid& grid);
