#pragma once

#include "gridfile.h"
#include "plotsource.h"

/// The source that reads a file, by its kind. The band, from 1, and the choice are for grids.
std::unique_ptr<PlotSource> sourceOfFile(const QString& path, int band = 1, const GridChoice& choice = {});
