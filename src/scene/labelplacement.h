#pragma once

#include "scene/furnituretypes.h"
#include "scene/viewframe.h"

#include <QPoint>
#include <QRect>
#include <QVector2D>

namespace Zel3D {

/// What decides where a text's box lies about its anchor point. Pixels are those of the window.
struct LabelBox
{
    QSize size;                   ///< the box in pixels
    Alignment alignment = Center; ///< the corner, edge or centre of the box that lies at the anchor
    double adjust = 0.0; ///< pixels by which the box moves off the anchor to the side on which it lies
    QVector2D outward;   ///< a direction in the window, y upwards; zero for none
    double gap = 0.0;    ///< pixels kept free along outward
};

/// Where a text's box lies in the window.
struct LabelPlacement
{
    bool visible = false; ///< false when the anchor lies behind the eye or outside the depth range
    QPoint corner;        ///< lower left corner of the box in pixels from the lower left of the window
    double depth = 0.0;   ///< 0 to 1
};

/// The lower left corner of the box relative to the anchor, y upwards.
///
/// With alignment TopLeft the top left corner of the box lies at the anchor, so that the text hangs below and
/// to the right of it; adjust then moves the box further right and down, with TopCenter only down, with
/// Center not at all. An outward direction takes the place of both: the centre of the box moves from the
/// anchor along the direction until the whole box lies beyond the line through the anchor at right angles to
/// it, the gap away from that line.
QPointF labelOffset(const LabelBox& box);

/// The box about an anchor point of the world, at whole pixels.
LabelPlacement placeLabel(const ViewFrame& frame, const QVector3D& anchor, const LabelBox& box);

/// The box about an anchor point of the window, at whole pixels.
LabelPlacement placeLabel(const WindowPoint& anchor, const LabelBox& box);

} // namespace Zel3D
