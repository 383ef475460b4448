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
    /// The box of the data in the file's values, as far as they are drawn.
    const Zel3D::Parallelepiped& box() const { return m_box; }

protected:
    Zel3D::ValueXYZ<double> recalculateAutoScale() override;

private:
    void setBox(const Spectra& spectra);
    /// Where a value of the file is drawn.
    float drawn(double value, int direction) const;

    Zel3D::Parallelepiped m_box;
};
