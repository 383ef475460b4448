#include "plots/gridarrays.h"

#include "core/tofloat.h"
#include "view/opengl.h"

namespace Zel3D {

namespace {

/// Nodes at 0, step, 2 step ... below a number.
unsigned int reached(unsigned int count, int step)
{
    return count == 0 ? 0 : (count - 1) / unsigned(step) + 1;
}

std::array<float, 3> floats(const double* values)
{
    return {toFloat(values[0]), toFloat(values[1]), toFloat(values[2])};
}

std::array<float, 4> floats(const ColorChannels& color)
{
    return {float(color[0]), float(color[1]), float(color[2]), float(color[3])};
}

} // namespace

void GridArrays::fill(const GridData& grid, ColumnColors& colors, int step)
{
    const unsigned int columns = reached(grid.columns(), step);
    const unsigned int rows = reached(grid.rows(), step);
    if (columns < 2 || rows < 2) {
        clear();
        return;
    }
    if (columns != stripColumns || rows != stripRows) {
        clear();
        nodes.resize(std::size_t(columns) * rows);
        joinStrips(columns, rows);
    }
    Node* node = nodes.data();
    for (unsigned int i = 0; i < columns; ++i) {
        const unsigned int column = i * unsigned(step);
        const ColorChannels* color = colors.column(int(column));
        const double* value = grid.valueVectorAt(column, 0);
        const double* normal = grid.normalVectorAt(column, 0);
        for (unsigned int j = 0; j < rows; ++j, ++node) {
            const std::size_t row = std::size_t(j) * std::size_t(step);
            *node = {floats(value + 3 * row), floats(normal + 3 * row), floats(color[row])};
        }
    }
}

// A strip for each pair of columns; the last node of one and the first of the next are repeated. Each has an
// even number of nodes, so that all wind the same way.
void GridArrays::joinStrips(unsigned int columns, unsigned int rows)
{
    stripColumns = columns;
    stripRows = rows;
    indices.reserve((std::size_t(columns) - 1) * (2 * std::size_t(rows) + 2));
    for (unsigned int i = 0; i + 1 < columns; ++i) {
        const unsigned int left = i * rows;
        const unsigned int right = left + rows;
        if (i > 0) {
            indices.push_back(indices.back());
            indices.push_back(left);
        }
        for (unsigned int j = 0; j < rows; ++j) {
            indices.push_back(left + j);
            indices.push_back(right + j);
        }
    }
}

void GridArrays::clear()
{
    nodes = std::vector<Node>();
    indices = std::vector<unsigned int>();
    stripColumns = 0;
    stripRows = 0;
}

void GridArrays::draw() const
{
    if (isEmpty())
        return;
    glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_NORMAL_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
    glVertexPointer(3, GL_FLOAT, sizeof(Node), nodes.front().position.data());
    glNormalPointer(GL_FLOAT, sizeof(Node), nodes.front().normal.data());
    glColorPointer(4, GL_FLOAT, sizeof(Node), nodes.front().color.data());
    glDrawElements(GL_TRIANGLE_STRIP, GLsizei(indices.size()), GL_UNSIGNED_INT, indices.data());
    glPopClientAttrib();
}

} // namespace Zel3D
