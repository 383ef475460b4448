#pragma once

#include "scene/boxedges.h"
#include "scene/viewframe.h"

#include <QVector2D>

#include <optional>

namespace Zel3D {

/// The corners of the coordinate box in the window, by their numbers; see startCorner().
struct WindowBox
{
    std::array<WindowPoint, 8> corners;
    bool valid = false; ///< false when a corner lies behind the eye or has no finite place
};

WindowBox projectBox(const ViewFrame& frame, const QVector3D& first, const QVector3D& second);

/// The direction in the window, a unit vector with y upwards, in which numbers stand off an edge: at right
/// angles to the edge and away from the middle of the box. Downwards where the box gives no direction.
QVector2D edgeOutward(const WindowBox& box, AxisType type);

/// The edges that show an axis, one for each direction.
struct EdgeChoice
{
    /// By BaseAxisType.
    std::array<AxisType, 3> axes{XFrontBottom, YRightBottom, ZFrontLeft};
    /// By BaseAxisType: whether the view shortens the axis so much that it shows nothing.
    std::array<bool, 3> endOn{};
    /// By BaseAxisType: the direction of the axis's tick marks when these point away from the box in the
    /// window; nothing where the view foreshortens them to less than a tenth.
    std::array<std::optional<QVector3D>, 3> ticDirections;
};

/// Chooses the edges on which numbers are easiest to read: of the edges on the outline of the box in the
/// window the nearer of the lower ones for x and y, and the leftmost one for z.
///
/// \a previous, if given, is the choice of the last frame: an edge of it stays unless it has left the outline
/// or another one is clearly better, so that nothing flickers at the turning points. Where the view gives no
/// answer (a corner behind the eye, a box without size) the previous choice stays, or that of a plain
/// EdgeChoice.
EdgeChoice chooseEdges(const ViewFrame& frame, const QVector3D& first, const QVector3D& second,
                       const EdgeChoice* previous = nullptr);

} // namespace Zel3D
