#pragma once

#include "plotvalues.h"

namespace Zel3D {
class CellData;
class SHPlot;
} // namespace Zel3D

/// The vertices of a mesh.
class MeshValues : public PlotValues
{
public:
    explicit MeshValues(Zel3D::SHPlot& plot);

    Kind kind() const override { return Kind::Mesh; }
    int columns() const override { return 3; }
    int rows() const override;
    double value(int column, int row) const override;
    double x(int /*column*/, int row) const override { return value(0, row); }
    double y(int /*column*/, int row) const override { return value(1, row); }
    bool isRectangular() const override { return false; }
    std::optional<ValuePlace> find(const Zel3D::SelectedObjectsInfo& picked) const override;
    bool isSingle() const override { return true; }
    QVector3D drawn(int column, int row) const override;
    void visitHeights(const std::function<void(double)>& take) const override;

    int cells() const;

private:
    const Zel3D::CellData& m_data;
};
