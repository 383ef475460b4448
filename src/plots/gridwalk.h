#pragma once

#include "core/griddata.h"
#include "view/opengl.h"

#include <QPoint>
#include <QVector>

namespace Zel3D {

/// Sends the nodes of a grid to OpenGL in the orders that the plot styles need: every step-th node of every
/// step-th column. Missing nodes break a strip or a line.
class GridWalk
{
public:
    /// \a nodeStep at least 1. The grid must outlive the object.
    GridWalk(const GridData& grid, int nodeStep)
        : data(grid),
          columns(int(grid.columns())),
          rows(int(grid.rows())),
          step(nodeStep),
          whole(!grid.hasMissing())
    {
    }

    /// The surface: one GL_TRIANGLE_STRIP a pair of columns. \a sender makes, for a column, what sends a node
    /// of it given by row: sender(column)(row).
    template <class Sender>
    void strips(const Sender& sender) const
    {
        for (int i = 0; i < columns - step; i += step) {
            const auto left = sender(i);
            const auto right = sender(i + step);
            if (whole)
                strip(left, right);
            else
                brokenStrip(i, left, right);
        }
    }

    /// The inner lines along a column, one GL_LINE_STRIP each.
    void columnLines() const
    {
        for (int i = step; i < columns - step; i += step)
            line(rows, [i](int j) { return QPoint(i, j); });
    }

    /// The inner lines along a row.
    void rowLines() const
    {
        for (int j = step; j < rows - step; j += step)
            line(columns, [j](int i) { return QPoint(i, j); });
    }

    /// The outline as one GL_LINE_LOOP: along row 0, up the last column reached, back along the last row
    /// reached and down column 0. With missing nodes: the pieces between them.
    void border() const;

    /// Every step-th node up to and including the last that is reached; missing nodes are left out.
    template <class Node>
    void nodes(const Node& node) const
    {
        for (int i = 0; i <= columns - step; i += step) {
            for (int j = 0; j <= rows - step; j += step) {
                if (whole || present(i, j))
                    node(i, j);
            }
        }
    }

private:
    bool present(int column, int row) const { return !data.isMissing(unsigned(column), unsigned(row)); }
    const double* vertex(const QPoint& p) const
    {
        return data.valueVectorAt(unsigned(p.x()), unsigned(p.y()));
    }

    template <class Node>
    void strip(const Node& left, const Node& right) const
    {
        glBegin(GL_TRIANGLE_STRIP);
        left(0);
        right(0);
        for (int j = 0; j < rows - step;) {
            j += step;
            left(j);
            right(j);
        }
        glEnd();
    }

    /// As strip(), in the pieces whose nodes are all there; a piece of one pair has no area and is not sent.
    template <class Node>
    void brokenStrip(int i, const Node& left, const Node& right) const
    {
        const int last = (rows - 1) / step * step;
        const auto pair = [&](int j) { return j <= last && present(i, j) && present(i + step, j); };
        for (int j = 0; j <= last; j += step) {
            if (!pair(j) || !pair(j + step))
                continue;
            glBegin(GL_TRIANGLE_STRIP);
            for (; pair(j); j += step) {
                left(j);
                right(j);
            }
            glEnd();
        }
    }

    template <class Place>
    void line(int count, const Place& place) const
    {
        QVector<QPoint> path;
        path.reserve(count / step + 1);
        for (int k = 0; k < count; k += step)
            path.append(place(k));
        send(path, GL_LINE_STRIP);
    }

    void send(const QVector<QPoint>& path, unsigned int mode) const;

    const GridData& data;
    int columns;
    int rows;
    int step;
    bool whole;
};

} // namespace Zel3D
