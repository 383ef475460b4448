#include "harness/harness.h"
#include "plotpage.h"
#include "plotstyles.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"
#include "scene/title.h"
#include "viewerplot.h"
#include "viewerwindow.h"

#include <QAction>
#include <QDropEvent>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

/// The text of the message box that an action opens; the box is closed.
template <class Act>
QString boxText(const Act& act)
{
    QString text;
    QTimer::singleShot(0, [&text] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr) {
            text = box->text();
            box->accept();
        }
    });
    act();
    return text;
}

ViewerPlot& plotOf(const ViewerWindow& window)
{
    return dynamic_cast<ViewerPlot&>(window.page()->view());
}

/// Part of the pixels of a picture that find no pixel of about their colour in another one at their place or
/// beside it. Smoothing moves edges and thin texts by less than a pixel.
double missingIn(const QImage& other, const QImage& picture)
{
    const auto alike = [](const QColor& a, const QColor& b) {
        return std::abs(a.red() - b.red()) <= 60 && std::abs(a.green() - b.green()) <= 60 &&
               std::abs(a.blue() - b.blue()) <= 60;
    };
    int missing = 0;
    for (int y = 1; y < picture.height() - 1; ++y) {
        for (int x = 1; x < picture.width() - 1; ++x) {
            bool found = false;
            for (int k = 0; k < 9 && !found; ++k)
                found = alike(picture.pixel(x, y), other.pixel(x + k % 3 - 1, y + k / 3 - 1));
            missing += found ? 0 : 1;
        }
    }
    return double(missing) / (picture.width() * picture.height());
}

} // namespace

class TestViewerWindow : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void titleAndStatusTellOfTheGrid();
    void failureLeavesThePlot();
    void droppedFileOpens();
    void menuAndPlotFollowEachOther();
    void resetBringsTheStartViewBack();
    void pictureIsThePlotOnTheScreen();
    void windowComesBackAsItWasLeft();

private:
    QAction& action(const QString& text) const;

    const QString m_example = QString(VORAN_SOURCE_DIR) + "/examples/data/jacksboro_dem.asc";
    std::unique_ptr<ViewerWindow> m_window;
};

void TestViewerWindow::init()
{
    m_window = std::make_unique<ViewerWindow>();
    QVERIFY(harness::show(*m_window, 500, 400));
    m_window->openFile(m_example);
    QCoreApplication::processEvents();
    QCOMPARE(plotOf(*m_window).getHull().maximum.z(), 1076.0F);
}

void TestViewerWindow::cleanup()
{
    m_window.reset();
    harness::clearStore();
}

QAction& TestViewerWindow::action(const QString& text) const
{
    const QList<QAction*> actions = m_window->findChildren<QAction*>();
    for (QAction* found : actions) {
        if (found->text().remove('&') == text)
            return *found;
    }
    qFatal("There is no action %s.", qPrintable(text));
}

void TestViewerWindow::titleAndStatusTellOfTheGrid()
{
    QVERIFY(m_window->windowTitle().startsWith("jacksboro_dem.asc"));
    const QString status = m_window->statusBar()->findChild<QLabel*>("description")->text();
    QVERIFY2(status.contains("403 x 344") && status.contains("236 to 1076"), qPrintable(status));
    QCOMPARE(plotOf(*m_window).getTitle().getSettings().getText(), QString("jacksboro_dem.asc"));
    // The same on every edge of a direction.
    const QPair<Zel3D::AxisType, QString> names[] = {{Zel3D::XBackTop, "Longitude (\u00b0)"},
                                                     {Zel3D::XFrontBottom, "Longitude (\u00b0)"},
                                                     {Zel3D::YLeftTop, "Latitude (\u00b0)"},
                                                     {Zel3D::ZBackRight, "Elevation (m)"}};
    Zel3D::CoordinateSystem& box = plotOf(*m_window).getCoordinateSystem();
    for (const auto& name : names)
        QCOMPARE(box.getAxis(name.first).getLabel().getSettings().getText(), name.second);
}

void TestViewerWindow::failureLeavesThePlot()
{
    const QImage before = harness::grab(plotOf(*m_window));
    const QString text = boxText([this] { m_window->openFile("missing.asc"); });
    QCOMPARE(text, QString("\"missing.asc\" does not exist."));
    QVERIFY(m_window->windowTitle().startsWith("jacksboro_dem.asc"));
    QCOMPARE(harness::grab(plotOf(*m_window)), before);
}

void TestViewerWindow::droppedFileOpens()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("small.asc"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n1 2\n3 4\n");
    file.close();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file.fileName())});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &drop);
    QVERIFY(m_window->windowTitle().startsWith("small.asc"));
    QCOMPARE(plotOf(*m_window).getTitle().getSettings().getText(), QString("small.asc"));
    QCOMPARE(plotOf(*m_window).getHull().maximum.z(), 4.0F);
}

void TestViewerWindow::menuAndPlotFollowEachOther()
{
    ViewerPlot& plot = plotOf(*m_window);
    QVERIFY(action("Filled").isChecked());
    action("Mesh lines").trigger();
    QCOMPARE(plot.plotStyle(), int(PlotStyles::FilledAndMesh));
    QVERIFY(action("Filled and mesh").isChecked());
    action("Mesh lines").trigger();
    QCOMPARE(plot.plotStyle(), int(PlotStyles::Filled));
    plot.slotSetPlotStyle(PlotStyles::Histogram);
    QVERIFY(action("Histogram").isChecked());
    QVERIFY(!action("Mesh lines").isEnabled() && !action("Mesh lines").isChecked());
    action("Wireframe").trigger();
    QCOMPARE(plot.plotStyle(), int(PlotStyles::Wireframe));

    action("Perspective").trigger();
    QCOMPARE(plot.getProjectionType(), Zel3D::Perspective);
    plot.slotSetLighting(false);
    QVERIFY(!action("Lighting").isChecked());
    action("Equal units on all axes").trigger();
    QCOMPARE(plot.getBoxScaling(), Zel3D::EqualUnits);
    plot.slotSetAutoScaling(true);
    QVERIFY(action("Automatic").isChecked() && !action("Equal units on all axes").isChecked());
    action("Dark").trigger();
    QCOMPARE(plot.getBackgroundColor(), Zel3D::Look::dark().background);
}

void TestViewerWindow::resetBringsTheStartViewBack()
{
    const QImage start = harness::grab(plotOf(*m_window));
    plotOf(*m_window).setRotation({80, 10, -70});
    plotOf(*m_window).setZoom(3.0);
    plotOf(*m_window).setViewportShift({0.1, 0.2});
    QVERIFY(harness::grab(plotOf(*m_window)) != start);
    action("Reset view").trigger();
    QCOMPARE(harness::grab(plotOf(*m_window)), start);
}

void TestViewerWindow::pictureIsThePlotOnTheScreen()
{
    ViewerPlot& plot = plotOf(*m_window);
    const QImage screen = harness::grab(plot).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(plot.picture(QSize(321, 123)).size(), QSize(321, 123));
    const QImage picture = plot.picture(plot.size());
    QCOMPARE(picture.size(), screen.size());
    // Lines and texts may be smoothed in one and not in the other.
    const double missing = std::max(missingIn(screen, picture), missingIn(picture, screen));
    QVERIFY2(missing < 0.005, qPrintable(QString::number(missing)));
    // The comparison tells pictures apart.
    QVERIFY(missingIn(screen, picture.mirrored()) > 0.02);
    plot.getLegend().setVisible(false);
    QVERIFY(missingIn(plot.picture(plot.size()), screen) > 0.02);
    plot.getLegend().setVisible(true);
    // Drawing off the screen leaves the plot on the screen as it was.
    QCOMPARE(harness::grab(plot).convertToFormat(QImage::Format_RGB32), screen);
}

void TestViewerWindow::windowComesBackAsItWasLeft()
{
    action("Pick values").trigger();
    action("Lighting").trigger();
    action("Dark").trigger();
    plotOf(*m_window).slotSetPlotStyle(PlotStyles::Wireframe);
    plotOf(*m_window).getToolBar(Zel3D::ViewsToolBar)->setVisible(false);
    action("Status bar").trigger();
    m_window->addToolBar(Qt::LeftToolBarArea, plotOf(*m_window).getToolBar(Zel3D::PlotStyleToolBar));
    m_window->close();
    ViewerWindow again;
    again.show();
    again.openFile(m_example);
    QVERIFY(!plotOf(again).isSelecting());
    QVERIFY(!plotOf(again).isLighting());
    QCOMPARE(plotOf(again).plotStyle(), int(PlotStyles::Wireframe));
    QCOMPARE(plotOf(again).getBackgroundColor(), Zel3D::Look::dark().background);
    QVERIFY(!plotOf(again).getToolBar(Zel3D::ViewsToolBar)->isVisible());
    QVERIFY(!again.statusBar()->isVisible());
    QCOMPARE(again.toolBarArea(plotOf(again).getToolBar(Zel3D::PlotStyleToolBar)), Qt::LeftToolBarArea);
}

int main(int argc, char* argv[])
{
    return harness::run<TestViewerWindow>(argc, argv);
}

#include "tst_viewerwindow.moc"
