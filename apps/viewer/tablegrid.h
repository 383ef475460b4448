#pragma once

#include "grid.h"

#include <QStringList>

#include <vector>

/// Heights over lines of x and y that need not stand evenly.
struct TableGrid
{
    Grid grid;
    std::vector<double> x; ///< of the columns, ascending
    std::vector<double> y; ///< of the rows, ascending
    bool even = true;      ///< the lines stand evenly in both directions
    QStringList notes;     ///< sentences on what was understood or changed while reading
};
