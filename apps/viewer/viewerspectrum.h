#pragma once

#include "plots/spectrum.h"
#include "viewedplot.h"

#include <array>
#include <cmath>

struct Spectra;

/// The spectrum plot with the viewer's start view: positions of the values to the right, the spectra one
/// behind the other.
class ViewerSpectrum : public ViewedPlot<Zel3D::Spectrum>
{
    Q_OBJECT
public:
    using Corner = std::array<double, 3>; ///< x, y, z

    explicit ViewerSpectrum(QWidget* parent = nullptr);

    PlotKind kind() const override { return PlotKind::Spectra; }
    /// Shows spectra from the start view; the plot keeps a copy. False when the plot does not take them.
    bool load(const Spectra& spectra);
    /// The smallest and the largest of what is drawn of each direction, in the file's values.
    const Corner& lower() const { return m_lower; }
    const Corner& upper() const { return m_upper; }

protected:
    Zel3D::ValueXYZ<double> recalculateAutoScale() override;
    /// The box of the data alone, with the detail of positions far from zero.
    void calculateHull() override;

private:
    void measure(const Spectra& spectra);
    /// Where a value of the file is drawn.
    float drawn(double value, int direction) const;

    Corner m_lower{NAN, NAN, NAN};
    Corner m_upper{NAN, NAN, NAN};
};
