#pragma once

/// Where the nodes of a grid file lie: the ranges of their coordinates and the order in which the file has
/// them.
struct GridPlacement
{
    /// What keeps a file's georeferencing from being used.
    enum Problem { None, Rotated, Unusable };

    double xMin = 0.0;
    double xMax = 0.0;
    double yMin = 0.0;
    double yMax = 0.0;
    bool columnsReversed = false; ///< the file's first column has the largest x
    bool rowsReversed = true;     ///< the file's first row has the largest y

    /// Column and row numbers, the first row of the file at the top.
    static GridPlacement numbered(int columns, int rows);
    /// The nodes are the centres of the cells of an affine transform in GDAL's order: the x of the outer
    /// corner of the first cell, the x step of a column and of a row, then the same for y.
    static GridPlacement fromTransform(const double (&transform)[6], int columns, int rows, Problem& problem);
};
