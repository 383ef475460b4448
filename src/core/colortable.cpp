#include "core/colortable.h"

#include <cfloat>
#include <cmath>

namespace Zel3D {

namespace {

std::array<double, 4> channels(const QColor& color)
{
    return {double(color.red()), double(color.green()), double(color.blue()), double(color.alpha())};
}

} // namespace

ColorTable::ColorTable(const QGradientStops& stops) : count(stops.size())
{
    if (stops.isEmpty())
        return;
    first = stops.first().second;
    last = stops.last().second;
    for (int i = 1; i < stops.size(); ++i) {
        const double begin = stops.at(i - 1).first;
        const double end = stops.at(i).first;
        if (!(std::abs(end - begin) > DBL_MIN))
            continue;
        Segment segment{begin, end - begin, channels(stops.at(i - 1).second), channels(stops.at(i).second)};
        for (std::size_t k = 0; k < segment.change.size(); ++k)
            segment.change[k] -= segment.from[k];
        segments.push_back(segment);
        ends.push_back(end);
    }
}

// The index of the first segment that ends at or behind the position, else the number of segments. The steps
// depend on the number of segments alone, so that scattered values cost no mispredicted branches.
std::size_t ColorTable::find(double position) const
{
    constexpr std::size_t countedSegments = 8;
    const double* start = ends.data();
    std::size_t left = ends.size();
    std::size_t index = 0;
    if (left <= countedSegments) {
        for (std::size_t i = 0; i < left; ++i)
            index += std::size_t(start[i] < position);
        return index;
    }
    while (left > 0) {
        const std::size_t half = (left + 1) / 2;
        index += half * std::size_t(start[index + half - 1] < position);
        left -= half;
    }
    return index;
}

QColor ColorTable::colorAt(double value, double minimum, double maximum) const
{
    if (count == 1)
        return first;
    if (!(minimum < value && value < maximum)) {
        if (value <= minimum)
            return first;
        return value >= maximum ? last : QColor();
    }
    const double span = maximum - minimum;
    if (span <= DBL_MIN)
        return QColor();
    const double position = (value - minimum) / span;
    const std::size_t index = find(position);
    if (index == segments.size())
        return QColor();
    const Segment& segment = segments[index];
    const double fraction = (position - segment.begin) / segment.width;
    std::array<int, 4> color;
    for (std::size_t k = 0; k < color.size(); ++k) {
        const double channel = segment.change[k] * fraction + segment.from[k];
        // What truncates to a channel; compared before the conversion, which must not overflow.
        if (!(channel > -1.0 && channel < 256.0))
            return QColor();
        color[k] = int(channel);
    }
    return QColor(color[0], color[1], color[2], color[3]);
}

} // namespace Zel3D
