#include "gradients/gradientstrip.h"

#include "gradients/gradientpainter.h"

#include <QPainter>

namespace Zel3D {

GradientStrip::GradientStrip(ColorVision::Kind visionKind, QWidget* parent)
    : QWidget(parent), kind(visionKind)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void GradientStrip::setStops(const QGradientStops& newStops)
{
    stops = newStops;
    update();
}

QSize GradientStrip::sizeHint() const
{
    return fontMetrics().height() * QSize(16, 1);
}

QSize GradientStrip::minimumSizeHint() const
{
    return fontMetrics().height() * QSize(6, 1);
}

void GradientStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintStops(painter, rect(), stops, kind);
    paintFrame(painter, rect(), *this);
}

} // namespace Zel3D
