#include "viewstate.h"

#include "plots/baseplot.h"
#include "plotview.h"

ViewState ViewState::of(PlotView& view)
{
    const Zel3D::BasePlot& plot = view.plot();
    ViewState state;
    state.rotation = plot.getRotation();
    state.shift = plot.getShift();
    state.viewportShift = plot.getViewportShift();
    state.scale = plot.getScale();
    state.zoom = plot.getZoom();
    state.fittedZoom = view.fittedZoom();
    state.projection = plot.getProjectionType();
    state.scaledByHand = plot.getBoxScaling() == Zel3D::ManualScaling;
    state.size = plot.size();
    return state;
}

void ViewState::applyTo(PlotView& view) const
{
    Zel3D::BasePlot& plot = view.plot();
    plot.setRotation(rotation);
    plot.setShift(shift);
    plot.setViewportShift(viewportShift);
    plot.setProjectionType(projection);
    if (scaledByHand && plot.getBoxScaling() == Zel3D::ManualScaling)
        plot.setScale(scale);
    if (isFitted() && plot.size() != size)
        view.fit();
    else
        view.restoreZoom(zoom, fittedZoom);
    plot.update();
}

int ViewState::differingFrom(const ViewState& other) const
{
    int parts = 0;
    if (rotation != other.rotation)
        parts |= Rotation;
    if (shift != other.shift || viewportShift.x != other.viewportShift.x ||
        viewportShift.y != other.viewportShift.y)
        parts |= Shift;
    if (zoom != other.zoom && !(isFitted() && other.isFitted()))
        parts |= Zoom;
    if (projection != other.projection)
        parts |= Projection;
    if (scaledByHand && other.scaledByHand && scale != other.scale)
        parts |= Stretch;
    return parts;
}
