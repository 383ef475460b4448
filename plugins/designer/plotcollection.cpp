#include "plotcollection.h"

#include "plotwidget.h"
#include "samples.h"

#include <Zel3D/SHPlot>
#include <Zel3D/Spectrum>

namespace {

template <class Plot>
QWidget* makePlot(QWidget* parent, bool sample)
{
    auto* plot = new Plot(parent);
    if (sample)
        fillWithSample(*plot);
    return plot;
}

} // namespace

PlotCollection::PlotCollection()
{
    plots.append(new PlotWidget({"Zel3D::SHPlot", "Zel3D/SHPlot", "surfacePlot", "FilledMesh",
                                 ":/plot/images/filledmesh.svg", tr("Surface plot"),
                                 tr("Surfaces, point clouds, meshes and histograms in three dimensions"),
                                 &makePlot<Zel3D::SHPlot>},
                                this));
    plots.append(new PlotWidget({"Zel3D::Spectrum", "Zel3D/Spectrum", "spectrumPlot", "FilledFrame",
                                 ":/plot/images/spectrumfilled.svg", tr("Spectrum plot"),
                                 tr("Families of spectra that stand side by side in three dimensions"),
                                 &makePlot<Zel3D::Spectrum>},
                                this));
}
