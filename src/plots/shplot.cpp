// Life, loading and the box of the surface plot.

#include "plots/shplot.h"

#include "core/celldata.h"
#include "core/griddata.h"
#include "plots/datacheck.h"

#include <new>

namespace Zel3D {

namespace {
enum DataType { GridType = 0, CellType = 1 };
} // namespace

SHPlot::SHPlot(const QString& name, const QString& organizationName, const QString& applicationName,
               QWidget* parent, const QGLWidget* shareWidget, Qt::WindowFlags flags)
    : BasePlot(name, organizationName, applicationName, parent, shareWidget, flags),
      gridData(std::make_unique<GridData>()),
      cellData(std::make_unique<CellData>())
{
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setData(gridData.get());
}

SHPlot::~SHPlot() = default;

template <class Container, class Fill>
bool SHPlot::load(Container* container, const QString& fault, const Fill& fill)
{
    if (!fault.isEmpty()) {
        qWarning("Plot \"%s\": the data were not loaded: %s.", qPrintable(objectName()), qPrintable(fault));
        return false;
    }
    const BusyScope rebuilding(*this);
    gridData->clear();
    cellData->clear();
    setData(container);
    bool filled = true;
    try {
        fill();
    } catch (const std::bad_alloc&) {
        container->clear();
        filled = false;
        qWarning("Plot \"%s\": the data were not loaded: memory ran out.", qPrintable(objectName()));
    }
    updateData();
    updateNormals();
    updateSelection();
    createCoordinateSystem();
    return filled;
}

bool SHPlot::loadFromData(double** z, unsigned int columns, unsigned int rows, double xMin, double xMax,
                          double yMin, double yMax)
{
    if (!gridData)
        return false;
    return load(gridData.get(), DataCheck::heights(z, columns, rows, xMin, xMax, yMin, yMax),
                [&] { gridData->setData(z, columns, rows, xMin, xMax, yMin, yMax); });
}

bool SHPlot::loadFromData(QVector3D** points, unsigned int columns, unsigned int rows, double stepX,
                          double stepY)
{
    if (!gridData)
        return false;
    return load(gridData.get(), DataCheck::points(points, columns, rows, stepX, stepY),
                [&] { gridData->setData(points, columns, rows, stepX, stepY); });
}

bool SHPlot::loadFromData(const QVector<QVector3D>& vertices, const QVector<QVector<unsigned int>>& cells,
                          double stepX, double stepY)
{
    if (!cellData)
        return false;
    return load(cellData.get(), DataCheck::cells(vertices, cells, stepX, stepY),
                [&] { cellData->setData(vertices, cells, stepX, stepY); });
}

void SHPlot::updateDataType(int type)
{
    if (getData()->getDataType() == type)
        return;
    if (type == CellType && cellData) {
        gridData->clear();
        setData(cellData.get());
    } else if (type == GridType && gridData) {
        cellData->clear();
        setData(gridData.get());
    }
    markAllChanged();
}

void SHPlot::clearData()
{
    const BusyScope rebuilding(*this);
    gridData->clear();
    cellData->clear();
    removeDataList();
    updateNormals();
    updateSelection();
    createCoordinateSystem();
}

void SHPlot::calculateHull()
{
    if (!getData() || getData()->isEmpty())
        return;
    setHull(dataBox());
}

} // namespace Zel3D
