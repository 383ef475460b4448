#pragma once

#include "core/scale.h"

namespace Zel3D {

/// Divides the major span into equal intervals.
class VORANPLOT_EXPORT LinearScale : public Scale
{
public:
    ~LinearScale() override = default;

    /// Majors at equal steps from one end of the major span to the other. A position that should be zero is
    /// exactly zero. The minors run from below the first major to above the last as far as the limits reach;
    /// every major but the first is also listed as a minor. A span that is empty or not finite gives no ticks
    /// and leaves the interval counts; a major interval of 0 sets both counts to 0.
    void calculate() override;
    std::shared_ptr<Scale> clone() const override;

private:
    bool calculateMajors();
    void calculateMinors();
};

} // namespace Zel3D
