#include "gridvalues.h"

#include "plots/shplot.h"

#include <cmath>
#include <limits>

namespace {

/// The line of a coordinate among lines that ascend or descend; the nearest one.
template <class Line>
int nearestLine(int count, double wanted, const Line& line)
{
    if (count < 2)
        return 0;
    const bool falling = line(0) > line(count - 1);
    int low = 0;
    int high = count - 1;
    while (high - low > 1) {
        const int middle = (low + high) / 2;
        ((line(middle) > wanted) != falling ? high : low) = middle;
    }
    return std::abs(line(high) - wanted) < std::abs(line(low) - wanted) ? high : low;
}

} // namespace

GridValues::GridValues(Zel3D::SHPlot& plot)
    : PlotValues(plot), m_grid(*plot.getGridData()), m_rectangular(findRectangular())
{
}

int GridValues::columns() const
{
    return int(m_grid.columns());
}

int GridValues::rows() const
{
    return int(m_grid.rows());
}

bool GridValues::isSingle() const
{
    return !m_grid.hasSelectValues();
}

double GridValues::component(int column, int row, int direction) const
{
    const auto i = unsigned(column);
    const auto j = unsigned(row);
    if (m_grid.hasSelectValues()) {
        // The place of a hole is known, too; a height that cannot be drawn is none.
        if (direction == 2 && m_grid.isMissing(i, j))
            return std::numeric_limits<double>::quiet_NaN();
        return m_grid.selectVectorAt(i, j)[direction];
    }
    const double drawnAt = m_grid.valueVectorAt(i, j)[direction];
    if (isLogarithmic(Zel3D::BaseAxisType(direction)))
        return std::pow(10.0, drawnAt);
    return std::isfinite(drawnAt) ? drawnAt : std::numeric_limits<double>::quiet_NaN();
}

bool GridValues::findRectangular() const
{
    if (m_grid.hasSelectValues())
        return true;
    for (int column = 0; column < columns(); ++column) {
        if (column > 0 && !(x(column, 0) > x(column - 1, 0)))
            return false;
        for (int row = 0; row < rows(); ++row) {
            const bool ascends = row == 0 || column > 0 || y(0, row) > y(0, row - 1);
            if (x(column, row) != x(column, 0) || y(column, row) != y(0, row) || !ascends)
                return false;
        }
    }
    return true;
}

std::optional<ValuePlace> GridValues::find(const Zel3D::SelectedObjectsInfo& picked) const
{
    if (!picked.valid || columns() == 0)
        return std::nullopt;
    if (m_rectangular)
        return ValuePlace{nearestLine(columns(), picked.x, [this](int i) { return x(i, 0); }),
                          nearestLine(rows(), picked.y, [this](int j) { return y(0, j); })};
    for (int column = 0; column < columns(); ++column) {
        for (int row = 0; row < rows(); ++row) {
            if (x(column, row) == picked.x && y(column, row) == picked.y && value(column, row) == picked.z)
                return ValuePlace{column, row};
        }
    }
    return std::nullopt;
}

QVector3D GridValues::drawn(int column, int row) const
{
    return m_grid.valueAt(unsigned(column), unsigned(row));
}

void GridValues::visitHeights(const std::function<void(double)>& take) const
{
    // Many nodes are read several times: without holes only what select() reports.
    if (!m_grid.hasSelectValues() || m_grid.hasMissing())
        return PlotValues::visitHeights(take);
    for (unsigned int column = 0; column < m_grid.columns(); ++column) {
        for (unsigned int row = 0; row < m_grid.rows(); ++row)
            take(m_grid.selectVectorAt(column, row)[2]);
    }
}
