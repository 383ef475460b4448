#pragma once

#include "core/log10scale.h"
#include "plots/baseplotsettings.h"
#include "plots/shplot.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"

#include <QColor>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

namespace fixture {

inline const QString organization = "voran-test";
inline const QString application = "voran-test";

/// Heights in the shape that a plot takes: columns first.
class Heights
{
public:
    Heights(int columns, int rows, const std::function<double(int, int)>& height)
        : columnCount(unsigned(columns)), rowCount(unsigned(rows)), values(columns * rows)
    {
        for (int i = 0; i < columns; ++i) {
            starts.append(&values[i * rows]);
            for (int j = 0; j < rows; ++j)
                values[i * rows + j] = height(i, j);
        }
    }
    /// Loads the nodes at x = column, y = row.
    bool into(Zel3D::SHPlot& plot)
    {
        return plot.loadFromData(starts.data(), columnCount, rowCount, 0.0, columnCount - 1.0, 0.0,
                                 rowCount - 1.0);
    }
    double** data() { return starts.data(); }

private:
    unsigned int columnCount;
    unsigned int rowCount;
    QVector<double> values;
    QVector<double*> starts;
};

/// Black to (200, 100, 50): over the heights 0 to 10 a height of 5 is (100, 50, 25).
inline QLinearGradient ramp(const QColor& lowest = QColor(0, 0, 0),
                            const QColor& highest = QColor(200, 100, 50))
{
    QLinearGradient gradient;
    gradient.setColorAt(0.0, lowest);
    gradient.setColorAt(1.0, highest);
    return gradient;
}

/// One colour for everything.
inline QLinearGradient plain(const QColor& color)
{
    QLinearGradient gradient;
    gradient.setColorAt(0.0, color);
    return gradient;
}

/// A plot of the surface over a gradient, with the operations that subclasses see.
class Plot : public Zel3D::SHPlot
{
public:
    explicit Plot(const QString& name = "plot", const QGLWidget* share = nullptr)
        : SHPlot(name, fixture::organization, fixture::application, nullptr, share)
    {
        setGradient("ramp", ramp());
        // What is tested is the data.
        getLegend().setVisible(false);
    }

    using SHPlot::canDrawData;
    using SHPlot::createGridViewProjection;
    using SHPlot::settingsRecord;
};

/// The plane z = column + 10 * row: no two nodes of a small grid have the same height.
inline double plane(int column, int row)
{
    return column + 10.0 * row;
}

/// How many pixels of a picture have a colour.
inline int pixels(const QImage& image, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y).rgb() == color.rgb() ? 1 : 0;
    }
    return count;
}

/// The edges that run in a direction.
inline QVector<Zel3D::AxisType> edgesOf(Zel3D::BaseAxisType direction)
{
    QVector<Zel3D::AxisType> edges;
    for (int i = 0; i < 12; ++i) {
        if (Zel3D::baseAxisType(Zel3D::AxisType(i)) == direction)
            edges.append(Zel3D::AxisType(i));
    }
    return edges;
}

/// "minor/major" of the four axes of a direction, each distinct one once.
inline QString intervals(Plot& plot, Zel3D::BaseAxisType direction)
{
    QStringList found;
    for (Zel3D::AxisType edge : edgesOf(direction)) {
        const Zel3D::Axis::Settings& axis = plot.getCoordinateSystem().getAxis(edge).getSettings();
        found.append(QString("%1/%2").arg(axis.getMinor().getInterval()).arg(axis.getMajor().getInterval()));
    }
    found.removeDuplicates();
    return found.join(' ');
}

inline QString legendIntervals(Plot& plot)
{
    const Zel3D::Axis::Settings& axis = plot.getLegend().getAxis().getSettings();
    return QString("%1/%2").arg(axis.getMinor().getInterval()).arg(axis.getMajor().getInterval());
}

inline bool isLogarithmic(const Zel3D::Axis& axis)
{
    return dynamic_cast<const Zel3D::Log10Scale*>(axis.getScale()) != nullptr;
}

inline bool isLogarithmic(Plot& plot, Zel3D::BaseAxisType direction)
{
    int count = 0;
    for (Zel3D::AxisType edge : edgesOf(direction))
        count += isLogarithmic(plot.getCoordinateSystem().getAxis(edge)) ? 1 : 0;
    return count == 4;
}

/// The values as the heights of two equal columns, at x 0 and 1 and at y 0, 1 and so on.
inline bool loadHeights(Plot& plot, const QVector<double>& values)
{
    return Heights(2, values.size(), [&values](int, int row) { return values[row]; }).into(plot);
}

} // namespace fixture
