#include "plots/pickgrid.h"

#include "core/griddata.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

constexpr int tileSize = 8;

/// Every second bit of a number, from the lowest on: one coordinate of a place on the Z-order curve (Morton,
/// "A computer oriented geodetic data base", 1966).
int everySecondBit(int number)
{
    int result = 0;
    for (int bit = 0; bit < 16; ++bit)
        result |= (number >> 2 * bit & 1) << bit;
    return result;
}

} // namespace

PickGrid::PickGrid(const GridData& grid, int nodeStep, const std::array<bool, 3>& logarithmic)
    : data(grid), step(nodeStep), exponents(logarithmic)
{
    if (step < 1)
        return;
    columns = int(grid.columns()) / step;
    rows = int(grid.rows()) / step;
    if (size() == 0)
        return;
    tilesAcross = 1;
    while (tilesAcross * tileSize < std::max(columns, rows))
        tilesAcross *= 2;
}

int PickGrid::size() const
{
    return columns * rows;
}

QVector3D PickGrid::position(int index) const
{
    return data.valueAt(unsigned(index / rows * step), unsigned(index % rows * step));
}

SelectedObjectsInfo PickGrid::info(int index) const
{
    const auto column = unsigned(index / rows * step);
    const auto row = unsigned(index % rows * step);
    if (data.hasSelectValues()) {
        const double* given = data.selectVectorAt(column, row);
        return {given[0], given[1], given[2], true};
    }
    const double* drawn = data.valueVectorAt(column, row);
    const auto plain = [&](std::size_t k) { return exponents[k] ? std::pow(10.0, drawn[k]) : drawn[k]; };
    return {plain(0), plain(1), plain(2), true};
}

int PickGrid::groups() const
{
    return tilesAcross * tilesAcross;
}

void PickGrid::group(int number, std::vector<int>& indices) const
{
    const int left = everySecondBit(number) * tileSize;
    const int bottom = everySecondBit(number / 2) * tileSize;
    for (int i = left; i < std::min(left + tileSize, columns); ++i) {
        for (int j = bottom; j < std::min(bottom + tileSize, rows); ++j)
            indices.push_back(i * rows + j);
    }
}

} // namespace Zel3D
