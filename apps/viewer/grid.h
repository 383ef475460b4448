#pragma once

#include <QString>

#include <limits>
#include <vector>

/// Heights over a regular grid of nodes, as a surface plot takes them.
///
/// The nodes stand column by column in one block: z()[column][row], the column along x, row 0 at yMin. A node
/// without a value is NaN. Moves and does not copy: the column pointers point into the block.
struct Grid
{
    Grid() = default;
    Grid(Grid&&) = default;
    Grid& operator=(Grid&&) = default;
    Grid(const Grid&) = delete;
    Grid& operator=(const Grid&) = delete;

    /// Makes room for columns * rows nodes, all missing. Throws std::bad_alloc.
    void allocate(int columnCount, int rowCount);
    /// Recomputes zMin, zMax and validNodes from the heights.
    void measure();
    /// The column pointers, valid as long as the grid.
    double** z() { return columnStarts.data(); }

    int columns = 0;
    int rows = 0;
    double xMin = 0.0; ///< x of the nodes of column 0
    double xMax = 0.0; ///< x of the nodes of the last column, more than xMin
    double yMin = 0.0; ///< y of the nodes of row 0
    double yMax = 0.0; ///< y of the nodes of the last row, more than yMin
    double zMin = std::numeric_limits<double>::quiet_NaN(); ///< the smallest height
    double zMax = std::numeric_limits<double>::quiet_NaN(); ///< the largest height
    std::size_t validNodes = 0;                             ///< how many nodes have a height
    QString xName = QStringLiteral("x");                    ///< what x is, with its unit
    QString yName = QStringLiteral("y");                    ///< what y is, with its unit
    QString name;                                           ///< what the file calls the heights, or empty
    QString unit;                                           ///< the unit of the heights, or empty
    std::vector<double> heights;
    std::vector<double*> columnStarts;
};
