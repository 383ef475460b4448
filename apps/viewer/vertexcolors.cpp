#include "vertexcolors.h"

#include "mesh.h"

#include <array>

namespace {

QByteArray keyOf(const QVector3D& p)
{
    // Adding zero makes one zero of both.
    const std::array<float, 3> place{p.x() + 0.0F, p.y() + 0.0F, p.z() + 0.0F};
    return QByteArray(reinterpret_cast<const char*>(place.data()), int(sizeof place));
}

} // namespace

std::shared_ptr<const VertexColors::Table> VertexColors::tableOf(const Mesh& mesh)
{
    if (mesh.colors.isEmpty())
        return nullptr;
    auto table = std::make_shared<Table>();
    table->reserve(mesh.vertices.size());
    for (int i = 0; i < mesh.vertices.size(); ++i)
        table->insert(keyOf(mesh.vertices.at(i)), mesh.colors.at(i));
    return table;
}

VertexColors::VertexColors(Zel3D::BasePlot* owner, const QString& name, const QGradient& stops,
                           std::shared_ptr<const Table> colors)
    : DataColor(owner, name, stops), m_table(std::move(colors))
{
}

QColor VertexColors::operator()(double x, double y, double z) const
{
    const auto found = m_table->constFind(keyOf(QVector3D(float(x), float(y), float(z))));
    return found == m_table->constEnd() ? DataColor::operator()(x, y, z) : QColor::fromRgba(*found);
}
