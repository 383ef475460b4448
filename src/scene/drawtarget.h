#pragma once

#include <QRect>
#include <QSize>

#include <array>

namespace Zel3D {

/// What the library draws on when that is not a window: a tile of a picture, with strokes in proportion.
struct DrawTarget
{
    QSize whole; ///< pixels of the whole picture; empty: the viewport is the whole
    /// What the viewport shows, of the viewport's size, in pixels from the lower left corner of the whole.
    QRect tile;
    /// The projection of the whole picture, in OpenGL's column order; see tileMatrix() for that of the tile.
    std::array<double, 16> projection{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    double strokeScale = 1.0; ///< factor of line widths, point sizes and stipple
    /// Whether widths, sizes and stipple are told to feedback mode, which does not report them by itself.
    bool tellStrokes = false;

    bool isTiled() const { return !whole.isEmpty() && !tile.isEmpty(); }
};

/// What glPassThrough() announces, followed by the value, while DrawTarget::tellStrokes is set. Stipple has
/// two values: the pattern, and the repeat, 0 for solid lines.
enum StrokeToken : int { LineWidthToken = 7001, PointSizeToken = 7002, LineStippleToken = 7003 };

/// Draws on a target for the duration of a scope; of nested scopes the inner one holds.
///
/// OpenGL keeps no place for a target, and what records display lists and draws additions has no parameter
/// for it: like the current context it belongs to the thread. A scope therefore encloses the drawing of one
/// frame or the recording of lists and nothing that lets other widgets paint.
class DrawTargetScope
{
public:
    explicit DrawTargetScope(const DrawTarget& target);
    ~DrawTargetScope();
    DrawTargetScope(const DrawTargetScope&) = delete;
    DrawTargetScope& operator=(const DrawTargetScope&) = delete;

    /// The target in force; outside of any scope the window.
    static const DrawTarget& current();

private:
    DrawTarget target;
    const DrawTarget* before;
};

} // namespace Zel3D
