// A main window around a plot: its tool bars, a status bar, its context menu and its settings dialog.

#include "core/functionof.h"
#include "example.h"
#include "plots/look.h"
#include "plots/shplot.h"
#include "scene/coordinatesystem.h"
#include "view/plotstatusbar.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

#include <cmath>

int main(int argc, char* argv[])
{
    Example example(argc, argv);

    QMainWindow window;
    window.setWindowTitle("A plot in a main window");
    auto* plot = new Zel3D::SHPlot("plot", "My company", "My program");
    window.setCentralWidget(plot);

    // The window takes the bars over; a click with the right button opens the context menu by itself.
    for (auto type : {Zel3D::PlotStyleToolBar, Zel3D::ViewsToolBar, Zel3D::GridStyleToolBar})
        window.addToolBar(plot->getToolBar(type));
    QMenu* menu = window.menuBar()->addMenu("&Plot");
    menu->addActions(plot->getContextMenu()->actions());
    menu->addSeparator();
    menu->addAction("&Quit", &window, &QWidget::close, QKeySequence::Quit);

    Zel3D::Look look = Zel3D::Look::light();
    look.majorInterval = 4;
    look.applyTo(*plot);
    plot->setKeepProportions(true);
    plot->setPlotStyle(5); // filled and mesh
    plot->slotSetTitle("Sound in a square room");
    plot->getCoordinateSystem().setAxisNames("x (m)", "y (m)", "Pressure (Pa)");
    Zel3D::FunctionOf pressure(
        *plot, [](double x, double y) { return 2.0 * std::cos(M_PI * x / 2.0) * std::cos(M_PI * y / 2.0); });
    pressure.setMesh(61, 61);
    pressure.setAreaLimits(0.0, 4.0, 0.0, 4.0);
    pressure.create();
    Example::light(*plot);
    plot->fitView();
    window.setStatusBar(new Zel3D::PlotStatusBar(plot));
    plot->setFocus();
    return example.run(window, QSize(1000, 750));
}
