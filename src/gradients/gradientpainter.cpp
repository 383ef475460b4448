#include "gradients/gradientpainter.h"

#include "gradients/gradientcolors.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <cmath>

namespace Zel3D {

void paintCheckerboard(QPainter& painter, const QRectF& rect)
{
    constexpr int cell = 5;
    painter.fillRect(rect, Qt::white);
    for (int row = 0; row * cell < rect.height(); ++row) {
        for (int column = row % 2; column * cell < rect.width(); column += 2) {
            const QRectF square(rect.left() + column * cell, rect.top() + row * cell, cell, cell);
            painter.fillRect(square.intersected(rect), QColor(176, 176, 176));
        }
    }
}

void paintColor(QPainter& painter, const QRectF& rect, const QColor& color)
{
    if (!color.isValid()) {
        painter.fillRect(rect, Qt::white);
        painter.setPen(Qt::darkGray);
        painter.drawLine(rect.topLeft(), rect.bottomRight());
        painter.drawLine(rect.bottomLeft(), rect.topRight());
        return;
    }
    if (color.alpha() < 255)
        paintCheckerboard(painter, rect);
    painter.fillRect(rect, color);
}

void paintStops(QPainter& painter, const QRectF& rect, const QGradientStops& stops, ColorVision::Kind kind)
{
    if (stops.isEmpty()) {
        paintColor(painter, rect, QColor());
        return;
    }
    paintCheckerboard(painter, rect);
    const double ratio = painter.device()->devicePixelRatioF();
    const int width = std::max(1, static_cast<int>(std::lround(rect.width() * ratio)));
    QImage row(width, 1, QImage::Format_ARGB32);
    for (int i = 0; i < width; ++i) {
        // The outermost pixels have the end colours.
        const double position = width > 1 ? static_cast<double>(i) / (width - 1) : 0.0;
        row.setPixelColor(i, 0, ColorVision::simulate(stopsColor(stops, position), kind));
    }
    painter.drawImage(rect, row);
}

void paintFrame(QPainter& painter, const QRectF& rect, const QWidget& widget)
{
    QColor color = widget.palette().color(QPalette::WindowText);
    color.setAlpha(150);
    painter.setPen(QPen(color, 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(0.5, 0.5, -0.5, -0.5));
}

QIcon gradientSwatch(const QGradient& gradient, const QSize& size, const QWidget& widget, int room)
{
    const double ratio = widget.devicePixelRatioF();
    QPixmap pixmap((size + QSize(room, 0)) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintStops(painter, QRectF(QPointF(), size), editableStops(gradient));
    paintFrame(painter, QRectF(QPointF(), size), widget);
    painter.end();
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

} // namespace Zel3D
