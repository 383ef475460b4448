#pragma once

#include "plots/columncolors.h"

#include <array>
#include <vector>

namespace Zel3D {

/// The surface of a grid as vertex arrays: made much faster than a display list, drawn about as fast, and the
/// same picture.
class GridArrays
{
public:
    /// Takes every \a step -th node of every step-th column, in single precision. The grid must have no
    /// missing node. What GridWalk::strips() would not reach is left out.
    void fill(const GridData& grid, ColumnColors& colors, int step);
    /// Frees the arrays.
    void clear();
    bool isEmpty() const { return indices.empty(); }
    /// The strips of the surface in one call. Needs a current context; the current colour and normal are
    /// undefined afterwards.
    void draw() const;

private:
    struct Node
    {
        std::array<float, 3> position;
        std::array<float, 3> normal;
        std::array<float, 4> color;
    };

    void joinStrips(unsigned int columns, unsigned int rows);

    std::vector<Node> nodes;           ///< column by column
    std::vector<unsigned int> indices; ///< of one strip for all, with triangles without area in between
    unsigned int stripColumns = 0;     ///< for which the indices were made
    unsigned int stripRows = 0;
};

} // namespace Zel3D
