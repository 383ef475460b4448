#pragma once

#include "plots/pickpoints.h"

namespace Zel3D {

/// Points without any order; the groups are cut from the Z-order curve through them.
class PickCloud : public PickPoints
{
public:
    int groups() const override;
    void group(int number, std::vector<int>& indices) const override;

protected:
    /// Orders the points; the constructor of the derived class calls it.
    void orderPoints();

private:
    std::vector<int> order; ///< the numbers of the points that are not missing, neighbours together
};

} // namespace Zel3D
