#include "viewerspectrum.h"

#include "plotstyles.h"
#include "spectra.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double depthPart = 0.8;
constexpr double heightPart = 0.45;

} // namespace

ViewerSpectrum::ViewerSpectrum(QWidget* parent) : ViewedPlot(parent)
{
    setStartRotation({30.0, 0.0, 25.0});
    setLook(Zel3D::Look::light());
    setPlotStyle(PlotStyles::Lines);
    setDotSize(3.0);
    setDotSmooth(true);
    setMeshSmooth(true);
    setMeshLineWidth(1.5);
    setKeepProportions(true);
    setPickHighlight(true);
    resetView();
}

float ViewerSpectrum::drawn(double value, int direction) const
{
    const Zel3D::ValueXYZ<double>& origin = getDataOrigin();
    if (isLogarithmicData(Zel3D::BaseAxisType(direction)))
        return float(std::log10(value));
    return float(value - Corner{origin.x, origin.y, origin.z}[std::size_t(direction)]);
}

void ViewerSpectrum::measure(const Spectra& spectra)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    m_lower = {infinity, infinity, infinity};
    m_upper = {-infinity, -infinity, -infinity};
    for (const auto& [position, values] : spectra.map) {
        for (const auto& [at, value] : values) {
            const double place[] = {at, position, value};
            for (std::size_t i = 0; i < 3; ++i) {
                if (place[i] <= 0.0 && isLogarithmicData(Zel3D::BaseAxisType(i)))
                    continue;
                // Missing values compare as neither.
                m_lower[i] = place[i] < m_lower[i] ? place[i] : m_lower[i];
                m_upper[i] = place[i] > m_upper[i] ? place[i] : m_upper[i];
            }
        }
    }
}

void ViewerSpectrum::calculateHull()
{
    // The plot's own box also reaches to the position of the first spectrum, on the axis of the values.
    if (!std::all_of(m_lower.begin(), m_lower.end(), [](double value) { return std::isfinite(value); }))
        return Zel3D::Spectrum::calculateHull();
    const auto corner = [this](const Corner& p) {
        return QVector3D(drawn(p[0], 0), drawn(p[1], 1), drawn(p[2], 2));
    };
    setHull({corner(m_lower), corner(m_upper)});
}

bool ViewerSpectrum::load(const Spectra& spectra)
{
    measure(spectra);
    if (!loadFromData(spectra.map, Zel3D::YAxis))
        return false;
    nameAxes({spectra.positionLabel.isEmpty() ? tr("Position") : spectra.positionLabel, spectra.spectraLabel,
              tr("Value")});
    resetView();
    return true;
}

Zel3D::ValueXYZ<double> ViewerSpectrum::recalculateAutoScale()
{
    const Zel3D::ValueXYZ<double> cube = Zel3D::Spectrum::recalculateAutoScale();
    return {cube.x, depthPart * cube.y, heightPart * cube.z};
}
