#pragma once

#include "core/export.h"

#include <QGradient>
#include <QVariant>

namespace Zel3D {

/// The stops that were really added to a gradient, sorted by position; empty when none was.
///
/// QGradient::stops() never returns an empty list: for a gradient without stops it invents black and white.
/// Here such a gradient has no stops: it has no colour and draws nothing.
VORANPLOT_EXPORT QGradientStops gradientStops(const QGradient& gradient);

/// Whether two gradients are equal, a gradient without stops being different from an explicit black to white.
VORANPLOT_EXPORT bool sameGradient(const QGradient& a, const QGradient& b);

/// How many stops to read where \a size says how many were stored: never below 0 and never more than a
/// gradient that a person made would have, whatever stands there.
int storedStopCount(const QVariant& size);

} // namespace Zel3D
