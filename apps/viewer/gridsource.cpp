#include "gridsource.h"

#include "griddescription.h"
#include "gridpicture.h"
#include "terraingradient.h"
#include "viewerplot.h"
#include "viewerpreferences.h"

#include <QFileInfo>
#include <QLocale>

namespace {

constexpr double terrainRelief = 0.25;
constexpr int mapSide = 512;

QString number(int value)
{
    return QLocale().toString(value);
}

} // namespace

GridSource::GridSource(const QString& path, int band, const GridChoice& choice)
    : m_path(path), m_band(band), m_choice(choice)
{
    const QString file = QFileInfo(path).fileName();
    setName(choice.range ? tr("%1, part").arg(file) : file);
}

double GridSource::budget() const
{
    return m_choice.budget > 0.0 ? m_choice.budget : ViewerPreferences::nodeBudget();
}

std::unique_ptr<PlotSource> GridSource::part(const GridRange& range) const
{
    GridChoice choice = m_choice;
    choice.range = range;
    auto made = std::make_unique<GridSource>(m_path, m_band, choice);
    made->setLogarithmic(logarithmic());
    return made;
}

void GridSource::noteThinning(Grid& grid)
{
    m_map = QImage();
    setNotes({});
    if (grid.columns == m_layout.columns && grid.rows == m_layout.rows)
        return;
    m_map = gridPicture(grid, mapSide);
    setNotes(
        {tr("Shown thinned: %1 x %2 of %3 x %4 nodes; each is a mean of several.")
             .arg(number(grid.columns), number(grid.rows), number(m_layout.columns), number(m_layout.rows))});
}

std::unique_ptr<PlotView> GridSource::read(const LoadProgress& progress)
{
    Grid grid;
    GridFile reader(m_path);
    GridChoice choice = m_choice;
    choice.budget = budget();
    if (!reader.read(grid, m_band, choice, progress))
        return fail(reader.error());
    if (!progress.busy(LoadProgress::Drawing, drawingSeconds(grid)))
        return nullptr;
    m_layout = reader.layout();
    m_xName = grid.xName;
    m_yName = grid.yName;
    noteThinning(grid);
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
