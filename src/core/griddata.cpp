#include "core/griddata.h"

#include "core/dataorigin.h"
#include "core/gridnormals.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

namespace Zel3D {

namespace {

constexpr std::size_t doublesPerNode = 9;
constexpr float infinity = std::numeric_limits<float>::infinity();

// One direction of a range: where drawing starts, and where the caller's coordinates start and go.
struct Direction
{
    double drawn;
    double given;
    double sign;
};

Direction direction(double first, double last, bool descending)
{
    return descending ? Direction{last, first, -1.0} : Direction{first, first, 1.0};
}

} // namespace

GridData::GridData() : Data(0) {}

GridData::GridData(unsigned int columns, unsigned int rows) : Data(0)
{
    setSize(columns, rows);
}

void GridData::setSize(unsigned int columns, unsigned int rows)
{
    // Of the same size: the memory stays, because asking the system for it anew costs as much as filling it.
    const bool same = !isEmpty() && columns == this->columns() && rows == this->rows();
    QVector<QVector<GridDataInfo>> kept;
    std::unique_ptr<double[]> keptBlock;
    if (same) {
        kept.swap(grid);
        keptBlock.swap(block);
    }
    clear();
    if (same) {
        kept.swap(grid);
        keptBlock.swap(block);
        return;
    }
    const std::size_t most = std::numeric_limits<std::size_t>::max() / (doublesPerNode * sizeof(double));
    constexpr auto longest = unsigned(std::numeric_limits<int>::max());
    if (columns > longest || rows > longest || (rows != 0 && columns > most / rows))
        qBadAlloc();
    const std::size_t third = 3 * std::size_t(columns) * rows;
    std::unique_ptr<double[]> arrays(new double[3 * third]);
    QVector<QVector<GridDataInfo>> nodes;
    nodes.reserve(int(columns));
    double* value = arrays.get();
    for (unsigned int i = 0; i < columns; ++i) {
        QVector<GridDataInfo> column(static_cast<int>(rows));
        for (GridDataInfo& info : column) {
            info = {value, value + third, value + 2 * third};
            value += 3;
        }
        nodes.append(std::move(column));
    }
    grid = std::move(nodes);
    block = std::move(arrays);
}

void GridData::setRange(double newXMin, double newXMax, double newYMin, double newYMax)
{
    xMin = newXMin;
    xMax = newXMax;
    yMin = newYMin;
    yMax = newYMax;
}

void GridData::setData(double** z, unsigned int columns, unsigned int rows, double newXMin, double newXMax,
                       double newYMin, double newYMax)
{
    setSize(columns, rows);
    setRange(newXMin, newXMax, newYMin, newYMax);
    if (columns > 1 && rows > 1) {
        stepX = std::abs(xMax - xMin) / (columns - 1);
        stepY = std::abs(yMax - yMin) / (rows - 1);
    }
    const Direction alongX = direction(xMin, xMax, !(xMin <= xMax));
    const Direction alongY = direction(yMin, yMax, yMax < yMin);
    double lowest = std::numeric_limits<double>::max();
    double highest = -lowest;
    double* value = block.get();
    double* given = value + 6 * std::size_t(columns) * rows;
    for (unsigned int i = 0; i < columns; ++i) {
        const double x = alongX.drawn + i * stepX;
        const double givenX = alongX.given + alongX.sign * (i * stepX);
        for (unsigned int j = 0; j < rows; ++j, value += 3, given += 3) {
            const double height = z[i][j];
            value[0] = x;
            value[1] = alongY.drawn + j * stepY;
            value[2] = height;
            given[0] = givenX;
            given[1] = alongY.given + alongY.sign * (j * stepY);
            given[2] = height;
            const bool present = std::isfinite(height);
            lowest = present && height < lowest ? height : lowest;
            highest = present && height > highest ? height : highest;
        }
    }
    selectWritten = true;
    // Without a finite height the extremes are still beyond a float's range and become infinite.
    minimum.setZ(toFloat(lowest));
    maximum.setZ(toFloat(highest));
    if (columns > 0 && rows > 0) {
        const double* first = node(0, 0).value;
        const double* last = node(columns - 1, rows - 1).value;
        minimum = QVector3D(toFloat(first[0]), toFloat(first[1]), minimum.z());
        maximum = QVector3D(toFloat(last[0]), toFloat(last[1]), maximum.z());
    }
    calcNormals();
}

void GridData::setData(QVector3D** points, unsigned int columns, unsigned int rows, double newStepX,
                       double newStepY)
{
    setSize(columns, rows);
    stepX = newStepX;
    stepY = newStepY;
    float low[3] = {infinity, infinity, infinity};
    float high[3] = {-infinity, -infinity, -infinity};
    double* value = block.get();
    for (unsigned int i = 0; i < columns; ++i) {
        for (unsigned int j = 0; j < rows; ++j, value += 3) {
            const float point[3] = {points[i][j].x(), points[i][j].y(), points[i][j].z()};
            const bool present =
                std::isfinite(point[0]) && std::isfinite(point[1]) && std::isfinite(point[2]);
            for (int k = 0; k < 3; ++k) {
                value[k] = double(point[k]);
                low[k] = present && point[k] < low[k] ? point[k] : low[k];
                high[k] = present && point[k] > high[k] ? point[k] : high[k];
            }
        }
    }
    minimum = QVector3D(low[0], low[1], low[2]);
    maximum = QVector3D(high[0], high[1], high[2]);
    calcNormals();
}

int GridData::convertToExponents(const std::array<bool, 3>& directions)
{
    const std::size_t count = std::size_t(columns()) * rows();
    QVector3D low(infinity, infinity, infinity);
    QVector3D high = -low;
    int lost = 0;
    for (double* value = block.get(); value != block.get() + 3 * count; value += 3) {
        const bool before = std::isfinite(value[0]) && std::isfinite(value[1]) && std::isfinite(value[2]);
        for (int k = 0; k < 3; ++k) {
            if (directions[std::size_t(k)])
                value[k] = value[k] > 0.0 ? std::log10(value[k]) : std::numeric_limits<double>::quiet_NaN();
        }
        if (!(std::isfinite(value[0]) && std::isfinite(value[1]) && std::isfinite(value[2]))) {
            lost += before ? 1 : 0;
            continue;
        }
        for (int k = 0; k < 3; ++k) {
            low[k] = std::min(low[k], toFloat(value[k]));
            high[k] = std::max(high[k], toFloat(value[k]));
        }
    }
    minimum = low;
    maximum = high;
    if (directions[0] && columns() > 1)
        stepX = double(high.x() - low.x()) / (columns() - 1);
    if (directions[1] && rows() > 1)
        stepY = double(high.y() - low.y()) / (rows() - 1);
    calcNormals();
    return lost;
}

std::array<double, 3> GridData::moveOrigin(const std::array<bool, 3>& directions)
{
    double* const end = block.get() + 3 * std::size_t(columns()) * rows();
    std::array<double, 3> low{HUGE_VAL, HUGE_VAL, HUGE_VAL};
    std::array<double, 3> high{-HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
    for (const double* value = block.get(); value != end; value += 3) {
        if (!(std::isfinite(value[0]) && std::isfinite(value[1]) && std::isfinite(value[2])))
            continue;
        for (std::size_t k = 0; k < 3; ++k) {
            low[k] = std::min(low[k], value[k]);
            high[k] = std::max(high[k], value[k]);
        }
    }
    std::array<double, 3> origin{};
    for (std::size_t k = 0; k < 3; ++k)
        origin[k] = directions[k] ? dataOrigin(low[k], high[k]) : 0.0;
    if (origin == std::array<double, 3>{})
        return origin;
    for (double* value = block.get(); value != end; value += 3) {
        for (std::size_t k = 0; k < 3; ++k)
            value[k] -= origin[k];
    }
    for (std::size_t k = 0; k < 3; ++k) {
        minimum[int(k)] = toFloat(low[k] - origin[k]);
        maximum[int(k)] = toFloat(high[k] - origin[k]);
    }
    calcNormals();
    return origin;
}

void GridData::clear()
{
    grid.clear();
    block.reset();
    minimum = QVector3D();
    maximum = QVector3D();
    missing = false;
    selectWritten = false;
}

bool GridData::isEmpty() const
{
    return grid.isEmpty();
}

void GridData::calcNormals()
{
    const std::size_t rowCount = grid.isEmpty() ? 0 : std::size_t(grid.first().size());
    const std::size_t columnCount = std::size_t(grid.size());
    missing = gridNormals(block.get(), block.get() + 3 * columnCount * rowCount, columnCount, rowCount);
}

} // namespace Zel3D
