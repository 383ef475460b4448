#pragma once

#include "core/colorlookup.h"
#include "core/griddata.h"
#include "core/tofloat.h"

#include <array>
#include <vector>

namespace Zel3D {

/// The colours of the two columns of a grid that were used last, so that a strip that shares a column with
/// the one before it looks each node up once.
class ColumnColors
{
public:
    /// Looks up every \a rowStep -th node. The grid and the colouring must outlive the object and stay as
    /// they are.
    ColumnColors(const GridData& grid, const DataColor& coloring, int rowStep)
        : data(grid), color(coloring), step(rowStep)
    {
    }

    /// The colours of a column by row. They hold until the column after the next is asked for.
    const ColorChannels* column(int index)
    {
        for (const Column& entry : columns) {
            if (entry.index == index)
                return entry.colors.data();
        }
        // Strips move on from column to column: the one looked up longer ago is done with.
        newest = 1 - newest;
        lookUp(columns[newest], index);
        return columns[newest].colors.data();
    }
    /// Whether it is known that no colour lets anything through.
    bool isOpaque() const { return color.isOpaque(); }

private:
    struct Column
    {
        int index = -1;
        std::vector<ColorChannels> colors;
    };

    void lookUp(Column& entry, int index)
    {
        entry.index = index;
        const auto rows = int(data.rows());
        entry.colors.resize(std::size_t(rows));
        // In single precision, as the box is: the highest node takes the last colour.
        if (step == 1 && color.isByHeight()) {
            heights.resize(std::size_t(rows));
            const double* value = data.valueVectorAt(unsigned(index), 0) + 2;
            for (double& height : heights) {
                height = double(toFloat(*value));
                value += 3;
            }
            color.ofHeights(heights, entry.colors.data());
            return;
        }
        for (int row = 0; row < rows; row += step)
            entry.colors[std::size_t(row)] = color(data.valueAt(unsigned(index), unsigned(row)));
    }

    const GridData& data;
    const ColorLookup color;
    int step;
    std::array<Column, 2> columns;
    std::vector<double> heights; // of the column that is looked up
    std::size_t newest = 0;
};

} // namespace Zel3D
