#pragma once

/// Ranges of the coordinates of nodes, ends included.
struct GridRange
{
    double xMin = 0.0;
    double xMax = 0.0;
    double yMin = 0.0;
    double yMax = 0.0;
};

/// How many nodes a grid has.
struct GridSize
{
    int columns = 0;
    int rows = 0;
};

/// A rectangle of nodes of a grid: column 0 of the grid has the smallest x, row 0 the smallest y.
struct GridPart
{
    int column = 0;
    int row = 0;
    int columns = 0;
    int rows = 0;

    double nodes() const { return double(columns) * double(rows); }
    /// Whether a surface can be made of it: 2 x 2 nodes at least.
    bool isSurface() const { return columns >= 2 && rows >= 2; }
    /// The size in which it is shown within a budget of nodes: its own, or divided by the smallest whole
    /// number that makes it fit, but never less than 2 x 2. A budget of 0 is none.
    GridSize thinned(double budget) const;
};

/// Where the nodes of a grid lie.
struct GridLayout
{
    int columns = 0;
    int rows = 0;
    GridRange range; ///< of the outer nodes; from less to more

    double stepX() const { return columns > 1 ? (range.xMax - range.xMin) / (columns - 1) : 0.0; }
    double stepY() const { return rows > 1 ? (range.yMax - range.yMin) / (rows - 1) : 0.0; }
    GridPart whole() const { return {0, 0, columns, rows}; }
    /// The nodes within a range, its ends in any order. Without columns or rows where there are none.
    GridPart within(const GridRange& wanted) const;
    /// The coordinates of the outer nodes of a part.
    GridRange rangeOf(const GridPart& part) const;
    /// The part with the proportions of the grid that just fits a budget and has a place in its middle, as
    /// far as the edges allow.
    GridPart around(double x, double y, double budget) const;
    /// The part that a rectangle covers, given in fractions of the grid's area from its lower left corner;
    /// at least the node in its middle.
    GridPart covered(const GridRange& fractions) const;
    /// The fractions that a part covers: the inverse of covered().
    GridRange fractionsOf(const GridPart& part) const;
};
