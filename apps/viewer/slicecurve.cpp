#include "slicecurve.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr QSize usualSize(320, 150);
constexpr QSize leastSize(110, 80);
constexpr int gap = 4;
constexpr double margin = 0.06;
constexpr double ringRadius = 4.0;
constexpr double dotSize = 4.0;
constexpr std::size_t dotted = 40; ///< so few points are all seen
constexpr int acrossRoom = 70;     ///< pixels for a number
constexpr int upwardsRoom = 30;    ///< pixels between two numbers

QString numberText(const QLocale& locale, double number, int digits)
{
    QLocale plain = locale;
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    // The sum of steps, not exactly zero.
    return plain.toString(std::abs(number) < 1e-300 ? 0.0 : number, 'g', digits);
}

/// A curve of many points, thinned to what the pixels show: of every pixel column the first, the last, the
/// lowest and the highest point.
class Polyline
{
public:
    explicit Polyline(QPainter& painter) : m_painter(painter) {}

    void add(const QPointF& point)
    {
        const double pixel = std::floor(point.x());
        if (m_count == 0 || pixel != m_pixel) {
            flush();
            m_first = m_highest = m_lowest = point;
        }
        m_highest = point.y() < m_highest.y() ? point : m_highest;
        m_lowest = point.y() > m_lowest.y() ? point : m_lowest;
        m_last = point;
        m_pixel = pixel;
        ++m_count;
    }

    void finish()
    {
        flush();
        if (!m_points.isEmpty())
            m_painter.drawPolyline(m_points.constData(), m_points.size());
        m_points.clear();
    }

private:
    void flush()
    {
        if (m_count > 0)
            m_points.append(m_first);
        if (m_count > 2) {
            m_points.append(m_highest);
            m_points.append(m_lowest);
        }
        if (m_count > 1)
            m_points.append(m_last);
        m_count = 0;
    }

    QPainter& m_painter;
    QVector<QPointF> m_points;
    QPointF m_first;
    QPointF m_highest;
    QPointF m_lowest;
    QPointF m_last;
    double m_pixel = 0.0;
    int m_count = 0;
};

} // namespace

SliceCurve::SliceCurve(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SliceCurve::setSlice(const SliceData& slice, const QColor& color)
{
    m_slice = slice;
    m_color = color;
    setAccessibleName(tr("%1 over %2").arg(slice.valueName, slice.atName));
    update();
}

void SliceCurve::clear()
{
    m_slice.reset();
    update();
}

QSize SliceCurve::sizeHint() const
{
    return usualSize;
}

QSize SliceCurve::minimumSizeHint() const
{
    return leastSize;
}

QRectF SliceCurve::curveArea(const SliceRuler& upwards) const
{
    const int line = fontMetrics().height();
    const int most = std::max(1, (height() - 3 * line) / upwardsRoom);
    int numbers = 0;
    const QVector<double> ticks = upwards.ticks(most);
    for (const double tick : ticks)
        numbers = std::max(numbers,
                           fontMetrics().horizontalAdvance(numberText(locale(), tick, upwards.digits(most))));
    return QRectF(rect()).adjusted(numbers + 2 * gap, line + gap, -3 * gap, -2 * line - gap);
}

void SliceCurve::drawAcross(QPainter& painter, const QRectF& area, const SliceRuler& ruler) const
{
    const int most = std::max(1, int(area.width()) / acrossRoom);
    const int line = fontMetrics().height();
    const QVector<double> ticks = ruler.ticks(most);
    double free = 0.0;
    for (const double tick : ticks) {
        const double x = area.left() + ruler.part(tick) * area.width();
        painter.setPen(QPen(palette().color(QPalette::Midlight), 0));
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        const QString text = numberText(locale(), tick, ruler.digits(most));
        const double width = fontMetrics().horizontalAdvance(text);
        const double left = std::clamp(x - width / 2.0, 0.0, std::max(0.0, this->width() - width));
        if (left < free)
            continue;
        free = left + width + 2 * gap;
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(QRectF(left, area.bottom() + 2, width + 1, line), Qt::AlignLeft | Qt::TextSingleLine,
                         text);
    }
    painter.drawText(QRectF(area.left(), area.bottom() + 2 + line, area.width(), line), Qt::AlignCenter,
                     fontMetrics().elidedText(m_slice->atName, Qt::ElideRight, int(area.width())));
}

void SliceCurve::drawUpwards(QPainter& painter, const QRectF& area, const SliceRuler& ruler) const
{
    const int line = fontMetrics().height();
    const int most = std::max(1, (height() - 3 * line) / upwardsRoom);
    const QVector<double> ticks = ruler.ticks(most);
    for (const double tick : ticks) {
        const double y = area.bottom() - ruler.part(tick) * area.height();
        painter.setPen(QPen(palette().color(QPalette::Midlight), 0));
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(QRectF(0, y - line / 2.0, area.left() - gap, line),
                         Qt::AlignRight | Qt::AlignVCenter, numberText(locale(), tick, ruler.digits(most)));
    }
    painter.drawText(QRectF(gap, 0, width() - 2 * gap, line), Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(m_slice->valueName, Qt::ElideRight, width() - 2 * gap));
}

void SliceCurve::drawCurve(QPainter& painter, const QRectF& area, const SliceRuler& across,
                           const SliceRuler& upwards) const
{
    const auto place = [&](std::size_t i) {
        return QPointF(area.left() + across.part(m_slice->at[i]) * area.width(),
                       area.bottom() - upwards.part(m_slice->value[i]) * area.height());
    };
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(m_color, 1.5);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    Polyline curve(painter);
    QVector<QPointF> dots;
    const std::size_t count = m_slice->at.size();
    const auto isDrawn = [&](std::size_t i) {
        return i < count && std::isfinite(across.part(m_slice->at[i])) &&
               std::isfinite(upwards.part(m_slice->value[i]));
    };
    for (std::size_t i = 0; i < count; ++i) {
        if (!isDrawn(i)) {
            curve.finish();
            continue;
        }
        curve.add(place(i));
        // A point between gaps would be no line.
        if (count <= dotted || (!isDrawn(i + 1) && (i == 0 || !isDrawn(i - 1))))
            dots.append(place(i));
    }
    curve.finish();
    pen.setWidthF(dotSize);
    painter.setPen(pen);
    painter.drawPoints(dots.constData(), dots.size());
    if (m_slice->picked < 0)
        return;
    const QPointF picked = place(std::size_t(m_slice->picked));
    if (!std::isfinite(picked.x()))
        return;
    painter.setPen(QPen(palette().color(QPalette::Text), 0, Qt::DashLine));
    painter.drawLine(QPointF(picked.x(), area.top()), QPointF(picked.x(), area.bottom()));
    if (!std::isfinite(picked.y()))
        return;
    painter.setPen(QPen(palette().color(QPalette::Text), 1.5));
    painter.setBrush(palette().base());
    painter.drawEllipse(picked, ringRadius, ringRadius);
}

void SliceCurve::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (!m_slice)
        return;
    const SliceRuler across(m_slice->at, m_slice->atLogarithmic, 0.0);
    const SliceRuler upwards(m_slice->value, m_slice->valueLogarithmic, margin);
    const QRectF area = curveArea(upwards);
    if (area.width() < 10.0 || area.height() < 10.0)
        return;
    drawAcross(painter, area, across);
    drawUpwards(painter, area, upwards);
    painter.setPen(QPen(palette().color(QPalette::Mid), 0));
    painter.drawRect(area);
    drawCurve(painter, area, across, upwards);
}
