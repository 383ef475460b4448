#include "viewerspectrum.h"

#include "plotstyles.h"
#include "spectra.h"

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

void ViewerSpectrum::setBox(const Spectra& spectra)
{
    // The plot's own box also reaches to the position of the first spectrum, on the axis of the values.
    const auto infinity = std::numeric_limits<float>::infinity();
    QVector3D lower(infinity, infinity, infinity);
    QVector3D upper = -lower;
    for (const auto& [position, values] : spectra.map) {
        for (const auto& [at, value] : values) {
            const float place[] = {float(at), float(position), float(value)};
            for (int i = 0; i < 3; ++i) {
                // Missing values compare as neither.
                lower[i] = place[i] < lower[i] ? place[i] : lower[i];
                upper[i] = place[i] > upper[i] ? place[i] : upper[i];
            }
        }
    }
    setFixedHull({lower, upper});
}

bool ViewerSpectrum::load(const Spectra& spectra)
{
    if (!loadFromData(spectra.map, Zel3D::YAxis))
        return false;
    setBox(spectra);
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
