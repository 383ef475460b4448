#pragma once

#include "core/types.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <optional>

namespace Zel3D {
class BasePlot;
}

/// A cell of the values of a plot: a node of a surface, a point of a spectrum, a vertex of a mesh.
struct ValuePlace
{
    int column = 0;
    int row = 0;

    bool operator==(const ValuePlace& other) const { return column == other.column && row == other.row; }
};

/// The values of a plot as rows and columns of numbers, read from the plot's own data: nothing is copied.
///
/// The numbers are those that the person loaded, plain ones where the plot shows exponents. A missing one is
/// NaN.
class PlotValues
{
public:
    enum class Kind {
        Surface, ///< columns along x, rows along y, heights in the cells
        Points,  ///< the same, but every node has a place of its own
        Spectra, ///< a row a spectrum, a column a position
        Mesh     ///< a row a vertex; columns x, y and z
    };

    /// Of what a plot shows; null where it shows nothing. Must not outlive the plot.
    static std::unique_ptr<PlotValues> of(Zel3D::BasePlot& plot);

    explicit PlotValues(Zel3D::BasePlot& plot);
    virtual ~PlotValues() = default;
    PlotValues(const PlotValues&) = delete;
    PlotValues& operator=(const PlotValues&) = delete;

    virtual Kind kind() const = 0;
    virtual int columns() const = 0;
    virtual int rows() const = 0;
    /// The number in a cell.
    virtual double value(int column, int row) const = 0;
    /// Whether there is a cell at all: spectra need not have the same positions.
    virtual bool exists(int /*column*/, int /*row*/) const { return true; }
    /// Where the point of a cell stands.
    virtual double x(int column, int row) const = 0;
    virtual double y(int column, int row) const = 0;
    /// Whether all points of a column have its x and all points of a row its y.
    virtual bool isRectangular() const { return true; }
    /// The cell of a picked point.
    virtual std::optional<ValuePlace> find(const Zel3D::SelectedObjectsInfo& picked) const = 0;
    /// Whether the plot has the numbers in single precision.
    virtual bool isSingle() const { return false; }
    /// Where a point is drawn, in scene units.
    virtual QVector3D drawn(int column, int row) const = 0;

    /// Calls \a take for the height of every point.
    virtual void visitHeights(const std::function<void(double)>& take) const;
    /// What x, y and z are, with their units, as the axes say.
    QString name(Zel3D::BaseAxisType direction) const;
    bool isLogarithmic(Zel3D::BaseAxisType direction) const;
    /// A number in full, with a decimal point: the shortest text that reads back as the same. Empty for a
    /// missing one.
    QByteArray exact(double number) const;

protected:
    const Zel3D::BasePlot& plot() const { return m_plot; }

private:
    Zel3D::BasePlot& m_plot;
};
