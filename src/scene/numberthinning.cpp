#include "scene/numberthinning.h"

namespace Zel3D {

namespace {

/// Whether every n-th rectangle stays clear of the one shown before it, and how many are shown.
bool fits(const QVector<QRectF>& rectangles, int step, const QSizeF& gap, int& shown)
{
    shown = 0;
    QRectF before;
    for (int i = 0; i < rectangles.size(); i += step) {
        const QRectF& rectangle = rectangles.at(i);
        if (!rectangle.isValid())
            continue;
        const QRectF widened = rectangle.adjusted(-gap.width(), -gap.height(), gap.width(), gap.height());
        if (before.isValid() && widened.intersects(before))
            return false;
        before = rectangle;
        ++shown;
    }
    return true;
}

} // namespace

QVector<bool> keptNumbers(const QVector<QRectF>& rectangles, const QSizeF& gap)
{
    QVector<bool> kept(rectangles.size(), false);
    int step = 1;
    int shown = 0;
    while (step < rectangles.size() && !fits(rectangles, step, gap, shown))
        ++step;
    if (step >= rectangles.size() && rectangles.size() > 1)
        return kept;
    for (int i = 0; i < rectangles.size(); i += step)
        kept[i] = rectangles.at(i).isValid();
    return kept;
}

} // namespace Zel3D
