#pragma once

#include "plots/shplot.h"
#include "vertexcolors.h"
#include "viewedplot.h"

#include <optional>

namespace Zel3D {
class GridMapping;
}
struct Grid;
struct Mesh;
struct TableGrid;

/// The surface plot with the viewer's start view, light and density of lines and markers.
class ViewerPlot : public ViewedPlot<Zel3D::SHPlot>
{
    Q_OBJECT
public:
    explicit ViewerPlot(QWidget* parent = nullptr);

    PlotKind kind() const override { return PlotKind::Surface; }
    /// Shows a grid from the start view; the plot keeps a copy. False when the plot does not take it.
    bool load(Grid& grid);
    /// The same with heights over lines that may stand unevenly.
    bool load(TableGrid& table);
    /// The same with a mesh, in equal units. Colours of its vertices go before those of the heights, until
    /// the person chooses another gradient.
    bool load(const Mesh& mesh);
    /// The same with what a mapping samples, in equal units.
    bool load(Zel3D::GridMapping& mapping);
    /// The part of the longer horizontal side that the heights take under automatic scaling. Without one the
    /// box is a cube.
    void setRelief(double part);
    /// Light as on shaded maps: the colours in the shade stay legible, and slopes towards the sun are
    /// bleached.
    void lightAsMap();
    /// As the base class does; the density of drawn nodes follows the style.
    bool setPlotStyle(int style) override;
    using PlotView::nameAxes;

protected:
    Zel3D::ValueXYZ<double> recalculateAutoScale() override;
    void dressed() override;

private:
    void lightFromNorthWest();
    void adaptResolution(int style);
    void nameAxes(const Grid& grid);

    int m_columns = 0;
    int m_rows = 0;
    std::optional<double> m_relief;
    std::shared_ptr<const VertexColors::Table> m_vertexColors;
};
