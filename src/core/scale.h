#pragma once

#include "core/export.h"

#include <QString>
#include <QVector>

#include <memory>

namespace Zel3D {

/// Divides an axis range into major and minor tick positions and turns a major position into its text.
///
/// Set the limits and interval counts, call calculate(), then read the positions and the texts. The positions
/// are in the units of the limits.
class VORANPLOT_EXPORT Scale
{
public:
    Scale() = default;
    Scale(const Scale&) = default;
    Scale& operator=(const Scale&) = default;
    virtual ~Scale() = default;

    /// The text of major tick i; empty when there is no such tick.
    virtual QString ticLabel(int i) const;
    /// The range of the axis, in either order.
    virtual void setLimits(double a, double b);
    /// The number of major intervals to make. calculate() stores the number that it made.
    virtual void setMajorInterval(int n);
    /// The minor intervals of one major interval.
    virtual void setMinorInterval(int n);
    /// The span that the majors divide, in either order.
    virtual void setMajorLimits(double a, double b);
    /// Format character and precision of the texts, as in QString::number.
    virtual void setTicFormat(char format, int precision);
    /// Rebuilds the tick positions.
    virtual void calculate() = 0;
    /// A copy of the scale for a copied axis; null where a class offers none, and then the axes share the
    /// scale.
    virtual std::shared_ptr<Scale> clone() const;

    /// Ascending.
    const QVector<double>& getMajors() const { return majors; }
    /// In the order in which calculate() makes them, which is not sorted.
    const QVector<double>& getMinors() const { return minors; }
    double getStart() const { return start; }
    double getStop() const { return stop; }
    int getMajorInterval() const { return majorInterval; }
    int getMinorInterval() const { return minorInterval; }
    double getMajorStart() const { return majorStart; }
    double getMajorStop() const { return majorStop; }

protected:
    QVector<double> majors;
    QVector<double> minors;
    double start = 0.0;
    double stop = 0.0;
    int majorInterval = 0;
    int minorInterval = 0;
    double majorStart = 0.0;
    double majorStop = 0.0;
    char ticFormat = 'g';
    int ticPrecision = 2;
};

} // namespace Zel3D
