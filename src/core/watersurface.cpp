#include "core/watersurface.h"

#include "core/tofloat.h"
#include "plots/shplot.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace Zel3D {

namespace {

constexpr std::size_t bytesPerNode = 2 * sizeof(float) + 2 * sizeof(QVector3D);

constexpr int stoneReach = 3;
constexpr double stoneHeight = 1.004;
/// What a step makes of the height of a node and of the height before it; their difference is the damping.
constexpr double keptHeight = 1.995;
constexpr double keptBefore = 0.995;

} // namespace

WaterSurface::WaterSurface() = default;

WaterSurface::WaterSurface(SHPlot& target) : GridMapping(target) {}

WaterSurface::WaterSurface(SHPlot* target) : GridMapping(target) {}

void WaterSurface::setMesh(unsigned int columns, unsigned int rows)
{
    clear();
    if (!fitsInMemory("WaterSurface", columns, rows, bytesPerNode))
        return;
    current = ColumnArray<float>(columns, rows);
    previous = ColumnArray<float>(columns, rows);
    vertices = ColumnArray<QVector3D>(columns, rows);
    slopes = ColumnArray<QVector3D>(columns, rows);
    GridMapping::setMesh(columns, rows);
}

void WaterSurface::clear()
{
    GridMapping::setMesh(0, 0);
    current = ColumnArray<float>();
    previous = ColumnArray<float>();
    vertices = ColumnArray<QVector3D>();
    slopes = ColumnArray<QVector3D>();
}

void WaterSurface::setPausedWhenHidden(bool on)
{
    pausedWhenHidden = on;
}

void WaterSurface::reset()
{
    const QScopedValueRollback<bool> working(busy, true);
    const auto firstColumn = unsigned(getColumns() * 0.5);
    const auto firstRow = unsigned(getRows() * 0.5);
    for (int di = -stoneReach; di <= stoneReach; ++di) {
        const unsigned int column = firstColumn + unsigned(di + stoneReach);
        for (int dj = -stoneReach; dj <= stoneReach; ++dj) {
            const unsigned int row = firstRow + unsigned(dj + stoneReach);
            if (column >= getColumns() || row >= getRows()) {
                qDebug("out of range [%i][%i]", int(column), int(row));
                break;
            }
            float& height = current[column][row];
            height = float(double(height) + std::max(0, 6 - di * di - dj * dj) * stoneHeight);
        }
    }
}

bool WaterSurface::isUsable() const
{
    return getColumns() >= 3 && getRows() >= 3;
}

bool WaterSurface::create()
{
    if (!getPlot()) {
        qWarning("WaterSurface: Not Plot assigned");
        return false;
    }
    if (busy || !isUsable())
        return false;
    const QScopedValueRollback<bool> working(busy, true);
    updateVertices();
    return load();
}

void WaterSurface::timeout()
{
    const SHPlot* const plot = getPlot();
    if (busy || !plot || !isUsable() || (pausedWhenHidden && !plot->isVisible()))
        return;
    const QScopedValueRollback<bool> working(busy, true);
    updateVertices();
    advance();
    load();
    std::swap(current, previous);
}

void WaterSurface::updateVertices()
{
    const unsigned int columns = getColumns();
    const unsigned int rows = getRows();
    const double dx = sampleStepX();
    const double dy = sampleStepY();
    for (unsigned int i = 0; i < columns; ++i) {
        const auto x = toFloat(getXMin() + i * dx);
        QVector3D* const line = vertices[i];
        for (unsigned int j = 0; j < rows; ++j)
            line[j] = QVector3D(x, toFloat(getYMin() + j * dy), 0.0F);
        if (i > 0 && i + 1 < columns) {
            const float* const here = current[i];
            const float* const left = current[i - 1];
            const float* const right = current[i + 1];
            QVector3D* const slope = slopes[i];
            for (unsigned int j = 1; j + 1 < rows; ++j) {
                line[j].setZ(here[j]);
                slope[j] = QVector3D(left[j] - right[j], here[j - 1] - here[j + 1], 0.0F);
            }
        }
        for (unsigned int j = 0; j < rows; ++j)
            correct(line[j]);
    }
}

void WaterSurface::advance()
{
    for (unsigned int i = 1; i + 1 < getColumns(); ++i) {
        const float* const here = current[i];
        const float* const left = current[i - 1];
        const float* const right = current[i + 1];
        float* const before = previous[i];
        for (unsigned int j = 1; j + 1 < getRows(); ++j) {
            const double around =
                0.25 * (double(left[j]) + double(right[j]) + double(here[j + 1]) + double(here[j - 1]));
            const double height = double(here[j]);
            before[j] = float(around - height + (keptHeight * height - keptBefore * double(before[j])));
        }
    }
}

bool WaterSurface::load()
{
    return getPlot()->loadFromData(vertices.columns(), getColumns(), getRows(), sampleStepX(), sampleStepY());
}

} // namespace Zel3D
