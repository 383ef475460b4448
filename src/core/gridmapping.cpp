#include "core/gridmapping.h"

#include "plots/shplot.h"

#include <cstdlib>
#include <limits>
#include <memory>

namespace Zel3D {

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

/// What a node takes in the container of the plot: three pointers and nine doubles.
constexpr std::size_t plotBytesPerNode = 3 * sizeof(double*) + 9 * sizeof(double);

double step(double from, double to, unsigned int samples)
{
    return samples > 1 ? (to - from) / (samples - 1) : 0.0;
}

} // namespace

GridMapping::GridMapping() : GridMapping(nullptr) {}

GridMapping::GridMapping(SHPlot& target) : GridMapping(&target) {}

GridMapping::GridMapping(SHPlot* target)
    : restriction{{-infinity, -infinity, -infinity}, {infinity, infinity, infinity}}, loadedPlot(target)
{
}

GridMapping::~GridMapping() = default;

void GridMapping::setMesh(unsigned int columns, unsigned int rows)
{
    columnCount = columns;
    rowCount = rows;
}

bool GridMapping::create(SHPlot& target)
{
    if (loadedPlot != &target)
        loadedPlot = &target;
    return create();
}

void GridMapping::setAreaLimits(double newXMin, double newXMax, double newYMin, double newYMax)
{
    xMin = newXMin;
    xMax = newXMax;
    yMin = newYMin;
    yMax = newYMax;
}

void GridMapping::restrictRange(const Parallelepiped& box)
{
    restriction = box;
}

SHPlot* GridMapping::getPlot() const
{
    return loadedPlot;
}

double GridMapping::sampleStepX() const
{
    return step(xMin, xMax, columnCount);
}

double GridMapping::sampleStepY() const
{
    return step(yMin, yMax, rowCount);
}

void GridMapping::correct(QVector3D& point) const
{
    for (int k = 0; k < 3; ++k) {
        if (point[k] > restriction.maximum[k]) {
            point[k] = restriction.maximum[k];
            return;
        }
    }
    for (int k = 0; k < 3; ++k) {
        if (point[k] < restriction.minimum[k]) {
            point[k] = restriction.minimum[k];
            return;
        }
    }
}

bool GridMapping::fitsInMemory(const char* className, unsigned int columns, unsigned int rows,
                               std::size_t bytesPerNode)
{
    const std::size_t nodes = std::size_t(columns) * rows;
    const std::size_t bytes = bytesPerNode + plotBytesPerNode;
    if (nodes <= std::size_t(std::numeric_limits<std::ptrdiff_t>::max()) / bytes) {
        // Asked of the system before anything is sampled; the pages are not touched.
        const std::unique_ptr<void, decltype(&std::free)> probe(std::malloc(nodes * bytes + 1), &std::free);
        if (probe)
            return true;
    }
    qWarning("%s: a mesh of %u columns by %u rows is too large for memory", className, columns, rows);
    return false;
}

} // namespace Zel3D
