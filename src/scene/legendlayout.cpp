#include "scene/legendlayout.h"

#include "scene/axistics.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace Zel3D {

namespace {

// Logical pixels.
constexpr double margin = 2.0; // to the edges of the window
constexpr double majorTic = 5.0;
constexpr double minorTic = 3.0;
constexpr double pointerLength = 9.0;
constexpr double pointerGap = 1.0; // between the pointer and the bar
constexpr double thinnest = 4.0;
constexpr double shortest = 12.0;

// Fractions.
constexpr double largestPointer = 0.1;   // of the window
constexpr double pointerHalfWidth = 0.6; // of the pointer's length

/// A stretch of one coordinate.
struct Span
{
    double low = 0.0;
    double high = 0.0;
    double length() const { return high - low; }
};

/// The layout in two coordinates of its own: along the bar, and across it from the numbers to the pointer.
class Layouter
{
public:
    explicit Layouter(const LegendLayoutInput& layoutInput);

    LegendLayout layout() const;

private:
    bool attempt(bool withNumbers, bool withPointer, LegendLayout& result) const;
    std::optional<Span> fitAcross(double numbers, double pointer) const;
    std::optional<Span> fitAlong(bool withNumbers, double pointerHalf) const;
    double numberDepth() const;
    double numberHalfWidth(const LegendNumber& number) const;
    LegendLayout result(const Span& across, const Span& along) const;

    const LegendLayoutInput& input;
    double windowAcross;
    double windowAlong;
    Span across;
    Span along;
};

Layouter::Layouter(const LegendLayoutInput& layoutInput) : input(layoutInput)
{
    const QRectF relative = input.relative.normalized();
    const double width = input.window.width();
    const double height = input.window.height();
    const Span x{relative.left() * width, relative.right() * width};
    const Span y{relative.top() * height, relative.bottom() * height};
    along = input.horizontal ? x : y;
    const double free = height - std::clamp(input.reservedTop, 0.0, height / 2.0);
    windowAlong = input.horizontal ? width : free;
    if (!input.horizontal)
        along.high = std::min(along.high, free);
    across = input.horizontal ? y : x;
    windowAcross = input.horizontal ? free : width;
    if (!input.numbersBelow)
        across = {windowAcross - across.high, windowAcross - across.low};
}

LegendLayout Layouter::layout() const
{
    LegendLayout layout;
    if (!(across.length() > 0.0) || !(along.length() > 0.0) || !(windowAcross > 0.0) || !(windowAlong > 0.0))
        return layout;
    if (attempt(true, true, layout) || attempt(false, true, layout) || attempt(false, false, layout))
        return layout;
    // A window of a few pixels: the bar as it is wanted.
    return result({std::max(across.low, 0.0), std::min(across.high, windowAcross)},
                  {std::max(along.low, 0.0), std::min(along.high, windowAlong)});
}

bool Layouter::attempt(bool withNumbers, bool withPointer, LegendLayout& layout) const
{
    const double ratio = input.pixelRatio;
    const double size = withPointer ? std::min(pointerLength * ratio, largestPointer * windowAcross) : 0.0;
    const double numbersRoom = margin * ratio + (withNumbers ? numberDepth() : 0.0);
    const double pointerRoom = margin * ratio + (withPointer ? size + pointerGap * ratio : 0.0);
    const std::optional<Span> fittedAcross = fitAcross(numbersRoom, pointerRoom);
    const std::optional<Span> fittedAlong = fitAlong(withNumbers, size * pointerHalfWidth);
    if (!fittedAcross || !fittedAlong)
        return false;
    layout = result(*fittedAcross, *fittedAlong);
    layout.numbersFit = withNumbers;
    layout.pointerSize = size;
    return true;
}

/// The bar across, which keeps the two rooms free at the edges of the window: moved if that is enough.
std::optional<Span> Layouter::fitAcross(double numbers, double pointer) const
{
    const double end = windowAcross - pointer;
    Span fitted;
    fitted.high = std::min(across.high, end);
    fitted.low = fitted.high - across.length();
    if (fitted.low < numbers) {
        fitted.low = numbers;
        fitted.high = std::min(numbers + across.length(), end);
    }
    if (fitted.length() < std::min(thinnest * input.pixelRatio, across.length()))
        return std::nullopt;
    return fitted;
}

/// The bar along, moved or else shortened so that no number and no pointer at its ends crosses an edge.
std::optional<Span> Layouter::fitAlong(bool withNumbers, double pointerHalf) const
{
    double half = pointerHalf;
    for (int i = 0; withNumbers && i < input.numbers.size(); ++i)
        half = std::max(half, numberHalfWidth(input.numbers.at(i)));
    const double room = margin * input.pixelRatio + half;
    const double length = std::min(along.length(), windowAlong - 2.0 * room);
    if (length < std::min(shortest * input.pixelRatio, along.length()))
        return std::nullopt;
    const double low = std::clamp(along.low, room, windowAlong - room - length);
    return Span{low, low + length};
}

/// How far ticks and numbers reach from the bar.
double Layouter::numberDepth() const
{
    double deepest = 0.0;
    for (const LegendNumber& number : input.numbers)
        deepest = std::max(deepest, input.horizontal ? number.size.height() : number.size.width());
    const double gap = input.numbers.isEmpty() ? 0.0 : numberGap;
    return (majorTic + gap) * input.pixelRatio + deepest;
}

double Layouter::numberHalfWidth(const LegendNumber& number) const
{
    return (input.horizontal ? number.size.width() : number.size.height()) / 2.0;
}

LegendLayout Layouter::result(const Span& fittedAcross, const Span& fittedAlong) const
{
    // Lines are sharp at the centres of pixels.
    const auto sharp = [](double value) { return std::floor(value + 0.01) + 0.5; };
    Span a = fittedAcross;
    if (!input.numbersBelow)
        a = {windowAcross - fittedAcross.high, windowAcross - fittedAcross.low};
    a = {sharp(a.low), std::max(sharp(a.high), sharp(a.low) + 1.0)};
    const Span l{sharp(fittedAlong.low), std::max(sharp(fittedAlong.high), sharp(fittedAlong.low) + 1.0)};
    const double side = input.numbersBelow ? a.low : a.high;
    const double direction = input.numbersBelow ? -1.0 : 1.0;
    LegendLayout layout;
    layout.visible = true;
    layout.majorTic = majorTic * input.pixelRatio;
    layout.minorTic = minorTic * input.pixelRatio;
    if (input.horizontal) {
        layout.bar = QRectF(l.low, a.low, l.length(), a.length());
        layout.axisStart = QPointF(l.low, side);
        layout.axisEnd = QPointF(l.high, side);
        layout.outward = QPointF(0.0, direction);
    } else {
        layout.bar = QRectF(a.low, l.low, a.length(), l.length());
        layout.axisStart = QPointF(side, l.low);
        layout.axisEnd = QPointF(side, l.high);
        layout.outward = QPointF(direction, 0.0);
    }
    return layout;
}

} // namespace

LegendLayout layoutLegend(const LegendLayoutInput& input)
{
    return Layouter(input).layout();
}

std::array<QPointF, 3> legendPointer(const LegendLayout& layout, double t)
{
    const QPointF along = layout.axisEnd - layout.axisStart;
    const double length = std::hypot(along.x(), along.y());
    const double thickness = std::abs(layout.outward.x()) > 0.0 ? layout.bar.width() : layout.bar.height();
    const QPointF away = -layout.outward;
    const QPointF tip = layout.axisStart + along * t + away * (thickness + pointerGap);
    const QPointF base = tip + away * layout.pointerSize;
    const QPointF half = length > 0.0 ? along * (layout.pointerSize * pointerHalfWidth / length) : QPointF();
    return {tip, base - half, base + half};
}

} // namespace Zel3D
