#include "histogramview.h"

#include "datasummary.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace {
constexpr int barHeight = 56;
} // namespace

HistogramView::HistogramView(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Histogram of the heights"));
}

void HistogramView::setBars(const std::vector<std::size_t>& counts, double lower, double upper)
{
    m_counts = counts;
    m_lower = lower;
    m_upper = upper;
    update();
}

QSize HistogramView::sizeHint() const
{
    return {200, barHeight + fontMetrics().height() + 4};
}

QSize HistogramView::minimumSizeHint() const
{
    return {80, sizeHint().height()};
}

QRect HistogramView::barArea() const
{
    return rect().adjusted(0, 0, 0, -fontMetrics().height() - 4);
}

void HistogramView::paintEvent(QPaintEvent* /*event*/)
{
    if (m_counts.empty())
        return;
    QPainter painter(this);
    const QRect area = barArea();
    painter.fillRect(area, palette().base());
    const double highest = double(*std::max_element(m_counts.begin(), m_counts.end()));
    const double width = double(area.width()) / double(m_counts.size());
    for (std::size_t i = 0; i < m_counts.size(); ++i) {
        // A single height shows, too.
        const double height =
            m_counts[i] == 0 ? 0.0 : std::max(1.0, double(m_counts[i]) / highest * (area.height() - 2));
        const int left = area.left() + int(double(i) * width);
        const int right = area.left() + int(double(i + 1) * width);
        painter.fillRect(QRect(left, area.bottom() + 1 - int(height), right - left, int(height)),
                         palette().highlight());
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(area.bottomLeft(), area.bottomRight());
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect numbers = rect().adjusted(0, area.height() + 2, 0, 0);
    painter.drawText(numbers, Qt::AlignLeft | Qt::AlignTop, DataSummary::number(m_lower, locale()));
    painter.drawText(numbers, Qt::AlignRight | Qt::AlignTop, DataSummary::number(m_upper, locale()));
}

bool HistogramView::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || m_counts.empty())
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto bars = int(m_counts.size());
    const int bar = std::clamp(help->x() * bars / std::max(width(), 1), 0, bars - 1);
    const double step = (m_upper - m_lower) / bars;
    QToolTip::showText(help->globalPos(),
                       tr("%1 to %2: %3")
                           .arg(DataSummary::number(m_lower + bar * step, locale()),
                                DataSummary::number(m_lower + (bar + 1) * step, locale()),
                                locale().toString(qulonglong(m_counts[std::size_t(bar)]))),
                       this);
    return true;
}
