#pragma once

#include "core/types.h"
#include "view/bindings.h"

#include <QPoint>
#include <QSize>

namespace Zel3D {

/// What a gesture can change.
struct ViewPose
{
    ValueXYZ<double> rotation;             ///< degrees
    ValueXYZ<double> scale{1.0, 1.0, 1.0}; ///< factors
    ValueXY<double> viewportShift;         ///< fractions of the view radius
    double zoom = 1.0;                     ///< factor
};

/// The arithmetic of the gestures: values in, values out, no widget and no OpenGL.
///
/// Sizes and steps are in logical pixels; widths and heights below 1 count as 1. Angles that change are
/// rounded and reduced to the open range -360 to 360 degrees with the truncating remainder.
namespace Interaction {

/// qRound(angle) % 360; 0 for an angle that is not finite.
double reducedAngle(double angle);

/// The pose after dragging by \a step with the buttons and modifiers of \a pair; a part whose binding the
/// pair does not equal stays as it is.
ViewPose dragged(const ViewPose& pose, const QPoint& step, const QSize& size, const MouseBinding& pair,
                 const MouseBindings& bindings);

/// The pose after a key press; a part whose bindings the pair does not equal stays as it is.
ViewPose keyed(const ViewPose& pose, const QSize& size, const KeyBinding& pair, const KeyBindings& bindings,
               const KeySpeeds& speeds);

/// The pose after turning the wheel by \a delta eighths of a degree: zoom, or the Z scale with Shift.
ViewPose wheeled(const ViewPose& pose, int delta, bool shift);

/// The rotation after one step of auto-rotation: a tenth of the rate of the drag that started it. Only axes
/// bound to the plain left button turn. \a velocity is the last step of the drag in pixels.
ValueXYZ<double> autoRotated(const ValueXYZ<double>& rotation, const ValueXY<double>& velocity,
                             const QSize& size, const MouseBindings& bindings);

} // namespace Interaction

} // namespace Zel3D
