// Several plots in one window: four styles of one surface, with one view.

#include "core/functionof.h"
#include "example.h"
#include "plots/look.h"
#include "plots/shplot.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"

#include <QSplitter>

#include <cmath>

namespace {

Zel3D::SHPlot* makePlot(const QString& title, int style, int nodes)
{
    auto* plot = new Zel3D::SHPlot(title, "My company", "My program");
    Zel3D::Look look = Zel3D::Look::light();
    look.majorInterval = 4;
    look.titleFont.setPointSize(11);
    look.applyTo(*plot);
    plot->setKeepProportions(true);
    plot->setPlotStyle(style);
    plot->setDotSize(3.0);
    plot->slotSetTitle(title);
    plot->getLegend().setVisible(false);
    plot->getCoordinateSystem().setAxisNames("x", "y", "z");
    Zel3D::FunctionOf peaks(*plot, [](double x, double y) {
        return 3.0 * std::pow(1.0 - x, 2) * std::exp(-x * x - std::pow(y + 1.0, 2)) -
               10.0 * (x / 5.0 - std::pow(x, 3) - std::pow(y, 5)) * std::exp(-x * x - y * y) -
               std::exp(-std::pow(x + 1.0, 2) - y * y) / 3.0;
    });
    peaks.setMesh(unsigned(nodes), unsigned(nodes));
    peaks.setAreaLimits(-3.0, 3.0, -3.0, 3.0);
    peaks.create();
    plot->setFixedHull({{-3.0F, -3.0F, -8.0F}, {3.0F, 3.0F, 8.0F}});
    if (style >= 4)
        Example::light(*plot);
    plot->fitView(0.8);
    return plot;
}

/// The target turns and zooms as the source does. Setters that change nothing end the round.
void follow(Zel3D::SHPlot* source, Zel3D::SHPlot* target)
{
    QObject::connect(source, &Zel3D::SHPlot::rotationChanged, target, [target](double x, double y, double z) {
        target->slotSetRotation({x, y, z});
    });
    QObject::connect(source, &Zel3D::SHPlot::zoomChanged, target, &Zel3D::SHPlot::slotSetZoom);
}

} // namespace

int main(int argc, char* argv[])
{
    Example example(argc, argv);

    Zel3D::SHPlot* plots[] = {makePlot("Points", 1, 61), makePlot("Hidden line", 3, 41),
                              makePlot("Filled", 4, 121), makePlot("Filled and mesh", 5, 41)};
    for (int i = 0; i < 4; ++i)
        follow(plots[i], plots[(i + 1) % 4]);

    QSplitter window(Qt::Vertical);
    for (int row = 0; row < 2; ++row) {
        auto* halves = new QSplitter(&window);
        halves->addWidget(plots[2 * row]);
        halves->addWidget(plots[2 * row + 1]);
    }
    return example.run(window, QSize(1000, 800));
}
