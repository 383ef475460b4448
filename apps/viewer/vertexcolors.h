#pragma once

#include "core/datacolor.h"

#include <QColor>
#include <QHash>
#include <QVector3D>

#include <memory>

struct Mesh;

/// Colours the vertices of a mesh as its file does. Anything else is coloured by its height.
class VertexColors : public Zel3D::DataColor
{
public:
    /// The colours by the bits of a place.
    using Table = QHash<QByteArray, QRgb>;

    /// The colours of a mesh; null for a mesh without them.
    static std::shared_ptr<const Table> tableOf(const Mesh& mesh);

    /// \a stops give the colours of what is no vertex and of the legend.
    VertexColors(Zel3D::BasePlot* owner, const QString& name, const QGradient& stops,
                 std::shared_ptr<const Table> colors);

    QColor operator()(double x, double y, double z) const override;
    using DataColor::operator();

private:
    std::shared_ptr<const Table> m_table;
};
