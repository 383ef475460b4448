// The plot styles that the surface plot offers.

#include "plots/shplot.h"

namespace Zel3D {

void SHPlot::createPlotStyleActions()
{
    addStyleAction(0, ":/plot/images/noplot.svg", tr("No plot"));
    addStyleAction(1, ":/plot/images/points.svg", tr("Points"));
    addStyleAction(2, ":/plot/images/wireframe.svg", tr("Wireframe"));
    addStyleAction(3, ":/plot/images/hiddenline.svg", tr("Hidden line"));
    addStyleAction(4, ":/plot/images/filled.svg", tr("Filled"));
    addStyleAction(5, ":/plot/images/filledmesh.svg", tr("Filled and mesh"));
    addStyleAction(6, ":/plot/images/histogram.svg", tr("Histogram"));
}

} // namespace Zel3D
