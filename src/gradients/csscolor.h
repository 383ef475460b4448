#pragma once

#include <QColor>
#include <QString>

namespace Zel3D {

/// The colour of a CSS text: hex, rgb(), rgba(), hsl(), hsla(), the named colours of SVG, "transparent" and
/// "rebeccapurple". Both the notation with commas and the one with spaces and "/" are read; components
/// outside their range are clamped. Invalid when the text is no such colour.
QColor cssColor(const QString& text);

} // namespace Zel3D
