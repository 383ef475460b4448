#include "viewerspectrum.h"

#include "plots/autoscaling.h"
#include "plotstyles.h"
#include "spectra.h"

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

bool ViewerSpectrum::load(const Spectra& spectra)
{
    if (!loadFromData(spectra.map, Zel3D::YAxis))
        return false;
    nameAxes({spectra.positionLabel.isEmpty() ? tr("Position") : spectra.positionLabel, spectra.spectraLabel,
              tr("Value")});
    resetView();
    return true;
}

Zel3D::ValueXYZ<double> ViewerSpectrum::recalculateAutoScale()
{
    const Zel3D::ValueXYZ<double> cube = Zel3D::AutoScaling::scaleOf(getHull());
    return {cube.x, depthPart * cube.y, heightPart * cube.z};
}
