#pragma once

/// The kinds of plot that the viewer has: surfaces over grids or cells, and families of spectra.
enum class PlotKind { Surface, Spectra };

/// For sets and hashes of kinds.
inline unsigned int qHash(PlotKind kind)
{
    return static_cast<unsigned int>(kind);
}
