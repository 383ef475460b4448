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

    /// Looks up every \a rowStep -th node of a grid for a scope; behind it nothing is kept, because the grid
    /// and the colouring may change.
    class Use
    {
    public:
        Use(ColumnColors& colors, const GridData& grid, const DataColor& coloring, int rowStep) : used(colors)
        {
            used.data = &grid;
            used.color = &coloring;
            used.step = rowStep;
        }
        ~Use() { used = ColumnColors(); }
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

    private:
        ColumnColors& used;
    };

    /// Whether a use is in progress; only then at() can be asked.
    bool isReady() const { return data && color; }

    const Color& at(int column, int row)
    {
        // Asked for each node that a strip sends, the two columns in turn: no division, no state to flip.
        if (columns[0].index == column)
            return columns[0].colors[std::size_t(row)];
        if (columns[1].index != column)
            lookUp(column);
        const Column& entry = columns[columns[1].index == column ? 1 : 0];
        return entry.colors[std::size_t(row)];
    }

    static Color channels(const QColor& c)
    {
        Color result;
        c.getRgbF(&result[0], &result[1], &result[2], &result[3]);
        return result;
    }

private:
    struct Column
    {
        int index = -1;
        std::vector<Color> colors;
    };

    void lookUp(int column)
    {
        // Strips move on from column to column: the one looked up longer ago is done with.
        newest = 1 - newest;
        Column& entry = columns[newest];
        entry.index = column;
        const auto rows = int(data->rows());
        entry.colors.resize(std::size_t(rows));
        // In single precision, as the box is: the highest node takes the last colour.
        for (int row = 0; row < rows; row += step)
            entry.colors[std::size_t(row)] =
                channels((*color)(data->valueAt(unsigned(column), unsigned(row))));
    }

    const GridData* data = nullptr;
    const DataColor* color = nullptr;
    int step = 1;
    std::array<Column, 2> columns;
    std::size_t newest = 0;
};

} // namespace Zel3D
