#pragma once

#include "core/export.h"

#include <QColor>
#include <QGradient>

#include <array>
#include <cstddef>
#include <vector>

namespace Zel3D {

/// Red, green, blue and alpha, 0 to 1.
using ColorChannels = std::array<double, 4>;

/// The channels of a colour; opaque black for an invalid one.
inline ColorChannels channelsOf(const QColor& color)
{
    // Not getRgbF(), which gives nothing for an invalid colour.
    return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
}

/// Turns a value into a colour by looking it up among the stops of a gradient.
class VORANPLOT_EXPORT ColorTable
{
public:
    /// A table without stops: every colour is invalid.
    ColorTable() = default;
    /// A table of stops sorted by position. Pass what gradientStops() gives: QGradient invents stops for a
    /// gradient that has none.
    explicit ColorTable(const QGradientStops& stops);

    bool isEmpty() const { return count == 0; }
    int getStopCount() const { return count; }
    /// Whether no colour lets anything through.
    bool isOpaque() const { return opaque; }

    /// The colour of a value, with the stops spread from minimum to maximum.
    ///
    /// Strictly inside the range the red, green, blue and alpha of the two enclosing stops (0 to 255) are
    /// interpolated linearly and truncated; a value at or below the minimum takes the first stop's colour,
    /// one at or above the maximum the last stop's. A single stop colours everything. The colour is invalid
    /// without stops, for a value that is not a number, beyond the last stop, and before the first stop where
    /// the continued first segment leaves the colours.
    QColor colorAt(double value, double minimum, double maximum) const;
    /// The same colour as red, green, blue and alpha from 0 to 1, as QColor gives them; opaque black for an
    /// invalid one.
    ColorChannels channelsAt(double value, double minimum, double maximum) const;
    /// The same for values in a row: \a colors takes \a size of them.
    void channelsAt(const double* values, std::size_t size, double minimum, double maximum,
                    ColorChannels* colors) const;

private:
    // Two neighbouring stops at different positions.
    struct Segment
    {
        double begin;
        double width;
        std::array<double, 4> from;
        std::array<double, 4> change;
    };
    /// What a value meets: an end, or whole numbers between stops, or neither.
    enum class Found { First, Last, Between, None };
    Found find(double value, double minimum, double maximum, std::array<int, 4>& color) const;
    ColorChannels channels(double value, double minimum, double maximum) const;
    std::size_t segmentAt(double position) const;

    std::vector<Segment> segments;
    std::vector<double> ends; // of the segments
    QColor first;
    QColor last;
    ColorChannels firstChannels{0.0, 0.0, 0.0, 1.0};
    ColorChannels lastChannels{0.0, 0.0, 0.0, 1.0};
    int count = 0;
    bool opaque = true; // an invalid colour is
};

} // namespace Zel3D
