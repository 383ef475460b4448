#include "gridpicture.h"

#include "grid.h"
#include "terraingradient.h"

#include <QColor>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int shades = 256;

std::array<QColor, shades> terrainShades()
{
    const QGradientStops stops = terrainGradient().stops();
    const int intervals = stops.size() - 1;
    std::array<QColor, shades> made;
    for (int i = 0; i < shades; ++i) {
        const double at = double(i) / (shades - 1) * intervals;
        const int below = std::min(int(at), intervals - 1);
        const double part = at - below;
        const QColor lower = stops.at(below).second;
        const QColor upper = stops.at(below + 1).second;
        const auto mix = [part](double a, double b) { return a + part * (b - a); };
        made[std::size_t(i)] =
            QColor::fromRgbF(mix(lower.redF(), upper.redF()), mix(lower.greenF(), upper.greenF()),
                             mix(lower.blueF(), upper.blueF()));
    }
    return made;
}

} // namespace

QImage gridPicture(Grid& grid, int longerSide)
{
    // A rise of a tenth of the heights from one pixel to the next is lit or shaded in full.
    constexpr double steepest = 0.1;
    constexpr double contrast = 25.0;
    const double step = std::max(1.0, double(std::max(grid.columns, grid.rows)) / longerSide);
    QImage image(std::max(int(grid.columns / step), 1), std::max(int(grid.rows / step), 1),
                 QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const std::array<QColor, shades> colours = terrainShades();
    const double span = grid.zMax > grid.zMin ? grid.zMax - grid.zMin : 1.0;
    const auto height = [&](int x, int y) {
        const int column = int((x + 0.5) * grid.columns / image.width());
        const int row = int((image.height() - y - 0.5) * grid.rows / image.height());
        return (grid.columnStarts[std::size_t(column)][row] - grid.zMin) / span;
    };
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const double here = height(x, y);
            if (std::isnan(here))
                continue;
            // Light from the north-west, as on maps.
            const double before = x > 0 && y > 0 ? height(x - 1, y - 1) : here;
            const double rise = std::isnan(before) ? 0.0 : std::clamp((here - before) / steepest, -1.0, 1.0);
            const QColor& colour = colours[std::size_t(std::clamp(here, 0.0, 1.0) * (shades - 1))];
            image.setPixelColor(x, y, colour.lighter(int(100.0 + contrast * rise)));
        }
    }
    return image;
}
