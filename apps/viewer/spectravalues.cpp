#include "spectravalues.h"

#include "plots/spectrum.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

std::size_t nearest(const std::vector<double>& ascending, double wanted)
{
    const auto found = std::lower_bound(ascending.begin(), ascending.end(), wanted);
    if (found == ascending.begin())
        return 0;
    const auto index = std::size_t(found - ascending.begin());
    if (found == ascending.end() || wanted - ascending[index - 1] < *found - wanted)
        return index - 1;
    return index;
}

} // namespace

SpectraValues::SpectraValues(Zel3D::Spectrum& shown) : PlotValues(shown)
{
    std::vector<double> all;
    for (const auto& [outer, spectrum] : shown.getSpectrumData()->getSpectrum()) {
        m_outer.push_back(outer);
        m_spectra.push_back(&spectrum);
        // Most families have the same positions throughout.
        const bool same =
            all.size() == spectrum.size() &&
            std::equal(all.begin(), all.end(), spectrum.begin(),
                       [](double position, const auto& point) { return position == point.first; });
        if (same)
            continue;
        std::vector<double> merged;
        std::vector<double> own;
        for (const auto& point : spectrum)
            own.push_back(point.first);
        std::set_union(all.begin(), all.end(), own.begin(), own.end(), std::back_inserter(merged));
        all = std::move(merged);
    }
    m_positions = std::move(all);
}

double SpectraValues::plain(double drawnAt, int direction) const
{
    if (isLogarithmic(Zel3D::BaseAxisType(direction)))
        return std::pow(10.0, drawnAt);
    const Zel3D::ValueXYZ<double>& origin = plot().getDataOrigin();
    return drawnAt + std::array<double, 3>{origin.x, origin.y, origin.z}[std::size_t(direction)];
}

bool SpectraValues::exists(int column, int row) const
{
    return m_spectra[std::size_t(row)]->count(m_positions[std::size_t(column)]) > 0;
}

double SpectraValues::value(int column, int row) const
{
    const std::map<double, double>& spectrum = *m_spectra[std::size_t(row)];
    const auto found = spectrum.find(m_positions[std::size_t(column)]);
    return found == spectrum.end() || !std::isfinite(found->second) ? std::numeric_limits<double>::quiet_NaN()
                                                                    : plain(found->second, 2);
}

std::optional<ValuePlace> SpectraValues::find(const Zel3D::SelectedObjectsInfo& picked) const
{
    if (!picked.valid || m_spectra.empty() || m_positions.empty())
        return std::nullopt;
    const auto drawnAt = [this](double value, int direction) {
        return isLogarithmic(Zel3D::BaseAxisType(direction)) ? std::log10(value)
                                                             : value - (plain(0.0, direction));
    };
    return ValuePlace{int(nearest(m_positions, drawnAt(picked.x, 0))),
                      int(nearest(m_outer, drawnAt(picked.y, 1)))};
}

QVector3D SpectraValues::drawn(int column, int row) const
{
    const std::map<double, double>& spectrum = *m_spectra[std::size_t(row)];
    const auto found = spectrum.find(m_positions[std::size_t(column)]);
    const double height = found == spectrum.end() ? std::numeric_limits<double>::quiet_NaN() : found->second;
    return {float(m_positions[std::size_t(column)]), float(m_outer[std::size_t(row)]), float(height)};
}

void SpectraValues::visitHeights(const std::function<void(double)>& take) const
{
    for (const auto* spectrum : m_spectra) {
        for (const auto& point : *spectrum)
            take(std::isfinite(point.second) ? plain(point.second, 2)
                                             : std::numeric_limits<double>::quiet_NaN());
    }
}
