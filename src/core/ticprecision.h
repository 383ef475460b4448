#pragma once

#include <QVector>

namespace Zel3D {

/// The number of significant digits, 2 to 12, with which the 'g' texts of equally spaced ticks state their
/// values: each text reads back as its value to within a hundredth of the step, and no tick from 0.0001 to
/// 99999 needs an exponent.
int ticPrecision(const QVector<double>& majors);

} // namespace Zel3D
