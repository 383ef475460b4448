#include "clipboardtable.h"
#include "fuzztarget.h"

#include <algorithm>
#include <cmath>

using FuzzTarget::demand;

namespace {

bool rises(const std::vector<double>& lines)
{
    return std::adjacent_find(lines.begin(), lines.end(), [](double a, double b) { return !(a < b); }) ==
           lines.end();
}

void checkGrid(ClipboardTable& table, TableMeaning meaning)
{
    TableGrid made;
    if (!table.makeGrid(meaning, made)) {
        demand(!table.error().isEmpty(), "a grid that cannot be made says why");
        return;
    }
    demand(made.grid.columns >= 2 && made.grid.rows >= 2, "a surface has an extent");
    demand(made.grid.xMin < made.grid.xMax && made.grid.yMin < made.grid.yMax, "its sides have a length");
    demand(rises(made.x) && rises(made.y), "columns and rows ascend");
    for (const double height : made.grid.heights)
        demand(!std::isinf(height), "heights can be drawn or are missing");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    ClipboardTable table(QString::fromUtf8(FuzzTarget::content(bytes, size)));
    if (!table.read()) {
        demand(!table.error().isEmpty(), "an error is told");
        return 0;
    }
    demand(table.columns() > 0 && table.rows() > 0, "a table has cells");
    demand(table.mayBe(table.guess()), "the guess is one of what may be");
    for (const TableMeaning meaning :
         {TableMeaning::Heights, TableMeaning::HeightsWithAxes, TableMeaning::HeightsWithX,
          TableMeaning::HeightsWithY, TableMeaning::Points}) {
        if (table.mayBe(meaning))
            checkGrid(table, meaning);
    }
    Spectra spectra;
    if (table.mayBe(TableMeaning::Spectra) && table.makeSpectra(spectra)) {
        demand(!spectra.map.empty(), "spectra hold something");
        for (const auto& spectrum : spectra.map)
            demand(std::isfinite(spectrum.first), "positions are finite");
    }
    return 0;
}
