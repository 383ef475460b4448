#include "formula.h"
#include "fuzztarget.h"

#include <cmath>

using FuzzTarget::demand;

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QString text = QString::fromUtf8(FuzzTarget::content(bytes, size));
    QString error;
    FormulaArea area;
    if (!area.setRange(text, error))
        demand(!error.isEmpty(), "an error is told");
    demand(area.xMin < area.xMax && area.yMin < area.yMax, "ranges have a width");
    error.clear();
    area = FormulaArea();
    if (!area.setMesh(text, error))
        demand(!error.isEmpty() && area.columns == FormulaArea().columns, "an error is told, the mesh stays");
    demand(area.columns >= 2 && area.rows >= 2, "a mesh has an extent");

    Formula formula(text);
    demand(formula.isValid() == formula.error().isEmpty(), "an invalid formula says why");
    area = FormulaArea();
    area.columns = area.rows = 4;
    Grid grid;
    if (formula.isValid() && formula.read(grid, area)) {
        for (const double height : grid.heights)
            demand(!std::isinf(height), "heights can be drawn or are missing");
        demand(grid.validNodes > 0, "a surface has heights");
    }
    return 0;
}
