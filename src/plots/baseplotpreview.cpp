// What a plot draws while a person turns it: fewer nodes, where all of them would not turn smoothly.

#include "plots/baseplot.h"
#include "plots/plotlists.h"
#include "plots/plotparts.h"

#include <QScopedValueRollback>

#include <utility>

namespace Zel3D {

bool BasePlot::isPreviewing() const
{
    return parts->preview.isWanted;
}

bool BasePlot::isPreviewShown() const
{
    return parts->preview.isShown;
}

bool BasePlot::setPreviewing(bool on)
{
    if (parts->preview.isWanted == on)
        return false;
    parts->preview.isWanted = on;
    emit previewingChanged(on);
    return true;
}

int BasePlot::getCoarseness() const
{
    return parts->coarseness;
}

int BasePlot::getCoarsest() const
{
    return 1;
}

/// Decides what the next frame shows and makes the list of the preview, once for each list of the data.
void BasePlot::preparePreview()
{
    Preview& preview = parts->preview;
    preview.isShown = false;
    if (!preview.isWanted || !isHandled() || !lists->drawing.data.exists())
        return;
    const int step = preview.isListed ? preview.step : Preview::stepFor(preview.times.full(), getCoarsest());
    if (step < 2)
        return;
    preview.isShown = true;
    if (preview.isListed)
        return;
    preview.step = step;
    preview.isListed = true;
    const QScopedValueRollback<int> coarse(parts->coarseness, step);
    const ListExchange exchange(*lists, lists->preview);
    updateData();
    updateNormals();
}

/// When the list of the data is another. With the context of the lists.
void BasePlot::removePreview()
{
    if (lists->areExchanged)
        return;
    parts->hoverImage.clear();
    parts->preview.isListed = false;
    parts->preview.times.restart();
    lists->preview.remove();
}

void BasePlot::handlingChanged()
{
    // The hand rests: the whole is shown.
    if (!isHandled() && parts->preview.isShown && isInitialized())
        update();
}

void BasePlot::frameDrawn(double milliseconds)
{
    if (!parts->preview.isShown && !parts->isHoverFrame)
        parts->preview.times.add(milliseconds);
}

} // namespace Zel3D
