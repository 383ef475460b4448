#include "scene/legend.h"

#include "core/gradientstops.h"
#include "view/glmode.h"
#include "view/opengl.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

/// World units by which the mark of the value stands off the bar towards the eye.
constexpr float markOffset = 0.001F;

void vertex(const QVector3D& v)
{
    glVertex3d(double(v.x()), double(v.y()), double(v.z()));
}

void setColor(const QColor& color)
{
    glColor4d(color.redF(), color.greenF(), color.blueF(), color.alphaF());
}

double mixed(double a, double b, double t)
{
    return a + (b - a) * t;
}

/// The colour of the stops at a position from 0 to 1.
QColor colorAt(const QGradientStops& stops, double t)
{
    if (t <= stops.first().first)
        return stops.first().second;
    for (int i = 1; i < stops.size(); ++i) {
        const QGradientStop& before = stops.at(i - 1);
        const QGradientStop& after = stops.at(i);
        if (t > after.first)
            continue;
        const double part = (t - before.first) / (after.first - before.first);
        return QColor::fromRgbF(mixed(before.second.redF(), after.second.redF(), part),
                                mixed(before.second.greenF(), after.second.greenF(), part),
                                mixed(before.second.blueF(), after.second.blueF(), part),
                                mixed(before.second.alphaF(), after.second.alphaF(), part));
    }
    return stops.last().second;
}

/// Smooth shading within a scope: the bands interpolate their colours whatever the plot's shading.
class SmoothShadingScope
{
public:
    SmoothShadingScope()
    {
        glGetIntegerv(GL_SHADE_MODEL, &model);
        glShadeModel(GL_SMOOTH);
    }
    ~SmoothShadingScope() { glShadeModel(GLenum(model)); }
    SmoothShadingScope(const SmoothShadingScope&) = delete;
    SmoothShadingScope& operator=(const SmoothShadingScope&) = delete;

private:
    int model = GL_SMOOTH;
};

} // namespace

Legend::Legend()
{
    name = "legend";
    visible = true;
    needSave = true;
    axis.setName("axis");
    axis.setAutomaticTicFormat(true);
    axis.getSettings().getNumbers().setColor(Qt::black);
    axis.getSettings().getNumbers().setFont(QFont("Courier", 8));
    axis.getSettings().resetNeedSave();
    hideValue();
}

void Legend::draw()
{
    covered = QRectF();
    if (!visible || gradientStops(gradient).isEmpty())
        return;
    saveGLState();
    // The legend also follows what no setter of its own tells: the window, and the settings of its axis.
    const bool viewChanged = hasViewChanged();
    if (dirty || viewChanged || axis.isRecalculationNeeded() || numbersWereShown != areNumbersShown())
        update();
    if (layout.visible) {
        arrangeNumbers();
        drawBase();
        if (valueShown)
            drawValue();
    }
    restoreGLState();
}

void Legend::loadSettings(const QString& prefix, const QString& organization, const QString& application)
{
    const QString group = QString("%0/%1").arg(prefix, name);
    settings.loadSettings(group, organization, application);
    axis.loadSettings(group, organization, application);
    BaseDraw::loadSettings(group, organization, application);
    dirty = true;
}

void Legend::saveSettings(const QString& prefix, const QString& organization, const QString& application)
{
    const QString group = QString("%0/%1").arg(prefix, name);
    settings.saveSettings(group, organization, application);
    axis.saveSettings(group, organization, application);
    BaseDraw::saveSettings(group, organization, application);
}

void Legend::resetNeedSave()
{
    settings.resetNeedSave();
    axis.resetNeedSave();
    BaseDraw::resetNeedSave();
}

QRectF Legend::getRelative() const
{
    if (!settings.isAutoPositioning())
        return manualRectangle;
    return settings.getRelativePositions().value(settings.getPosition(), QRectF());
}

bool Legend::setPosition(Position position)
{
    const bool changed = settings.placeAt(position);
    dirty = dirty || changed;
    return changed;
}

bool Legend::setAutoPositioning(bool on)
{
    const bool changed = settings.setAutoPositioning(on);
    dirty = dirty || changed;
    return changed;
}

bool Legend::setRelativePositions(const QHash<Position, QRectF>& rectangles)
{
    const bool changed = settings.setRelativePositions(rectangles);
    dirty = dirty || changed;
    return changed;
}

bool Legend::setManualRectangle(const QRectF& rectangle)
{
    if (manualRectangle == rectangle)
        return false;
    manualRectangle = rectangle;
    dirty = true;
    return true;
}

bool Legend::setGradient(const QGradient& newGradient)
{
    if (sameGradient(gradient, newGradient))
        return false;
    gradient = newGradient;
    return true;
}

void Legend::setReservedTop(double pixels)
{
    if (isZero(reservedTop, pixels) || !std::isfinite(pixels))
        return;
    reservedTop = pixels;
    dirty = true;
}

void Legend::setPixelRatio(double ratio)
{
    axis.setPixelRatio(ratio);
    if (isZero(pixelRatio, axis.getLabel().getPixelRatio()))
        return;
    pixelRatio = axis.getLabel().getPixelRatio();
    dirty = true;
}

void Legend::setLimits(double minimum, double maximum)
{
    axis.setLimits(minimum, maximum);
    dirty = true;
}

void Legend::setMajorInterval(int n)
{
    axis.setMajorInterval(n);
    dirty = true;
}

void Legend::setMinorInterval(int n)
{
    axis.setMinorInterval(n);
    dirty = true;
}

void Legend::setScale(Scale* scale)
{
    axis.setScale(scale);
    dirty = true;
}

void Legend::setScale(ScaleType type)
{
    axis.setScale(type);
    dirty = true;
}

void Legend::showValue(double marked)
{
    valueShown = true;
    value = marked;
}

void Legend::hideValue()
{
    valueShown = false;
    value = 0.0;
}

bool Legend::hasViewChanged()
{
    const auto modelviewBefore = modelview;
    const auto projectionBefore = projection;
    const auto viewportBefore = viewport;
    fetchMatrices();
    return modelview != modelviewBefore || projection != projectionBefore || viewport != viewportBefore;
}

bool Legend::areNumbersShown() const
{
    return axis.getSettings().getTics().isVisible() && axis.getSettings().getNumbers().isVisible();
}

LegendLayoutInput Legend::layoutInput()
{
    LegendLayoutInput input;
    input.window = QSizeF(viewport[2], viewport[3]);
    input.relative = getRelative();
    input.horizontal = settings.getOrientation() == 1;
    const int alignment = settings.getAxis().getAlignment();
    input.numbersBelow = alignment != (input.horizontal ? Bottom : Left);
    input.reservedTop = reservedTop * pixelRatio;
    input.pixelRatio = pixelRatio;
    if (!areNumbersShown())
        return input;
    const QVector<QSize> sizes = axis.getNumberSizes();
    if (axis.isRecalculationNeeded())
        return input;
    const QVector<AxisTic> tics = majorTics(*axis.getScale(), axis.getRange());
    for (int i = 0; i < std::min(sizes.size(), tics.size()); ++i)
        input.numbers.append({tics.at(i).t, QSizeF(sizes.at(i))});
    return input;
}

/// The point of the world at a point of the viewport, at a depth.
QVector3D Legend::worldAt(const QPointF& point, float depth)
{
    const double x = (point.x() + viewport[0]) / viewport[2] + viewport[0];
    const double y = (point.y() + viewport[1]) / viewport[3] + viewport[1];
    return relativePosition(QVector3D(float(x), float(y), depth));
}

void Legend::update()
{
    fetchMatrices();
    layout = layoutLegend(layoutInput());
    numbersWereShown = areNumbersShown();
    dirty = false;
    if (!layout.visible)
        return;
    corner = worldAt(layout.bar.topLeft());
    right = worldAt(layout.bar.topRight()) - corner;
    up = worldAt(layout.bar.bottomLeft()) - corner;
    towardsEye = (worldAt(layout.bar.topLeft(), 0.0F) - corner).normalized();
    placeAxis();
}

void Legend::placeAxis()
{
    const QVector3D start = worldAt(layout.axisStart);
    axis.setPosition(start, worldAt(layout.axisEnd));
    const QVector3D tic = worldAt(layout.axisStart + layout.outward * layout.majorTic) - start;
    axis.setTicsOrientation(tic);
    const double length = double(tic.length());
    axis.setComputedTicsLength(length, length * layout.minorTic / layout.majorTic);
    axis.updateTics();
}

void Legend::arrangeNumbers()
{
    // Where the numbers have no room at all the whole window counts as taken.
    QVector<QRectF> occupied;
    if (!layout.numbersFit)
        occupied.append(QRectF(viewport[0], viewport[1], viewport[2], viewport[3]));
    const QVector2D outward(float(layout.outward.x()), float(layout.outward.y()));
    const ViewFrame frame{modelview, projection, viewport};
    axis.arrange(frame, outward, true, occupied);
    axis.arrangeName(frame, occupied);
    // The pointer's strip counts even without a pointer: it must not push texts about when it comes and goes.
    const QPointF pointerEnd = legendPointer(layout, 0.0)[1];
    covered = layout.bar.united(QRectF(pointerEnd, QSizeF(1.0, 1.0))).translated(viewport[0], viewport[1]);
    if (!layout.numbersFit)
        return;
    for (const QRectF& text : qAsConst(occupied))
        covered |= text;
}

void Legend::drawBase()
{
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    {
        // The fill lies a little behind the frame, which is drawn first.
        const GLMode offset(GL_POLYGON_OFFSET_FILL, true, false);
        setGLPolygonOffset(1.0F, 1.0F);
        setGLLineWidth(1.0F);
        glColor4d(0.0, 0.0, 0.0, 1.0);
        glBegin(GL_LINE_LOOP);
        for (const QVector3D& point : {corner, corner + right, corner + right + up, corner + up})
            vertex(point);
        glEnd();
        drawBands(gradientStops(gradient));
    }
    axis.draw();
}

void Legend::drawBands(const QGradientStops& stops)
{
    const SmoothShadingScope smooth;
    const bool lying = settings.getOrientation() == 1;
    const QVector3D& along = lying ? right : up;
    const QVector3D& across = lying ? up : right;
    for (int i = 1; i < stops.size(); ++i) {
        const QVector3D from = corner + along * float(stops.at(i - 1).first);
        const QVector3D to = corner + along * float(stops.at(i).first);
        glBegin(GL_POLYGON);
        setColor(stops.at(i - 1).second);
        vertex(from);
        vertex(from + across);
        setColor(stops.at(i).second);
        vertex(to + across);
        vertex(to);
        glEnd();
    }
}

void Legend::drawValue()
{
    const AxisRange& range = axis.getRange();
    double t = value > range.minimum ? 1.0 : 0.0;
    if (range.isUsable())
        t = std::clamp(range.fraction(value), 0.0, 1.0);
    if (std::isnan(value) || std::isnan(t))
        return;
    float widthBefore = 1.0F;
    glGetFloatv(GL_LINE_WIDTH, &widthBefore);
    setGLLineWidth(2.0F);
    const QColor color = colorAt(gradientStops(gradient), t);
    if (layout.pointerSize > 0.0) {
        std::array<QVector3D, 3> triangle;
        const std::array<QPointF, 3> places = legendPointer(layout, t);
        std::transform(places.begin(), places.end(), triangle.begin(),
                       [this](const QPointF& place) { return worldAt(place); });
        glColor4d(0.0, 0.0, 0.0, 1.0);
        glBegin(GL_LINE_LOOP);
        std::for_each(triangle.begin(), triangle.end(), vertex);
        glEnd();
        setColor(color);
        glBegin(GL_TRIANGLES);
        std::for_each(triangle.begin(), triangle.end(), vertex);
        glEnd();
    }
    const bool lying = settings.getOrientation() == 1;
    const QVector3D from = corner + (lying ? right : up) * float(t) + towardsEye * markOffset;
    // Visible on any colour.
    setColor(color.lightnessF() > 0.5 ? Qt::black : Qt::white);
    glBegin(GL_LINES);
    vertex(from);
    vertex(from + (lying ? up : right));
    glEnd();
    restoreGLLineWidth(widthBefore);
}

} // namespace Zel3D
