#include "samples.h"

#include "plots/baseplot.h"
#include "scene/boxedges.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"
#include "scene/title.h"

namespace samples {

void names(Zel3D::BasePlot& plot)
{
    //! [names]
    const QString texts[] = {"x, m", "y, m", "height, m"};
    for (const auto direction : {Zel3D::XAxis, Zel3D::YAxis, Zel3D::ZAxis}) {
        for (const Zel3D::AxisType edge : Zel3D::axesOf(direction)) {
            Zel3D::Axis& axis = plot.getCoordinateSystem().getAxis(edge);
            axis.getLabel().getSettings().setText(texts[direction]);
            axis.getSettings().getLine().setVisible(true);
            axis.getSettings().getTics().setVisible(true);
            axis.getSettings().getNumbers().setVisible(true);
        }
    }
    plot.getTitle().getSettings().setText("Survey of May");
    plot.update();
    //! [names]
}

void divisions(Zel3D::BasePlot& plot)
{
    //! [divisions]
    plot.setMajorInterval(Zel3D::XAxis, Zel3D::Linear, 5); // five parts with numbers between them
    plot.setMinorInterval(Zel3D::XAxis, Zel3D::Linear, 2); // each halved by a small tick
    for (const Zel3D::AxisType edge : Zel3D::axesOf(Zel3D::ZAxis))
        plot.getCoordinateSystem().getAxis(edge).setTicFormat('f', 2); // as QString::number()
    //! [divisions]
}

void edges(Zel3D::BasePlot& plot)
{
    //! [edges]
    plot.setAutomaticEdges(false);
    Zel3D::CoordinateSystem& box = plot.getCoordinateSystem();
    box.setAxisVisible(false); // all twelve
    for (const auto edge : {Zel3D::XFrontBottom, Zel3D::YRightBottom, Zel3D::ZFrontLeft})
        box.setAxesVisible(edge, true);
    //! [edges]
}

void box(Zel3D::BasePlot& plot)
{
    //! [box]
    plot.setBoxScaling(Zel3D::EqualUnits); // one unit is as long on every axis
    plot.setGridStyle(Zel3D::GridBottom | Zel3D::GridBack);
    plot.setAutomaticFaces(true); // the lines stay behind the data
    plot.setKeepProportions(true);
    plot.fitView();
    //! [box]
}

void legend(Zel3D::BasePlot& plot)
{
    //! [legend]
    Zel3D::Legend& legend = plot.getLegend();
    legend.setPosition(Zel3D::Legend::Bottom);
    legend.getAxis().getSettings().getTics().setVisible(true);
    legend.getAxis().getSettings().getNumbers().setVisible(true);
    legend.getAxis().getLabel().getSettings().setText("height, m");
    legend.markSettingsForSaving(); // so that the next save keeps the position
    //! [legend]
}

} // namespace samples
