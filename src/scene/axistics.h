#pragma once

#include "core/scale.h"

namespace Zel3D {

/// Logical pixels between the end of a tick and a number that stands outside it.
constexpr double numberGap = 3.0;

/// A major tick: the value, the text that states it and its place.
struct AxisTic
{
    double value = 0.0;
    double t = 0.0; ///< 0 at the start of the axis, 1 at its end
    QString text;
};

/// The limits of an axis and the end at which the lower one stands.
struct AxisRange
{
    double minimum = 0.0;
    double maximum = 0.0;
    bool reversed = false; ///< the minimum stands at the end of the axis, not at its start

    /// Whether the range places values: its limits differ and its length is finite.
    bool isUsable() const;
    /// The place of a value: 0 at the start of the axis, 1 at its end.
    double fraction(double value) const;
};

/// The major ticks of a calculated scale on an axis. Every number that an axis shows and its place come from
/// here, so that a number stands at the value that it states.
QVector<AxisTic> majorTics(const Scale& scale, const AxisRange& range);

} // namespace Zel3D
