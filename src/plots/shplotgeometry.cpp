// What the surface plot sends for each plot style: surfaces, meshes, markers, projections and normals.

#include "core/celldata.h"
#include "core/datacolor.h"
#include "core/griddata.h"
#include "plots/arrowaddition.h"
#include "plots/baseplotsettings.h"
#include "plots/blendscope.h"
#include "plots/columncolors.h"
#include "plots/gridarrays.h"
#include "plots/gridwalk.h"
#include "plots/markerscope.h"
#include "plots/shplot.h"
#include "scene/basedraw.h"
#include "view/glmode.h"
#include "view/opengl.h"

#include <algorithm>

namespace Zel3D {

namespace {

enum PlotStyle {
    CustomMarkers = -1,
    NoPlot = 0,
    Points = 1,
    Wireframe = 2,
    HiddenLine = 3,
    Filled = 4,
    FilledAndMesh = 5,
    Histogram = 6
};

bool hasMesh(int style)
{
    return style == Wireframe || style == HiddenLine || style == FilledAndMesh;
}

void sendColor(const QColor& color)
{
    glColor4d(color.redF(), color.greenF(), color.blueF(), color.alphaF());
}

void sendColor(const ColorChannels& color)
{
    glColor4d(color[0], color[1], color[2], color[3]);
}

/// Nodes that the shorter side of a grid keeps at least in a preview.
constexpr int previewNodes = 32;

/// Not a mode that OpenGL knows: it rejects the call and the polygon mode in force stays.
constexpr unsigned int keptPolygonMode = 7;

} // namespace

int SHPlot::nodeStep() const
{
    return std::max(getSettings().getResolution(), 1) * getCoarseness();
}

int SHPlot::getCoarsest() const
{
    if (getData() != gridData.get() || getSettings().getStyle() == NoPlot)
        return 1;
    const auto shorter = int(std::min(gridData->columns(), gridData->rows()));
    return std::max(shorter / previewNodes / std::max(getSettings().getResolution(), 1), 1);
}

int SHPlot::markerStep(const Addition& marker) const
{
    // Additions are not what makes a grid large.
    const bool isAdded = std::any_of(getAdditions().begin(), getAdditions().end(),
                                     [&marker](const Addition* held) { return held == &marker; });
    return getSettings().getResolution() * (isAdded ? 1 : getCoarseness());
}

void SHPlot::createData()
{
    if (!areArraysWanted() && getCoarseness() == 1)
        gridArrays->clear();
    if (getData() == gridData.get())
        createGridData();
    else if (getData() == cellData.get())
        createCellData();
}

void SHPlot::createNormals()
{
    if (getData() == gridData.get())
        createGridNormals();
    else if (getData() == cellData.get())
        createCellNormals();
}

void SHPlot::createMesh()
{
    if (getData() == gridData.get())
        drawGridMesh(nodeStep());
    else if (getData() == cellData.get())
        drawCellMesh();
}

bool SHPlot::isGeometryInput(GeometryInput input) const
{
    const int style = getSettings().getStyle();
    // A marker may use anything of its plot.
    if (style == CustomMarkers)
        return true;
    if (input == StrokeScaleInput && style == Histogram)
        return getSettings().getNormals().isVisible() || getSettings().getCylinder().isFrameVisible();
    if (input == StrokeScaleInput)
        return getSettings().getNormals().isVisible() || (style != NoPlot && style != Filled);
    if (input == DotInput || input == CylinderInput)
        return style == (input == DotInput ? Points : Histogram);
    if (input == BackgroundInput)
        return style == HiddenLine;
    return input == MeshColorInput && style == Histogram;
}

bool SHPlot::drawMarkerStyle()
{
    switch (getSettings().getStyle()) {
    case NoPlot:
        return true;
    case Points:
        createAddition(settingsRecord().getDot());
        return true;
    case Histogram:
        createAddition(settingsRecord().getCylinder());
        return true;
    case CustomMarkers:
        if (heldStyleAddition())
            createAddition(*heldStyleAddition());
        return true;
    default:
        return false;
    }
}

void SHPlot::createGridData()
{
    if (!canDrawData())
        return;
    createGridViewProjection();
    if (drawMarkerStyle())
        return;
    if (areArraysWanted()) {
        ColumnColors colors(*gridData, *getDataColor(), nodeStep());
        gridArrays->fill(*gridData, colors, nodeStep());
        return;
    }
    const int style = getSettings().getStyle();
    const GLMode offset(GL_POLYGON_OFFSET_FILL, true, false);
    glPolygonOffset(float(getSettings().getPolygonOffset()), 1.0F);
    const GLMode smooth(GL_LINE_SMOOTH, getSettings().getMesh().isSmooth(), false);
    const BlendScope blending;
    if (style != Wireframe)
        drawGridSurface(style);
    if (hasMesh(style))
        sendMesh();
}

bool SHPlot::areArraysWanted() const
{
    return dataChanging && getCoarseness() == 1 && canDrawData() && getData() == gridData.get() &&
           !gridData->isEmpty() && !gridData->hasMissing() && getSettings().getStyle() == Filled;
}

// With the state that the list of the surface would set.
void SHPlot::drawArrays()
{
    if (gridArrays->isEmpty())
        return;
    const GLMode offset(GL_POLYGON_OFFSET_FILL, true, false);
    glPolygonOffset(float(getSettings().getPolygonOffset()), 1.0F);
    const BlendScope blending;
    const OpaqueScope unblended(canDrawData() && ColorLookup(*getDataColor()).isOpaque());
    gridArrays->draw();
}

void SHPlot::drawGridSurface(int style)
{
    glPolygonMode(GL_FRONT_AND_BACK, keptPolygonMode);
    const bool keep = style == HiddenLine;
    if (keep)
        sendColor(getBackgroundColor());
    const GridData& grid = *gridData;
    ColumnColors colors(grid, *getDataColor(), nodeStep());
    const OpaqueScope unblended(keep ? getBackgroundColor().alpha() == 255 : colors.isOpaque());
    GridWalk(grid, nodeStep()).strips([&](int column) {
        const ColorChannels* color = keep ? nullptr : colors.column(column);
        const double* normal = grid.normalVectorAt(unsigned(column), 0);
        const double* value = grid.valueVectorAt(unsigned(column), 0);
        return [=](int row) {
            if (color)
                sendColor(color[row]);
            glNormal3dv(normal + 3 * row);
            glVertex3dv(value + 3 * row);
        };
    });
}

void SHPlot::drawGridMesh(int step)
{
    const MeshSettings& mesh = getSettings().getMesh();
    sendColor(mesh.getColor());
    const GridWalk walk(*gridData, step);
    // Without inner lines the border keeps the width in force.
    if (mesh.isXVisible()) {
        BaseDraw::setGLLineWidth(float(mesh.getLineWidth()));
        walk.columnLines();
    }
    if (mesh.isYVisible()) {
        BaseDraw::setGLLineWidth(float(mesh.getLineWidth()));
        walk.rowLines();
    }
    walk.border();
}

void SHPlot::setGridColorFromVertex(int column, int row, bool keep)
{
    if (!keep)
        sendColor((*getDataColor())(gridData->valueAt(unsigned(column), unsigned(row))));
}

void SHPlot::createGridViewProjection()
{
    if (!canDrawData() || gridData->isEmpty() || getSettings().getViewProjection() == NoProjection)
        return;
    const BlendScope blending;
    glPolygonMode(GL_FRONT_AND_BACK, keptPolygonMode);
    const double height = getViewProjectionZ();
    const GridData& grid = *gridData;
    glNormal3d(0.0, 0.0, 1.0);
    ColumnColors colors(grid, *getDataColor(), nodeStep());
    const OpaqueScope unblended(colors.isOpaque());
    GridWalk(grid, nodeStep()).strips([&](int column) {
        const ColorChannels* color = colors.column(column);
        const double* value = grid.valueVectorAt(unsigned(column), 0);
        return [=](int row) {
            sendColor(color[row]);
            glVertex3d(value[3 * row], value[3 * row + 1], height);
        };
    });
}

void SHPlot::drawNormal(ArrowAddition& arrow, const QVector3D& p, const QVector3D& normal,
                        double length) const
{
    arrow.setEnd(p + normal * float(length));
    arrow.setColor((*getDataColor())(p));
    arrow.draw(p);
}

void SHPlot::createGridNormals()
{
    if (!canDrawData() || gridData->isEmpty() || getSettings().getStyle() == Histogram)
        return;
    ArrowAddition arrow;
    arrow.setQuality(int(getSettings().getNormals().getQuality()));
    const double diagonal = double((gridData->getMaximum() - gridData->getMinimum()).length());
    const double length = diagonal * getSettings().getNormals().getLength();
    GridWalk(*gridData, nodeStep()).nodes([&](int column, int row) {
        drawNormal(arrow, gridData->valueAt(unsigned(column), unsigned(row)),
                   gridData->normalAt(unsigned(column), unsigned(row)), length);
    });
}

void SHPlot::createAddition(Addition& addition)
{
    if (!getData() || addition.type() != 0)
        return;
    const MarkerScope drawing(*this, addition);
    if (getData() == gridData.get()) {
        const int step = markerStep(addition);
        if (step > 0)
            GridWalk(*gridData, step).nodes([&](int column, int row) {
                addition.draw(gridData->valueAt(unsigned(column), unsigned(row)));
            });
    } else {
        for (int i = 0; i < cellData->getVertices().size(); ++i) {
            if (!cellData->isMissing(unsigned(i)))
                addition.draw(cellData->getVertices().at(i));
        }
    }
}

bool SHPlot::cellIsWhole(const QVector<unsigned int>& cell) const
{
    return !cellData->hasMissing() ||
           std::none_of(cell.begin(), cell.end(), [this](unsigned int v) { return cellData->isMissing(v); });
}

void SHPlot::createCellData()
{
    const int style = getSettings().getStyle();
    qDebug("\n\tSHPlot::createCellData begin plotStyle=%i", style);
    if (!canDrawData())
        return;
    createCellViewProjection();
    if (drawMarkerStyle())
        return;
    const GLMode offset(GL_POLYGON_OFFSET_FILL, true, false);
    BaseDraw::setGLPolygonOffset(float(getSettings().getPolygonOffset()), 1.0F);
    const BlendScope blending;
    if (style != Wireframe)
        drawCellSurface(style);
    if (hasMesh(style))
        sendMesh();
}

// Each vertex once, although several cells send it.
std::vector<ColorChannels> SHPlot::vertexColors(const ColorLookup& color) const
{
    const QVector<QVector3D>& vertices = cellData->getVertices();
    std::vector<ColorChannels> colors(std::size_t(vertices.size()));
    for (std::size_t i = 0; i < colors.size(); ++i) {
        if (!cellData->hasMissing() || !cellData->isMissing(unsigned(i)))
            colors[i] = color(vertices.at(int(i)));
    }
    return colors;
}

void SHPlot::drawCellSurface(int style)
{
    glPolygonMode(GL_FRONT_AND_BACK, keptPolygonMode);
    const bool keep = style == HiddenLine;
    if (keep)
        sendColor(getBackgroundColor());
    const ColorLookup color(*getDataColor());
    const OpaqueScope unblended(keep ? getBackgroundColor().alpha() == 255 : color.isOpaque());
    const std::vector<ColorChannels> colors = keep ? std::vector<ColorChannels>() : vertexColors(color);
    for (const QVector<unsigned int>& cell : cellData->getCells()) {
        if (!cellIsWhole(cell))
            continue;
        glBegin(GL_POLYGON);
        for (unsigned int index : cell) {
            const auto vertex = int(index);
            const QVector3D& p = cellData->getVertices().at(vertex);
            const QVector3D& n = cellData->getVertexNormals().at(vertex);
            if (!keep)
                sendColor(colors[index]);
            // The normal comes after the vertex and takes effect for the following corner.
            glVertex3d(double(p.x()), double(p.y()), double(p.z()));
            glNormal3d(double(n.x()), double(n.y()), double(n.z()));
        }
        glEnd();
    }
}

void SHPlot::drawCellMesh()
{
    BaseDraw::setGLLineWidth(float(getSettings().getMesh().getLineWidth()));
    sendColor(getSettings().getMesh().getColor());
    for (const QVector<unsigned int>& cell : cellData->getCells()) {
        if (!cellIsWhole(cell))
            continue;
        glBegin(GL_LINE_LOOP);
        for (unsigned int index : cell) {
            const QVector3D& p = cellData->getVertices().at(int(index));
            glVertex3d(double(p.x()), double(p.y()), double(p.z()));
        }
        glEnd();
    }
}

void SHPlot::setCellColorFromVertex(int vertex, bool keep)
{
    if (!keep)
        sendColor((*getDataColor())(cellData->getVertices().at(vertex)));
}

void SHPlot::createCellViewProjection()
{
    if (!canDrawData() || cellData->isEmpty() || getSettings().getViewProjection() == NoProjection)
        return;
    const BlendScope blending;
    glPolygonMode(GL_FRONT_AND_BACK, keptPolygonMode);
    const double height = getViewProjectionZ();
    const ColorLookup color(*getDataColor());
    const OpaqueScope unblended(color.isOpaque());
    for (const QVector<unsigned int>& cell : cellData->getCells()) {
        if (!cellIsWhole(cell))
            continue;
        glBegin(GL_POLYGON);
        for (unsigned int index : cell) {
            const QVector3D& p = cellData->getVertices().at(int(index));
            sendColor(color(p));
            glVertex3d(double(p.x()), double(p.y()), height);
            glNormal3d(0.0, 0.0, 1.0);
        }
        glEnd();
    }
}

void SHPlot::createCellNormals()
{
    if (!canDrawData() || cellData->isEmpty() || getSettings().getStyle() == Histogram)
        return;
    ArrowAddition arrow;
    arrow.setQuality(int(getSettings().getNormals().getQuality()));
    const double diagonal = double((cellData->getMaximum() - cellData->getMinimum()).length());
    const double length = diagonal * getSettings().getNormals().getLength();
    for (int i = 0; i < cellData->getVertices().size(); ++i) {
        if (!cellData->isMissing(unsigned(i)))
            drawNormal(arrow, cellData->getVertices().at(i), cellData->getVertexNormals().at(i), length);
    }
}

} // namespace Zel3D
