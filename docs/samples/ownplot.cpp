#include "ownplot.h"

#include "core/datacolor.h"
#include "plots/baseplotsettings.h"

#include <GL/gl.h>

#include <algorithm>

namespace samples {

//! [container]
void PathData::setPoints(const QVector<QVector3D>& path)
{
    points = path;
    if (points.isEmpty())
        return;
    minimum = maximum = points.first();
    for (const QVector3D& p : qAsConst(points)) {
        for (int k = 0; k < 3; ++k) {
            minimum[k] = std::min(minimum[k], p[k]);
            maximum[k] = std::max(maximum[k], p[k]);
        }
    }
}

void PathData::clear()
{
    points.clear();
    minimum = maximum = QVector3D();
}
//! [container]

//! [life]
PathPlot::PathPlot(const QString& name, const QString& organizationName, const QString& applicationName,
                   QWidget* parent)
    : BasePlot(name, organizationName, applicationName, parent)
{
    setData(&path);
    PathPlot::createPlotStyleActions();
    createPlotStyleToolBar();
    createContextMenu();
}

void PathPlot::createPlotStyleActions()
{
    addStyleAction(0, ":/plot/images/noplot.svg", tr("No plot"));
    addStyleAction(1, ":/plot/images/spectrum.svg", tr("Line"));
}
//! [life]

//! [loading]
void PathPlot::loadFromData(const QVector<QVector3D>& points)
{
    path.setPoints(points);
    rebuild();
}

void PathPlot::clearData()
{
    path.clear();
    rebuild();
}

void PathPlot::rebuild()
{
    const BusyScope rebuilding(*this); // nothing is painted meanwhile
    clearPickPoints();
    updateData();
    updateSelection();
    createCoordinateSystem();
}

void PathPlot::updateDataType(int type)
{
    if (type != path.getDataType())
        clearData();
}

void PathPlot::calculateHull()
{
    setHull(dataBox());
}
//! [loading]

//! [drawing]
void PathPlot::createData()
{
    // A display list is being compiled, and the plot's context is current.
    if (getSettings().getStyle() != 1 || !canDrawData())
        return;
    glPushAttrib(GL_ENABLE_BIT | GL_CURRENT_BIT);
    glDisable(GL_LIGHTING); // a line has no normals
    glBegin(GL_LINE_STRIP);
    for (const QVector3D& p : path.getPoints()) {
        const QColor color = (*getDataColor())(p);
        glColor4d(color.redF(), color.greenF(), color.blueF(), color.alphaF());
        glVertex3f(p.x(), p.y(), p.z());
    }
    glEnd();
    glPopAttrib();
}

void PathPlot::createNormals() {}
//! [drawing]

} // namespace samples
