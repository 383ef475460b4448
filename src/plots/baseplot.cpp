// Life, paint order, display lists and scaling of a plot.

#include "plots/baseplot.h"

#include "core/data.h"
#include "core/datacolor.h"
#include "plots/addition.h"
#include "plots/autoscaling.h"
#include "plots/baseplotsettings.h"
#include "view/glmode.h"
#include "view/glscopes.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

enum DrawingList : std::size_t { NormalsList, DataList };

bool isOrigin(const QVector3D& p)
{
    return p.x() == 0.0F && p.y() == 0.0F && p.z() == 0.0F;
}

/// The state that a compiled list may leave behind.
constexpr unsigned int listState = GL_ENABLE_BIT | GL_LINE_BIT | GL_POINT_BIT | GL_POLYGON_BIT |
                                   GL_COLOR_BUFFER_BIT | GL_CURRENT_BIT | GL_TRANSFORM_BIT;

} // namespace

BasePlot::BasePlot(const QString& name, const QString& organizationName, const QString& applicationName,
                   QWidget* parent, const QGLWidget* shareWidget, Qt::WindowFlags flags)
    : ZelGLWidget(name, organizationName, applicationName, parent, shareWidget, flags),
      settings(std::make_unique<BasePlotSettings>())
{
    for (BaseAxisType axis : {XAxis, YAxis, ZAxis})
        settings->getAxes().addAxis(axis, BaseAxesSettings(Linear));
    setMouseTracking(true);
    BasePlot::setAutoScaling(true);
    setDataColor(new DataColor(this, QString(), QLinearGradient()));
    // The hidden line style fills the surface with the background colour.
    connect(this, &ZelGLWidget::backgroundColorChanged, this, [this] { markDataChanged(); });
}

BasePlot::~BasePlot()
{
    if (isValid()) {
        makeCurrent();
        for (DisplayList& list : drawingLists)
            list.remove();
        for (DisplayList& list : selectionLists)
            list.remove();
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
    const bool sameContext = listContext == context();
    if (sameContext && drawingLists[DataList].exists())
        return;
    // The context is new to the lists: what was compiled went with the old one.
    for (DisplayList& list : drawingLists)
        list.forget();
    for (DisplayList& list : selectionLists)
        list.forget();
    if (!data)
        return;
    const BusyScope rebuilding(*this);
    updateData();
    updateNormals();
    updateSelection();
}

void BasePlot::drawWithoutTransform() {}

void BasePlot::draw()
{
    rebuildWhatChanged();
    warnWithoutGradient();
    const ModelViewScope matrix;
    const AttributeScope attributes(listState);
    if (isLighting())
        glEnable(GL_NORMALIZE);
    applyShading();
    for (const DisplayList& list : drawingLists)
        list.call();
}

void BasePlot::select()
{
    const ModelViewScope matrix;
    for (const DisplayList& list : selectionLists)
        list.call();
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
    if (dataDirty)
        updateData();
    if (normalsDirty)
        updateNormals();
}

void BasePlot::warnWithoutGradient()
{
    if (warnedWithoutGradient || !data || data->isEmpty() || settings->getStyle() == 0 || canDrawData())
        return;
    warnedWithoutGradient = true;
    qWarning(
        "Plot \"%s\": its gradient has no colours, so nothing is drawn; call setGradient(name, gradient).",
        qPrintable(objectName()));
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
    return corners.minimum;
}

QVector3D BasePlot::second()
{
    return corners.maximum;
}

void BasePlot::updateData()
{
    if (!isValid())
        return;
    makeCurrent();
    dataDirty = false;
    listContext = context();
    glMatrixMode(GL_MODELVIEW);
    const GLMode depthTest(GL_DEPTH_TEST, true, false);
    const GLMode lineSmooth(GL_LINE_SMOOTH, true, false);
    calculateHull();
    // An empty container has no spacing: a plot without data keeps its radius and has nothing to save.
    if (data && !data->isEmpty())
        settings->getCylinder().setRadius(0.5 * std::min(data->getStepX(), data->getStepY()));
    drawingLists[DataList].compile([this] {
        createAdditions();
        createData();
    });
}

void BasePlot::updateNormals()
{
    if (!isValid())
        return;
    makeCurrent();
    normalsDirty = false;
    drawingLists[NormalsList].remove();
    if (!settings->getNormals().isVisible() || !data)
        return;
    listContext = context();
    glMatrixMode(GL_MODELVIEW);
    drawingLists[NormalsList].compile([this] { createNormals(); });
}

void BasePlot::updateSelection()
{
    if (!isSelecting() || !isValid())
        return;
    makeCurrent();
    listContext = context();
    selectableObjects.clear();
    glMatrixMode(GL_MODELVIEW);
    selectionLists[0].compile([this] {
        selectAdditions();
        selectData();
    });
    selectionCapacity = getNumberSelectedData() + getNumberSelectedAdditions();
    findObjects(getMousePosition(), getSelectingModifiers());
}

void BasePlot::removeDataList()
{
    if (isValid())
        makeCurrent();
    drawingLists[DataList].remove();
}

void BasePlot::createAdditions()
{
    for (Addition* addition : qAsConst(additions))
        createAddition(*addition);
}

void BasePlot::selectAdditions()
{
    for (Addition* addition : qAsConst(additions))
        selectAddition(*addition);
}

int BasePlot::getNumberSelectedAdditions()
{
    int count = 0;
    for (Addition* addition : qAsConst(additions))
        count += getNumberSelectedAddition(*addition);
    return count;
}

void BasePlot::calculateHull() {}

void BasePlot::createData() {}

void BasePlot::createAddition(Addition& /*addition*/) {}

void BasePlot::selectData() {}

void BasePlot::selectAddition(Addition& /*addition*/) {}

int BasePlot::getNumberSelectedData()
{
    return 0;
}

int BasePlot::getNumberSelectedAddition(Addition& /*addition*/)
{
    return 0;
}

Parallelepiped BasePlot::dataBox() const
{
    const bool usable = fixedHull.minimum != fixedHull.maximum && !isOrigin(fixedHull.minimum) &&
                        !isOrigin(fixedHull.maximum);
    if (usable)
        return fixedHull;
    Parallelepiped box{data->getMinimum(), data->getMaximum()};
    for (int i = 0; i < 3; ++i) {
        if (!std::isfinite(box.minimum[i]) || !std::isfinite(box.maximum[i]))
            box.minimum[i] = box.maximum[i] = 0.0F;
    }
    return box;
}

bool BasePlot::setHull(const Parallelepiped& box)
{
    const bool changed = !(hull == box);
    if (changed) {
        hull = box;
        updateAutoScale();
    }
    updateLegend();
    return changed;
}

void BasePlot::setFixedHull(const Parallelepiped& box)
{
    fixedHull = box;
    markAllChanged();
    createCoordinateSystem();
}

void BasePlot::updateLegend() {}

void BasePlot::createCoordinateSystem(const QVector3D& firstCorner, const QVector3D& secondCorner)
{
    const Parallelepiped box{firstCorner, secondCorner};
    if (box == corners)
        return;
    corners = box;
    setLightsHeight(double((secondCorner - firstCorner).length()) * 0.5 / 10.0);
    updateLights();
}

void BasePlot::createCoordinateSystem()
{
    calculateHull();
    createCoordinateSystem(hull.minimum, hull.maximum);
}

Pair<double> BasePlot::getLegendRange() const
{
    if (isZero(gradientRange.first, gradientRange.second))
        return {double(hull.minimum.z()), double(hull.maximum.z())};
    return gradientRange;
}

double BasePlot::getViewProjectionZ() const
{
    if (data && settings->getViewProjection() == TopProjection)
        return double(data->getMaximum().z());
    if (data && settings->getViewProjection() == BottomProjection)
        return double(data->getMinimum().z());
    return 0.0;
}

ValueXYZ<double> BasePlot::recalculateAutoScale()
{
    return AutoScaling::scaleOf(hull);
}

void BasePlot::updateAutoScale()
{
    setScalingAllowed(!autoScaling);
    if (autoScaling)
        automaticScale = recalculateAutoScale();
    setScale(autoScaling ? automaticScale : userScale);
}

ValueXYZ<double> BasePlot::getAutoScaleInverse() const
{
    return AutoScaling::inverseOf(automaticScale);
}

Addition* BasePlot::addAddition(Addition& addition)
{
    if (!additions.contains(&addition)) {
        additions.append(addition.clone());
        markDataChanged();
    }
    return additions.last();
}

bool BasePlot::removeAddition(Addition* addition)
{
    if (!additions.removeOne(addition))
        return false;
    delete addition;
    markDataChanged();
    return true;
}

void BasePlot::resetNeedSave()
{
    settings->resetNeedSave();
}

void BasePlot::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_A && (getHotKeyMask() & AutoScaleHotKey))
        slotSetAutoScaling(!autoScaling);
    if (event->key() == Qt::Key_N && (getHotKeyMask() & NormalsHotKey))
        slotShowNormals(!settings->getNormals().isVisible());
    ZelGLWidget::keyPressEvent(event);
}

} // namespace Zel3D
