#pragma once

#include <QGradient>

namespace Zel3D {

/// The stops of a gradient as a person edits them: only those that were really added (QGradient::stops()
/// invents black and white where there are none), sorted, sharp edges as two stops at one position.
Q_DECL_EXPORT QGradientStops editableStops(const QGradient& gradient);

/// A linear gradient from left to right with these stops. QGradient keeps one stop a position only: of stops
/// at one position all but one move by a billionth each, which editableStops() takes back.
Q_DECL_EXPORT QLinearGradient gradientOf(const QGradientStops& stops);

/// The stops with the first and last colour repeated at 0 and 1 where nothing stands there: a plot has no
/// colours before the first and behind the last stop. Fewer than two stops stay as they are.
Q_DECL_EXPORT QGradientStops coveringStops(const QGradientStops& stops);

/// The colour at a position by linear interpolation of the components, cut to whole numbers, as a plot
/// colours its data; the end colours outside the stops, an invalid colour without stops. The stops must be
/// sorted.
Q_DECL_EXPORT QColor stopsColor(const QGradientStops& stops, double position);

/// "#rrggbbaa", lower case.
Q_DECL_EXPORT QString colorText(const QColor& color);

/// The colour of "#rgb", "#rgba", "#rrggbb" or "#rrggbbaa"; an invalid one for anything else.
Q_DECL_EXPORT QColor colorFromText(const QString& text);

} // namespace Zel3D
