// Picking: what is sent in the selection pass, and the mark of the picked point.

#include "plots/addition.h"
#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "plots/plotlists.h"
#include "plots/plotparts.h"
#include "view/glmode.h"
#include "view/glscopes.h"

#include <cmath>

namespace Zel3D {

void BasePlot::updateSelection()
{
    // Made by the next pick, if not now.
    lists->isSelectionOld = true;
    if (!isSelecting() || !isValid())
        return;
    makeCurrent();
    compileSelection();
    findObjects(getMousePosition(), getSelectingModifiers());
}

void BasePlot::compileSelection()
{
    lists->isSelectionOld = false;
    lists->context = context();
    selectableObjects.clear();
    parts->pickPass.setPoints(createPickPoints());
    glMatrixMode(GL_MODELVIEW);
    lists->selection.compile([this] {
        selectAdditions();
        selectData();
    });
    selectionCapacity = getNumberSelectedData() + getNumberSelectedAdditions();
}

int BasePlot::prepareSelection(const QPointF& position)
{
    // A pick sees what the next frame will show.
    if (!isBusy())
        rebuildWhatChanged();
    if (lists->isSelectionOld)
        compileSelection();
    const int others = selectionCapacity - parts->pickPass.size();
    return others + parts->pickPass.find(PickVolume(pickMatrix(position)));
}

void BasePlot::select()
{
    const ModelViewScope matrix;
    lists->selection.call();
    const GLMode offset(GL_POLYGON_OFFSET_FILL, true, false);
    const GLMode smooth(GL_LINE_SMOOTH, settings->getMesh().isSmooth(), false);
    parts->pickPass.send(selectableObjects);
}

void BasePlot::selectMarkers(const Addition& marker)
{
    parts->pickPass.addMarkers(marker, selectableObjects.size());
}

void BasePlot::selectProjections(const Addition& marker)
{
    parts->pickPass.addProjections(marker, getViewProjectionZ(), selectableObjects.size());
}

void BasePlot::setPickEverything(bool on)
{
    parts->pickPass.setEverything(on);
}

void BasePlot::clearPickPoints()
{
    parts->pickPass.clear();
    selectableObjects.clear();
    lists->isSelectionOld = true;
}

std::unique_ptr<PickPoints> BasePlot::createPickPoints() const
{
    return nullptr;
}

void BasePlot::selectAdditions()
{
    for (Addition* addition : qAsConst(additions))
        selectAddition(*addition);
}

int BasePlot::getNumberSelectedAdditions()
{
    int count = 0;
    for (Addition* addition : qAsConst(additions))
        count += getNumberSelectedAddition(*addition);
    return count;
}

void BasePlot::selectData() {}

void BasePlot::selectAddition(Addition& /*addition*/) {}

int BasePlot::getNumberSelectedData()
{
    return 0;
}

int BasePlot::getNumberSelectedAddition(Addition& /*addition*/)
{
    return 0;
}

bool BasePlot::isPickHighlight() const
{
    return parts->pickHighlight.isVisible();
}

bool BasePlot::setPickHighlight(bool on)
{
    if (!parts->pickHighlight.setVisible(on))
        return false;
    emit pickHighlightChanged(on);
    return true;
}

void BasePlot::slotSetPickHighlight(bool on)
{
    if (isInitialized() && setPickHighlight(on))
        updateGL();
}

void BasePlot::highlightPick(const SelectedObjectsInfo& info)
{
    QVector3D place;
    const bool found = info.valid && parts->pickPass.position(getPickedName(), place);
    if (found ? parts->pickHighlight.show(place) : parts->pickHighlight.hide())
        repaintMark();
}

void BasePlot::highlightPoint(const QVector3D& point)
{
    const bool finite = std::isfinite(point.x()) && std::isfinite(point.y()) && std::isfinite(point.z());
    if (finite ? parts->pickHighlight.show(point) : parts->pickHighlight.hide())
        repaintMark();
}

} // namespace Zel3D
