#include "formulasource.h"

#include "formula.h"
#include "griddescription.h"
#include "viewerplot.h"

namespace {

constexpr double formulaRelief = 0.4;

} // namespace

FormulaSource::FormulaSource(const QString& formula, const FormulaArea& area) : m_area(area)
{
    setName(formula.simplified());
}

std::unique_ptr<PlotView> FormulaSource::read(const LoadProgress& progress)
{
    Formula formula(name());
    Grid grid;
    if (!formula.read(grid, m_area, progress))
        return fail(formula.error());
    grid.name.clear();
    if (!progress.busy(LoadProgress::Drawing, drawingSeconds(grid)))
        return nullptr;
    auto plot = std::make_unique<ViewerPlot>();
    plot->setRelief(formulaRelief);
    prepare(*plot);
    if (!plot->load(grid))
        return failToDraw();
    setDescription(describeGrid(grid));
    setNotes(formula.notes());
    return plot;
}
