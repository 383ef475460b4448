#include "plots/sheetpolygons.h"

#include "view/opengl.h"

namespace Zel3D {

void SheetPolygons::send() const
{
    std::size_t next = 0;
    for (const Polygon& polygon : polygons) {
        glBegin(polygon.primitive);
        for (; next < polygon.end; ++next) {
            const auto& [color, place] = vertices[next];
            glColor4f(color[0], color[1], color[2], color[3]);
            glVertex3f(place[0], place[1], place[2]);
        }
        glEnd();
    }
}

} // namespace Zel3D
