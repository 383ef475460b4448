#pragma once

#include "plots/pickpoints.h"

#include <array>

namespace Zel3D {

class GridData;

/// Every step-th node of every step-th column of a grid; a group is a square tile of nodes.
class PickGrid final : public PickPoints
{
public:
    /// A \a step below 1 gives no points. \a logarithmic directions (x, y, z) are drawn as decimal exponents.
    PickGrid(const GridData& grid, int step, const std::array<bool, 3>& logarithmic);

    int size() const override;
    QVector3D position(int index) const override;
    SelectedObjectsInfo info(int index) const override;
    int groups() const override;
    void group(int number, std::vector<int>& indices) const override;

private:
    const GridData& data;
    int step;
    std::array<bool, 3> exponents;
    int columns = 0; ///< of the points
    int rows = 0;
    int tilesAcross = 0; ///< tiles of the square that holds the grid, a power of two
};

} // namespace Zel3D
