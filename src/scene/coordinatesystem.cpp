#include "scene/coordinatesystem.h"

#include "view/glmode.h"
#include "view/opengl.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

constexpr int axisCount = 12;

// Fractions of the box's diagonal in the view.
constexpr double majorTic = 0.012;
constexpr double minorTic = 0.007;

/// A part of the depth range, larger than what rounding makes of the depths of two lines on one edge.
constexpr double nearer = 5e-4;

/// The order in which the axes get their highlight boxes.
constexpr std::array<AxisType, axisCount> highlightOrder{XFrontBottom, YLeftBottom, ZBackLeft,    XFrontTop,
                                                         XBackTop,     XBackBottom, YRightBottom, YRightTop,
                                                         YLeftTop,     ZFrontLeft,  ZFrontRight,  ZBackRight};

/// A face of the box and the two pairs of axes between which its grid lines run.
struct GridFace
{
    Grid bit;
    std::array<std::array<AxisType, 2>, 2> pairs;
};

constexpr std::array<GridFace, 6> faces{{
    {GridBottom, {{{XFrontBottom, XBackBottom}, {YLeftBottom, YRightBottom}}}},
    {GridTop, {{{XFrontTop, XBackTop}, {YRightTop, YLeftTop}}}},
    {GridLeft, {{{YLeftBottom, YLeftTop}, {ZBackLeft, ZFrontLeft}}}},
    {GridRight, {{{YRightBottom, YRightTop}, {ZFrontRight, ZBackRight}}}},
    {GridFront, {{{XFrontBottom, XFrontTop}, {ZFrontLeft, ZFrontRight}}}},
    {GridBack, {{{XBackTop, XBackBottom}, {ZBackRight, ZBackLeft}}}},
}};

void emitLine(const QVector3D& from, const QVector3D& offset)
{
    const QVector3D to = from + offset;
    glVertex3d(double(from.x()), double(from.y()), double(from.z()));
    glVertex3d(double(to.x()), double(to.y()), double(to.z()));
}

/// For a scope, draws a little nearer to the eye than is true.
class NearerScope
{
public:
    NearerScope()
    {
        glGetDoublev(GL_DEPTH_RANGE, range);
        glDepthRange(range[0], range[1] - nearer * (range[1] - range[0]));
    }
    ~NearerScope() { glDepthRange(range[0], range[1]); }
    NearerScope(const NearerScope&) = delete;
    NearerScope& operator=(const NearerScope&) = delete;

private:
    double range[2] = {0.0, 1.0};
};

double usableScale(double value)
{
    return std::isfinite(value) && value > 0.0 ? value : 1.0;
}

} // namespace

CoordinateSystem::CoordinateSystem(QVector3D first, QVector3D second) : axes(axisCount)
{
    for (int i = 0; i < axisCount; ++i) {
        Axis& axis = axes[i];
        axis.setName(QString("axis%0").arg(i));
        axis.setAutomaticTicFormat(true);
        append(&axis);
    }
    init(first, second);
}

void CoordinateSystem::draw()
{
    // The save of the children's pass replaces that of this one, smoothing included.
    const GLMode smoothingAsFound(GL_LINE_SMOOTH, glIsEnabled(GL_LINE_SMOOTH) == GL_TRUE, false);
    const GLMode unlit(GL_LIGHTING, false, false);
    saveGLState();
    arrange();
    {
        const GLMode smoothing(GL_LINE_SMOOTH, settings.isLineSmooth(), false);
        // The first and the last grid lines lie on the edges of the box; they must not cut up the axes there.
        const NearerScope beforeTheGrid;
        BaseDraw::draw();
    }
    if (highlight)
        BaseDraw::drawHighlight();
    if (settings.isMajorVisible())
        drawMajorGridLines();
    if (settings.isMinorVisible())
        drawMinorGridLines();
    restoreGLState();
}

void CoordinateSystem::arrange()
{
    fetchMatrices();
    const ViewFrame frame{modelview, projection, viewport};
    const WindowBox box = projectBox(frame, firstCorner, secondCorner);
    // The longest axis in the window first: where texts meet, those of the shorter one give way.
    QVector<QPair<double, int>> order;
    for (int i = 0; i < axisCount; ++i) {
        const AxisType type = AxisType(i);
        if (!isAxisVisible(type))
            continue;
        const WindowPoint& from = box.corners[std::size_t(startCorner(type))];
        const WindowPoint& to = box.corners[std::size_t(endCorner(type))];
        order.append({-std::hypot(to.x - from.x, to.y - from.y), i});
    }
    std::sort(order.begin(), order.end());
    QVector<QRectF> occupied = occupiedByOthers;
    for (const QPair<double, int>& entry : qAsConst(order))
        axes[entry.second].arrange(frame, edgeOutward(box, AxisType(entry.second)), false, occupied);
    // Names give way to numbers.
    for (const QPair<double, int>& entry : qAsConst(order))
        axes[entry.second].arrangeName(frame, occupied);
}

void CoordinateSystem::loadSettings(const QString& prefix, const QString& organization,
                                    const QString& application)
{
    for (Axis& axis : axes)
        axis.loadSettings(prefix, organization, application);
    settings.loadSettings(QString("%0/coordsystem").arg(prefix), organization, application);
}

void CoordinateSystem::saveSettings(const QString& prefix, const QString& organization,
                                    const QString& application)
{
    for (Axis& axis : axes)
        axis.saveSettings(prefix, organization, application);
    settings.saveSettings(QString("%0/coordsystem").arg(prefix), organization, application);
}

void CoordinateSystem::resetNeedSave()
{
    settings.resetNeedSave();
    for (Axis& axis : axes)
        axis.resetNeedSave();
    BaseDraw::resetNeedSave();
}

void CoordinateSystem::init(QVector3D first, QVector3D second)
{
    setPosition(first, second);
    const QVector3D diagonal = second - first;
    const double size = double(diagonal.length()) / 100.0;
    for (int i = 0; i < axisCount; ++i) {
        Axis& axis = axes[i];
        const AxisType type = AxisType(i);
        const BoxEdge edge = boxEdge(type, first, second);
        axis.getArrow().setParameters(size, 4.0 * size);
        axis.setPosition(edge.start, edge.end);
        axis.setTicsOrientation(edge.ticDirection);
    }
    updateLimits();
    updateTicsLength();
    for (AxisType type : highlightOrder)
        axes[int(type)].setHighlightBox({first, second}, type);
}

void CoordinateSystem::updateLimits()
{
    const double origins[] = {origin.x, origin.y, origin.z};
    for (int i = 0; i < axisCount; ++i) {
        const int along = int(baseAxisType(AxisType(i)));
        const auto first = double(firstCorner[along]);
        const auto second = double(secondCorner[along]);
        axes[i].setLimits(origins[along] + std::min(first, second), origins[along] + std::max(first, second));
        // The limits always increase; where the edge runs downwards the lower one stands at its end.
        axes[i].setReversed(second < first);
    }
}

void CoordinateSystem::setOrigin(const ValueXYZ<double>& values)
{
    if (origin.x == values.x && origin.y == values.y && origin.z == values.z)
        return;
    origin = values;
    updateLimits();
}

void CoordinateSystem::setPosition(QVector3D first, QVector3D second)
{
    firstCorner = first;
    secondCorner = second;
}

void CoordinateSystem::setAxesVisible(AxisType type, bool on)
{
    if (type < 0 || type >= axisCount)
        return;
    if (on)
        append(&axes[int(type)]);
    else
        remove(&axes[int(type)]);
}

bool CoordinateSystem::isAxisVisible(AxisType type) const
{
    if (type < 0 || type >= axisCount)
        return false;
    const BaseDraw* axis = &axes.at(int(type));
    return std::any_of(getChildren().begin(), getChildren().end(),
                       [axis](const BaseDraw* child) { return child == axis; });
}

void CoordinateSystem::setAxisVisible(bool on)
{
    for (int i = 0; i < axisCount; ++i)
        setAxesVisible(AxisType(i), on);
}

void CoordinateSystem::setVisibleEdges(const EdgeChoice& choice)
{
    for (int i = 0; i < axisCount; ++i) {
        const AxisType type = AxisType(i);
        const std::size_t base = std::size_t(baseAxisType(type));
        setAxesVisible(type, choice.axes[base] == type && !choice.endOn[base]);
    }
}

void CoordinateSystem::setMajorInterval(BaseAxisType base, int n)
{
    for (AxisType type : axesOf(base))
        axes[int(type)].setMajorInterval(n);
}

void CoordinateSystem::setMinorInterval(BaseAxisType base, int n)
{
    for (AxisType type : axesOf(base))
        axes[int(type)].setMinorInterval(n);
}

void CoordinateSystem::setScale(BaseAxisType base, ScaleType type)
{
    for (AxisType axis : axesOf(base))
        axes[int(axis)].setScale(type);
}

void CoordinateSystem::setAxisNames(const QString& x, const QString& y, const QString& z)
{
    const QString* const names[] = {&x, &y, &z};
    for (int i = 0; i < axisCount; ++i)
        axes[i].getLabel().getSettings().setText(*names[baseAxisType(AxisType(i))]);
}

void CoordinateSystem::setMajorLineWidth(double width)
{
    if (std::isnan(width))
        return;
    settings.setMajorLineWidth(width);
    settings.markForSaving();
    for (Axis& axis : axes) {
        axis.getSettings().getMajor().setLineWidth(settings.getMajorLineWidth());
        axis.getSettings().getMajor().markForSaving();
    }
    needSave = true;
}

void CoordinateSystem::setMinorLineWidth(double width)
{
    if (std::isnan(width))
        return;
    settings.setMinorLineWidth(width);
    settings.markForSaving();
    for (Axis& axis : axes) {
        axis.getSettings().getMinor().setLineWidth(settings.getMinorLineWidth());
        axis.getSettings().getMinor().markForSaving();
    }
    needSave = true;
}

void CoordinateSystem::setPixelRatio(double ratio)
{
    for (Axis& axis : axes)
        axis.setPixelRatio(ratio);
}

void CoordinateSystem::setViewScale(const ValueXYZ<double>& scale)
{
    const ValueXYZ<double> usable{usableScale(scale.x), usableScale(scale.y), usableScale(scale.z)};
    if (!(usable != viewScale))
        return;
    viewScale = usable;
    updateTicsLength();
}

void CoordinateSystem::updateTicsLength()
{
    const QVector3D diagonal = secondCorner - firstCorner;
    const double x = double(diagonal.x()) * viewScale.x;
    const double y = double(diagonal.y()) * viewScale.y;
    const double z = double(diagonal.z()) * viewScale.z;
    const double size = std::sqrt(x * x + y * y + z * z);
    for (int i = 0; i < axisCount; ++i) {
        const double length = size / (baseAxisType(AxisType(i)) == XAxis ? viewScale.y : viewScale.x);
        axes[i].setComputedTicsLength(majorTic * length, minorTic * length);
    }
}

void CoordinateSystem::drawMajorGridLines()
{
    drawGridLines(settings.getMajorLineWidth(), settings.getMajorLineStyle(),
                  [this](Axis& a, Axis& b) { drawMajorGridLines(a, b); });
}

void CoordinateSystem::drawMinorGridLines()
{
    drawGridLines(settings.getMinorLineWidth(), settings.getMinorLineStyle(),
                  [this](Axis& a, Axis& b) { drawMinorGridLines(a, b); });
}

template <class PairRoutine>
void CoordinateSystem::drawGridLines(double width, int style, PairRoutine drawPair)
{
    const int shown = drawnFaces < 0 ? settings.getGridStyle() : drawnFaces;
    if (shown == 0)
        return;
    // The edges of a face need not show an axis, and only a drawn axis brings its ticks up to date.
    for (Axis& axis : axes)
        axis.updateTics();
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    const QColor& color = settings.getGridColor();
    glColor4d(color.redF(), color.greenF(), color.blueF(), color.alphaF());
    setGLLineWidth(float(width));
    glEnable(GL_LINE_STIPPLE);
    setGLLineStipple(1, style);
    glBegin(GL_LINES);
    for (const GridFace& face : faces) {
        if (!(shown & face.bit))
            continue;
        for (const auto& pair : face.pairs)
            drawPair(axes[int(pair[0])], axes[int(pair[1])]);
    }
    glEnd();
}

void CoordinateSystem::drawMajorGridLines(const Axis& a, const Axis& b)
{
    if (a.isRecalculationNeeded())
        return;
    const QVector3D offset = b.getStart() - a.getStart();
    for (const Axis::Major& major : a.getMajors())
        emitLine(major.position, offset);
}

void CoordinateSystem::drawMinorGridLines(Axis& a, Axis& b)
{
    if (a.isRecalculationNeeded())
        return;
    const QVector3D offset = b.getStart() - a.getStart();
    for (const QVector3D& minor : a.getMinors())
        emitLine(minor, offset);
}

Axis& CoordinateSystem::getAxis(AxisType type)
{
    return axes[type < 0 || type >= axisCount ? 0 : int(type)];
}

} // namespace Zel3D
