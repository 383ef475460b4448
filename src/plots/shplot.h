#pragma once

#include "core/datacolor.h"
#include "core/griddata.h"
#include "plots/baseplot.h"

namespace Zel3D {

class ArrowAddition;
class CellData;
class ColorLookup;
class GridArrays;

/// The plot widget for surfaces, point clouds and histograms over a grid or over polygon cells.
///
/// Plot styles: 0 no plot, 1 points, 2 wireframe, 3 hidden line, 4 filled, 5 filled and mesh, 6 histogram; -1
/// is the style addition alone. A height, node or vertex that is not finite is a hole.
///
/// \code
/// Zel3D::SHPlot plot("plot", "My company", "My program");
/// plot.setGradient("Blue to red", gradient);
/// plot.setPlotStyle(4);
/// plot.loadFromData(heights, columns, rows, xMin, xMax, yMin, yMax);
/// plot.show();
/// \endcode
class VORANPLOT_EXPORT SHPlot : public BasePlot
{
    Q_OBJECT
    Q_PROPERTY(Style plotStyle READ getStyle WRITE writeStyle)
public:
    /// What plotStyle shows of the data.
    enum Style : int { NoPlot, Points, Wireframe, HiddenLine, Filled, FilledMesh, Histogram };
    Q_ENUM(Style)

    /// For forms: takes the names of the application for its settings; the object name may follow.
    explicit SHPlot(QWidget* parent = nullptr);
    SHPlot(const QString& name, const QString& organization, const QString& application,
           QWidget* parent = nullptr, const QGLWidget* shareWidget = nullptr, Qt::WindowFlags flags = {});
    ~SHPlot() override;

    /// Loads a regular grid of heights, z[column][row]; the array is copied.
    ///
    /// The columns stand evenly from \a xMin to \a xMax, the rows from \a yMin to \a yMax; a descending range
    /// is drawn ascending. False, with a warning that says what is wrong, and the plot unchanged: for null
    /// arrays, no columns or rows, ends that are not finite, or a grid too large for memory.
    bool loadFromData(double** z, unsigned int columns, unsigned int rows, double xMin, double xMax,
                      double yMin, double yMax);
    /// Loads a grid of points, points[column][row]; the array is copied. \a stepX and \a stepY are kept as
    /// the spacing of the data. Refused as above.
    bool loadFromData(QVector3D** points, unsigned int columns, unsigned int rows, double stepX,
                      double stepY);
    /// Loads polygons; each cell names its corners by their index in \a vertices, in winding order. Also
    /// refused when a cell names a vertex that does not exist.
    bool loadFromData(const QVector<QVector3D>& vertices, const QVector<QVector<unsigned int>>& cells,
                      double stepX, double stepY);

    const GridData* getGridData() const { return gridData.get(); }
    const CellData* getCellData() const { return cellData.get(); }

    /// On: the data change all the time, so the filled surface of a grid without holes (style 4) is drawn
    /// from vertex arrays instead of a display list. The picture is the same; a load is much quicker, a frame
    /// in which only the view changes no quicker or somewhat slower, and a node takes 48 bytes. What else is
    /// drawn stays in lists. Off by default. True when it changed; then dataChangingChanged() follows.
    bool setDataChanging(bool on);
    bool isDataChanging() const { return dataChanging; }

    /// 0 grid, 1 cells: switching empties the container that was current.
    void updateDataType(int type) override;
    void clearData() override;

public slots:
    /// Opens the settings dialog of the plot, or raises the open one; the plot stays usable. Returns when the
    /// dialog is closed; the plot may have been deleted by then.
    void slotSettingsDialog() override;

signals:
    void dataChangingChanged(bool on);

protected:
    void changeEvent(QEvent* event) override;
    void calculateHull() override;
    void drawArrays() override;
    void createMesh() override;
    bool isGeometryInput(GeometryInput input) const override;
    int getCoarsest() const override;
    void createData() override;
    void createNormals() override;
    void createAddition(Addition& addition) override;
    /// What is picked: the markers of the style, or the nodes (vertices) of the surface as points; with a
    /// contour plot their projections, too.
    void selectData() override;
    void selectAddition(Addition& addition) override;
    int getNumberSelectedData() override;
    int getNumberSelectedAddition(Addition& addition) override;
    void selectViewProjection();
    int getNumberSelectedViewProjection() const;
    std::unique_ptr<PickPoints> createPickPoints() const override;
    void createPlotStyleActions() override;

    void createGridData();
    void createCellData();
    /// The contour plot of a grid: the strips of the surface in data colours at one height.
    void createGridViewProjection();
    /// The contour plot of cells: each cell as one polygon in data colours at one height.
    void createCellViewProjection();
    /// One arrow a node, as long as the settings' fraction of the box's diagonal, in the node's data colour.
    void createGridNormals();
    /// The same, one arrow a vertex.
    void createCellNormals();
    /// Makes the data colour of a node (a vertex) the current one; \a keep leaves the colour as it is.
    void setGridColorFromVertex(int column, int row, bool keep);
    void setCellColorFromVertex(int vertex, bool keep);

private:
    Style getStyle() const { return static_cast<Style>(getPlotStyle()); }
    void writeStyle(Style style) { writePlotStyle(style); }

    template <class Container, class Fill>
    bool load(Container* container, const QString& fault, const Fill& fill);
    /// Turn the plain values of logarithmic directions into exponents.
    void convertGrid();
    void centreGrid();
    QVector<QVector3D> toExponents(const QVector<QVector3D>& vertices);
    /// The node step of the surface; a stored resolution below 1 counts as 1. Coarser in a preview.
    int nodeStep() const;
    /// The step of the nodes at which a marker stands; below 1 there are none.
    int markerStep(const Addition& marker) const;
    bool drawMarkerStyle();
    void drawGridSurface(int style);
    bool areArraysWanted() const;
    void drawGridMesh(int step);
    void drawCellSurface(int style);
    void drawCellMesh();
    std::vector<ColorChannels> vertexColors(const ColorLookup& color) const;
    bool cellIsWhole(const QVector<unsigned int>& cell) const;
    /// Calls \a use with the marker by which the data are picked, if there is one.
    template <class Use>
    void withPickMarker(const Use& use);
    int countPickPoints() const;
    void drawNormal(ArrowAddition& arrow, const QVector3D& p, const QVector3D& normal, double length) const;

    std::unique_ptr<GridData> gridData;
    std::unique_ptr<CellData> cellData;
    QVector<QVector3D> givenVertices; ///< of the cells, as the caller gave them
    std::unique_ptr<GridArrays> gridArrays;
    bool dataChanging = false;
};

} // namespace Zel3D
