#include "fuzztarget.h"
#include "spectrafile.h"

#include <cmath>

using FuzzTarget::demand;

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Spectra spectra;
    spectra.spectraLabel = QStringLiteral("as it was");
    SpectraFile file(FuzzTarget::file("csv", bytes, size));
    if (!file.read(spectra)) {
        demand(!file.error().isEmpty(), "an error is told");
        demand(spectra.map.empty() && spectra.spectraLabel == QLatin1String("as it was"),
               "an error leaves the spectra as they were");
        return 0;
    }
    const auto count = static_cast<int>(spectra.map.size());
    demand(count > 0, "spectra hold something");
    demand(spectra.names.size() == count && spectra.lines.size() == count,
           "every spectrum has its name and line");
    for (const auto& spectrum : spectra.map) {
        demand(std::isfinite(spectrum.first), "positions are finite");
        for (const auto& value : spectrum.second)
            demand(std::isfinite(value.first) && !std::isinf(value.second),
                   "values can be drawn or are missing");
    }
    return 0;
}
