#include "scene/labelplacement.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

/// A window is smaller than this; what lies further off needs no whole-number position.
constexpr double farAway = 1e6;

/// Boxes whose anchor lies at the centre of a pixel are often just between two pixels: the digits that the
/// matrices lose must not decide, or a text would differ by a pixel between frames and between tiles.
constexpr double tie = 0.01;

} // namespace

QPointF labelOffset(const LabelBox& box)
{
    const double width = box.size.width();
    const double height = box.size.height();
    if (!box.outward.isNull()) {
        const QVector2D direction = box.outward.normalized();
        const double dx = double(direction.x());
        const double dy = double(direction.y());
        const double distance = box.gap + std::abs(dx) * width / 2.0 + std::abs(dy) * height / 2.0;
        return QPointF(dx * distance - width / 2.0, dy * distance - height / 2.0);
    }
    // -1, 0 or 1: the side of the anchor on which the box lies.
    const bool known = box.alignment >= TopLeft && box.alignment <= BottomRight;
    const int horizontal = known ? 1 - box.alignment % 3 : 0;
    const int vertical = known ? box.alignment / 3 - 1 : 0;
    return QPointF((horizontal - 1) * width / 2.0 + horizontal * box.adjust,
                   (vertical - 1) * height / 2.0 + vertical * box.adjust);
}

LabelPlacement placeLabel(const ViewFrame& frame, const QVector3D& anchor, const LabelBox& box)
{
    return placeLabel(projectToWindow(frame, anchor), box);
}

LabelPlacement placeLabel(const WindowPoint& anchor, const LabelBox& box)
{
    LabelPlacement placement;
    if (!anchor.valid || anchor.depth < 0.0 || anchor.depth > 1.0)
        return placement;
    const QPointF offset = labelOffset(box);
    const double x = anchor.x + offset.x();
    const double y = anchor.y + offset.y();
    if (std::max(std::abs(x), std::abs(y)) > farAway)
        return placement;
    placement.visible = true;
    placement.corner = QPoint(int(std::floor(x + 0.5 + tie)), int(std::floor(y + 0.5 + tie)));
    placement.depth = anchor.depth;
    return placement;
}

} // namespace Zel3D
