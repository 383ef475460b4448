#include "watersource.h"

#include "viewerplot.h"
#include "watersimulation.h"

namespace {

constexpr double waterRelief = 0.35;

QLinearGradient waterGradient()
{
    QLinearGradient gradient;
    gradient.setColorAt(0.0, QColor(12, 44, 92));
    gradient.setColorAt(0.4, QColor(34, 112, 168));
    gradient.setColorAt(0.7, QColor(112, 186, 214));
    gradient.setColorAt(1.0, QColor(226, 244, 246));
    return gradient;
}

} // namespace

WaterSource::WaterSource()
{
    setName(tr("Water surface"));
}

WaterSource::~WaterSource() = default;

QString WaterSource::identity() const
{
    return QStringLiteral("Water surface");
}

std::unique_ptr<PlotView> WaterSource::read(const LoadProgress& /*progress*/)
{
    auto plot = std::make_unique<ViewerPlot>();
    plot->setRelief(waterRelief);
    plot->setDataGradient(QT_TRANSLATE_NOOP("GradientName", "Water"), waterGradient());
    m_simulation = std::make_unique<WaterSimulation>(*plot);
    if (!m_simulation->fill())
        return failToDraw();
    plot->nameAxes({tr("x"), tr("y"), tr("z")});
    plot->resetView();
    m_simulation->dropStone();
    setDescription(tr("Ctrl+D drops a stone, F5 pauses."));
    return plot;
}

WaterSimulation* WaterSource::simulation()
{
    return m_simulation.get();
}
