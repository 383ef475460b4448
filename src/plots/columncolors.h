#pragma once

#include "core/datacolor.h"
#include "core/griddata.h"

#include <array>
#include <vector>

namespace Zel3D {

/// The colours of the two columns of a grid that were used last, so that a strip that shares a column with
/// the one before it looks each node up once.
class ColumnColors
{
public:
    using Color = std::array<double, 4>; ///< red, green, blue, alpha, 0 to 1

    /// Forgets everything and looks up every \a step -th node from now on. Both arguments must outlive the
    /// use.
    void reset(const GridData* grid, const DataColor* coloring, int rowStep)
    {
        data = grid;
        color = coloring;
        step = rowStep;
        columns.fill(Column());
        newest = 0;
    }

    /// Whether reset() was given the grid and the colouring.
    bool isReady() const { return data && color; }

    const Color& at(int column, int row)
    {
        if (columns[newest].index != column) {
            newest = 1 - newest;
            if (columns[newest].index != column)
                lookUp(column);
        }
        return columns[newest].colors[std::size_t(row / step)];
    }

    static Color channels(const QColor& c) { return {c.redF(), c.greenF(), c.blueF(), c.alphaF()}; }

private:
    struct Column
    {
        int index = -1;
        std::vector<Color> colors;
    };

    void lookUp(int column)
    {
        Column& entry = columns[newest];
        entry.index = column;
        const auto rows = int(data->rows());
        entry.colors.resize(std::size_t((rows + step - 1) / step));
        for (int row = 0, k = 0; row < rows; row += step, ++k) {
            const double* p = data->valueVectorAt(unsigned(column), unsigned(row));
            entry.colors[std::size_t(k)] = channels((*color)(p[0], p[1], p[2]));
        }
    }

    const GridData* data = nullptr;
    const DataColor* color = nullptr;
    int step = 1;
    std::array<Column, 2> columns;
    std::size_t newest = 0;
};

} // namespace Zel3D
