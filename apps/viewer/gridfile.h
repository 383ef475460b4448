#pragma once

#include "grid.h"
#include "gridpart.h"
#include "loadprogress.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

struct GridPlacement;

/// What of a grid file is wanted.
struct GridChoice
{
    double budget = 0.0;            ///< the most nodes to read; 0 for all
    std::optional<GridRange> range; ///< the coordinates of the part to read; without it the whole grid
};

/// Reads a band of a grid file of any format that GDAL opens.
///
/// The georeferencing gives the coordinates of the nodes, the cell centres. y grows northwards whatever the
/// order of the rows in the file, and x grows with the column; every height stays with its coordinates. A
/// file without georeferencing gets column and row numbers from 0, its first row at the top. Scale and offset
/// of the band are applied; nodes that the file masks or that are too large to draw are missing. What has
/// more nodes than the budget is read thinned, as GridReader does it.
class GridFile
{
    Q_DECLARE_TR_FUNCTIONS(GridFile)

public:
    /// A path, or one of GDAL's own names for a grid inside a file.
    explicit GridFile(const QString& name);

    /// Reads what is chosen of a band (from 1) and replaces the grid with it. False when that fails: the grid
    /// is as it was then and error() says why, or is empty when the progress was cancelled.
    bool read(Grid& grid, int band = 1, const GridChoice& choice = {}, const LoadProgress& progress = {});
    /// All the nodes of the file in the range that was read, however thinned: the outer ones have these
    /// coordinates.
    const GridLayout& layout() const { return m_layout; }
    /// One sentence that names the file and the reason; empty after a success.
    const QString& error() const { return m_error; }

private:
    bool fail(const QString& sentence);
    QString openingFailure(const QString& reason) const;
    bool checkBand(void* dataset, int band);
    bool checkMemory(const GridSize& size);
    bool place(void* dataset, GridPlacement& placement);
    /// What x and y are, as far as the file's georeferencing tells.
    static void nameAxes(void* dataset, Grid& grid);
    bool choosePart(const GridChoice& choice, const GridPlacement& placement, const GridLayout& file);
    bool allocate(const GridSize& size, Grid& grid);
    bool fill(void* band, const GridPlacement& placement, const LoadProgress& progress, Grid& grid);
    bool checkHeights(Grid& grid);

    QString m_name;
    QString m_error;
    GridPart m_part; ///< of the file
    GridLayout m_layout;
};
