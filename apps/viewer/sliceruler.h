#pragma once

#include <QVector>

#include <vector>

/// Puts numbers on a side of a drawing: their range, where they stand and which of them are written.
class SliceRuler
{
public:
    /// Over all finite numbers, only those above zero with decades; a little wider by \a margin, a part of
    /// the range.
    SliceRuler(const std::vector<double>& numbers, bool logarithmic, double margin);

    /// 0 at the lower and 1 at the upper end; NaN for what has no place.
    double part(double number) const;
    /// Round numbers inside the range, at most about that many.
    QVector<double> ticks(int most) const;
    /// How many digits tell neighbouring ticks apart.
    int digits(int most) const;

private:
    double scaled(double number) const;
    double step(int most) const;

    bool m_logarithmic;
    double m_lower; ///< scaled
    double m_upper; ///< scaled, more than the lower end
};
