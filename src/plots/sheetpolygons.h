#pragma once

#include "core/colortable.h"

#include <QVector3D>

#include <array>
#include <vector>

namespace Zel3D {

/// The polygons and lines of a sheet, ready to be sent: cut and coloured once for the two orders in which
/// sheets are drawn. In single precision, as OpenGL keeps them.
class SheetPolygons
{
public:
    /// Makes room for the usual number of corners of a curve.
    void reserve(std::size_t points)
    {
        vertices.reserve(usualCorners * points);
        polygons.reserve(points);
    }
    /// What follows is of this primitive, GL_POLYGON or GL_LINES.
    void begin(unsigned int primitive) { polygons.push_back({primitive, vertices.size()}); }
    void add(const ColorChannels& color, const QVector3D& p)
    {
        vertices.push_back(
            {{float(color[0]), float(color[1]), float(color[2]), float(color[3])}, {p.x(), p.y(), p.z()}});
        ++polygons.back().end;
    }
    bool isEmpty() const { return polygons.empty(); }
    /// Into the current context.
    void send() const;

private:
    static constexpr std::size_t usualCorners = 6;

    struct Vertex
    {
        std::array<float, 4> color;
        std::array<float, 3> place;
    };
    struct Polygon
    {
        unsigned int primitive;
        std::size_t end; ///< of its vertices; they begin at the end of the one before
    };

    std::vector<Vertex> vertices;
    std::vector<Polygon> polygons;
};

} // namespace Zel3D
