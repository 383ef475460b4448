#include "samples.h"

#include "plots/shplot.h"
#include "view/plotstatusbar.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>

namespace samples {

Zel3D::SHPlot* window(QMainWindow& window)
{
    //! [window]
    auto* plot = new Zel3D::SHPlot("main plot", "My company", "My program", &window);
    window.setCentralWidget(plot);
    for (const auto bar : {Zel3D::PlotStyleToolBar, Zel3D::ViewsToolBar, Zel3D::GridStyleToolBar})
        window.addToolBar(plot->getToolBar(bar)); // the window takes the bar over
    window.setStatusBar(new Zel3D::PlotStatusBar(plot, &window));
    //! [window]
    return plot;
}

Zel3D::SHPlot* dock(QMainWindow& window)
{
    //! [dock]
    auto* dock = new QDockWidget("Detail", &window);
    auto* plot = new Zel3D::SHPlot("detail plot", "My company", "My program", dock);
    dock->setWidget(plot);
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    //! [dock]
    return plot;
}

void closeOnPick(Zel3D::BasePlot& plot)
{
    //! [deleting]
    QObject::connect(&plot, &Zel3D::ZelGLWidget::selectedObject, &plot,
                     [&plot](const Zel3D::SelectedObjectsInfo& info) {
                         if (info.valid)
                             plot.deleteLater(); // never delete here: the plot is still emitting
                     });
    //! [deleting]
}

} // namespace samples
