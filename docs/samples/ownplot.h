#pragma once

#include "core/data.h"
#include "plots/baseplot.h"

#include <QVector>

namespace samples {

//! [data]
/// Points of a path. The number 3 and above are free for containers of your own.
class PathData : public Zel3D::Data
{
public:
    PathData() : Data(3) {}
    void setPoints(const QVector<QVector3D>& path);
    const QVector<QVector3D>& getPoints() const { return points; }
    void clear() override;
    bool isEmpty() const override { return points.isEmpty(); }

private:
    QVector<QVector3D> points;
};
//! [data]

//! [plot]
/// A coloured path: style 0 shows nothing, style 1 a line.
class PathPlot : public Zel3D::BasePlot
{
public:
    PathPlot(const QString& name, const QString& organization, const QString& application,
             QWidget* parent = nullptr);

    void loadFromData(const QVector<QVector3D>& points);
    void updateDataType(int type) override;
    void clearData() override;

protected:
    void createPlotStyleActions() override;
    void calculateHull() override;
    void createData() override;
    void createNormals() override;

private:
    void rebuild();

    PathData path;
};
//! [plot]

} // namespace samples
