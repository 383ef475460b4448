#pragma once

#include "gradients/colorvision.h"

#include <QGradient>
#include <QIcon>
#include <QRectF>

class QPainter;
class QWidget;

namespace Zel3D {

// How colours and gradients are shown. Sizes are in logical pixels; the device pixel ratio of the painter's
// device is heeded.

/// A checkerboard of light and middle grey, the same in every palette, as the ground of what is transparent.
void paintCheckerboard(QPainter& painter, const QRectF& rect);
/// The colour over a checkerboard where it is transparent; an invalid one as a cross on white.
void paintColor(QPainter& painter, const QRectF& rect, const QColor& color);
/// The stops from left to right as a plot blends them and as the given eyes see them, over a checkerboard.
void paintStops(QPainter& painter, const QRectF& rect, const QGradientStops& stops,
                ColorVision::Kind kind = ColorVision::Kind::Normal);
/// A thin frame that shows on every colour.
void paintFrame(QPainter& painter, const QRectF& rect, const QWidget& widget);
/// A picture of the gradient with a frame for lists and buttons, with empty room to its right. A selection
/// does not tint it.
QIcon gradientSwatch(const QGradient& gradient, const QSize& size, const QWidget& widget, int room = 0);

} // namespace Zel3D
