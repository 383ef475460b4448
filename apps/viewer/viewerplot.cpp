#include "viewerplot.h"

#include "grid.h"
#include "plots/baseplotsettings.h"
#include "plots/viewfit.h"
#include "plotstyles.h"
#include "scene/coordinatesystem.h"
#include "startview.h"
#include "terraingradient.h"
#include "thinning.h"
#include "view/light.h"

#include <QGLFramebufferObject>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace {

// Of the window's width or height at the start; the rest is for the numbers on the axes and the legend.
constexpr double startPart = 0.68;

// In radii of the view: to the left, where no legend stands.
constexpr double startShift = -0.06;

constexpr int linesAcross = 80;
constexpr int pointsAcross = 130;
constexpr int markersAcross = 60;

// Smoothed edges cost four times the memory; beyond this many pixels they are not seen.
constexpr qint64 mostSmoothedPixels = 32 * 1000 * 1000;

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

ViewerPlot::ViewerPlot(QWidget* parent)
    : SHPlot(QStringLiteral("plot"), QStringLiteral("VORAN"), QStringLiteral("voranview"), parent)
{
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
    // As on shaded maps. Slopes in the shade keep four fifths of their colour, so that it can still be read.
    Zel3D::Light& sun = *getLights().first();
    sun.setPhi(135.0);
    sun.setTheta(60.0);
    sun.setAmbient(QColor(160, 160, 160));
    sun.setDiffuse(QColor(130, 130, 130));
    sun.setSpecular(Qt::black);
    sun.setOn(true);
    setLighting(true);
}

void ViewerPlot::setLook(const Zel3D::Look& look)
{
    Zel3D::Look terrain = look;
    terrain.gradientName = tr("Terrain");
    terrain.gradient = terrainGradient();
    terrain.applyTo(*this);
}

void ViewerPlot::nameAxes(const Grid& grid)
{
    const QString height = grid.name.isEmpty() ? tr("z") : grid.name;
    const QString names[] = {grid.xName, grid.yName,
                             grid.unit.isEmpty() ? height : tr("%1 (%2)").arg(height, grid.unit)};
    const std::array<Zel3D::AxisType, 4> parallels[] = {
        {Zel3D::XFrontBottom, Zel3D::XFrontTop, Zel3D::XBackTop, Zel3D::XBackBottom},
        {Zel3D::YLeftBottom, Zel3D::YLeftTop, Zel3D::YRightTop, Zel3D::YRightBottom},
        {Zel3D::ZBackLeft, Zel3D::ZFrontLeft, Zel3D::ZBackRight, Zel3D::ZFrontRight}};
    for (int direction = 0; direction < 3; ++direction) {
        for (Zel3D::AxisType edge : parallels[direction])
            getCoordinateSystem().getAxis(edge).getLabel().getSettings().setText(names[direction]);
    }
}

bool ViewerPlot::load(Grid& grid, const QString& heading)
{
    m_columns = grid.columns;
    m_rows = grid.rows;
    adaptResolution(plotStyle());
    const bool loaded =
        loadFromData(grid.z(), static_cast<unsigned int>(grid.columns), static_cast<unsigned int>(grid.rows),
                     grid.xMin, grid.xMax, grid.yMin, grid.yMax);
    if (loaded) {
        slotSetTitle(heading);
        nameAxes(grid);
    }
    resetView();
    return loaded;
}

Zel3D::ValueXYZ<double> ViewerPlot::recalculateAutoScale()
{
    return StartView::scale(getHull());
}

void ViewerPlot::resetView()
{
    setRotation(StartView::rotation());
    setShift({0.0, 0.0, 0.0});
    setViewportShift({startShift, 0.0});
    fit();
}

void ViewerPlot::fit()
{
    const double aspect = double(std::max(width(), 1)) / std::max(height(), 1);
    setZoom(Zel3D::ViewFit::zoom(getHull(), getScale(), getRotation(), aspect, startPart));
    m_fittedZoom = getZoom();
}

void ViewerPlot::resizeEvent(QResizeEvent* event)
{
    // Until the person zooms, the data fill the window.
    if (getZoom() == m_fittedZoom)
        fit();
    SHPlot::resizeEvent(event);
}

int ViewerPlot::plotStyle() const
{
    return getSettings().getStyle();
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

QImage ViewerPlot::picture(const QSize& pixels)
{
    if (!isInitialized())
        glInit();
    makeCurrent();
    QGLFramebufferObjectFormat format;
    format.setAttachment(QGLFramebufferObject::Depth);
    const bool smoothed = qint64(pixels.width()) * pixels.height() <= mostSmoothedPixels;
    format.setSamples(smoothed ? std::max(0, this->format().samples()) : 0);
    QGLFramebufferObject buffer(pixels, format);
    if (!buffer.isValid() || !buffer.bind())
        return QImage();
    // The mark of the mouse is no part of the picture.
    const QSignalBlocker quiet(this);
    const bool highlight = setPickHighlight(false);
    resizeGL(pixels.width(), pixels.height());
    setPickHighlight(highlight);
    const QImage image = buffer.toImage().convertToFormat(QImage::Format_RGB32);
    buffer.release();
    resizeGL(qRound(width() * devicePixelRatioF()), qRound(height() * devicePixelRatioF()));
    return image;
}
