// Setters of the view and the slots that repaint.

#include "view/light.h"
#include "view/zelglwidget.h"

#include <QTimer>

#include <cfloat>

namespace Zel3D {

namespace {

/// Not a number counts as too small.
double orOne(double component)
{
    return component >= DBL_EPSILON ? component : 1.0;
}

} // namespace

bool ZelGLWidget::setShowToolTips(bool on)
{
    if (showToolTips == on)
        return false;
    showToolTips = on;
    return true;
}

bool ZelGLWidget::setShowInfo(bool on)
{
    if (showInfo == on)
        return false;
    showInfo = on;
    frameClock.invalidate();
    frameCounter = 0;
    emit showInfoChanged(showInfo);
    return true;
}

bool ZelGLWidget::setBackgroundColor(const QColor& color)
{
    if (!(backgroundColor != color))
        return false;
    backgroundColor = color;
    emit backgroundColorChanged(backgroundColor);
    return true;
}

bool ZelGLWidget::setAutoRotate(bool on)
{
    if (autoRotate == on)
        return false;
    autoRotate = on;
    if (!autoRotate)
        autoRotationTimer->stop();
    emit autoRotateChanged(autoRotate);
    return true;
}

bool ZelGLWidget::setDeltaVelocity(double pixels)
{
    if (deltaVelocity == pixels)
        return false;
    deltaVelocity = pixels;
    emit deltaVelocityChanged(deltaVelocity);
    return true;
}

bool ZelGLWidget::setZoom(double factor)
{
    const double clamped = factor > DBL_EPSILON ? factor : DBL_EPSILON;
    if (zoom == clamped)
        return false;
    zoom = clamped;
    emit zoomChanged(zoom);
    return true;
}

bool ZelGLWidget::setProjectionType(ProjectionType type)
{
    if (projectionType == type)
        return false;
    projectionType = type;
    emit projectionTypeChanged(projectionType);
    return true;
}

bool ZelGLWidget::setSelecting(bool on)
{
    if (selecting == on)
        return false;
    selecting = on;
    emit selectingChanged(selecting);
    if (!selecting)
        emit selectedObject(SelectedObjectsInfo());
    return true;
}

bool ZelGLWidget::setLighting(bool on)
{
    if (lighting == on)
        return false;
    lighting = on;
    emit lightingChanged(lighting);
    return true;
}

bool ZelGLWidget::setShowLights(bool on)
{
    if (showLights == on)
        return false;
    showLights = on;
    emit showLightsChanged(showLights);
    return true;
}

bool ZelGLWidget::setKeepProportions(bool on)
{
    if (keepProportions == on)
        return false;
    keepProportions = on;
    emit keepProportionsChanged(keepProportions);
    return true;
}

bool ZelGLWidget::setRotation(const ValueXYZ<double>& degrees)
{
    if (!(rotation != degrees))
        return false;
    rotation = degrees;
    emit rotationChanged(rotation.x, rotation.y, rotation.z);
    return true;
}

bool ZelGLWidget::setShift(const ValueXYZ<double>& sceneUnits)
{
    if (!(shift != sceneUnits))
        return false;
    shift = sceneUnits;
    emit shiftChanged(shift.x, shift.y, shift.z);
    return true;
}

bool ZelGLWidget::setViewportShift(const ValueXY<double>& fractions)
{
    if (isZero(viewportShift.x, fractions.x) && isZero(viewportShift.y, fractions.y))
        return false;
    viewportShift = fractions;
    emit vieportShiftChanged(viewportShift.x, viewportShift.y);
    return true;
}

bool ZelGLWidget::setScale(const ValueXYZ<double>& factors)
{
    const ValueXYZ<double> usable{orOne(factors.x), orOne(factors.y), orOne(factors.z)};
    if (!(scale != usable))
        return false;
    scale = usable;
    emit scaleChanged(scale.x, scale.y, scale.z);
    return true;
}

void ZelGLWidget::setLightsHeight(double height)
{
    for (Light* light : qAsConst(lights)) {
        if (light)
            light->setMarkerHeight(height);
    }
}

void ZelGLWidget::setLightsRadius(double radius)
{
    for (Light* light : qAsConst(lights)) {
        if (light)
            light->setRadius(radius);
    }
}

void ZelGLWidget::slotSetBackgroundColor(const QColor& color)
{
    if (initialized && setBackgroundColor(color))
        updateGL();
}

void ZelGLWidget::slotSetZoom(double factor)
{
    if (initialized && setZoom(factor))
        updateGL();
}

void ZelGLWidget::slotSetProjectionType(ProjectionType type)
{
    if (initialized && setProjectionType(type))
        updateGL();
}

void ZelGLWidget::slotSetSelecting(bool on)
{
    if (initialized && setSelecting(on))
        updateGL();
}

void ZelGLWidget::slotSetLighting(bool on)
{
    if (initialized && setLighting(on))
        updateGL();
}

void ZelGLWidget::slotSetShowLights(bool on)
{
    if (initialized && setShowLights(on))
        updateGL();
}

void ZelGLWidget::slotSetShowInfo(bool on)
{
    if (initialized && setShowInfo(on))
        updateGL();
}

void ZelGLWidget::slotSetKeepProportions(bool on)
{
    if (initialized && setKeepProportions(on))
        updateGL();
}

void ZelGLWidget::slotSetShift(const ValueXYZ<double>& sceneUnits)
{
    if (initialized && setShift(sceneUnits))
        updateGL();
}

void ZelGLWidget::slotSetScale(const ValueXYZ<double>& factors)
{
    if (initialized && scalingAllowed && setScale(factors))
        updateGL();
}

void ZelGLWidget::slotSetViewportShift(const ValueXY<double>& fractions)
{
    if (initialized && setViewportShift(fractions))
        updateGL();
}

void ZelGLWidget::slotSetRotation(const ValueXYZ<double>& degrees)
{
    if (!initialized || !setRotation(degrees))
        return;
    updateGL();
    findObjects(mousePosition, Qt::NoModifier);
}

void ZelGLWidget::slotSetLightsHeight(double height)
{
    setLightsHeight(height);
    if (initialized)
        updateGL();
}

void ZelGLWidget::slotSetLightsRadius(double radius)
{
    if (initialized)
        makeCurrent();
    setLightsRadius(radius);
    if (initialized)
        updateGL();
}

void ZelGLWidget::slotDefault()
{
    setRotation({0.0, 0.0, 0.0});
    setShift({0.0, 0.0, 0.0});
    setViewportShift({0.0, 0.0});
    setScale({1.0, 1.0, 1.0});
    setZoom(1.0);
    updateGL();
}

void ZelGLWidget::writeProjectionType(ProjectionType type)
{
    if (setProjectionType(type))
        update();
}

void ZelGLWidget::writeZoom(double factor)
{
    if (setZoom(factor))
        update();
}

} // namespace Zel3D
