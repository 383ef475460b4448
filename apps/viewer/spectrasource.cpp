#include "spectrasource.h"

#include "plots/baseplot.h"
#include "spectra.h"
#include "spectrafile.h"
#include "viewerspectrum.h"

#include <QFileInfo>

#include <cmath>
#include <iterator>

namespace {

// Taking the values and the first picture of them.
constexpr double secondsPerValue = 1.5e-6;

// Enough for seconds since 1970.
constexpr int digits = 10;

/// Small numbers are picked in single precision, large ones are told from their neighbours.
int pickDigits(double value)
{
    return std::abs(value) < 1e6 ? 6 : digits;
}

} // namespace

SpectraSource::SpectraSource(const QString& path) : m_path(path)
{
    setName(QFileInfo(path).fileName());
}

std::unique_ptr<PlotView> SpectraSource::read(const LoadProgress& progress)
{
    Spectra spectra;
    SpectraFile reader(m_path);
    if (!reader.read(spectra, progress))
        return fail(reader.error());
    std::size_t values = 0;
    for (const auto& [position, spectrum] : spectra.map)
        values += spectrum.size();
    if (!progress.busy(LoadProgress::Drawing, double(values) * secondsPerValue))
        return nullptr;
    auto plot = std::make_unique<ViewerSpectrum>();
    prepare(*plot);
    if (!plot->load(spectra))
        return failToDraw();
    m_label = spectra.spectraLabel;
    int index = 0;
    for (const auto& [position, spectrum] : spectra.map)
        m_names[position] = spectra.names.value(index++);
    const QString box = tr("%L1 to %L2, values %L3 to %L4")
                            .arg(plot->lower()[0], 0, 'g', digits)
                            .arg(plot->upper()[0], 0, 'g', digits)
                            .arg(plot->lower()[2], 0, 'g', digits)
                            .arg(plot->upper()[2], 0, 'g', digits);
    setDescription(tr("%L1 spectra, %L2 points, %3").arg(spectra.map.size()).arg(values).arg(box));
    setNotes(spectra.notes);
    return plot;
}

QString SpectraSource::describe(const Zel3D::SelectedObjectsInfo& place) const
{
    // The plot tells single precision.
    auto nearest = m_names.lower_bound(place.y);
    if (nearest == m_names.end() ||
        (nearest != m_names.begin() && place.y - std::prev(nearest)->first < nearest->first - place.y))
        --nearest;
    return tr("%1 %2: %L3 at %L4")
        .arg(m_label, nearest->second)
        .arg(place.z)
        .arg(place.x, 0, 'g', pickDigits(place.x));
}
