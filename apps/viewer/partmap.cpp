#include "partmap.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr QSize usualSize(420, 320);
constexpr QSize leastSize(200, 140);
// Longer grids are shown as if they were only so long, or the other side could not be aimed at.
constexpr double longestShape = 6.0;
// Below it a part is drawn so large, to be seen and grasped.
constexpr double leastSide = 7.0;

} // namespace

PartMap::PartMap(const QImage& picture, QWidget* parent) : QWidget(parent), m_picture(picture)
{
    setObjectName("partMap");
    setAccessibleName(tr("Part of the grid"));
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PartMap::sizeHint() const
{
    return usualSize;
}

QSize PartMap::minimumSizeHint() const
{
    return leastSize;
}

void PartMap::setPart(const GridRange& fractions)
{
    m_part = fractions;
    update();
}

QRectF PartMap::area() const
{
    const double shape =
        std::clamp(double(m_picture.width()) / m_picture.height(), 1.0 / longestShape, longestShape);
    const QRectF room = QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0);
    const double width = std::min(room.width(), room.height() * shape);
    QRectF found(0.0, 0.0, width, width / shape);
    found.moveCenter(room.center());
    return found;
}

QRectF PartMap::drawnPart() const
{
    const QRectF all = area();
    QRectF part(all.left() + m_part.xMin * all.width(), all.bottom() - m_part.yMax * all.height(),
                (m_part.xMax - m_part.xMin) * all.width(), (m_part.yMax - m_part.yMin) * all.height());
    const double wider = std::max(0.0, 0.5 * (leastSide - part.width()));
    const double higher = std::max(0.0, 0.5 * (leastSide - part.height()));
    return part.adjusted(-wider, -higher, wider, higher) & all;
}

void PartMap::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF all = area();
    painter.fillRect(all, palette().color(QPalette::Mid));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(all, m_picture);
    const QRectF part = drawnPart();
    QPainterPath outside;
    outside.addRect(all);
    outside.addRect(part);
    painter.fillPath(outside, QColor(20, 24, 30, 95));
    // Light on dark, to be seen on every colour.
    painter.setPen(QPen(QColor(20, 24, 30), 3.0));
    painter.drawRect(part);
    painter.setPen(QPen(Qt::white, 1.0));
    painter.drawRect(part);
}

QPointF PartMap::fractionAt(const QPointF& place) const
{
    const QRectF all = area();
    return {std::clamp((place.x() - all.left()) / all.width(), 0.0, 1.0),
            std::clamp((all.bottom() - place.y()) / all.height(), 0.0, 1.0)};
}

void PartMap::showCursor(const QPointF& place)
{
    setCursor(drawnPart().contains(place) ? Qt::SizeAllCursor : Qt::CrossCursor);
}

void PartMap::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_dragging = true;
    m_moving = drawnPart().contains(event->localPos());
    m_start = fractionAt(event->localPos());
    m_startPart = m_part;
}

void PartMap::dragTo(const QPointF& fraction)
{
    GridRange part{std::min(m_start.x(), fraction.x()), std::max(m_start.x(), fraction.x()),
                   std::min(m_start.y(), fraction.y()), std::max(m_start.y(), fraction.y())};
    if (m_moving) {
        const double right =
            std::clamp(fraction.x() - m_start.x(), -m_startPart.xMin, 1.0 - m_startPart.xMax);
        const double up = std::clamp(fraction.y() - m_start.y(), -m_startPart.yMin, 1.0 - m_startPart.yMax);
        part = {m_startPart.xMin + right, m_startPart.xMax + right, m_startPart.yMin + up,
                m_startPart.yMax + up};
    }
    emit dragged(part);
}

void PartMap::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragging)
        dragTo(fractionAt(event->localPos()));
    else
        showCursor(event->localPos());
}

void PartMap::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_dragging = false;
    showCursor(event->localPos());
}
