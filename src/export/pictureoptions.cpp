#include "export/pictureoptions.h"

#include "plots/baseplot.h"
#include "scene/title.h"

#include <algorithm>

namespace Zel3D {

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr double pointsPerInch = 72.0;
constexpr double usualResolution = 96.0;

} // namespace

double PictureOptions::usableResolution() const
{
    return resolution > 0.0 ? resolution : usualResolution;
}

QSize PictureOptions::pixelSize(const BasePlot& plot) const
{
    if (!pixels.isEmpty())
        return pixels;
    if (!millimetres.isEmpty())
        return (millimetres * (usableResolution() / millimetresPerInch)).toSize().expandedTo(QSize(1, 1));
    return (QSizeF(plot.size()) * plot.devicePixelRatioF()).toSize().expandedTo(QSize(1, 1));
}

QSizeF PictureOptions::pointSize(const BasePlot& plot) const
{
    if (pixels.isEmpty() && !millimetres.isEmpty())
        return millimetres * (pointsPerInch / millimetresPerInch);
    return QSizeF(pixelSize(plot)) * (pointsPerInch / usableResolution());
}

QColor PictureOptions::backgroundFor(const BasePlot& plot) const
{
    QColor color = background.isValid() ? background : plot.getBackgroundColor();
    color.setAlpha(255);
    return color;
}

QString PictureOptions::titleFor(const BasePlot& plot) const
{
    return title.isEmpty() ? plot.getTitle().getSettings().getText().trimmed() : title;
}

double PictureOptions::ratio(const BasePlot& plot, const QSizeF& size)
{
    const QSize window = plot.size().expandedTo(QSize(1, 1));
    return std::min(size.width() / window.width(), size.height() / window.height());
}

} // namespace Zel3D
