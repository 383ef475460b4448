#pragma once

#include "core/spectrumdata.h"

#include <QString>
#include <QVector3D>
#include <QVector>

namespace Zel3D {

/// Tells what is wrong with data before a plot clears anything for it. Each check returns an empty text for
/// usable data, otherwise a sentence that names what, where and which value.
namespace DataCheck {

/// A height array, columns first.
QString heights(const double* const* z, unsigned int columns, unsigned int rows, double xMin, double xMax,
                double yMin, double yMax);
/// A point array, columns first.
QString points(const QVector3D* const* nodes, unsigned int columns, unsigned int rows, double stepX,
               double stepY);
/// Vertices and cells that name them.
QString cells(const QVector<QVector3D>& vertices, const QVector<QVector<unsigned int>>& cells, double stepX,
              double stepY);
/// Spectra: the keys must be finite and the axis horizontal.
QString spectra(const SpectrumData::Map& spectra, BaseAxisType axis);

} // namespace DataCheck

} // namespace Zel3D
