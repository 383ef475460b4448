#pragma once

#include "plots/spectrum.h"
#include "viewedplot.h"

struct Spectra;

/// The spectrum plot with the viewer's start view: positions of the values to the right, the spectra one
/// behind the other.
class ViewerSpectrum : public ViewedPlot<Zel3D::Spectrum>
{
    Q_OBJECT
public:
    explicit ViewerSpectrum(QWidget* parent = nullptr);

    PlotKind kind() const override { return PlotKind::Spectra; }
    /// Shows spectra from the start view; the plot keeps a copy. False when the plot does not take them.
    bool load(const Spectra& spectra);

protected:
    Zel3D::ValueXYZ<double> recalculateAutoScale() override;

private:
    void setBox(const Spectra& spectra);
};
