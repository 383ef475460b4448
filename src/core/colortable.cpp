#include "core/colortable.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace Zel3D {

namespace {

std::array<double, 4> wholeChannels(const QColor& color)
{
    return {double(color.red()), double(color.green()), double(color.blue()), double(color.alpha())};
}

/// The channels from 0 to 255 as QColor gives them.
std::array<double, 256> makeFractions()
{
    std::array<double, 256> fractions;
    for (std::size_t i = 0; i < fractions.size(); ++i)
        fractions[i] = QColor(int(i), 0, 0).redF();
    return fractions;
}

const std::array<double, 256> fractions = makeFractions();

} // namespace

ColorTable::ColorTable(const QGradientStops& stops) : count(stops.size())
{
    if (stops.isEmpty())
        return;
    first = stops.first().second;
    last = stops.last().second;
    firstChannels = channelsOf(first);
    lastChannels = channelsOf(last);
    opaque = std::all_of(stops.begin(), stops.end(),
                         [](const QGradientStop& stop) { return stop.second.alphaF() >= 1.0; });
    for (int i = 1; i < stops.size(); ++i) {
        const double begin = stops.at(i - 1).first;
        const double end = stops.at(i).first;
        if (!(std::abs(end - begin) > DBL_MIN))
            continue;
        Segment segment{begin, end - begin, wholeChannels(stops.at(i - 1).second),
                        wholeChannels(stops.at(i).second)};
        for (std::size_t k = 0; k < segment.change.size(); ++k)
            segment.change[k] -= segment.from[k];
        segments.push_back(segment);
        ends.push_back(end);
    }
}

// The index of the first segment that ends at or behind the position, else the number of segments. The steps
// depend on the number of segments alone, so that scattered values cost no mispredicted branches.
inline std::size_t ColorTable::segmentAt(double position) const
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

inline ColorTable::Found ColorTable::find(double value, double minimum, double maximum,
                                          std::array<int, 4>& color) const
{
    if (count == 1)
        return Found::First;
    if (!(minimum < value && value < maximum)) {
        if (value <= minimum)
            return Found::First;
        return value >= maximum ? Found::Last : Found::None;
    }
    const double span = maximum - minimum;
    if (span <= DBL_MIN)
        return Found::None;
    const double position = (value - minimum) / span;
    const std::size_t index = segmentAt(position);
    if (index == segments.size())
        return Found::None;
    const Segment& segment = segments[index];
    const double fraction = (position - segment.begin) / segment.width;
    for (std::size_t k = 0; k < color.size(); ++k) {
        const double channel = segment.change[k] * fraction + segment.from[k];
        // What truncates to a channel; compared before the conversion, which must not overflow.
        if (!(channel > -1.0 && channel < 256.0))
            return Found::None;
        color[k] = int(channel);
    }
    return Found::Between;
}

QColor ColorTable::colorAt(double value, double minimum, double maximum) const
{
    std::array<int, 4> color;
    switch (find(value, minimum, maximum, color)) {
    case Found::First:
        return first;
    case Found::Last:
        return last;
    case Found::Between:
        return QColor(color[0], color[1], color[2], color[3]);
    case Found::None:
        break;
    }
    return QColor();
}

inline ColorChannels ColorTable::channels(double value, double minimum, double maximum) const
{
    std::array<int, 4> color;
    switch (find(value, minimum, maximum, color)) {
    case Found::First:
        return firstChannels;
    case Found::Last:
        return lastChannels;
    case Found::Between:
        return {fractions[std::size_t(color[0])], fractions[std::size_t(color[1])],
                fractions[std::size_t(color[2])], fractions[std::size_t(color[3])]};
    case Found::None:
        break;
    }
    return {0.0, 0.0, 0.0, 1.0};
}

ColorChannels ColorTable::channelsAt(double value, double minimum, double maximum) const
{
    return channels(value, minimum, maximum);
}

// As channels() does it, but step by step for a block of values, so that no division waits for another. What
// does not lie between two stops is left to channels().
void ColorTable::channelsAt(const double* values, std::size_t size, double minimum, double maximum,
                            ColorChannels* colors) const
{
    constexpr std::size_t blockSize = 64;
    std::array<double, blockSize> positions;
    std::array<double, blockSize> parts;
    std::array<const Segment*, blockSize> met;
    const double span = maximum - minimum;
    const bool hasSegments = count > 1 && span > DBL_MIN && !segments.empty();
    const std::size_t highest = segments.size() - 1;
    for (std::size_t i = 0; !hasSegments && i < size; ++i)
        colors[i] = channels(values[i], minimum, maximum);
    for (std::size_t start = 0; hasSegments && start < size; start += blockSize) {
        const std::size_t length = std::min(blockSize, size - start);
        const double* value = values + start;
        for (std::size_t i = 0; i < length; ++i)
            positions[i] = (value[i] - minimum) / span;
        for (std::size_t i = 0; i < length; ++i) {
            met[i] = &segments[std::min(segmentAt(positions[i]), highest)];
            parts[i] = (positions[i] - met[i]->begin) / met[i]->width;
        }
        for (std::size_t i = 0; i < length; ++i) {
            // Without branches: "and" is not "and then" here.
            int isBetween =
                int(minimum < value[i]) & int(value[i] < maximum) & int(positions[i] <= ends[highest]);
            std::array<int, 4> color;
            for (std::size_t k = 0; k < color.size(); ++k) {
                const double channel = met[i]->change[k] * parts[i] + met[i]->from[k];
                isBetween &= int(channel > -1.0) & int(channel < 256.0);
                color[k] = int(isBetween ? channel : 0.0);
            }
            for (std::size_t k = 0; k < color.size(); ++k)
                colors[start + i][k] = fractions[std::size_t(color[k])];
            if (!isBetween)
                colors[start + i] = channels(value[i], minimum, maximum);
        }
    }
}

} // namespace Zel3D
