#include "core/testcelldata.h"

#include "core/tofloat.h"
#include "plots/shplot.h"

#include <cmath>
#include <limits>

namespace Zel3D {

namespace {

/// Four vertices with normals, four indices and the list that holds them.
constexpr std::size_t bytesPerCell = 8 * sizeof(QVector3D) + 4 * sizeof(unsigned int) + 64;
/// A Qt container holds no more bytes than an int counts.
constexpr std::size_t mostCells = std::size_t(std::numeric_limits<int>::max()) / (4 * sizeof(QVector3D)) / 2;

} // namespace

TestCellData::TestCellData() = default;

TestCellData::TestCellData(SHPlot& target) : GridMapping(target) {}

TestCellData::TestCellData(SHPlot* target) : GridMapping(target) {}

QVector3D TestCellData::operator()(double x, double y)
{
    return {toFloat(x), toFloat(y), toFloat(std::sin(x) * std::sin(y) / x * y)};
}

bool TestCellData::create()
{
    const unsigned int columns = getColumns();
    const unsigned int rows = getRows();
    if (!getPlot()) {
        qWarning("TestCellData: Not Plot assigned");
        return false;
    }
    if (std::size_t(columns) * rows > mostCells) {
        qWarning("TestCellData: a mesh of %u columns by %u rows is too large for memory", columns, rows);
        return false;
    }
    if (!fitsInMemory("TestCellData", columns, rows, bytesPerCell))
        return false;
    const double dx = sampleStepX();
    const double dy = sampleStepY();
    QVector<QVector3D> vertices;
    QVector<QVector<unsigned int>> cells;
    const auto corner = [&](unsigned int column, unsigned int row) {
        cells.last().append(unsigned(vertices.size()));
        vertices.append((*this)(getXMin() + column * dx, getYMin() + row * dy));
    };
    for (unsigned int i = 1; i < columns; ++i) {
        for (unsigned int j = 0; j + 1 < rows; ++j) {
            cells.append(QVector<unsigned int>());
            cells.last().reserve(4);
            corner(i - 1, j);
            corner(i, j);
            corner(i, j + 1);
            corner(i - 1, j + 1);
        }
    }
    SHPlot* const plot = getPlot();
    if (!plot) {
        qWarning("TestCellData: Not Plot assigned");
        return false;
    }
    return plot->loadFromData(vertices, cells, dx, dy);
}

} // namespace Zel3D
