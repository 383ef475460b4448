// What a plot keeps in the settings store.

#include "core/datacolor.h"
#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "plots/plotparts.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"
#include "scene/title.h"

#include <QSettings>

namespace Zel3D {

void BasePlot::saveSettings()
{
    settings->saveSettings(objectName(), getOrganization(), getApplication());
    {
        QSettings store(getOrganization(), getApplication());
        store.setValue(QString("%0/autoScaling").arg(objectName()), isAutoScaling());
    }
    title->saveSettings(objectName(), getOrganization(), getApplication());
    coordinateSystem->saveSettings(objectName(), getOrganization(), getApplication());
    legend->saveSettings(objectName(), getOrganization(), getApplication());
    if (dataColor)
        dataColor->saveSettings(objectName(), getOrganization(), getApplication());
    parts->properties->saveSettings(objectName(), getOrganization(), getApplication());
    saveMarkers();
}

void BasePlot::loadSettings()
{
    settings->loadSettings(objectName(), getOrganization(), getApplication());
    const QSettings store(getOrganization(), getApplication());
    const bool automatic = store.value(QString("%0/autoScaling").arg(objectName()), isAutoScaling()).toBool();
    // The scale of the view was loaded before: without automatic scaling it is the user's.
    if (!automatic)
        parts->userScale = getScale();
    if (!setAutoScaling(automatic))
        updateAutoScale();
    applyIntervals();
    title->loadSettings(objectName(), getOrganization(), getApplication());
    legend->loadSettings(objectName(), getOrganization(), getApplication());
    coordinateSystem->loadSettings(objectName(), getOrganization(), getApplication());
    if (dataColor) {
        dataColor->loadSettings(objectName(), getOrganization(), getApplication());
        setDataColor(dataColor.get());
        // The built-in gradient is not among the stored ones; its stops came with the colouring.
        const QString& current = settings->getGradients().getCurrent();
        if (!dataColor->isEmpty() && dataColor->getId() == current)
            settings->getGradients().addGradient(current, dataColor->getGradient());
    }
    parts->properties->loadSettings(objectName(), getOrganization(), getApplication());
    loadMarkers();
    markAllChanged();
    updateGridStyleToolBar();
    updatePlotStyleToolBar();
}

void BasePlot::loadAxesSettings()
{
    const auto load = [this](Axis& axis, const QString& prefix) {
        const QString group = QString("%0/%1").arg(prefix, axis.getName());
        axis.getSettings().loadSettings(group, getOrganization(), getApplication());
        axis.getLabel().loadSettings(group, getOrganization(), getApplication());
        axis.getArrow().loadSettings(group, getOrganization(), getApplication());
        axis.getArrow().update();
    };
    for (int i = 0; i < 12; ++i)
        load(coordinateSystem->getAxis(AxisType(i)), objectName());
    load(legend->getAxis(), QString("%0/%1").arg(objectName(), legend->getName()));
    // The intervals belong to the plot's own record.
    applyIntervals();
}

} // namespace Zel3D
