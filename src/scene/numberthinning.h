#pragma once

#include <QRectF>
#include <QVector>

namespace Zel3D {

/// Which of an axis's numbers to show when all would not fit: every n-th from the first, n the smallest with
/// which neighbours stay the gap apart, its width when side by side and its height when one above the other.
/// None when only one of several would be left, for a lone number tells no scale. An invalid rectangle stands
/// for a number that the view does not show.
QVector<bool> keptNumbers(const QVector<QRectF>& rectangles, const QSizeF& gap);

} // namespace Zel3D
