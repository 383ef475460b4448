#pragma once

#include "plots/look.h"
#include "plots/shplot.h"

#include <QImage>
#include <QSize>

struct Grid;

/// The surface plot with the viewer's colours, start view and density of lines and markers.
class ViewerPlot : public Zel3D::SHPlot
{
    Q_OBJECT
public:
    explicit ViewerPlot(QWidget* parent = nullptr);

    /// Shows a grid from the start view under a title; the plot keeps a copy. False when the plot does not
    /// take it.
    bool load(Grid& grid, const QString& title);
    /// Dresses the plot; the terrain keeps its own gradient.
    void setLook(const Zel3D::Look& look);
    /// Puts rotation, shift and zoom back to the start view, without repainting.
    void resetView();
    /// The plot at this size in device pixels, which has the widget's proportions, whatever the screen shows
    /// of it; a null image when the driver has no room for it. Needs no window, makes its own context
    /// current.
    QImage picture(const QSize& pixels);
    int plotStyle() const;
    /// As the base class does; the density of drawn nodes follows the style.
    bool setPlotStyle(int style) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    /// Terrain is drawn flatter than a cube.
    Zel3D::ValueXYZ<double> recalculateAutoScale() override;

private:
    void fit();
    void lightFromNorthWest();
    void nameAxes(const Grid& grid);
    void adaptResolution(int style);

    int m_columns = 0;
    int m_rows = 0;
    double m_fittedZoom = 0.0;
};
