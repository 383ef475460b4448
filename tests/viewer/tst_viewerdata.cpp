#include "formuladialog.h"
#include "formulasource.h"
#include "harness/harness.h"
#include "notebar.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "plotstyles.h"
#include "recentfiles.h"
#include "recentmenu.h"
#include "scene/coordinatesystem.h"
#include "scene/title.h"
#include "spectrasource.h"
#include "startpage.h"
#include "toroidsource.h"
#include "viewerwindow.h"
#include "watersimulation.h"
#include "watersource.h"

#include <QAction>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QToolBar>
#include <QtTest>

#include <cmath>

namespace {

const QString examples = QString(VORAN_SOURCE_DIR) + "/examples/data/";

QString axisName(Zel3D::BasePlot& plot, Zel3D::AxisType edge)
{
    return plot.getCoordinateSystem().getAxis(edge).getLabel().getSettings().getText();
}

QVector3D drawnExtent(const Zel3D::BasePlot& plot)
{
    const Zel3D::ValueXYZ<double>& scale = plot.getScale();
    return (plot.getHull().maximum - plot.getHull().minimum) *
           QVector3D(float(scale.x), float(scale.y), float(scale.z));
}

} // namespace

class TestViewerData : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void kindsFollowEachOther();
    void spectraStandInTheirOwnBox();
    void spectraKeepTheDetailOfTimeStamps();
    void logarithmicSpectraStandInTheirOwnBox();
    void pickNamesTheSpectrum();
    void shapesKeepTheirProportions();
    void choicesGoToTheNextPlot();
    void notesStandUnderThePlot();
    void tooLargeMeshLeavesThePlot();
    void dialogTellsFaultsAtOnce_data();
    void dialogTellsFaultsAtOnce();
    void dialogRemembers();
    void recentFilesAreListed();
    void startPageOffers();
    void examplesAreFound();
    void waterMovesWhileItIsSeen();
    void waterIsSteadyInItsBox();

private:
    QAction* action(const QString& text) const;
    QString message(const QString& path);

    std::unique_ptr<ViewerWindow> m_window;
};

void TestViewerData::init()
{
    m_window = std::make_unique<ViewerWindow>();
    QVERIFY(harness::show(*m_window, 600, 450));
}

void TestViewerData::cleanup()
{
    m_window.reset();
    harness::clearStore();
}

QAction* TestViewerData::action(const QString& text) const
{
    QAction* found = nullptr;
    // Those of the current plot; every plot has a menu of its own, too.
    const QList<QMenu*> menus = m_window->menuBar()->findChildren<QMenu*>();
    for (QMenu* menu : menus) {
        const QList<QAction*> actions = menu->actions();
        for (QAction* candidate : actions) {
            if (candidate->text().remove('&') == text)
                found = candidate;
        }
    }
    return found;
}

/// The words of the box that opening a file brings, or empty.
QString TestViewerData::message(const QString& path)
{
    return harness::boxText([&] {
        m_window->openFile(path);
        QCoreApplication::processEvents();
    });
}

void TestViewerData::kindsFollowEachOther()
{
    const struct
    {
        const char* file;
        PlotKind kind;
        const char* description;
        const char* offered;    // in the menu
        const char* notOffered; // of the kind before
        int styles;
    } steps[] = {
        {"jacksboro_dem.asc", PlotKind::Surface, "403 x 344 nodes", "Histogram", "Filled and frame", 7},
        {"gasoline_nir.csv", PlotKind::Spectra, "60 spectra, 24060 points", "Filled and frame", "Lighting",
         5},
        {"bunny.off", PlotKind::Surface, "1839 vertices, 3674 cells", "Lighting", "Lines", 7},
    };
    for (const auto& step : steps) {
        QCOMPARE(message(examples + step.file), QString());
        PlotPage& page = *m_window->page();
        QVERIFY2(page.view().kind() == step.kind, step.file);
        QVERIFY(page.plot().isVisible());
        QCOMPARE(page.plot().getTitle().getSettings().getText(), QString(step.file));
        QVERIFY(m_window->windowTitle().startsWith(step.file));
        const QString text = m_window->statusBar()->findChild<QLabel*>("description")->text();
        QVERIFY2(text.startsWith(step.description), qPrintable(text));
        QVERIFY2(action(step.offered) != nullptr, step.offered);
        QVERIFY2(action(step.notOffered) == nullptr, step.notOffered);
        // The bars of the plot before are gone.
        QCOMPARE(m_window->findChildren<QToolBar*>().size(), 3);
        QCOMPARE(m_window->findChild<QToolBar*>("plotStyleToolBar")->actions().size(), step.styles);
        QVERIFY(page.plot().getToolBar(Zel3D::ViewsToolBar)->isVisible());
    }
    const PlotPage* const before = m_window->page();
    const QString words = message(QString(VORAN_SOURCE_DIR) + "/CMakeLists.txt");
    QVERIFY2(words.contains("CMakeLists.txt") && words.endsWith('.'), qPrintable(words));
    QCOMPARE(m_window->page(), before);
    QVERIFY(m_window->windowTitle().startsWith("bunny.off"));
    while (m_window->page() != nullptr)
        m_window->closePlot();
    QVERIFY(m_window->findChild<StartPage*>()->isVisible());
    QVERIFY(m_window->findChildren<QToolBar*>().isEmpty());
}

void TestViewerData::spectraStandInTheirOwnBox()
{
    m_window->openFile(examples + "gasoline_nir.csv");
    Zel3D::BasePlot& plot = m_window->page()->plot();
    // The first sample, 1, is no wavelength.
    QCOMPARE(plot.getHull().minimum.x(), 900.0F);
    QCOMPARE(plot.getHull().maximum.x(), 1700.0F);
    QCOMPARE(plot.getHull().minimum.y(), 1.0F);
    QCOMPARE(plot.getHull().maximum.y(), 60.0F);
    QCOMPARE(axisName(plot, Zel3D::XFrontBottom), QString("Position"));
    QCOMPARE(axisName(plot, Zel3D::YRightTop), QString("sample"));
}

void TestViewerData::spectraKeepTheDetailOfTimeStamps()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("times.csv"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("well,1700000000,1700000001,1700000003\n1,1,2,3\n2,2,3,4\n");
    file.close();
    m_window->openFile(file.fileName());
    const Zel3D::BasePlot& plot = m_window->page()->plot();
    QCOMPARE(plot.getHull().maximum.x() - plot.getHull().minimum.x(), 3.0F);
    QCOMPARE(plot.getDataOrigin().x + double(plot.getHull().minimum.x()), 1700000000.0);
    const QString text = m_window->page()->source().description();
    QVERIFY2(text.contains("1700000000 to 1700000003, values 1 to 4"), qPrintable(text));
    QVERIFY(m_window->page()->source().describe({1700000001.0, 1.0, 2.0, true}).endsWith("at 1700000001"));
}

void TestViewerData::logarithmicSpectraStandInTheirOwnBox()
{
    auto source = std::make_unique<SpectraSource>(examples + "gasoline_nir.csv");
    source->setLogarithmic({true, false, true});
    QString error;
    QVERIFY(m_window->present(std::move(source), error));
    const Zel3D::Parallelepiped& box = m_window->page()->plot().getHull();
    QCOMPARE(box.minimum.x(), std::log10(900.0F));
    QCOMPARE(box.maximum.y(), 60.0F);
    const QString text = m_window->page()->source().description();
    QVERIFY2(text.contains("900 to 1700"), qPrintable(text));
}

void TestViewerData::pickNamesTheSpectrum()
{
    m_window->openFile(examples + "gasoline_nir.csv");
    emit m_window->page()->plot().selectedObject({1200.0, 12.2, 0.5, true});
    QCOMPARE(m_window->statusBar()->currentMessage(), QString("sample 12: 0.5 at 1200"));
    emit m_window->page()->plot().selectedObject({});
    QCOMPARE(m_window->statusBar()->currentMessage(), QString());
    // Positions beyond the ends.
    const PlotSource& source = m_window->page()->source();
    QVERIFY(source.describe({1.0, -7.0, 1.0, true}).startsWith("sample 1:"));
    QVERIFY(source.describe({1.0, 99.0, 1.0, true}).startsWith("sample 60:"));
}

void TestViewerData::shapesKeepTheirProportions()
{
    QString error;
    m_window->openFile(examples + "bunny.off");
    Zel3D::BasePlot* plot = &m_window->page()->plot();
    QCOMPARE(plot->getBoxScaling(), Zel3D::EqualUnits);
    QVERIFY(!(plot->getScale() != Zel3D::ValueXYZ<double>{1.0, 1.0, 1.0}));
    QVERIFY(action("Equal units on all axes")->isChecked());
    QVERIFY(m_window->present(std::make_unique<ToroidSource>(), error));
    plot = &m_window->page()->plot();
    QCOMPARE(plot->getBoxScaling(), Zel3D::EqualUnits);
    QVERIFY(std::abs(plot->getHull().maximum.x() - 2.9F) < 0.01F);
    FormulaArea area;
    QVERIFY(area.setRange("0:20,0:10", error));
    QVERIFY(m_window->present(std::make_unique<FormulaSource>("x+y", area), error));
    const QVector3D extent = drawnExtent(m_window->page()->plot());
    QVERIFY(std::abs(extent.y() / extent.x() - 0.5F) < 1e-5F);
    QVERIFY(std::abs(extent.z() / extent.x() - 0.4F) < 1e-5F);
}

void TestViewerData::choicesGoToTheNextPlot()
{
    m_window->openFile(examples + "jacksboro_dem.asc");
    action("Wireframe")->trigger();
    action("Dark")->trigger();
    action("Perspective")->trigger();
    action("Pick values")->trigger();
    m_window->page()->plot().getToolBar(Zel3D::ViewsToolBar)->setVisible(false);
    m_window->openFile(examples + "gasoline_nir.csv");
    Zel3D::BasePlot& spectra = m_window->page()->plot();
    QCOMPARE(m_window->page()->view().plotStyle(), int(PlotStyles::Lines));
    QCOMPARE(spectra.getBackgroundColor(), Zel3D::Look::dark().background);
    QCOMPARE(spectra.getProjectionType(), Zel3D::Perspective);
    QVERIFY(!spectra.isSelecting() && !spectra.isLighting());
    QVERIFY(!spectra.getToolBar(Zel3D::ViewsToolBar)->isVisible());
    QVERIFY(action("Dark")->isChecked() && action("Perspective")->isChecked());
    m_window->openFile(examples + "bunny.off");
    QCOMPARE(m_window->page()->view().plotStyle(), int(PlotStyles::Wireframe));
    QVERIFY(m_window->page()->plot().isLighting());
}

void TestViewerData::notesStandUnderThePlot()
{
    QString error;
    QVERIFY(m_window->present(std::make_unique<FormulaSource>("sqrt(x)", FormulaArea()), error));
    const auto* bar = m_window->findChild<NoteBar*>();
    QVERIFY(bar != nullptr && bar->isVisible());
    bool told = false;
    const QList<QLabel*> labels = bar->findChildren<QLabel*>();
    for (const QLabel* label : labels)
        told = told || label->text().startsWith("The formula has no height at");
    QVERIFY(told);
    m_window->openFile(examples + "jacksboro_dem.asc");
    QVERIFY(m_window->page()->findChild<NoteBar*>() == nullptr && !bar->isVisible());
}

void TestViewerData::tooLargeMeshLeavesThePlot()
{
    m_window->openFile(examples + "jacksboro_dem.asc");
    FormulaArea area;
    area.columns = area.rows = 2000000;
    QString error;
    QVERIFY(!m_window->present(std::make_unique<FormulaSource>("x", area), error));
    QVERIFY2(error.contains("of memory for 2000000 x 2000000 nodes"), qPrintable(error));
    QVERIFY(m_window->windowTitle().startsWith("jacksboro_dem.asc"));
}

void TestViewerData::dialogTellsFaultsAtOnce_data()
{
    QTest::addColumn<QString>("formula");
    QTest::addColumn<QString>("xTo");
    QTest::addColumn<int>("nodes");
    QTest::addColumn<QString>("formulaProblem");
    QTest::addColumn<QString>("areaProblem");
    QTest::newRow("valid") << "x*y"
                           << "2*pi" << 20 << ""
                           << "";
    QTest::newRow("fault in the formula") << "x+foo(y)"
                                          << "3" << 20 << "column 3"
                                          << "";
    QTest::newRow("empty") << " "
                           << "3" << 20 << "empty"
                           << "";
    QTest::newRow("range backwards") << "x"
                                     << "-50" << 20 << ""
                                     << "no width";
    QTest::newRow("range of letters") << "x"
                                      << "b" << 20 << ""
                                      << "\"b\"";
    QTest::newRow("too many nodes") << "x"
                                    << "3" << 100000 << ""
                                    << "of memory";
    QTest::newRow("both") << "x+"
                          << "" << 20 << "ends too early"
                          << "is no number";
}

void TestViewerData::dialogTellsFaultsAtOnce()
{
    QFETCH(QString, formula);
    QFETCH(QString, xTo);
    QFETCH(int, nodes);
    QFETCH(QString, formulaProblem);
    QFETCH(QString, areaProblem);
    FormulaDialog dialog;
    const QPushButton* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    QVERIFY(ok->isEnabled());
    dialog.findChild<QComboBox*>("formula")->setEditText(formula);
    dialog.findChild<QLineEdit*>("end1")->setText(xTo);
    dialog.findChild<QSpinBox*>("columns")->setValue(nodes);
    dialog.findChild<QSpinBox*>("rows")->setValue(nodes);
    const auto matches = [&dialog](const char* name, const QString& words) {
        const QString shown = dialog.findChild<QLabel*>(name)->text();
        return words.isEmpty() ? shown.isEmpty() : shown.contains(words);
    };
    QVERIFY(matches("formulaProblem", formulaProblem));
    QVERIFY(matches("areaProblem", areaProblem));
    QCOMPARE(ok->isEnabled(), formulaProblem.isEmpty() && areaProblem.isEmpty());
    dialog.accept();
    QCOMPARE(dialog.result() == QDialog::Accepted, ok->isEnabled());
}

void TestViewerData::dialogRemembers()
{
    {
        FormulaDialog dialog;
        auto* formula = dialog.findChild<QComboBox*>("formula");
        // An example brings its range.
        formula->setCurrentIndex(2);
        emit formula->activated(2);
        QCOMPARE(dialog.findChild<QLineEdit*>("end0")->text(), QString("-2"));
        formula->setEditText("x^2 - y");
        dialog.findChild<QLineEdit*>("end3")->setText("2*pi");
        dialog.findChild<QSpinBox*>("columns")->setValue(33);
        dialog.accept();
        QCOMPARE(dialog.area().columns, 33);
        QCOMPARE(dialog.area().xMin, -2.0);
        QVERIFY(std::abs(dialog.area().yMax - 2.0 * M_PI) < 1e-12);
    }
    FormulaDialog again;
    QCOMPARE(again.formula(), QString("x^2 - y"));
    QCOMPARE(again.findChild<QLineEdit*>("end3")->text(), QString("2*pi"));
    QCOMPARE(again.findChild<QSpinBox*>("columns")->value(), 33);
}

void TestViewerData::recentFilesAreListed()
{
    QTemporaryDir folder;
    QString gone;
    for (int i = 0; i < RecentFiles::most + 2; ++i) {
        gone = folder.filePath(QString("%1.csv").arg(i));
        QVERIFY(QFile::copy(examples + "gasoline_nir.csv", gone));
        RecentFiles::add(gone);
    }
    QCOMPARE(RecentFiles::all().size(), int(RecentFiles::most));
    m_window->openFile(examples + "bunny.off");
    m_window->openFile(folder.filePath("5.csv"));
    QCOMPARE(message("missing.csv").contains("missing.csv"), true);
    QVERIFY(QFile::remove(gone));
    auto* menu = m_window->findChild<RecentMenu*>();
    menu->refresh();
    const QList<QAction*> actions = menu->actions();
    QCOMPARE(actions.size(), RecentFiles::most + 2);
    QCOMPARE(actions[0]->text(), QString("5.csv"));
    QCOMPARE(actions[1]->text(), QString("bunny.off"));
    QCOMPARE(actions[2]->text(), QString("11.csv (missing)"));
    QVERIFY(!actions[2]->isEnabled());
    actions[1]->trigger();
    QVERIFY(m_window->windowTitle().startsWith("bunny.off"));
    QCOMPARE(RecentFiles::all().first(), QFileInfo(examples + "bunny.off").absoluteFilePath());
    menu->actions().last()->trigger();
    QVERIFY(RecentFiles::all().isEmpty());
}

void TestViewerData::startPageOffers()
{
    RecentFiles::add(examples + "bunny.off");
    QAction open("Open");
    QAction make("Toroid");
    StartPage page(Examples::all(examples), &open, {&make});
    QVERIFY(harness::show(page, 640, 480));
    const QList<QCommandLinkButton*> entries = page.findChildren<QCommandLinkButton*>();
    QCOMPARE(entries.size(), 4);
    QSignalSpy chosen(&page, &StartPage::fileChosen);
    QSignalSpy made(&make, &QAction::triggered);
    for (QCommandLinkButton* entry : entries)
        entry->click();
    QCOMPARE(chosen.size(), 3);
    QVERIFY(QFileInfo::exists(chosen[0][0].toString()));
    QCOMPARE(made.size(), 1);
    const QList<QPushButton*> buttons = page.findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (button->text() == "bunny.off")
            button->click();
    }
    QCOMPARE(chosen.size(), 4);
}

void TestViewerData::examplesAreFound()
{
    QTemporaryDir root;
    const QDir dir(root.path());
    for (const char* path : {"usr/bin", "usr/share/voranview/examples", "tree/examples/data",
                             "tree/build/dev/apps/viewer", "other/bin"})
        QVERIFY(dir.mkpath(path));
    QCOMPARE(Examples::folder(dir.filePath("usr/bin")), dir.filePath("usr/share/voranview/examples"));
    QCOMPARE(Examples::folder(dir.filePath("tree/build/dev/apps/viewer")),
             dir.filePath("tree/examples/data"));
    QCOMPARE(Examples::folder(dir.filePath("other/bin")), QString());
    QVERIFY(Examples::all(QString()).isEmpty());
    QVERIFY(Examples::all(dir.filePath("usr/share/voranview/examples")).isEmpty());
}

void TestViewerData::waterMovesWhileItIsSeen()
{
    QString error;
    QVERIFY(m_window->present(std::make_unique<WaterSource>(), error));
    WaterSimulation& water = *m_window->page()->source().simulation();
    QVERIFY(water.isStarted() && water.isMoving());
    const auto moves = [this] {
        const QImage before = harness::grab(m_window->page()->plot());
        QTest::qWait(150);
        return harness::grab(m_window->page()->plot()) != before;
    };
    QVERIFY(moves());
    QAction* run = action("Pause");
    QVERIFY(run != nullptr);
    run->trigger();
    QVERIFY(!water.isMoving() && !moves());
    QCOMPARE(run->text().remove('&'), QString("Start"));
    action("Drop a stone")->trigger();
    QVERIFY(water.isMoving() && moves());
    m_window->hide();
    QVERIFY(water.isStarted() && !water.isMoving());
    m_window->show();
    QVERIFY(water.isMoving());
    // As a window system tells of a minimised window.
    QHideEvent minimised;
    QCoreApplication::sendEvent(&m_window->page()->plot(), &minimised);
    QVERIFY(!water.isMoving());
    m_window->openFile(examples + "bunny.off");
    QVERIFY(action("Drop a stone") == nullptr);
    QVERIFY(m_window->findChild<QToolBar*>("simulationToolBar") == nullptr);
}

void TestViewerData::waterIsSteadyInItsBox()
{
    QString error;
    QVERIFY(m_window->present(std::make_unique<WaterSource>(), error));
    const Zel3D::BasePlot& plot = m_window->page()->plot();
    const Zel3D::Parallelepiped box = plot.getHull();
    const double zoom = plot.getZoom();
    QTest::qWait(200);
    QVERIFY(plot.getHull() == box);
    QCOMPARE(plot.getZoom(), zoom);
}

int main(int argc, char* argv[])
{
    return harness::run<TestViewerData>(argc, argv);
}

#include "tst_viewerdata.moc"
