#pragma once

#include <cstddef>

namespace Zel3D {

/// The normals of a grid of nodes, from x, y, z triples stored column by column.
///
/// With P the single-precision points, a node's normal is the unit sum of the unit normals of the up to four
/// quarter triangles between the node and two neighbours, with the arithmetic of QVector3D::normal() and
/// QVector3D::normalize(): in particular a triangle of twice the area 1e-6 or less counts as flat and gives
/// nothing. A triangle with a corner that is not finite, or too large for the arithmetic, gives nothing
/// either.
///
/// Returns whether any value is not finite. Needs about sixty bytes of scratch memory a row.
bool gridNormals(const double* values, double* normals, std::size_t columns, std::size_t rows);

} // namespace Zel3D
