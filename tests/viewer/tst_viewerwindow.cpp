#include "harness/harness.h"
#include "plotpage.h"
#include "plotstyles.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"
#include "scene/title.h"
#include "viewerplot.h"
#include "viewerwindow.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

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
    void savedSizeIsRemembered();
    void failedPictureSaysWhy();
    void turntableWritesItsFrames();
    void copyPutsThePictureOnTheClipboard();
    void windowComesBackAsItWasLeft();
    void aboutSaysWhatRuns();

private:
    QAction& action(const QString& text) const;
    /// The picture that the menu saves to a path, once the dialog was changed and accepted.
    QImage saved(const QString& path, const std::function<void(QDialog&)>& change) const;

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

QImage TestViewerWindow::saved(const QString& path, const std::function<void(QDialog&)>& change) const
{
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        dialog->findChild<QLineEdit*>("path")->setText(path);
        if (change)
            change(*dialog);
        if (dialog->isVisible())
            dialog->accept();
    });
    action("Save picture...").trigger();
    return QImage(path);
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
    const QString text = harness::boxText([this] { m_window->openFile("missing.asc"); });
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
    QTemporaryDir folder;
    int number = 0;
    const auto taken = [&] { return saved(folder.filePath(QString("%1.png").arg(++number)), {}); };
    const QImage picture = taken();
    QCOMPARE(picture.size(), screen.size());
    // Lines and texts may be smoothed in one and not in the other.
    const double missing = std::max(missingIn(screen, picture), missingIn(picture, screen));
    QVERIFY2(missing < 0.005, qPrintable(QString::number(missing)));
    // The comparison tells pictures apart.
    QVERIFY(missingIn(screen, picture.mirrored()) > 0.02);
    plot.getLegend().setVisible(false);
    QVERIFY(missingIn(taken(), screen) > 0.02);
    plot.getLegend().setVisible(true);
    // Drawing off the screen leaves the plot on the screen as it was.
    QCOMPARE(harness::grab(plot).convertToFormat(QImage::Format_RGB32), screen);
}

void TestViewerWindow::savedSizeIsRemembered()
{
    QTemporaryDir folder;
    saved(folder.filePath("first"), [](QDialog& dialog) {
        dialog.findChild<QComboBox*>("unit")->setCurrentText("mm");
        dialog.findChild<QSpinBox*>("resolution")->setValue(254);
        dialog.findChild<QDoubleSpinBox*>("width")->setValue(30.0);
        dialog.findChild<QDoubleSpinBox*>("height")->setValue(20.0);
        dialog.findChild<QCheckBox*>()->setChecked(true);
    });
    // The format that was chosen gives the suffix.
    const QImage image(folder.filePath("first.png"));
    QCOMPARE(image.size(), QSize(300, 200));
    QCOMPARE(image.dotsPerMeterX(), 10000);
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
    QVERIFY(m_window->statusBar()->currentMessage().contains("first.png"));
    const QImage second = saved(folder.filePath("second.tif"), {});
    QCOMPARE(second.size(), QSize(300, 200));
}

void TestViewerWindow::failedPictureSaysWhy()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("missing/picture.svg");
    const QString text = harness::boxText([&] { saved(path, {}); });
    QVERIFY2(text.contains("picture.svg") && text.contains("does not exist"), qPrintable(text));
    QVERIFY(QDir(folder.path()).isEmpty());

    // A file that is there stays without a yes.
    QFile kept(folder.filePath("kept.png"));
    QVERIFY(kept.open(QIODevice::WriteOnly) && kept.write("old") == 3);
    kept.close();
    saved(kept.fileName(), [](QDialog& dialog) {
        QTimer::singleShot(0, [] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (question != nullptr)
                question->button(QMessageBox::No)->click();
        });
        dialog.accept();
        QVERIFY(dialog.isVisible());
        dialog.reject();
    });
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("old"));
}

void TestViewerWindow::turntableWritesItsFrames()
{
    QTemporaryDir folder;
    const QImage before = harness::grab(plotOf(*m_window));
    QTimer answers;
    connect(&answers, &QTimer::timeout, [&folder] {
        QWidget* const shown = QApplication::activeModalWidget();
        if (auto* file = qobject_cast<QFileDialog*>(shown)) {
            file->findChild<QLineEdit*>()->setText(folder.filePath("turn.png"));
            static_cast<QDialog*>(file)->accept();
        } else if (auto* number = qobject_cast<QInputDialog*>(shown)) {
            number->setIntValue(2);
            number->accept();
        }
    });
    answers.start(50);
    action("Save turntable...").trigger();
    answers.stop();
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), (QStringList{"turn0001.png", "turn0002.png"}));
    const QImage first(folder.filePath("turn0001.png"));
    QVERIFY(missingIn(before, first) < 0.005);
    QVERIFY(missingIn(before, QImage(folder.filePath("turn0002.png"))) > 0.02);
    QCOMPARE(harness::grab(plotOf(*m_window)), before);
}

void TestViewerWindow::copyPutsThePictureOnTheClipboard()
{
    QGuiApplication::clipboard()->clear();
    action("Copy picture").trigger();
    const QImage copied = QGuiApplication::clipboard()->image();
    QCOMPARE(copied.size(), plotOf(*m_window).size());
    QVERIFY(missingIn(harness::grab(plotOf(*m_window)), copied) < 0.005);
    m_window->closePlot();
    for (const char* text : {"Save picture...", "Save turntable...", "Print...", "Copy picture"})
        QVERIFY2(!action(text).isEnabled(), text);
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

void TestViewerWindow::aboutSaysWhatRuns()
{
    QCoreApplication::setApplicationVersion("12.34.56");
    const auto said = [this] {
        action("About VORAN Viewer...").trigger();
        auto* box = m_window->findChild<QMessageBox*>("about");
        const QString text = box ? box->text() + box->informativeText() : QString();
        delete box;
        return text;
    };
    const QString withPlot = said();
    for (const QString& part : {QString("12.34.56"), QString(qVersion()), QString("OpenGL ")})
        QVERIFY2(withPlot.contains(part), qPrintable(withPlot));
    m_window->closePlot();
    const QString without = said();
    QVERIFY(without.contains(qVersion()) && !without.contains("OpenGL"));
}

int main(int argc, char* argv[])
{
    return harness::run<TestViewerWindow>(argc, argv);
}

#include "tst_viewerwindow.moc"
