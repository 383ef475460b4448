#pragma once

#include "plotvalues.h"

#include <map>
#include <vector>

namespace Zel3D {
class Spectrum;
}

/// The heights of a family of spectra; the columns are all positions that occur.
class SpectraValues : public PlotValues
{
public:
    explicit SpectraValues(Zel3D::Spectrum& plot);

    Kind kind() const override { return Kind::Spectra; }
    int columns() const override { return int(m_positions.size()); }
    int rows() const override { return int(m_spectra.size()); }
    double value(int column, int row) const override;
    bool exists(int column, int row) const override;
    double x(int column, int /*row*/) const override { return plain(m_positions[std::size_t(column)], 0); }
    double y(int /*column*/, int row) const override { return plain(m_outer[std::size_t(row)], 1); }
    std::optional<ValuePlace> find(const Zel3D::SelectedObjectsInfo& picked) const override;
    QVector3D drawn(int column, int row) const override;
    void visitHeights(const std::function<void(double)>& take) const override;

    int points(int row) const { return int(m_spectra[std::size_t(row)]->size()); }

private:
    double plain(double drawnAt, int direction) const;

    std::vector<double> m_positions; ///< as drawn
    std::vector<double> m_outer;     ///< the positions of the spectra as drawn
    std::vector<const std::map<double, double>*> m_spectra;
};
