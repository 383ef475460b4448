// What of the surface plot can be picked.

#include "core/celldata.h"
#include "core/griddata.h"
#include "plots/baseplotsettings.h"
#include "plots/dot.h"
#include "plots/pickcells.h"
#include "plots/pickgrid.h"
#include "plots/shplot.h"

namespace Zel3D {

namespace {

enum PlotStyle { CustomMarkers = -1, NoPlot = 0, Points = 1, Histogram = 6 };

/// Nothing is drawn in a selection pass: the size does not matter.
Dot pickDot()
{
    return Dot(0.1, false);
}

} // namespace

std::unique_ptr<PickPoints> SHPlot::createPickPoints() const
{
    if (getData() == gridData.get())
        return std::make_unique<PickGrid>(*gridData, getSettings().getResolution(), getLoadedLogarithmic());
    if (getData() == cellData.get())
        return std::make_unique<PickCells>(cellData->getVertices(), givenVertices);
    return nullptr;
}

int SHPlot::countPickPoints() const
{
    if (getData() == cellData.get())
        return cellData->getVertices().size();
    const int step = getSettings().getResolution();
    return step > 0 ? int(gridData->columns()) / step * (int(gridData->rows()) / step) : 0;
}

template <class Use>
void SHPlot::withPickMarker(const Use& use)
{
    switch (getSettings().getStyle()) {
    case CustomMarkers:
        if (heldStyleAddition())
            use(*heldStyleAddition());
        break;
    case NoPlot:
        break;
    case Points:
        use(settingsRecord().getDot());
        break;
    case Histogram:
        use(settingsRecord().getCylinder());
        break;
    default: {
        Dot dot = pickDot();
        use(dot);
    }
    }
}

void SHPlot::selectData()
{
    if (!canDrawData())
        return;
    selectViewProjection();
    withPickMarker([this](Addition& marker) { selectAddition(marker); });
}

int SHPlot::getNumberSelectedData()
{
    if (!canDrawData())
        return 0;
    int count = getNumberSelectedViewProjection();
    withPickMarker([&](Addition& marker) { count += getNumberSelectedAddition(marker); });
    return count;
}

void SHPlot::selectAddition(Addition& addition)
{
    if (!getData() || addition.type() != 0)
        return;
    addition.setPlot(*this);
    selectMarkers(addition);
}

int SHPlot::getNumberSelectedAddition(Addition& addition)
{
    return getData() && addition.type() == 0 ? countPickPoints() : 0;
}

void SHPlot::selectViewProjection()
{
    if (getNumberSelectedViewProjection() == 0)
        return;
    Dot dot = pickDot();
    dot.setPlot(*this);
    selectProjections(dot);
}

int SHPlot::getNumberSelectedViewProjection() const
{
    return canDrawData() && getSettings().getViewProjection() != NoProjection ? countPickPoints() : 0;
}

} // namespace Zel3D
