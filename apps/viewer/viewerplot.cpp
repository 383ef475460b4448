#include "viewerplot.h"

#include "core/columnarray.h"
#include "core/gridmapping.h"
#include "grid.h"
#include "mesh.h"
#include "plotstyles.h"
#include "scene/legend.h"
#include "startview.h"
#include "tablegrid.h"
#include "thinning.h"
#include "view/light.h"

namespace {

constexpr int linesAcross = 80;
constexpr int pointsAcross = 130;
constexpr int markersAcross = 60;

int nodesAcross(int style)
{
    switch (style) {
    case PlotStyles::Points:
        return pointsAcross;
    case PlotStyles::Histogram:
        return markersAcross;
    case PlotStyles::Wireframe:
    case PlotStyles::HiddenLine:
    case PlotStyles::FilledAndMesh:
        return linesAcross;
    default:
        return 0;
    }
}

} // namespace

ViewerPlot::ViewerPlot(QWidget* parent) : ViewedPlot(parent)
{
    setStartRotation(StartView::rotation());
    setLook(Zel3D::Look::light());
    setPlotStyle(PlotStyles::Filled);
    setCylinderRibNumber(4);
    setDotSize(3.0);
    setDotSmooth(true);
    setKeepProportions(true);
    setPickHighlight(true);
    lightFromNorthWest();
    resetView();
}

void ViewerPlot::lightFromNorthWest()
{
    Zel3D::Light& sun = *getLights().first();
    sun.setPhi(135.0);
    sun.setTheta(60.0);
    // Together no more than the colour itself.
    sun.setAmbient(QColor(120, 120, 120));
    sun.setDiffuse(QColor(135, 135, 135));
    sun.setSpecular(Qt::black);
    sun.setOn(true);
    setLighting(true);
}

void ViewerPlot::lightAsMap()
{
    // Slopes in the shade keep four fifths of their colour, so that it can still be read.
    Zel3D::Light& sun = *getLights().first();
    sun.setAmbient(QColor(160, 160, 160));
    sun.setDiffuse(QColor(130, 130, 130));
}

bool ViewerPlot::load(Grid& grid)
{
    m_columns = grid.columns;
    m_rows = grid.rows;
    adaptResolution(plotStyle());
    if (!loadFromData(grid.z(), static_cast<unsigned int>(grid.columns), static_cast<unsigned int>(grid.rows),
                      grid.xMin, grid.xMax, grid.yMin, grid.yMax))
        return false;
    nameAxes(grid);
    resetView();
    return true;
}

void ViewerPlot::nameAxes(const Grid& grid)
{
    const QString height = grid.name.isEmpty() ? tr("z") : grid.name;
    nameAxes({grid.xName, grid.yName, grid.unit.isEmpty() ? height : tr("%1 (%2)").arg(height, grid.unit)});
}

bool ViewerPlot::load(TableGrid& table)
{
    Grid& grid = table.grid;
    if (table.even)
        return load(grid);
    m_columns = grid.columns;
    m_rows = grid.rows;
    adaptResolution(plotStyle());
    const auto columns = static_cast<unsigned int>(grid.columns);
    const auto rows = static_cast<unsigned int>(grid.rows);
    Zel3D::ColumnArray<QVector3D> points(columns, rows);
    for (unsigned int column = 0; column < columns; ++column) {
        for (unsigned int row = 0; row < rows; ++row)
            points[column][row] =
                QVector3D(float(table.x[column]), float(table.y[row]), float(grid.z()[column][row]));
    }
    // The spacing is the mean one: the width of bars.
    if (!loadFromData(points.columns(), columns, rows, (grid.xMax - grid.xMin) / (columns - 1),
                      (grid.yMax - grid.yMin) / (rows - 1)))
        return false;
    nameAxes(grid);
    resetView();
    return true;
}

bool ViewerPlot::load(const Mesh& mesh)
{
    setBoxScaling(Zel3D::EqualUnits);
    if (!loadFromData(mesh.vertices, mesh.cells, 1.0, 1.0))
        return false;
    m_vertexColors = VertexColors::tableOf(mesh);
    dressed();
    nameAxes({tr("x"), tr("y"), tr("z")});
    resetView();
    return true;
}

bool ViewerPlot::load(Zel3D::GridMapping& mapping)
{
    setBoxScaling(Zel3D::EqualUnits);
    if (!mapping.create(*this))
        return false;
    nameAxes({tr("x"), tr("y"), tr("z")});
    resetView();
    return true;
}

void ViewerPlot::dressed()
{
    const Zel3D::DataColor* now = getDataColor();
    if (!m_vertexColors || !now)
        return;
    setDataColor(new VertexColors(this, now->getId(), now->getGradient(), m_vertexColors));
    // It would explain heights.
    getLegend().setVisible(false);
}

void ViewerPlot::setRelief(double part)
{
    m_relief = part;
}

Zel3D::ValueXYZ<double> ViewerPlot::recalculateAutoScale()
{
    return m_relief ? StartView::scale(getHull(), *m_relief) : SHPlot::recalculateAutoScale();
}

bool ViewerPlot::setPlotStyle(int style)
{
    if (!SHPlot::setPlotStyle(style))
        return false;
    adaptResolution(style);
    return true;
}

void ViewerPlot::adaptResolution(int style)
{
    const int across = nodesAcross(style);
    const int step = across == 0 || m_columns == 0 ? 1 : thinning(m_columns, m_rows, across);
    setResolution(step);
    // The bars of neighbouring drawn nodes touch.
    setCylinderMultiplier(step);
}
