#include "gradients/lightnesscurve.h"

#include "gradients/colorvision.h"
#include "gradients/gradientcolors.h"
#include "gradients/gradientpainter.h"

#include <QPainter>

namespace Zel3D {

LightnessCurve::LightnessCurve(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LightnessCurve::setStops(const QGradientStops& newStops)
{
    stops = newStops;
    update();
}

QSize LightnessCurve::sizeHint() const
{
    return fontMetrics().height() * QSize(16, 3);
}

QSize LightnessCurve::minimumSizeHint() const
{
    return fontMetrics().height() * QSize(6, 3);
}

void LightnessCurve::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    const QRectF area = QRectF(rect()).adjusted(1.0, 4.0, -1.0, -4.0);
    QPolygonF curve;
    for (int x = 0; !stops.isEmpty() && x <= area.width(); ++x) {
        const double lightness = ColorVision::lightness(stopsColor(stops, x / area.width()));
        curve << QPointF(area.left() + x, area.bottom() - area.height() * lightness / 100.0);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Text), 1.6));
    painter.drawPolyline(curve);
    painter.setRenderHint(QPainter::Antialiasing, false);
    paintFrame(painter, rect(), *this);
}

} // namespace Zel3D
