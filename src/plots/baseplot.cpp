// Life, paint order and display lists of a plot.

#include "plots/baseplot.h"
#include "plots/plotparts.h"

#include "core/data.h"
#include "core/datacolor.h"
#include "plots/addition.h"
#include "plots/baseplotsettings.h"
#include "plots/pictureframe.h"
#include "plots/plotactions.h"
#include "plots/plotlists.h"
#include "plots/settingsdialogoptions.h"
#include "scene/coordinatesystem.h"
#include "scene/facepolicy.h"
#include "scene/legend.h"
#include "scene/title.h"
#include "view/glmode.h"
#include "view/glscopes.h"

#include <QKeyEvent>

#include <algorithm>

namespace Zel3D {

namespace {

/// Logical pixels between the title and the numbers of a standing legend.
constexpr double titleGap = 16.0;

/// The state that a compiled list may leave behind.
constexpr unsigned int listState = GL_ENABLE_BIT | GL_LINE_BIT | GL_POINT_BIT | GL_POLYGON_BIT |
                                   GL_COLOR_BUFFER_BIT | GL_CURRENT_BIT | GL_TRANSFORM_BIT;

/// The state in which lists are compiled, which GLMode writes into them.
struct CompileScope
{
    CompileScope() { glMatrixMode(GL_MODELVIEW); }
    const GLMode depthTest{GL_DEPTH_TEST, true, false};
    const GLMode lineSmooth{GL_LINE_SMOOTH, true, false};
};

} // namespace

BasePlot::BasePlot(const QString& name, const QString& organizationName, const QString& applicationName,
                   QWidget* parent, const QGLWidget* shareWidget, Qt::WindowFlags flags)
    : ZelGLWidget(name, organizationName, applicationName, parent, shareWidget, flags),
      lists(std::make_unique<PlotLists>()),
      parts(std::make_unique<PlotParts>()),
      coordinateSystem(std::make_unique<CoordinateSystem>(QVector3D(), QVector3D())),
      title(std::make_unique<Title>()),
      legend(std::make_unique<Legend>()),
      settings(std::make_unique<BasePlotSettings>()),
      actions(std::make_unique<PlotActions>(*this))
{
    for (BaseAxisType axis : {XAxis, YAxis, ZAxis})
        settings->getAxes().addAxis(axis, BaseAxesSettings(Linear));
    applyIntervals();
    // What a plot is built with needs no saving.
    legend->setMinorInterval(2);
    legend->setMajorInterval(10);
    const auto forgetIntervals = [](Axis& axis) {
        axis.getSettings().getMajor().resetNeedSave();
        axis.getSettings().getMinor().resetNeedSave();
    };
    for (int i = 0; i < 12; ++i)
        forgetIntervals(coordinateSystem->getAxis(AxisType(i)));
    forgetIntervals(legend->getAxis());
    setMouseTracking(true);
    BasePlot::setAutoScaling(true);
    setDataColor(new DataColor(this, QString(), QLinearGradient()));
    connect(this, &ZelGLWidget::selectedObject, this, &BasePlot::highlightPick);
    createActions();
    parts->properties = std::make_unique<PlotProperties>(*this);
    // The hidden line style fills the surface with the background colour.
    connect(this, &ZelGLWidget::backgroundColorChanged, this, [this] { markInputChanged(BackgroundInput); });
}

BasePlot::~BasePlot()
{
    if (isValid()) {
        makeCurrent();
        lists->drawing.remove();
        lists->preview.remove();
        lists->selection.remove();
        parts->hoverImage.clear();
    }
    qDeleteAll(additions);
}

QSize BasePlot::sizeHint() const
{
    return {400, 400};
}

QSize BasePlot::minimumSizeHint() const
{
    return {50, 50};
}

void BasePlot::initializeGL()
{
    ZelGLWidget::initializeGL();
    const bool sameContext = lists->context == context();
    if (sameContext && lists->drawing.data.exists())
        return;
    // The context is new to the lists: what was compiled went with the old one.
    lists->drawing.forget();
    lists->preview.forget();
    parts->preview.isListed = false;
    parts->hoverImage.clear();
    lists->selection.forget();
    if (!data)
        return;
    const BusyScope rebuilding(*this);
    updateData();
    updateNormals();
    updateSelection();
}

void BasePlot::drawWithoutTransform()
{
    if (parts->picture && !parts->picture->parts.testFlag(PictureFrame::Overlay))
        return;
    const double ratio = textRatio();
    title->setPixelRatio(ratio);
    legend->setPixelRatio(ratio);
    // Of what is painted on, which need not be the window.
    const std::array<int, 4> viewport = currentViewFrame().viewport;
    legend->setReservedTop(reservedTop(QSize(viewport[2], viewport[3])));
    const bool pointing = legend->isValueShown() && parts->isMarkHeldBack;
    const double value = legend->getValue();
    if (pointing)
        legend->hideValue();
    legend->draw();
    if (pointing)
        legend->showValue(value);
    title->draw();
    if (parts->preview.isShown && !parts->picture)
        parts->preview.drawMark(getBackgroundColor(), ratio);
}

/// Logical pixels that the legend leaves to the title at the top of a window of a size in pixels.
double BasePlot::reservedTop(const QSize& window)
{
    const double depth = title->getReservedTop(window);
    if (depth <= 0.0 || legend->getSettings().getOrientation() == 1)
        return depth;
    // Beside a standing bar there is room for most titles.
    double numbers = 0.0;
    for (const QSize& size : legend->getAxis().getNumberSizes())
        numbers = std::max(numbers, double(size.width()));
    const double middle = title->getRelativePosition().x() * window.width();
    const double half = 0.5 * title->getImageSize().width();
    const double reach = numbers + titleGap * title->getPixelRatio();
    const QRectF bar = legend->getRelative().normalized();
    const bool clear = middle + half < bar.left() * window.width() - reach ||
                       middle - half > bar.right() * window.width() + reach;
    return clear ? 0.0 : depth;
}

void BasePlot::paintGL()
{
    // Before the camera is set: a rebuilt hull may change the scale.
    if (!isBusy()) {
        rebuildWhatChanged();
        preparePreview();
    }
    if (parts->isHoverFrame && drawHovered())
        return;
    restartFrameTime();
    drawUnhovered();
}

void BasePlot::draw()
{
    warnWithoutGradient();
    const ModelViewScope matrix;
    if (parts->picture) {
        drawTile();
        return;
    }
    drawData();
    drawCoordinateSystem();
    if (!parts->isMarkHeldBack)
        parts->pickHighlight.draw(devicePixelRatioF());
}

void BasePlot::drawData()
{
    applyShading();
    const AttributeScope attributes(listState);
    if (isLighting())
        glEnable(GL_NORMALIZE);
    const bool coarse = parts->preview.isShown && !parts->picture;
    const PlotLists::Drawing& drawn = coarse ? lists->preview : lists->drawing;
    drawn.normals.call();
    drawn.additions.call();
    drawn.data.call();
    if (!coarse)
        drawArrays();
}

void BasePlot::drawCoordinateSystem()
{
    coordinateSystem->setPixelRatio(textRatio());
    coordinateSystem->setViewScale(getScale());
    if (automaticEdges) {
        parts->edges = chooseEdges(currentViewFrame(), first(), second(), &parts->edges);
        coordinateSystem->setVisibleEdges(parts->edges);
    }
    const int faces = coordinateSystem->getSettings().getGridStyle();
    coordinateSystem->setDrawnFaces(automaticFaces ? facesBehind(currentViewFrame(), first(), second(), faces)
                                                   : faces);
    coordinateSystem->setOccupied({legend->getRectangle(), title->getRectangle()});
    coordinateSystem->draw();
}

void BasePlot::applyShading() const
{
    if (settings->getShadingStyle() == FlatShading)
        glShadeModel(GL_FLAT);
    else if (settings->getShadingStyle() == SmoothShading)
        glShadeModel(GL_SMOOTH);
}

void BasePlot::rebuildWhatChanged()
{
    if (lists->isDataOld)
        updateData();
    if (lists->areAdditionsOld)
        updateAdditions();
    if (lists->areColorsOld)
        updateDataList();
    if (lists->isMeshOld)
        updateMesh();
    if (lists->areNormalsOld)
        updateNormals();
}

void BasePlot::markDataChanged()
{
    lists->isDataOld = lists->isSelectionOld = true;
}

void BasePlot::markAllChanged()
{
    markDataChanged();
    lists->areNormalsOld = true;
}

void BasePlot::markMeshChanged(GeometryInput input)
{
    lists->isMeshOld = true;
    markInputChanged(input);
}

void BasePlot::markInputChanged(GeometryInput input)
{
    if (isGeometryInput(input))
        markDataChanged();
    // A marker may use anything of its plot.
    if (!additions.isEmpty())
        lists->markAdditions();
}

void BasePlot::warnWithoutGradient()
{
    if (parts->hasWarnedOfGradient || !data || data->isEmpty() || settings->getStyle() == 0 || canDrawData())
        return;
    parts->hasWarnedOfGradient = true;
    qWarning(
        "Plot \"%s\": its gradient has no colors, so nothing is drawn; call setGradient(name, gradient).",
        qPrintable(objectName()));
}

void BasePlot::warnOfLostValues(int count)
{
    if (count == 0 || parts->hasWarnedOfLostValues)
        return;
    parts->hasWarnedOfLostValues = true;
    qWarning(
        "Plot \"%s\": %d points have a value at or below zero in a logarithmic direction; they are missing.",
        qPrintable(objectName()), count);
}

bool BasePlot::canDrawData() const
{
    return data && dataColor && !dataColor->isEmpty();
}

void BasePlot::setData(Data* container)
{
    data = container;
}

QVector3D BasePlot::first()
{
    return coordinateSystem->getFirst();
}

QVector3D BasePlot::second()
{
    return coordinateSystem->getSecond();
}

void BasePlot::updateData()
{
    if (!isValid())
        return;
    makeCurrent();
    lists->isDataOld = false;
    const CompileScope compiling;
    calculateHull();
    // An empty container has no spacing: a plot without data keeps its radius and has nothing to save.
    if (data && !data->isEmpty())
        settings->getCylinder().setRadius(0.5 * std::min(data->getStepX(), data->getStepY()));
    updateAdditions();
    updateDataList();
    updateMesh();
}

/// Before any of the lists is compiled: makes their context current. False without a usable one.
bool BasePlot::prepareLists()
{
    if (!isValid())
        return false;
    makeCurrent();
    lists->context = context();
    removePreview();
    return true;
}

void BasePlot::updateAdditions()
{
    lists->areAdditionsOld = false;
    if (!prepareLists())
        return;
    const CompileScope compiling;
    lists->drawing.additions.compile([this] { createAdditions(); });
}

/// The list of the data by itself.
void BasePlot::updateDataList()
{
    lists->areColorsOld = false;
    if (!prepareLists())
        return;
    const CompileScope compiling;
    PlotLists::Drawing& drawing = lists->drawing;
    const bool hadMesh = drawing.isMeshApart;
    drawing.isMeshApart = false;
    drawing.mesh.reserve();
    drawing.data.compile([this] { createData(); });
    lists->isMeshOld = lists->isMeshOld || drawing.isMeshApart != hadMesh;
}

void BasePlot::sendMesh()
{
    lists->drawing.isMeshApart = true;
    lists->drawing.mesh.call();
}

void BasePlot::updateMesh()
{
    lists->isMeshOld = false;
    if (!prepareLists())
        return;
    if (lists->drawing.isMeshApart)
        lists->drawing.mesh.compile([this] { createMesh(); });
    else
        lists->drawing.mesh.remove();
}

void BasePlot::updateNormals()
{
    if (!prepareLists())
        return;
    lists->areNormalsOld = false;
    lists->drawing.normals.remove();
    if (!settings->getNormals().isVisible() || !data)
        return;
    glMatrixMode(GL_MODELVIEW);
    lists->drawing.normals.compile([this] { createNormals(); });
}

void BasePlot::removeDataList()
{
    if (isValid())
        makeCurrent();
    removePreview();
    lists->drawing.data.remove();
    lists->drawing.additions.remove();
    lists->drawing.mesh.remove();
    lists->drawing.isMeshApart = false;
}

void BasePlot::createAdditions()
{
    for (Addition* addition : qAsConst(additions))
        createAddition(*addition);
}

void BasePlot::calculateHull() {}

void BasePlot::createData() {}

void BasePlot::drawArrays() {}

void BasePlot::createMesh() {}

bool BasePlot::isGeometryInput(GeometryInput /*input*/) const
{
    return true;
}

void BasePlot::createAddition(Addition& /*addition*/) {}

void BasePlot::resetNeedSave()
{
    settings->resetNeedSave();
    title->resetNeedSave();
    coordinateSystem->resetNeedSave();
    legend->resetNeedSave();
}

void BasePlot::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_A && (getHotKeyMask() & AutoScaleHotKey))
        slotSetAutoScaling(!isAutoScaling());
    if (event->key() == Qt::Key_N && (getHotKeyMask() & NormalsHotKey))
        slotShowNormals(!settings->getNormals().isVisible());
    ZelGLWidget::keyPressEvent(event);
}

} // namespace Zel3D
