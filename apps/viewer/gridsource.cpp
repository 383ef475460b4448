#include "gridsource.h"

#include "grid.h"
#include "griddescription.h"
#include "gridfile.h"
#include "terraingradient.h"
#include "viewerplot.h"

#include <QFileInfo>

namespace {

constexpr double terrainRelief = 0.25;

} // namespace

GridSource::GridSource(const QString& path, int band) : m_path(path), m_band(band)
{
    setName(QFileInfo(path).fileName());
}

std::unique_ptr<PlotView> GridSource::read()
{
    Grid grid;
    GridFile reader(m_path);
    if (!reader.read(grid, m_band))
        return fail(reader.error());
    auto plot = std::make_unique<ViewerPlot>();
    plot->setRelief(terrainRelief);
    plot->lightAsMap();
    prepare(*plot);
    plot->setDataGradient(QT_TRANSLATE_NOOP("GradientName", "Terrain"), terrainGradient());
    if (!plot->load(grid))
        return failToDraw();
    setDescription(describeGrid(grid));
    return plot;
}
