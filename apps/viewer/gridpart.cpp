#include "gridpart.h"

#include <algorithm>
#include <cmath>

namespace {

// Of a step between nodes: a coordinate that was written and read again still means its node.
constexpr double tolerance = 0.01;

struct Span
{
    int first = 0;
    int count = 0;
};

/// The nodes from one place to another, in steps from the first node.
Span between(double lower, double upper, int nodes)
{
    const double last = nodes - 1.0;
    const double first = std::ceil(std::clamp(lower - tolerance, 0.0, last + 1.0));
    const double end = std::floor(std::clamp(upper + tolerance, -1.0, last));
    return end < first ? Span{} : Span{int(first), int(end - first) + 1};
}

Span within(double one, double other, double start, double step, int nodes)
{
    if (step <= 0.0)
        return {};
    return between((std::min(one, other) - start) / step, (std::max(one, other) - start) / step, nodes);
}

/// So many nodes with a place, in steps, in their middle.
int startAround(double place, int count, int nodes)
{
    return int(std::clamp(std::round(place - 0.5 * (count - 1)), 0.0, double(nodes - count)));
}

/// The nodes whose cells have their middle between two fractions.
Span covered(double one, double other, int nodes)
{
    const double lower = std::clamp(std::min(one, other), 0.0, 1.0) * nodes;
    const double upper = std::clamp(std::max(one, other), 0.0, 1.0) * nodes;
    const Span found = between(lower - 0.5, upper - 0.5 - 2.0 * tolerance, nodes);
    if (found.count > 0)
        return found;
    return {std::min(int(0.5 * (lower + upper)), nodes - 1), 1};
}

} // namespace

GridSize GridPart::thinned(double budget) const
{
    if (budget <= 0.0 || nodes() <= budget)
        return {columns, rows};
    const auto divided = [this](int factor) {
        return GridSize{std::max(columns / factor, std::min(columns, 2)),
                        std::max(rows / factor, std::min(rows, 2))};
    };
    // Rounding down can let a somewhat smaller factor fit.
    int factor = std::max(2, int(0.5 * std::sqrt(nodes() / budget)));
    const auto fits = [budget](const GridSize& size) {
        return double(size.columns) * size.rows <= budget || (size.columns <= 2 && size.rows <= 2);
    };
    while (!fits(divided(factor)))
        ++factor;
    return divided(factor);
}

GridPart GridLayout::within(const GridRange& wanted) const
{
    const Span along = ::within(wanted.xMin, wanted.xMax, range.xMin, stepX(), columns);
    const Span across = ::within(wanted.yMin, wanted.yMax, range.yMin, stepY(), rows);
    return {along.first, across.first, along.count, across.count};
}

GridRange GridLayout::rangeOf(const GridPart& part) const
{
    // The outer nodes keep their coordinates to the last digit.
    const auto place = [](double lower, double upper, double step, int index, int nodes) {
        return index == nodes - 1 ? upper : lower + index * step;
    };
    const int lastColumn = part.column + part.columns - 1;
    const int lastRow = part.row + part.rows - 1;
    return {place(range.xMin, range.xMax, stepX(), part.column, columns),
            place(range.xMin, range.xMax, stepX(), lastColumn, columns),
            place(range.yMin, range.yMax, stepY(), part.row, rows),
            place(range.yMin, range.yMax, stepY(), lastRow, rows)};
}

GridPart GridLayout::around(double x, double y, double budget) const
{
    GridPart part = whole();
    if (part.nodes() > budget) {
        const double shrink = std::sqrt(budget / part.nodes());
        part.columns = std::clamp(int(columns * shrink), std::min(columns, 2), columns);
        part.rows = std::clamp(int(budget / part.columns), std::min(rows, 2), rows);
        part.columns = std::clamp(int(budget / part.rows), std::min(columns, 2), columns);
    }
    part.column = startAround((x - range.xMin) / stepX(), part.columns, columns);
    part.row = startAround((y - range.yMin) / stepY(), part.rows, rows);
    return part;
}

GridPart GridLayout::covered(const GridRange& fractions) const
{
    const Span along = ::covered(fractions.xMin, fractions.xMax, columns);
    const Span across = ::covered(fractions.yMin, fractions.yMax, rows);
    return {along.first, across.first, along.count, across.count};
}

GridRange GridLayout::fractionsOf(const GridPart& part) const
{
    return {double(part.column) / columns, double(part.column + part.columns) / columns,
            double(part.row) / rows, double(part.row + part.rows) / rows};
}
