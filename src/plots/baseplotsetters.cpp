// Setters and slots of a plot.

#include "core/datacolor.h"
#include "core/gradientstops.h"
#include "plots/addition.h"
#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "plots/plotlists.h"
#include "plots/plotparts.h"
#include "plots/settingsdialogoptions.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"
#include "scene/title.h"

#include <typeinfo>

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
    lists->areNormalsOld = true;
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
    markMeshChanged(MeshColorInput);
    emit meshColorChanged(color);
    return true;
}

bool BasePlot::setMeshLineWidth(double pixels)
{
    if (!settings->getMesh().setLineWidth(pixels))
        return false;
    markMeshChanged(MeshWidthInput);
    emit meshLineWidthChanged(pixels);
    return true;
}

bool BasePlot::setMeshXVisible(bool on)
{
    if (!settings->getMesh().setXVisible(on))
        return false;
    markMeshChanged(MeshLinesInput);
    emit meshXVisibleChanged(on);
    return true;
}

bool BasePlot::setMeshYVisible(bool on)
{
    if (!settings->getMesh().setYVisible(on))
        return false;
    markMeshChanged(MeshLinesInput);
    emit meshYVisibleChanged(on);
    return true;
}

bool BasePlot::setNormalsQuality(double sides)
{
    if (!settings->getNormals().setQuality(sides))
        return false;
    lists->areNormalsOld = true;
    emit normalsQualityChanged(sides);
    return true;
}

bool BasePlot::setNormalsLength(double part)
{
    if (!settings->getNormals().setLength(part))
        return false;
    lists->areNormalsOld = true;
    emit normalsLengthChanged(part);
    return true;
}

bool BasePlot::setCylinderRibNumber(int ribs)
{
    if (!settings->getCylinder().setRibNumber(ribs))
        return false;
    markInputChanged(CylinderInput);
    emit cylinderRibNumberChanged(ribs);
    return true;
}

bool BasePlot::setCylinderRadius(double sceneUnits)
{
    if (!settings->getCylinder().setRadius(sceneUnits))
        return false;
    markInputChanged(CylinderInput);
    emit cylinderRadiusChanged(int(sceneUnits));
    return true;
}

bool BasePlot::setCylinderFrameVisible(bool on)
{
    if (!settings->getCylinder().setFrameVisible(on))
        return false;
    markInputChanged(CylinderInput);
    emit cylinderFrameVisibleChanged(on);
    return true;
}

bool BasePlot::setCylinderAngleZ(double degrees)
{
    if (!settings->getCylinder().setAngleZ(degrees))
        return false;
    markInputChanged(CylinderInput);
    emit cylinderAngleZChanged(degrees);
    return true;
}

bool BasePlot::setCylinderMultiplier(double factor)
{
    if (!settings->getCylinder().setMultiplier(factor))
        return false;
    markInputChanged(CylinderInput);
    emit cylinderMultiplier(factor);
    return true;
}

bool BasePlot::setCylinderOpacity(int percent)
{
    if (!settings->getCylinder().setOpacity(percent))
        return false;
    markInputChanged(CylinderInput);
    emit cylinderOpacityChanged(percent);
    return true;
}

bool BasePlot::setDotSize(double pixels)
{
    if (!settings->getDot().setSize(pixels))
        return false;
    markInputChanged(DotInput);
    emit dotSizeChanged(pixels);
    return true;
}

bool BasePlot::setDotSmooth(bool on)
{
    if (!settings->getDot().setSmooth(on))
        return false;
    markInputChanged(DotInput);
    emit dotSmoothChanged(on);
    return true;
}

bool BasePlot::setGridStyle(int faces)
{
    if (!coordinateSystem->getSettings().setGridStyle(faces))
        return false;
    updateGridStyleToolBar();
    emit gridStyleChanged(faces);
    return true;
}

bool BasePlot::setAutomaticEdges(bool on)
{
    if (automaticEdges == on)
        return false;
    automaticEdges = on;
    emit automaticEdgesChanged(on);
    return true;
}

bool BasePlot::setAutomaticFaces(bool on)
{
    if (automaticFaces == on)
        return false;
    automaticFaces = on;
    emit automaticFacesChanged(on);
    return true;
}

bool BasePlot::setLogarithmicData(BaseAxisType axis, bool on)
{
    bool& held = logarithmicData[std::size_t(axis)];
    if (held == on)
        return false;
    held = on;
    return true;
}

bool BasePlot::setDataCentred(bool on)
{
    if (dataCentred == on)
        return false;
    dataCentred = on;
    return true;
}

void BasePlot::applyLogarithmicData()
{
    for (BaseAxisType axis : {XAxis, YAxis, ZAxis}) {
        const bool on = logarithmicData[std::size_t(axis)];
        // Exponents on a linear scale, or plain values on a logarithmic one, would be misread.
        if (on != loadedLogarithmic[std::size_t(axis)] || on)
            setAxesScaleType(axis, on ? Logarithmic : Linear);
        loadedLogarithmic[std::size_t(axis)] = on;
    }
}

bool BasePlot::setAxesScaleType(BaseAxisType axis, ScaleType type)
{
    if (!settings->getAxes().setAxesScaleType(axis, type))
        return false;
    applyScale(axis);
    emit axesScaleChanged(type);
    // The divisions last used with this scale. The records hold them already, so the setters would do
    // nothing.
    applyIntervals(axis);
    return true;
}

bool BasePlot::setMinorInterval(BaseAxisType axis, ScaleType type, int count)
{
    if (count < 0 || !settings->getAxes().setMinorInterval(axis, type, unsigned(count)))
        return false;
    // What is stored for the other scale waits until that is in force.
    if (type == settings->getAxes().getAxesScaleType(axis))
        applyIntervals(axis);
    emit minorIntervalChanged(unsigned(count));
    return true;
}

bool BasePlot::setMajorInterval(BaseAxisType axis, ScaleType type, int count)
{
    if (count < 0 || !settings->getAxes().setMajorInterval(axis, type, unsigned(count)))
        return false;
    // What is stored for the other scale waits until that is in force.
    if (type == settings->getAxes().getAxesScaleType(axis))
        applyIntervals(axis);
    emit majorIntervalChanged(unsigned(count));
    return true;
}

bool BasePlot::setGradient(const QString& name, const QGradient& gradient)
{
    if (!settings->getGradients().setGradient(name, gradient))
        return false;
    // A colouring of the host's may colour otherwise by the same name.
    const DataColor* held = dataColor.get();
    const bool plain = held && typeid(*held) == typeid(DataColor);
    if (!plain || dataColor->getId() != name || !sameGradient(dataColor->getGradient(), gradient))
        setDataColor(new DataColor(this, name, gradient));
    return true;
}

bool BasePlot::setGradients(const QString& current, const QMap<QString, QGradient>& gradients)
{
    if (!settings->getGradients().setData(current, gradients))
        return false;
    const QGradient colors = gradients.value(current, QLinearGradient());
    if (!dataColor || dataColor->getId() != current || !sameGradient(dataColor->getGradient(), colors))
        setDataColor(new DataColor(this, current, colors));
    emit gradientsChanged();
    return true;
}

bool BasePlot::setAutoScaling(bool on)
{
    return isAutoScaling() != on && setBoxScaling(on ? CubeScaling : ManualScaling);
}

bool BasePlot::setBoxScaling(BoxScaling scaling)
{
    if (boxScaling == scaling)
        return false;
    if (boxScaling == ManualScaling)
        parts->userScale = getScale();
    boxScaling = scaling;
    updateAutoScale();
    emit boxScalingChanged(scaling);
    return true;
}

void BasePlot::setDataColor(DataColor* coloring)
{
    const bool drawable = canDrawData();
    if (coloring != dataColor.get())
        dataColor.reset(coloring);
    currentGradient = dataColor ? dataColor->getGradient() : QGradient();
    legend->setGradient(currentGradient);
    parts->hasWarnedOfGradient = false;
    lists->markColors();
    // Without colours there is nothing to pick.
    lists->isSelectionOld = lists->isSelectionOld || drawable != canDrawData();
}

void BasePlot::setStyleAddition(Addition* addition)
{
    if (addition == styleAddition.get())
        return;
    styleAddition.reset(addition);
    markDataChanged();
}

void BasePlot::setSettingsDialogOptions(SettingsDialogOptions* options)
{
    if (options != settingsDialogOptions.get())
        settingsDialogOptions.reset(options);
}

void BasePlot::setGradientRange(const Pair<double>& range)
{
    const bool changed = gradientRange.first != range.first || gradientRange.second != range.second;
    gradientRange = range;
    updateLegend();
    if (changed)
        lists->markColors();
}

bool BasePlot::setPlotStyle(int style)
{
    if (style < 0)
        return false;
    setStyleAddition(nullptr);
    if (!settings->setStyle(style))
        return false;
    markAllChanged();
    updatePlotStyleToolBar();
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

void BasePlot::slotSetBoxScaling(BoxScaling scaling)
{
    if (isInitialized() && setBoxScaling(scaling))
        updateGL();
}

void BasePlot::slotSetGridStyle(int faces)
{
    if (!coordinateSystem->getSettings().setGridStyle(faces))
        return;
    updateGridStyleToolBar();
    updateGL();
}

void BasePlot::slotSetTitle(const QString& text)
{
    title->getSettings().setText(text);
}

} // namespace Zel3D
