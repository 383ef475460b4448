// The plot styles that the surface plot offers.

#include "plots/shplot.h"
#include "plots/styleaction.h"

#include <QEvent>

namespace Zel3D {

namespace {

struct Entry
{
    const char* icon;
    const char* label;
};

constexpr Entry styles[] = {
    {":/plot/images/noplot.svg", QT_TRANSLATE_NOOP("Zel3D::SHPlot", "No plot")},
    {":/plot/images/points.svg", QT_TRANSLATE_NOOP("Zel3D::SHPlot", "Points")},
    {":/plot/images/wireframe.svg", QT_TRANSLATE_NOOP("Zel3D::SHPlot", "Wireframe")},
    {":/plot/images/hiddenline.svg", QT_TRANSLATE_NOOP("Zel3D::SHPlot", "Hidden line")},
    {":/plot/images/filled.svg", QT_TRANSLATE_NOOP("Zel3D::SHPlot", "Filled")},
    {":/plot/images/filledmesh.svg", QT_TRANSLATE_NOOP("Zel3D::SHPlot", "Filled and mesh")},
    {":/plot/images/histogram.svg", QT_TRANSLATE_NOOP("Zel3D::SHPlot", "Histogram")},
};

} // namespace

void SHPlot::createPlotStyleActions()
{
    int style = 0;
    for (const Entry& entry : styles)
        addStyleAction(style++, entry.icon, tr(entry.label));
}

void SHPlot::changeEvent(QEvent* event)
{
    BasePlot::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    // Those of a derived plot follow.
    int style = 0;
    const QList<StyleAction*> made = getStyleActions();
    for (const Entry& entry : styles)
        made.at(style++)->setLabel(tr(entry.label));
}

} // namespace Zel3D
