#pragma once

#include "plotkind.h"

#include <QStringList>

#include <optional>

/// The plot styles by the names that people type. The numbers are those of the plots.
class PlotStyles
{
public:
    /// Of surfaces.
    enum Style {
        NoPlot = 0,
        Points = 1,
        Wireframe = 2,
        HiddenLine = 3,
        Filled = 4,
        FilledAndMesh = 5,
        Histogram = 6
    };
    /// Of spectra; no plot and points are as above.
    enum SpectraStyle { Lines = 2, FilledSheets = 3, FilledAndFrame = 4 };

    /// The names in the order of their numbers: "none", "points", "wireframe" ...
    static QStringList names(PlotKind kind);
    /// The style of a name, or of the text that the plot's own tool bar shows for it, in any case of letters.
    static std::optional<int> fromName(PlotKind kind, const QString& name);
};
