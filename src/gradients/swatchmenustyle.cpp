#include "gradients/swatchmenustyle.h"

namespace Zel3D {

SwatchMenuStyle::SwatchMenuStyle(int iconWidth, QObject* parent) : width(iconWidth)
{
    setParent(parent);
}

int SwatchMenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    return metric == PM_SmallIconSize ? width : QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace Zel3D
