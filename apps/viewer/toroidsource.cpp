#include "toroidsource.h"

#include "core/toroid.h"
#include "viewerplot.h"

namespace {

constexpr unsigned int around = 121;
constexpr unsigned int across = 61;

} // namespace

ToroidSource::ToroidSource()
{
    setName(tr("Toroid"));
}

QString ToroidSource::identity() const
{
    return QStringLiteral("Toroid");
}

std::unique_ptr<PlotView> ToroidSource::read(const LoadProgress& /*progress*/)
{
    Zel3D::Toroid toroid;
    toroid.setMesh(around, across);
    auto plot = std::make_unique<ViewerPlot>();
    if (!plot->load(toroid))
        return failToDraw();
    setDescription(tr("%L1 x %L2 nodes").arg(around).arg(across));
    return plot;
}
