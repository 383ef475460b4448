// Setters and slots of a plot, and what it keeps in the settings store.

#include "core/datacolor.h"
#include "plots/addition.h"
#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"

#include <QSettings>

namespace Zel3D {

bool BasePlot::setResolution(int step)
{
    if (!settings->setResolution(step))
        return false;
    markAllChanged();
    emit resolutionChanged(step);
    return true;
}

bool BasePlot::setPolygonOffset(double factor)
{
    if (!settings->setPolygonOffset(factor))
        return false;
    markDataChanged();
    emit polygonOffsetChanged(factor);
    return true;
}

bool BasePlot::setShadingStyle(ShadingStyle style)
{
    if (!settings->setShadingStyle(style))
        return false;
    // Sent again in every frame; another context must not receive it.
    if (isContextCurrent())
        applyShading();
    emit shadingStyleChanged(style);
    return true;
}

bool BasePlot::setViewProjection(ViewProjection projection)
{
    if (!settings->setViewProjection(projection))
        return false;
    markDataChanged();
    emit viewProjectionChanged(projection);
    return true;
}

bool BasePlot::setNormalsVisible(bool on)
{
    if (!settings->getNormals().setVisible(on))
        return false;
    normalsDirty = true;
    emit normalsChanged(settings->getNormals().isVisible());
    return true;
}

bool BasePlot::setMeshSmooth(bool on)
{
    if (!settings->getMesh().setSmooth(on))
        return false;
    markDataChanged();
    emit meshSmoothChanged(on);
    return true;
}

bool BasePlot::setMeshColor(const QColor& color)
{
    if (!settings->getMesh().setColor(color))
        return false;
    markDataChanged();
    emit meshColorChanged(color);
    return true;
}

bool BasePlot::setMeshLineWidth(double pixels)
{
    if (!settings->getMesh().setLineWidth(pixels))
        return false;
    markDataChanged();
    emit meshLineWidthChanged(pixels);
    return true;
}

bool BasePlot::setCylinderRibNumber(int ribs)
{
    if (!settings->getCylinder().setRibNumber(ribs))
        return false;
    markDataChanged();
    emit cylinderRibNumberChanged(ribs);
    return true;
}

bool BasePlot::setCylinderRadius(double sceneUnits)
{
    if (!settings->getCylinder().setRadius(sceneUnits))
        return false;
    markDataChanged();
    emit cylinderRadiusChanged(int(sceneUnits));
    return true;
}

bool BasePlot::setCylinderFrameVisible(bool on)
{
    if (!settings->getCylinder().setFrameVisible(on))
        return false;
    markDataChanged();
    emit cylinderFrameVisibleChanged(on);
    return true;
}

bool BasePlot::setCylinderAngleZ(double degrees)
{
    if (!settings->getCylinder().setAngleZ(degrees))
        return false;
    markDataChanged();
    emit cylinderAngleZChanged(degrees);
    return true;
}

bool BasePlot::setCylinderMultiplier(double factor)
{
    if (!settings->getCylinder().setMultiplier(factor))
        return false;
    markDataChanged();
    emit cylinderMultiplier(factor);
    return true;
}

bool BasePlot::setDotSize(double pixels)
{
    if (!settings->getDot().setSize(pixels))
        return false;
    markDataChanged();
    emit dotSizeChanged(pixels);
    return true;
}

bool BasePlot::setDotSmooth(bool on)
{
    if (!settings->getDot().setSmooth(on))
        return false;
    markDataChanged();
    emit dotSmoothChanged(on);
    return true;
}

bool BasePlot::setAxesScaleType(BaseAxisType axis, ScaleType type)
{
    if (!settings->getAxes().setAxesScaleType(axis, type))
        return false;
    emit axesScaleChanged(type);
    setMinorInterval(axis, type, int(settings->getAxes().getMinorInterval(axis, type)));
    setMajorInterval(axis, type, int(settings->getAxes().getMajorInterval(axis, type)));
    return true;
}

bool BasePlot::setMinorInterval(BaseAxisType axis, ScaleType type, int count)
{
    if (count < 0 || !settings->getAxes().setMinorInterval(axis, type, unsigned(count)))
        return false;
    emit minorIntervalChanged(unsigned(count));
    return true;
}

bool BasePlot::setMajorInterval(BaseAxisType axis, ScaleType type, int count)
{
    if (count < 0 || !settings->getAxes().setMajorInterval(axis, type, unsigned(count)))
        return false;
    emit majorIntervalChanged(unsigned(count));
    return true;
}

bool BasePlot::setGradient(const QString& name, const QGradient& gradient)
{
    if (!settings->getGradients().setGradient(name, gradient))
        return false;
    setDataColor(new DataColor(this, name, gradient));
    return true;
}

bool BasePlot::setAutoScaling(bool on)
{
    if (autoScaling == on)
        return false;
    autoScaling = on;
    if (autoScaling)
        userScale = getScale();
    updateAutoScale();
    return true;
}

void BasePlot::setDataColor(DataColor* coloring)
{
    if (coloring != dataColor.get())
        dataColor.reset(coloring);
    currentGradient = dataColor ? dataColor->getGradient() : QGradient();
    warnedWithoutGradient = false;
    markAllChanged();
}

void BasePlot::setStyleAddition(Addition* addition)
{
    if (addition == styleAddition.get())
        return;
    styleAddition.reset(addition);
    markDataChanged();
}

void BasePlot::setGradientRange(const Pair<double>& range)
{
    gradientRange = range;
    markAllChanged();
}

bool BasePlot::setPlotStyle(int style)
{
    if (style < 0)
        return false;
    setStyleAddition(nullptr);
    if (!settings->setStyle(style))
        return false;
    markAllChanged();
    emit plotStyleChanged(style);
    return true;
}

void BasePlot::slotSetResolution(int step)
{
    if (!setResolution(step) || !isInitialized())
        return;
    updateData();
    updateNormals();
    updateGL();
}

void BasePlot::slotSetPlotStyle(int style)
{
    if (!isInitialized() || !setPlotStyle(style))
        return;
    updateData();
    updateNormals();
    updateSelection();
    updateGL();
}

void BasePlot::slotSetShadingStyle(ShadingStyle style)
{
    if (isInitialized() && setShadingStyle(style))
        updateGL();
}

void BasePlot::slotShowNormals(bool on)
{
    if (!isInitialized() || !setNormalsVisible(on))
        return;
    updateNormals();
    updateGL();
}

void BasePlot::slotSetAutoScaling(bool on)
{
    if (isInitialized() && setAutoScaling(on))
        updateGL();
}

void BasePlot::saveSettings()
{
    settings->saveSettings(objectName(), getOrganization(), getApplication());
    {
        QSettings store(getOrganization(), getApplication());
        store.setValue(QString("%0/autoScaling").arg(objectName()), autoScaling);
    }
    if (dataColor)
        dataColor->saveSettings(objectName(), getOrganization(), getApplication());
}

void BasePlot::loadSettings()
{
    settings->loadSettings(objectName(), getOrganization(), getApplication());
    const QSettings store(getOrganization(), getApplication());
    const bool automatic = store.value(QString("%0/autoScaling").arg(objectName()), autoScaling).toBool();
    // The scale of the view was loaded before: without automatic scaling it is the user's.
    if (!automatic)
        userScale = getScale();
    if (!setAutoScaling(automatic))
        updateAutoScale();
    if (dataColor) {
        dataColor->loadSettings(objectName(), getOrganization(), getApplication());
        setDataColor(dataColor.get());
    }
    markAllChanged();
}

} // namespace Zel3D
