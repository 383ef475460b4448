#pragma once

#include "core/types.h"

#include <array>

namespace Zel3D {

/// One edge of the coordinate box.
struct BoxEdge
{
    QVector3D start;
    QVector3D end;
    QVector3D ticDirection; ///< unit vector along which the tick marks leave the box
};

/// The direction of an axis; XAxis for an unknown one.
VORANPLOT_EXPORT BaseAxisType baseAxisType(AxisType type);

/// The four axes of a direction, in the order in which settings are applied to them.
VORANPLOT_EXPORT const std::array<AxisType, 4>& axesOf(BaseAxisType base);

/// The corners of the box at which an axis starts and ends. Bit 0 of a corner's number is set where x is that
/// of the second corner of the box, bits 1 and 2 likewise for y and z.
VORANPLOT_EXPORT int startCorner(AxisType type);
VORANPLOT_EXPORT int endCorner(AxisType type);

/// A corner of the box by its number.
VORANPLOT_EXPORT QVector3D boxCorner(int corner, const QVector3D& first, const QVector3D& second);

/// The edge on which an axis stands. The front face lies at the first corner's y, the left one at its x and
/// the bottom one at its z, whatever the order of the corners; every edge runs from the first corner's value
/// to the second's. X axes tick along y, the others along x, out of the box.
VORANPLOT_EXPORT BoxEdge boxEdge(AxisType type, const QVector3D& first, const QVector3D& second);

} // namespace Zel3D
