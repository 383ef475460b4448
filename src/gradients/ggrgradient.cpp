#include "gradients/gradientformats.h"

#include <QColor>

#include <algorithm>
#include <array>
#include <cmath>

namespace Zel3D {

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr int samples = 16;
constexpr double tolerance = 1e-4;

enum Blending { Linear, Curved, Sinusoidal, SphericalIncreasing, SphericalDecreasing, Step };
enum Coloring { Rgb, HsvCounterClockwise, HsvClockwise };

using Rgba = std::array<double, 4>;

struct Segment
{
    double left, middle, right;
    Rgba from, to;
    int blending, coloring;
};

/// How far the colour has come at a position of a segment; middle and position within 0 ... 1. The functions
/// are those that GIMP documents for its gradient editor: the middle has half of both colours.
double blendFactor(int blending, double middle, double position)
{
    double linear = 0.0;
    if (position <= middle)
        linear = middle > 0.0 ? 0.5 * position / middle : 0.0;
    else
        linear = middle < 1.0 ? 0.5 + 0.5 * (position - middle) / (1.0 - middle) : 1.0;
    switch (blending) {
    case Curved:
        return middle > 0.0 && middle < 1.0 ? std::pow(position, std::log(0.5) / std::log(middle)) : linear;
    case Sinusoidal:
        return (std::sin(pi * (linear - 0.5)) + 1.0) / 2.0;
    case SphericalIncreasing:
        return std::sqrt(1.0 - (linear - 1.0) * (linear - 1.0));
    case SphericalDecreasing:
        return 1.0 - std::sqrt(1.0 - linear * linear);
    default:
        return linear;
    }
}

QColor toColor(const Rgba& c)
{
    return {qRound(c[0] * 255.0), qRound(c[1] * 255.0), qRound(c[2] * 255.0), qRound(c[3] * 255.0)};
}

/// Hue of 0 ... 1, also for greys, which have none.
Rgba toHsv(const Rgba& c)
{
    double hue = 0.0;
    double saturation = 0.0;
    double value = 0.0;
    QColor::fromRgbF(c[0], c[1], c[2]).getHsvF(&hue, &saturation, &value);
    return {std::max(hue, 0.0), saturation, value, c[3]};
}

QColor blended(const Segment& segment, double factor)
{
    if (segment.coloring == Rgb) {
        Rgba mixed{};
        for (std::size_t i = 0; i < 4; ++i)
            mixed[i] = segment.from[i] + (segment.to[i] - segment.from[i]) * factor;
        return toColor(mixed);
    }
    const Rgba a = toHsv(segment.from);
    const Rgba b = toHsv(segment.to);
    const bool counter = segment.coloring == HsvCounterClockwise;
    double turn = counter ? b[0] - a[0] : a[0] - b[0];
    if (turn <= 0.0)
        turn += 1.0;
    double hue = a[0] + (counter ? turn : -turn) * factor;
    hue -= std::floor(hue);
    const QColor rgb = QColor::fromHsvF(hue, a[1] + (b[1] - a[1]) * factor, a[2] + (b[2] - a[2]) * factor);
    return {rgb.red(), rgb.green(), rgb.blue(), qRound((a[3] + (b[3] - a[3]) * factor) * 255.0)};
}

void appendStops(const Segment& segment, QGradientStops& stops)
{
    const double width = segment.right - segment.left;
    const double middle = width > 0.0 ? (segment.middle - segment.left) / width : 0.5;
    const auto append = [&](double position, double factor) {
        stops.append({segment.left + width * position, blended(segment, factor)});
    };
    append(0.0, 0.0);
    if (segment.blending == Step) {
        append(middle, 0.0);
        append(middle, 1.0);
    } else if (segment.blending == Linear && segment.coloring == Rgb) {
        if (std::abs(middle - 0.5) > tolerance)
            append(middle, 0.5);
    } else {
        for (int i = 1; i < samples; ++i) {
            const double position = static_cast<double>(i) / samples;
            append(position, blendFactor(segment.blending, middle, position));
        }
    }
    append(1.0, 1.0);
}

/// What is wrong with the line; empty when the segment was read.
QString readSegment(const QString& text, double start, Segment& segment)
{
    const QStringList words = text.split(' ', Qt::SkipEmptyParts);
    if (words.size() != 13 && words.size() != 15)
        return GradientFile::tr("A segment has 13 or 15 numbers, not %1.").arg(words.size());
    std::array<double, 15> n{};
    for (int i = 0; i < words.size(); ++i) {
        if (!formatNumber(words[i], n[static_cast<std::size_t>(i)]))
            return GradientFile::tr("“%1” is not a number.").arg(words[i].left(40));
    }
    segment = {n[0], n[1], n[2], {n[3], n[4], n[5], n[6]}, {n[7], n[8], n[9], n[10]}, 0, 0};
    if (std::abs(segment.left - start) > tolerance)
        return GradientFile::tr("The segment does not begin where the one before ends.");
    segment.left = start;
    if (segment.middle < segment.left - tolerance || segment.right < segment.middle - tolerance ||
        segment.right > 1.0 + tolerance)
        return GradientFile::tr("Left, middle and right of the segment do not rise within 0 ... 1.");
    segment.right = qBound(start, segment.right, 1.0);
    segment.middle = qBound(start, segment.middle, segment.right);
    for (std::size_t i = 3; i < 11; ++i) {
        if (n[i] < 0.0 || n[i] > 1.0)
            return GradientFile::tr("A color component lies outside 0 ... 1.");
    }
    if (n[11] < double(Linear) || n[11] > double(Step) || n[11] != std::floor(n[11]))
        return GradientFile::tr("The blending is not one of 0 ... 5.");
    if (n[12] < double(Rgb) || n[12] > double(HsvClockwise) || n[12] != std::floor(n[12]))
        return GradientFile::tr("The coloring is not one of 0 ... 2.");
    segment.blending = static_cast<int>(n[11]);
    segment.coloring = static_cast<int>(n[12]);
    return {};
}

/// Segments meet with equal colours more often than not: one stop is enough there.
void dropRepeated(QGradientStops& stops)
{
    stops.erase(std::unique(stops.begin(), stops.end()), stops.end());
}

} // namespace

GradientFile::Result parseGgr(const QString& text)
{
    const QVector<FormatLine> lines = formatLines(text);
    if (lines.isEmpty() || lines.first().text != "GIMP Gradient")
        return formatError(1, GradientFile::tr("The first line is not “GIMP Gradient”."));
    GradientFile::Result result;
    int next = 1;
    if (next < lines.size() && lines[next].text.startsWith("Name:"))
        result.name = lines[next++].text.mid(5).trimmed();
    bool isCount = false;
    const int count = next < lines.size() ? lines[next].text.toInt(&isCount) : 0;
    if (!isCount || count < 1)
        return formatError(next < lines.size() ? lines[next].number : lines.last().number,
                           GradientFile::tr("The number of segments is missing."));
    ++next;
    double start = 0.0;
    for (int i = 0; i < count; ++i, ++next) {
        if (next >= lines.size())
            return formatError(lines.last().number,
                               GradientFile::tr("The file ends after %1 of %2 segments.").arg(i).arg(count));
        Segment segment{};
        const QString wrong = readSegment(lines[next].text, start, segment);
        if (!wrong.isEmpty())
            return formatError(lines[next].number, wrong);
        start = segment.right;
        if (i == count - 1 && std::abs(start - 1.0) > tolerance)
            return formatError(lines[next].number, GradientFile::tr("The last segment does not end at 1."));
        if (i == count - 1)
            segment.right = 1.0;
        appendStops(segment, result.stops);
        dropRepeated(result.stops);
        if (result.stops.size() > GradientFile::maximumStops)
            return tooManyStops(lines[next].number);
    }
    return result;
}

} // namespace Zel3D
