// Life, loading and the box of the surface plot.

#include "plots/shplot.h"

#include "core/celldata.h"
#include "core/griddata.h"
#include "plots/datacheck.h"
#include "plots/gridarrays.h"
#include "settings/plotsettingsdialog.h"

#include <QCoreApplication>

#include <cmath>
#include <limits>
#include <new>

namespace Zel3D {

namespace {
enum DataType { GridType = 0, CellType = 1 };

bool isFinite(const QVector3D& p)
{
    return std::isfinite(p.x()) && std::isfinite(p.y()) && std::isfinite(p.z());
}

} // namespace

SHPlot::SHPlot(const QString& name, const QString& organizationName, const QString& applicationName,
               QWidget* parent, const QGLWidget* shareWidget, Qt::WindowFlags flags)
    : BasePlot(name, organizationName, applicationName, parent, shareWidget, flags),
      gridData(std::make_unique<GridData>()),
      cellData(std::make_unique<CellData>()),
      gridArrays(std::make_unique<GridArrays>())
{
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setData(gridData.get());
    SHPlot::createPlotStyleActions();
    createPlotStyleToolBar();
    createContextMenu();
}

SHPlot::SHPlot(QWidget* parent)
    : SHPlot(QString(), QCoreApplication::organizationName(), QCoreApplication::applicationName(), parent)
{
}

SHPlot::~SHPlot() = default;

void SHPlot::slotSettingsDialog()
{
    PlotSettingsDialog::run(*this);
}

template <class Container, class Fill>
bool SHPlot::load(Container* container, const QString& fault, const Fill& fill)
{
    if (!fault.isEmpty()) {
        qWarning("Plot \"%s\": the data were not loaded: %s.", qPrintable(objectName()), qPrintable(fault));
        return false;
    }
    const BusyScope rebuilding(*this);
    clearPickPoints();
    // A grid that is filled clears itself, and keeps its memory if the size stays.
    if (container->getDataType() != GridType)
        gridData->clear();
    cellData->clear();
    cellData->squeeze();
    givenVertices.clear();
    setData(container);
    applyLogarithmicData();
    setDataOrigin({0.0, 0.0, 0.0});
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

void SHPlot::convertGrid()
{
    const std::array<bool, 3>& directions = getLogarithmicData();
    if (directions[0] || directions[1] || directions[2])
        warnOfLostValues(gridData->convertToExponents(directions));
}

void SHPlot::centreGrid()
{
    if (!isDataCentred())
        return;
    const std::array<bool, 3>& directions = getLogarithmicData();
    const std::array<double, 3> origin =
        gridData->moveOrigin({!directions[0], !directions[1], !directions[2]});
    setDataOrigin({origin[0], origin[1], origin[2]});
}

QVector<QVector3D> SHPlot::toExponents(const QVector<QVector3D>& vertices)
{
    const std::array<bool, 3>& directions = getLogarithmicData();
    if (!directions[0] && !directions[1] && !directions[2])
        return vertices;
    QVector<QVector3D> converted = vertices;
    int lost = 0;
    for (QVector3D& vertex : converted) {
        const bool before = isFinite(vertex);
        for (int k = 0; k < 3; ++k) {
            if (directions[std::size_t(k)])
                vertex[k] =
                    vertex[k] > 0.0F ? std::log10(vertex[k]) : std::numeric_limits<float>::quiet_NaN();
        }
        lost += before && !isFinite(vertex) ? 1 : 0;
    }
    warnOfLostValues(lost);
    return converted;
}

bool SHPlot::loadFromData(double** z, unsigned int columns, unsigned int rows, double xMin, double xMax,
                          double yMin, double yMax)
{
    if (!gridData)
        return false;
    return load(gridData.get(), DataCheck::heights(z, columns, rows, xMin, xMax, yMin, yMax), [&] {
        gridData->setData(z, columns, rows, xMin, xMax, yMin, yMax);
        convertGrid();
        centreGrid();
    });
}

bool SHPlot::loadFromData(QVector3D** points, unsigned int columns, unsigned int rows, double stepX,
                          double stepY)
{
    if (!gridData)
        return false;
    return load(gridData.get(), DataCheck::points(points, columns, rows, stepX, stepY), [&] {
        gridData->setData(points, columns, rows, stepX, stepY);
        convertGrid();
    });
}

bool SHPlot::loadFromData(const QVector<QVector3D>& vertices, const QVector<QVector<unsigned int>>& cells,
                          double stepX, double stepY)
{
    if (!cellData)
        return false;
    return load(cellData.get(), DataCheck::cells(vertices, cells, stepX, stepY), [&] {
        cellData->setData(toExponents(vertices), cells, stepX, stepY);
        givenVertices = vertices;
    });
}

bool SHPlot::setDataChanging(bool on)
{
    if (dataChanging == on)
        return false;
    dataChanging = on;
    markDataChanged();
    emit dataChangingChanged(on);
    return true;
}

void SHPlot::updateDataType(int type)
{
    if (getData()->getDataType() == type)
        return;
    clearPickPoints();
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
    clearPickPoints();
    gridData->clear();
    cellData->clear();
    cellData->squeeze();
    givenVertices.clear();
    removeDataList();
    gridArrays->clear();
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
