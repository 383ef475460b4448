#include "plots/datacheck.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>

namespace Zel3D::DataCheck {

namespace {

/// What one node takes in the container: three pointers and nine doubles.
constexpr std::size_t bytesPerNode = 3 * sizeof(double*) + 9 * sizeof(double);
/// The list of the nodes of a column must stay below the limit of a Qt container.
constexpr std::size_t mostRows = std::size_t(std::numeric_limits<int>::max()) / (3 * sizeof(double*)) / 2;

bool fitsInMemory(std::size_t columns, std::size_t rows)
{
    if (rows > mostRows || columns > mostRows)
        return false;
    // Asked of the system while the old plot is still whole; the pages are not touched.
    const std::unique_ptr<void, decltype(&std::free)> probe(std::malloc(columns * rows * bytesPerNode),
                                                            &std::free);
    return probe != nullptr;
}

template <class T>
QString grid(const T* const* nodes, unsigned int columns, unsigned int rows)
{
    if (columns == 0 || rows == 0)
        return QString("the grid has no nodes (%1 columns by %2 rows)").arg(columns).arg(rows);
    if (!nodes)
        return QStringLiteral("the array of columns is null");
    for (unsigned int i = 0; i < columns; ++i) {
        if (!nodes[i])
            return QString("the pointer of column %1 is null").arg(i);
    }
    if (!fitsInMemory(columns, rows))
        return QString("a grid of %1 by %2 nodes is too large for memory").arg(columns).arg(rows);
    return QString();
}

QString finite(const char* name, double value)
{
    return std::isfinite(value) ? QString() : QString("%1 is %2, not a finite number").arg(name).arg(value);
}

QString steps(double stepX, double stepY)
{
    const QString x = finite("stepX", stepX);
    return x.isEmpty() ? finite("stepY", stepY) : x;
}

} // namespace

QString heights(const double* const* z, unsigned int columns, unsigned int rows, double xMin, double xMax,
                double yMin, double yMax)
{
    QString fault = grid(z, columns, rows);
    if (!fault.isEmpty())
        return fault;
    const struct
    {
        const char* name;
        double value;
    } ends[] = {{"xMin", xMin}, {"xMax", xMax}, {"yMin", yMin}, {"yMax", yMax}};
    for (const auto& end : ends) {
        QString text = finite(end.name, end.value);
        if (!text.isEmpty())
            return text;
    }
    return QString();
}

QString points(const QVector3D* const* nodes, unsigned int columns, unsigned int rows, double stepX,
               double stepY)
{
    const QString fault = grid(nodes, columns, rows);
    return fault.isEmpty() ? steps(stepX, stepY) : fault;
}

QString cells(const QVector<QVector3D>& vertices, const QVector<QVector<unsigned int>>& cells, double stepX,
              double stepY)
{
    if (vertices.isEmpty())
        return QStringLiteral("there are no vertices");
    if (cells.isEmpty())
        return QStringLiteral("there are no cells");
    const auto count = unsigned(vertices.size());
    for (int i = 0; i < cells.size(); ++i) {
        for (unsigned int vertex : cells.at(i)) {
            if (vertex >= count)
                return QString("cell %1 names vertex %2, but there are only %3 vertices")
                    .arg(i)
                    .arg(vertex)
                    .arg(count);
        }
    }
    return steps(stepX, stepY);
}

QString spectra(const SpectrumData::Map& spectra, BaseAxisType axis)
{
    if (axis != XAxis && axis != YAxis)
        return QString("spectra stand along x or y, not along axis %1").arg(int(axis));
    for (const auto& [position, values] : spectra) {
        if (!std::isfinite(position))
            return QString("the position of a spectrum is %1, not a finite number").arg(position);
        for (const auto& value : values) {
            if (!std::isfinite(value.first))
                return QString("spectrum %1 has a point at %2, not at a finite number")
                    .arg(position)
                    .arg(value.first);
        }
    }
    return QString();
}

} // namespace Zel3D::DataCheck
