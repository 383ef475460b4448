#include "harness/harness.h"
#include "plotstyles.h"
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
#include <QtTest>

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

/// How many pixels are not background.
double painted(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += QColor(image.pixel(x, y)) != Qt::white ? 1 : 0;
    }
    return count;
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
    QCOMPARE(m_window->plot().getHull().maximum.z(), 1076.0F);
}

void TestViewerWindow::cleanup()
{
    m_window.reset();
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
    const QString status = m_window->statusBar()->findChild<QLabel*>()->text();
    QVERIFY2(status.contains("403 x 344") && status.contains("236 to 1076"), qPrintable(status));
}

void TestViewerWindow::failureLeavesThePlot()
{
    const QImage before = harness::grab(m_window->plot());
    const QString text = boxText([this] { m_window->openFile("missing.asc"); });
    QCOMPARE(text, QString("\"missing.asc\" does not exist."));
    QVERIFY(m_window->windowTitle().startsWith("jacksboro_dem.asc"));
    QCOMPARE(harness::grab(m_window->plot()), before);
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
    QCOMPARE(m_window->plot().getHull().maximum.z(), 4.0F);
}

void TestViewerWindow::menuAndPlotFollowEachOther()
{
    ViewerPlot& plot = m_window->plot();
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
    const QImage start = harness::grab(m_window->plot());
    m_window->plot().setRotation({80, 10, -70});
    m_window->plot().setZoom(3.0);
    m_window->plot().setViewportShift({0.1, 0.2});
    QVERIFY(harness::grab(m_window->plot()) != start);
    action("Reset view").trigger();
    QCOMPARE(harness::grab(m_window->plot()), start);
}

void TestViewerWindow::pictureIsThePlotOnTheScreen()
{
    ViewerPlot& plot = m_window->plot();
    const QImage screen = harness::grab(plot).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(plot.picture(QSize(321, 123)).size(), QSize(321, 123));
    // Edges may be smoothed in one and not in the other.
    QVERIFY(std::abs(painted(plot.picture(plot.size())) - painted(screen)) < 0.02 * painted(screen));
    // Drawing off the screen leaves the plot on the screen as it was.
    QCOMPARE(harness::grab(plot).convertToFormat(QImage::Format_RGB32), screen);
}

int main(int argc, char* argv[])
{
    return harness::run<TestViewerWindow>(argc, argv);
}

#include "tst_viewerwindow.moc"
