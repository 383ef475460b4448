#pragma once

#include "plotvalues.h"

namespace Zel3D {
class GridData;
class SHPlot;
} // namespace Zel3D

/// The heights of a surface over a grid.
class GridValues final : public PlotValues
{
public:
    explicit GridValues(Zel3D::SHPlot& plot);

    Kind kind() const override { return m_rectangular ? Kind::Surface : Kind::Points; }
    int columns() const override;
    int rows() const override;
    double value(int column, int row) const override { return component(column, row, 2); }
    double x(int column, int row) const override { return component(column, row, 0); }
    double y(int column, int row) const override { return component(column, row, 1); }
    bool isRectangular() const override { return m_rectangular; }
    std::optional<ValuePlace> find(const Zel3D::SelectedObjectsInfo& picked) const override;
    bool isSingle() const override;
    QVector3D drawn(int column, int row) const override;
    void visitHeights(const std::function<void(double)>& take) const override;

private:
    double component(int column, int row, int direction) const;
    bool findRectangular() const;

    const Zel3D::GridData& m_grid;
    bool m_rectangular;
};
