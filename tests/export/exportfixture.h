#pragma once

#include "../plots/plotfixture.h"
#include "plots/look.h"
#include "scene/title.h"
#include "view/light.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace fixture {

inline double hill(int column, int row)
{
    const double x = (column - 20) / 8.0;
    const double y = (row - 20) / 8.0;
    return 8.0 * std::exp(-(x * x + y * y) / 2.0) - 3.0 * std::exp(-((x - 1.5) * (x - 1.5) + y * y));
}

/// A lit hill with everything around it, in a font that the machines of the tests have.
inline bool makeHill(Plot& plot, int step = 1)
{
    Zel3D::Look look = Zel3D::Look::light();
    look.titleFont = QFont("DejaVu Sans", 10, QFont::Bold);
    look.nameFont = QFont("DejaVu Sans", 8);
    look.numberFont = QFont("DejaVu Sans", 7);
    look.applyTo(plot);
    const char* const names[] = {"East", "North", "Height"};
    for (int i = 0; i < 12; ++i) {
        const auto axis = Zel3D::AxisType(i);
        plot.getCoordinateSystem().getAxis(axis).getLabel().getSettings().setText(names[baseAxisType(axis)]);
    }
    plot.getLights().first()->setPhi(135.0);
    plot.getLights().first()->setTheta(60.0);
    plot.getLights().first()->setOn(true);
    plot.setLighting(true);
    plot.setKeepProportions(true);
    plot.setZoom(0.7);
    plot.setPlotStyle(5);
    plot.setResolution(step);
    plot.setRotation({30, 0, 35});
    plot.slotSetTitle("A hill");
    plot.getLegend().setVisible(true);
    return Heights(41, 41, hill).into(plot);
}

/// Part of the pixels in which a channel differs by more than a limit.
inline double difference(const QImage& a, const QImage& b, int limit)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor other = b.pixelColor(x, y);
            const int most =
                std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                          std::abs(one.blue() - other.blue())});
            count += most > limit ? 1 : 0;
        }
    }
    return double(count) / (a.width() * a.height());
}

} // namespace fixture
