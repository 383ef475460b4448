#pragma once

#include "formulaarea.h"
#include "plotsource.h"

/// A formula z = f(x, y) over an area.
class FormulaSource : public PlotSource
{
public:
    FormulaSource(const QString& formula, const FormulaArea& area);

protected:
    std::unique_ptr<PlotView> read(const LoadProgress& progress) override;

private:
    FormulaArea m_area;
};
