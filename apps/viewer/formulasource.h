#pragma once

#include "formulaarea.h"
#include "plotsource.h"

/// A formula z = f(x, y) over an area.
class FormulaSource : public PlotSource
{
public:
    FormulaSource(const QString& formula, const FormulaArea& area);

protected:
    std::unique_ptr<PlotView> read() override;

private:
    FormulaArea m_area;
};
