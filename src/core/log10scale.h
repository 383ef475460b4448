#pragma once

#include "core/scale.h"

namespace Zel3D {

/// Works in decimal exponents: limits and positions are log10 of the values, majors fall on whole exponents
/// and texts show 10 to the power of the position.
class VORANPLOT_EXPORT Log10Scale : public Scale
{
public:
    Log10Scale();
    ~Log10Scale() override = default;

    /// 10 to the power of major i with six significant digits, whatever the format; empty without such a
    /// tick.
    QString ticLabel(int i) const override;
    /// Majors on the whole exponents inside the limits, which are first clamped to -307 and 308. The minors
    /// of each decade descend. The first mantissa above the last major is always left out.
    void calculate() override;
    std::shared_ptr<Scale> clone() const override;

    /// The mantissas of a decade's minors, from the minor interval: first, first - decrement and so on while
    /// above 1.
    void setupCounter(double& first, int& decrement);

private:
    void calculateMinors();
};

} // namespace Zel3D
