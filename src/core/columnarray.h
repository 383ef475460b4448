#pragma once

#include <cstddef>
#include <vector>

namespace Zel3D {

/// A zeroed array of columns by rows values in one block, with a pointer to the start of each column: the
/// shape in which a plot takes a grid.
template <class T>
class ColumnArray
{
public:
    ColumnArray() = default;
    ColumnArray(unsigned int columns, unsigned int rows)
        : values(std::size_t(columns) * rows, T()), starts(columns)
    {
        for (unsigned int i = 0; i < columns; ++i)
            starts[i] = values.data() + std::size_t(i) * rows;
    }
    // The pointers of a copy would point into the original; moving a block leaves it where it is.
    ColumnArray(const ColumnArray&) = delete;
    ColumnArray& operator=(const ColumnArray&) = delete;
    ColumnArray(ColumnArray&&) noexcept = default;
    ColumnArray& operator=(ColumnArray&&) noexcept = default;
    ~ColumnArray() = default;

    T* operator[](unsigned int column) { return starts[column]; }
    const T* operator[](unsigned int column) const { return starts[column]; }
    /// The column pointers, valid as long as the array.
    T** columns() { return starts.data(); }

private:
    std::vector<T> values;
    std::vector<T*> starts;
};

} // namespace Zel3D
