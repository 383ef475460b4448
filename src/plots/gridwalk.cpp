#include "plots/gridwalk.h"

namespace Zel3D {

void GridWalk::border() const
{
    if (step >= columns || step >= rows)
        return;
    QVector<QPoint> path;
    int i = 0;
    for (; i < columns - step; i += step)
        path.append(QPoint(i, 0));
    int j = 0;
    for (; j < rows - step; j += step)
        path.append(QPoint(i, j));
    for (; i >= 0; i -= step)
        path.append(QPoint(i, j));
    for (; j >= 0; j -= step)
        path.append(QPoint(0, j));
    send(path, GL_LINE_LOOP);
}

void GridWalk::send(const QVector<QPoint>& path, unsigned int mode) const
{
    if (whole) {
        glBegin(mode);
        for (const QPoint& p : path)
            glVertex3dv(vertex(p));
        glEnd();
        return;
    }
    // A piece runs from the first node present to the next one missing.
    for (int k = 0; k < path.size(); ++k) {
        if (!present(path[k].x(), path[k].y()))
            continue;
        glBegin(GL_LINE_STRIP);
        for (; k < path.size() && present(path[k].x(), path[k].y()); ++k)
            glVertex3dv(vertex(path[k]));
        glEnd();
    }
}

} // namespace Zel3D
