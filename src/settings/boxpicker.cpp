#include "settings/boxpicker.h"

#include "scene/boxedges.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>

namespace Zel3D {

namespace {

constexpr int axisCount = 12;
/// How near the mouse must be to an edge, in pixels.
constexpr double nearPixels = 12.0;
/// Parts of the widget that the drawing leaves free at each side, for the letters.
constexpr double margin = 0.14;

const QVector3D low(-1.0F, -1.0F, -1.0F);
const QVector3D high(1.0F, 1.0F, 1.0F);
/// The corner that the box hides.
const QVector3D hidden(-1.0F, 1.0F, -1.0F);

bool isBehind(AxisType type)
{
    const BoxEdge edge = boxEdge(type, low, high);
    return edge.start == hidden || edge.end == hidden;
}

double distance(const QLineF& line, const QPointF& point)
{
    const QPointF along = line.p2() - line.p1();
    const QPointF to = point - line.p1();
    const double square = QPointF::dotProduct(along, along);
    const double part = square > 0.0 ? std::clamp(QPointF::dotProduct(to, along) / square, 0.0, 1.0) : 0.0;
    return QLineF(point, line.p1() + part * along).length();
}

} // namespace

QString axisName(AxisType type)
{
    const std::array<QString, axisCount> names{
        BoxPicker::tr("X axis, front bottom"), BoxPicker::tr("Y axis, left bottom"),
        BoxPicker::tr("Z axis, back left"),    BoxPicker::tr("X axis, front top"),
        BoxPicker::tr("X axis, back top"),     BoxPicker::tr("X axis, back bottom"),
        BoxPicker::tr("Y axis, left top"),     BoxPicker::tr("Y axis, right top"),
        BoxPicker::tr("Y axis, right bottom"), BoxPicker::tr("Z axis, front left"),
        BoxPicker::tr("Z axis, back right"),   BoxPicker::tr("Z axis, front right")};
    return names[std::size_t(type)];
}

QVector<AxisType> listedAxes()
{
    QVector<AxisType> all;
    for (BaseAxisType direction : {XAxis, YAxis, ZAxis}) {
        for (AxisType type : axesOf(direction))
            all.append(type);
    }
    return all;
}

BoxPicker::BoxPicker(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("Drawing of the box"));
    setAccessibleDescription(axisName(picked));
}

void BoxPicker::setPicked(AxisType type)
{
    picked = type;
    setAccessibleDescription(axisName(type));
    update();
}

void BoxPicker::setAlong(const QVector<AxisType>& edges)
{
    along = edges;
    update();
}

QSize BoxPicker::sizeHint() const
{
    const int line = fontMetrics().height();
    return {line * 11, line * 8};
}

QPointF BoxPicker::place(const QVector3D& corner) const
{
    // Seen from the front, the right and above, as plots are at first.
    const double right = 0.866 * double(corner.x()) + 0.5 * double(corner.y());
    const double up =
        0.866 * double(corner.z()) + 0.5 * (0.866 * double(corner.y()) - 0.5 * double(corner.x()));
    const double most = 0.866 + 0.5;
    const double tallest = 0.866 + 0.683;
    const double free = 1.0 - 2.0 * margin;
    return {width() * (0.5 + 0.5 * free * right / most), height() * (0.5 - 0.5 * free * up / tallest)};
}

QLineF BoxPicker::lineOf(AxisType type) const
{
    const BoxEdge edge = boxEdge(type, low, high);
    return {place(edge.start), place(edge.end)};
}

int BoxPicker::edgeAt(const QPointF& point) const
{
    int best = -1;
    double nearest = nearPixels;
    for (int i = 0; i < axisCount; ++i) {
        // Of two edges that cross, the one in front.
        const double here = distance(lineOf(AxisType(i)), point) + (isBehind(AxisType(i)) ? 3.0 : 0.0);
        if (here < nearest) {
            nearest = here;
            best = i;
        }
    }
    return best;
}

void BoxPicker::pick(AxisType type)
{
    setPicked(type);
    emit edgePicked(type);
}

void BoxPicker::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor plain = palette().color(QPalette::Disabled, QPalette::WindowText);
    const QColor chosen = palette().color(QPalette::Highlight);
    const auto draw = [&](AxisType type) {
        const bool isChosen = type == picked || along.contains(type);
        QPen pen(isChosen ? chosen : plain, isChosen ? 3.0 : 1.5);
        if (hovered == int(type))
            pen.setWidthF(4.0);
        if (isBehind(type))
            pen.setDashPattern({3.0, 2.0});
        pen.setCapStyle(Qt::RoundCap);
        painter.setPen(pen);
        painter.drawLine(lineOf(type));
    };
    for (bool picks : {false, true}) {
        for (int i = 0; i < axisCount; ++i) {
            const AxisType type = AxisType(i);
            if ((type == picked || along.contains(type)) == picks)
                draw(type);
        }
    }
    // Letters at the edges in front.
    painter.setPen(palette().color(QPalette::WindowText));
    const double room = fontMetrics().height();
    const auto letter = [&](AxisType type, const QPointF& direction, const QString& name) {
        const QPointF middle = lineOf(type).pointAt(0.5) + direction * room * 0.8;
        painter.drawText(QRectF(middle - QPointF(room, room), QSizeF(2 * room, 2 * room)), Qt::AlignCenter,
                         name);
    };
    letter(XFrontBottom, {-0.3, 1.0}, "X");
    letter(YRightBottom, {0.6, 0.8}, "Y");
    letter(ZFrontLeft, {-1.0, 0.0}, "Z");
    if (hasFocus()) {
        painter.setPen(QPen(chosen, 1.0, Qt::DotLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void BoxPicker::mousePressEvent(QMouseEvent* event)
{
    const int edge = edgeAt(event->localPos());
    if (event->button() == Qt::LeftButton && edge >= 0)
        pick(AxisType(edge));
}

void BoxPicker::mouseMoveEvent(QMouseEvent* event)
{
    hovered = edgeAt(event->localPos());
    setCursor(hovered >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void BoxPicker::leaveEvent(QEvent* /*event*/)
{
    hovered = -1;
    update();
}

void BoxPicker::keyPressEvent(QKeyEvent* event)
{
    const bool next = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
    const bool previous = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
    if (!next && !previous) {
        QWidget::keyPressEvent(event);
        return;
    }
    const QVector<AxisType> all = listedAxes();
    const int row = all.indexOf(picked) + (next ? 1 : axisCount - 1);
    pick(all.at(row % axisCount));
}

bool BoxPicker::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int edge = edgeAt(help->pos());
    QToolTip::showText(help->globalPos(), edge >= 0 ? axisName(AxisType(edge)) : toolTip(), this);
    return true;
}

} // namespace Zel3D
