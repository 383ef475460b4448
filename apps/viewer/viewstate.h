#pragma once

#include "core/types.h"

#include <QSize>

class PlotView;

/// Where a plot is seen from, with what it takes to come back there exactly.
struct ViewState
{
    /// What can differ; parts are an or of them.
    enum Part { Rotation = 1, Shift = 2, Zoom = 4, Projection = 8, Stretch = 16 };

    Zel3D::ValueXYZ<double> rotation;     ///< degrees
    Zel3D::ValueXYZ<double> shift;        ///< scene units
    Zel3D::ValueXY<double> viewportShift; ///< fractions of the view radius
    Zel3D::ValueXYZ<double> scale;        ///< factors
    double zoom = 1.0;                    ///< factor
    double fittedZoom = 0.0;              ///< of which the plot fills the window
    Zel3D::ProjectionType projection = Zel3D::Orthogonal;
    bool scaledByHand = false; ///< only then does the scale belong to the view
    QSize size;                ///< of the plot

    static ViewState of(PlotView& view);
    /// Shows a plot from there. What filled the window fills it again, whatever its size is now.
    void applyTo(PlotView& view) const;
    /// The parts that another state has otherwise. A plot that fills a window of another size has not been
    /// changed.
    int differingFrom(const ViewState& other) const;
    bool isFitted() const { return zoom == fittedZoom; }
};
