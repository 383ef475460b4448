#pragma once

#include <QPointF>
#include <QRectF>
#include <QVector>

#include <array>

namespace Zel3D {

/// A number beside the bar.
struct LegendNumber
{
    double t = 0.0; ///< its place along the bar: 0 at the left or the bottom, 1 at the other end
    QSizeF size;    ///< pixels
};

/// What decides where the parts of a legend lie. Pixels are those of the window.
struct LegendLayoutInput
{
    QSizeF window;           ///< pixels
    QRectF relative;         ///< the wanted bar in fractions of the window, y upwards; negative sizes allowed
    bool horizontal = false; ///< the bar lies
    bool numbersBelow = true; ///< numbers below a lying bar or to the left of a standing one, not beyond it
    QVector<LegendNumber> numbers;
    double reservedTop = 0.0; ///< pixels at the top of the window that are left to others
    double pixelRatio = 1.0;  ///< pixels of the window per logical pixel
};

/// Where the parts of a legend lie, in pixels from the lower left corner of the window, y upwards.
struct LegendLayout
{
    bool visible = false;    ///< false without a bar
    bool numbersFit = false; ///< false where no bar would be left beside the numbers
    QRectF bar;              ///< top() is its lower edge
    QPointF axisStart;       ///< the long side of the bar at which the numbers stand
    QPointF axisEnd;
    QPointF outward;       ///< unit vector from the bar to the numbers
    double majorTic = 0.0; ///< lengths of the ticks
    double minorTic = 0.0;
    double pointerSize = 0.0; ///< 0 where there is no room for a pointer
};

/// Lays a legend out: ticks and numbers on one long side of the bar, the pointer on the other, all inside the
/// window. The bar moves, and then shrinks, until everything has room; in windows too small for that the
/// numbers go first and then the pointer.
LegendLayout layoutLegend(const LegendLayoutInput& input);

/// The corners of the pointer at a place along the bar, its tip first.
std::array<QPointF, 3> legendPointer(const LegendLayout& layout, double t);

} // namespace Zel3D
