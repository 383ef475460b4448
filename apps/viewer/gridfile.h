#pragma once

#include "grid.h"

#include <QCoreApplication>
#include <QString>

struct GridPlacement;

/// Reads a band of a grid file of any format that GDAL opens.
///
/// The georeferencing gives the coordinates of the nodes, the cell centres. y grows northwards whatever the
/// order of the rows in the file, and x grows with the column; every height stays with its coordinates. A
/// file without georeferencing gets column and row numbers from 0, its first row at the top. Scale and offset
/// of the band are applied; nodes that the file masks or that are too large to draw are missing.
class GridFile
{
    Q_DECLARE_TR_FUNCTIONS(GridFile)

public:
    /// A path, or one of GDAL's own names for a grid inside a file.
    explicit GridFile(const QString& name);

    /// Reads a band (from 1) and replaces the grid with it. False when that fails: the grid is as it was then
    /// and error() says why.
    bool read(Grid& grid, int band = 1);
    /// One sentence that names the file and the reason; empty after a success.
    const QString& error() const { return m_error; }

private:
    bool fail(const QString& sentence);
    QString openingFailure(const QString& reason) const;
    bool checkBand(void* dataset, int band);
    bool checkMemory(int columns, int rows);
    bool place(void* dataset, GridPlacement& placement);
    /// What x and y are, as far as the file's georeferencing tells.
    static void nameAxes(void* dataset, Grid& grid);
    bool fill(void* band, const GridPlacement& placement, Grid& grid);

    QString m_name;
    QString m_error;
};
