#pragma once

/// The kinds of plot that the viewer has: surfaces over grids or cells, and families of spectra.
enum class PlotKind { Surface, Spectra };
