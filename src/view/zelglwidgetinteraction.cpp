// Mouse, wheel and keys of the view.

#include "view/interaction.h"
#include "view/zelglwidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QWheelEvent>

#include <cmath>

namespace Zel3D {

ViewPose ZelGLWidget::pose() const
{
    return {rotation, scale, viewportShift, zoom};
}

void ZelGLWidget::applyPose(const ViewPose& to)
{
    const ViewPose from = pose();
    const bool shifts =
        to.viewportShift.x != from.viewportShift.x || to.viewportShift.y != from.viewportShift.y;
    const bool moves =
        to.rotation != from.rotation || to.scale != from.scale || to.zoom != from.zoom || shifts;
    if (moves)
        setHandled(true);
    if (to.rotation != from.rotation)
        slotSetRotation(to.rotation);
    if (to.scale != from.scale)
        slotSetScale(to.scale);
    if (to.zoom != from.zoom)
        slotSetZoom(to.zoom);
    slotSetViewportShift(to.viewportShift);
    // From the end of the frame, which may take longer.
    if (moves)
        restTimer->start();
}

void ZelGLWidget::setHandled(bool on)
{
    if (!on)
        restTimer->stop();
    if (handled == on)
        return;
    handled = on;
    handlingChanged();
}

/// A view that goes on turning is still on its way.
void ZelGLWidget::rest()
{
    if (!isAutoRotating())
        setHandled(false);
}

void ZelGLWidget::handlingChanged() {}

void ZelGLWidget::mousePressEvent(QMouseEvent* event)
{
    autoRotationTimer->stop();
    dragStep = {};
    mousePosition = event->localPos();
    dragPosition = event->localPos();
    mousePressed = true;
    QGLWidget::mousePressEvent(event);
}

void ZelGLWidget::mouseMoveEvent(QMouseEvent* event)
{
    mousePosition = event->localPos();
    // A press whose release went elsewhere must not turn the view.
    if (event->buttons() == Qt::NoButton)
        mousePressed = false;
    if (autoRotate && mousePressed)
        dragStep = {mousePosition.x() - dragPosition.x(), mousePosition.y() - dragPosition.y()};
    if (!isAutoRotating())
        findObjects(mousePosition, event->modifiers());
    if (!mousePressed || !mouseEnabled) {
        event->ignore();
        return;
    }
    const QPoint step(qRound(mousePosition.x()) - qRound(dragPosition.x()),
                      qRound(mousePosition.y()) - qRound(dragPosition.y()));
    applyPose(
        Interaction::dragged(pose(), step, size(), {event->buttons(), event->modifiers()}, mouseBindings));
    dragPosition = mousePosition;
    QGLWidget::mouseMoveEvent(event);
}

void ZelGLWidget::mouseReleaseEvent(QMouseEvent* event)
{
    mousePressed = false;
    // Without a step there is nothing to go on with, even where the threshold is negative.
    const bool moved = dragStep.x != 0.0 || dragStep.y != 0.0;
    const bool fast = std::abs(dragStep.x) > deltaVelocity || std::abs(dragStep.y) > deltaVelocity;
    if (autoRotate && moved && fast)
        autoRotationTimer->start();
    else
        setHandled(false);
    QGLWidget::mouseReleaseEvent(event);
}

void ZelGLWidget::wheelEvent(QWheelEvent* event)
{
    if (!mouseEnabled)
        return;
    applyPose(Interaction::wheeled(pose(), event->angleDelta().y(), event->modifiers() & Qt::ShiftModifier));
}

void ZelGLWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_L && (hotKeyMask & LightingHotKey))
        slotSetLighting(!lighting);
    if (event->key() == Qt::Key_S && (hotKeyMask & SelectingHotKey))
        slotSetSelecting(!selecting);
    if (event->key() == Qt::Key_I && (hotKeyMask & InfoHotKey))
        slotSetShowInfo(!showInfo);
    if (!keyboardEnabled) {
        event->ignore();
        return;
    }
    applyPose(Interaction::keyed(pose(), size(), {event->key(), event->modifiers()}, keyBindings, keySpeeds));
    event->accept();
}

void ZelGLWidget::getKeySpeed(double& rotationSpeed, double& scaleSpeed, double& shiftSpeed) const
{
    rotationSpeed = keySpeeds.rotation;
    scaleSpeed = keySpeeds.scale;
    shiftSpeed = keySpeeds.shift;
}

void ZelGLWidget::setKeySpeed(double rotationSpeed, double scaleSpeed, double shiftSpeed)
{
    keySpeeds = {rotationSpeed, scaleSpeed, shiftSpeed};
}

void ZelGLWidget::assignMouseRotation(const MouseBinding& x, const MouseBinding& y, const MouseBinding& z)
{
    mouseBindings.rotateX = x;
    mouseBindings.rotateY = y;
    mouseBindings.rotateZ = z;
}

void ZelGLWidget::assignMouseScale(const MouseBinding& x, const MouseBinding& y, const MouseBinding& z)
{
    mouseBindings.scaleX = x;
    mouseBindings.scaleY = y;
    mouseBindings.scaleZ = z;
}

void ZelGLWidget::assignMouseZoom(const MouseBinding& zoomBinding)
{
    mouseBindings.zoom = zoomBinding;
}

void ZelGLWidget::assignMouseShift(const MouseBinding& x, const MouseBinding& y)
{
    mouseBindings.shiftX = x;
    mouseBindings.shiftY = y;
}

void ZelGLWidget::assignKeyboardRotation(const KeyBinding& xPlus, const KeyBinding& xMinus,
                                         const KeyBinding& yPlus, const KeyBinding& yMinus,
                                         const KeyBinding& zPlus, const KeyBinding& zMinus)
{
    keyBindings.rotateXPlus = xPlus;
    keyBindings.rotateXMinus = xMinus;
    keyBindings.rotateYPlus = yPlus;
    keyBindings.rotateYMinus = yMinus;
    keyBindings.rotateZPlus = zPlus;
    keyBindings.rotateZMinus = zMinus;
}

void ZelGLWidget::assignKeyboardScale(const KeyBinding& xPlus, const KeyBinding& xMinus,
                                      const KeyBinding& yMinus, const KeyBinding& yPlus,
                                      const KeyBinding& zMinus, const KeyBinding& zPlus)
{
    keyBindings.scaleXPlus = xPlus;
    keyBindings.scaleXMinus = xMinus;
    keyBindings.scaleYMinus = yMinus;
    keyBindings.scaleYPlus = yPlus;
    keyBindings.scaleZMinus = zMinus;
    keyBindings.scaleZPlus = zPlus;
}

void ZelGLWidget::assignKeyboardZoom(const KeyBinding& out, const KeyBinding& in)
{
    keyBindings.zoomOut = out;
    keyBindings.zoomIn = in;
}

void ZelGLWidget::assignKeyboardShift(const KeyBinding& xPlus, const KeyBinding& xMinus,
                                      const KeyBinding& yMinus, const KeyBinding& yPlus)
{
    keyBindings.shiftXPlus = xPlus;
    keyBindings.shiftXMinus = xMinus;
    keyBindings.shiftYMinus = yMinus;
    keyBindings.shiftYPlus = yPlus;
}

} // namespace Zel3D
