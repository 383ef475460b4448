// What of the spectra can be picked: their points.

#include "plots/baseplotsettings.h"
#include "plots/dot.h"
#include "plots/pickspectrum.h"
#include "plots/spectrum.h"

namespace Zel3D {

namespace {
enum PlotStyle { CustomMarkers = -1, NoPlot = 0, Points = 1 };
} // namespace

std::unique_ptr<PickPoints> Spectrum::createPickPoints() const
{
    std::vector<ValueXYZ<double>> points;
    const int step = markerStep();
    if (step < 1 || getData() != spectrumData.get())
        return nullptr;
    const bool alongX = spectrumData->getAxis() == XAxis;
    for (const auto& [outer, values] : spectrumData->getSpectrum()) {
        for (auto point = values.begin(); point != values.end(); advance(point, values, step)) {
            if (alongX)
                points.push_back({outer, point->first, point->second});
            else
                points.push_back({point->first, outer, point->second});
        }
    }
    return std::make_unique<PickSpectrum>(std::move(points), getLoadedLogarithmic(), getDataOrigin());
}

int Spectrum::countPickPoints() const
{
    const int step = markerStep();
    if (step < 1 || !getData() || getData() != spectrumData.get())
        return 0;
    int count = 0;
    for (const auto& [outer, values] : spectrumData->getSpectrum())
        count += values.empty() ? 0 : 1 + (int(values.size()) - 1) / step;
    return count;
}

template <class Use>
void Spectrum::withPickMarker(const Use& use)
{
    const int style = getSettings().getStyle();
    if (!canDrawData() || style == NoPlot)
        return;
    if (style == Points) {
        use(settingsRecord().getDot());
    } else if (style != CustomMarkers) {
        // Lines and sheets are picked through their points.
        Dot dot(0.1, false);
        use(dot);
    } else if (heldStyleAddition()) {
        use(*heldStyleAddition());
    }
}

void Spectrum::selectData()
{
    withPickMarker([this](Addition& marker) { selectAddition(marker); });
}

int Spectrum::getNumberSelectedData()
{
    int count = 0;
    withPickMarker([&](Addition& marker) { count = getNumberSelectedAddition(marker); });
    return count;
}

void Spectrum::selectAddition(Addition& addition)
{
    if (getNumberSelectedAddition(addition) == 0)
        return;
    addition.setPlot(*this);
    selectMarkers(addition);
}

int Spectrum::getNumberSelectedAddition(Addition& addition)
{
    return addition.type() == 0 ? countPickPoints() : 0;
}

} // namespace Zel3D
