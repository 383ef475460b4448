#include "clipboardtable.h"
#include "dataactions.h"
#include "datainspector.h"
#include "datasummary.h"
#include "draghandle.h"
#include "formulasource.h"
#include "harness/harness.h"
#include "plotpage.h"
#include "plots/shplot.h"
#include "plotvalues.h"
#include "scene/legend.h"
#include "slicedata.h"
#include "slicepanel.h"
#include "sliceruler.h"
#include "tabledialog.h"
#include "tablesource.h"
#include "toroidsource.h"
#include "valuestatistics.h"
#include "valuetablemodel.h"
#include "valuetableview.h"
#include "viewerwindow.h"
#include "watersource.h"

#include <QAction>
#include <QButtonGroup>
#include <QClipboard>
#include <QDockWidget>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include <cmath>
#include <numeric>

namespace {

const QString examples = QString(VORAN_SOURCE_DIR) + "/examples/data/";

/// Four columns at x 10 to 40, three rows at y 1, 2 and 4, one height missing.
const QString small = QStringLiteral("\t10\t20\t30\t40\n1\t1\t2\t3\t4\n2\t5\t\t7\t8\n4\t9\t10\t11\t0,5\n");

} // namespace

class TestViewerValues : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void statistics_data();
    void statistics();
    void summaryOfEveryKind_data();
    void summaryOfEveryKind();
    void slicesAsCsv();
    void slicesAreSavedWhole();
    void rulerHasRoundNumbers_data();
    void rulerHasRoundNumbers();
    void lowRulerHasTwoNumbers();
    void spectrumIsSliced();
    void logarithmicValuesArePlain();
    void largeTableIsCheap();
    void pickMovesTheTable();
    void cellMarksThePoint();
    void clickHoldsThePoint();
    void cellsAreCopied();
    void pasteAsksWhatIsUnclear();
    void pastedOrDroppedPathOpens();
    void uselessClipboardSaysSo();
    void plotClosesUnderTheDocks();
    void docksLeaveRoomToThePlot();
    void movingDataAreFollowed();
    void pictureIsDraggedFromItsHandle();

private:
    void paste(const QString& text, const char* entry = "Paste data");
    QAction* action(const QString& text) const;
    PlotValues& values();
    void pick(double x, double y, double z);
    template <class Widget>
    Widget* child(const char* name = "") const
    {
        return m_window->findChild<Widget*>(QString::fromLatin1(name));
    }

    std::unique_ptr<ViewerWindow> m_window;
    std::unique_ptr<PlotValues> m_values;
};

void TestViewerValues::init()
{
    m_window = std::make_unique<ViewerWindow>();
    QVERIFY(harness::show(*m_window, 1000, 700));
}

void TestViewerValues::cleanup()
{
    m_values.reset();
    m_window.reset();
    QSettings().clear();
    QSettings("VORAN", "voranview").clear();
}

QAction* TestViewerValues::action(const QString& text) const
{
    const QList<QAction*> actions = m_window->findChildren<QAction*>();
    for (QAction* found : actions) {
        if (found->text().remove('&') == text)
            return found;
    }
    return nullptr;
}

void TestViewerValues::paste(const QString& text, const char* entry)
{
    QGuiApplication::clipboard()->setText(text);
    action(entry)->trigger();
}

PlotValues& TestViewerValues::values()
{
    m_values = PlotValues::of(m_window->page()->plot());
    return *m_values;
}

void TestViewerValues::pick(double x, double y, double z)
{
    emit m_window->page()->plot().selectedObject({x, y, z, true});
}

void TestViewerValues::statistics_data()
{
    QTest::addColumn<QVector<double>>("numbers");
    QTest::addColumn<QVector<double>>("expected"); // count, missing, least, largest, mean, deviation, median
    QTest::newRow("odd") << QVector<double>{3, 1, 2} << QVector<double>{3, 0, 1, 3, 2, std::sqrt(2.0 / 3), 2};
    QTest::newRow("even, one missing")
        << QVector<double>{2, qQNaN(), 4, 4, 10} << QVector<double>{4, 1, 2, 10, 5, 3, 4};
    QTest::newRow("all equal") << QVector<double>{7, 7} << QVector<double>{2, 0, 7, 7, 7, 0, 7};
    QTest::newRow("far from zero") << QVector<double>{1e9 + 1, 1e9 + 2, 1e9 + 3, 1e9 + 4}
                                   << QVector<double>{
                                          4, 0, 1e9 + 1, 1e9 + 4, 1e9 + 2.5, std::sqrt(1.25), 1e9 + 2.5};
    QTest::newRow("median beside an outlier")
        << QVector<double>{1, 2, 3, 4, 1e6}
        << QVector<double>{5, 0, 1, 1e6, 200002, std::sqrt(159999200002.0), 3};
}

void TestViewerValues::statistics()
{
    QFETCH(QVector<double>, numbers);
    QFETCH(QVector<double>, expected);
    const ValueStatistics found([&numbers](const ValueStatistics::Visit& take) {
        for (const double number : numbers)
            take(number);
    });
    const QVector<double> got{
        double(found.count()), double(found.missing()), found.minimum(), found.maximum(),
        found.mean(),          found.deviation(),       found.median()};
    for (int i = 0; i < got.size(); ++i)
        QVERIFY2(std::abs(got[i] - expected[i]) <= 1e-12 * std::abs(expected[i]),
                 qPrintable(QString("%1: %2").arg(i).arg(got[i], 0, 'g', 17)));
    const std::vector<std::size_t> bars = found.histogram(4);
    QCOMPARE(std::accumulate(bars.begin(), bars.end(), std::size_t(0)), found.count());
}

void TestViewerValues::summaryOfEveryKind_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("grid") << "jacksboro_dem.asc"
                          << QStringList{"Kind=Surface over a grid", "Nodes=403 columns \u00d7 344 rows",
                                         "Elevation (m)=236 to 1076", "Missing=none"};
    QTest::newRow("spectra") << "gasoline_nir.csv"
                             << QStringList{"Kind=Spectra", "Spectra=60", "Points each=401",
                                            "Position=900 to 1700, step 2", "sample=1 to 60, step 1"};
    QTest::newRow("mesh") << "bunny.off" << QStringList{"Kind=Mesh", "Vertices=1,839", "Cells=3,674"};
    QTest::newRow("table") << QString()
                           << QStringList{"Nodes=4 columns \u00d7 3 rows",
                                          "x=10 to 40, step 10",
                                          "y=1 to 4",
                                          "z=0.5 to 11",
                                          "Missing=1 (8.3 %)",
                                          "Mean=5.5",
                                          "Median=5"};
}

void TestViewerValues::summaryOfEveryKind()
{
    QFETCH(QString, file);
    QFETCH(QStringList, expected);
    if (file.isEmpty())
        paste(small);
    else
        m_window->openFile(examples + file);
    const PlotValues& shown = values();
    const ValueStatistics found([&](const ValueStatistics::Visit& take) { shown.visitHeights(take); });
    QStringList lines;
    const QVector<DataSummary::Line> summary = DataSummary::lines(shown, found, QLocale(QLocale::English));
    for (const DataSummary::Line& line : summary)
        lines.append(line.first + '=' + line.second);
    for (const QString& line : qAsConst(expected))
        QVERIFY2(lines.contains(line), qPrintable(line + " in " + lines.join(" | ")));
}

void TestViewerValues::slicesAsCsv()
{
    paste(small);
    const PlotValues& shown = values();
    const ValuePlace place{1, 2};
    const QVector<SliceData> both{SliceData::row(shown, place), SliceData::column(shown, place)};
    QCOMPARE(SliceData::csv(shown, both), QByteArray("x,z at y = 4,y,z at x = 20\n"
                                                     "10,9,1,2\n"
                                                     "20,10,2,\n"
                                                     "30,11,4,10\n"
                                                     "40,0.5,,\n"));
    QCOMPARE(both[0].picked, 1);
    QCOMPARE(both[1].picked, 2);
    QVERIFY(std::isnan(both[1].value[1]));
    // Commas of a name do not part cells.
    QGuiApplication::clipboard()->setText(
        "\"x, left\"\ty\t\"z \"\"up\"\"\"\n0\t0\t1\n1\t0\t2\n0\t1\t3\n1\t1\t4\n");
    action("Paste data")->trigger();
    const PlotValues& named = values();
    QVERIFY(SliceData::csv(named, {SliceData::row(named, {0, 0})})
                .startsWith("\"x, left\",\"z \"\"up\"\" at y = 0\"\n0,1\n1,2\n"));
}

void TestViewerValues::slicesAreSavedWhole()
{
    paste(small);
    action("Slice")->trigger();
    pick(20.0, 4.0, 10.0);
    const auto* panel = child<SlicePanel>();
    QTemporaryDir folder;
    QString error;
    QVERIFY2(panel->save(folder.filePath("slice.csv"), error), qPrintable(error));
    QFile file(folder.filePath("slice.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), panel->csv());
    QVERIFY(!panel->save(folder.filePath("missing/slice.csv"), error));
    QVERIFY2(error.contains("missing/slice.csv") && error.endsWith('.'), qPrintable(error));
}

void TestViewerValues::rulerHasRoundNumbers_data()
{
    QTest::addColumn<QVector<double>>("numbers");
    QTest::addColumn<bool>("logarithmic");
    QTest::addColumn<QVector<double>>("ticks");
    QTest::newRow("thirds") << QVector<double>{0, 0.9} << false << QVector<double>{0, 0.25, 0.5, 0.75};
    QTest::newRow("across zero, some missing")
        << QVector<double>{qQNaN(), -30, 25} << false << QVector<double>{-20, 0, 20};
    QTest::newRow("one number") << QVector<double>{200} << false << QVector<double>{190, 195, 200, 205, 210};
    QTest::newRow("none") << QVector<double>{qQNaN()} << false << QVector<double>{0, 0.25, 0.5, 0.75, 1};
    QTest::newRow("decades") << QVector<double>{1, 1e4, -5} << true << QVector<double>{1, 10, 100, 1e3, 1e4};
    QTest::newRow("many decades") << QVector<double>{1, 1e12} << true << QVector<double>{1, 1e5, 1e10};
    QTest::newRow("less than two decades")
        << QVector<double>{3, 60} << true << QVector<double>{5, 10, 20, 50};
}

void TestViewerValues::rulerHasRoundNumbers()
{
    QFETCH(QVector<double>, numbers);
    QFETCH(bool, logarithmic);
    QFETCH(QVector<double>, ticks);
    const SliceRuler ruler(std::vector<double>(numbers.begin(), numbers.end()), logarithmic, 0.0);
    const QVector<double> found = ruler.ticks(4);
    QStringList texts;
    for (const double tick : found)
        texts.append(QString::number(tick));
    QVERIFY2(found.size() == ticks.size(), qPrintable(texts.join(' ')));
    for (int i = 0; i < ticks.size(); ++i) {
        QVERIFY2(std::abs(found[i] - ticks[i]) <= 1e-9 * std::abs(ticks[i]), qPrintable(texts.join(' ')));
        QVERIFY(ruler.part(found[i]) >= -1e-9 && ruler.part(found[i]) <= 1.0 + 1e-9);
    }
}

void TestViewerValues::lowRulerHasTwoNumbers()
{
    for (const int most : {1, 2}) {
        const QVector<double> found = SliceRuler({0.02, 0.14}, false, 0.0).ticks(most);
        QCOMPARE(found.size(), 2);
        QCOMPARE(found[0], 0.05);
        QCOMPARE(found[1], 0.1);
    }
}

void TestViewerValues::spectrumIsSliced()
{
    paste("nm\tdark\tbright\n500\t1.5\t\n400\t2.5\t8\n600\t0\t9\n");
    const PlotValues& shown = values();
    const std::optional<ValuePlace> place = shown.find({600.0, 2.0, 9.0, true});
    QVERIFY(place.has_value());
    QCOMPARE(SliceData::csv(shown, {SliceData::row(shown, *place)}),
             QByteArray("nm,Value at Spectrum = 2\n400,8\n500,\n600,9\n"));
    QCOMPARE(SliceData::column(shown, *place).value, (std::vector<double>{0.0, 9.0}));
}

void TestViewerValues::logarithmicValuesArePlain()
{
    ClipboardTable table("\t1\t10\t100\n1\t1\t10\t1000\n2\t5\t-3\t7\n3\t1\t1\t1\n");
    QVERIFY(table.read());
    auto source = std::make_unique<TableSource>(std::move(table), TableMeaning::HeightsWithAxes);
    source->setLogarithmic({true, false, true});
    QString error;
    QVERIFY2(m_window->present(std::move(source), error), qPrintable(error));
    const SliceData row = SliceData::row(values(), {1, 1});
    QVERIFY(row.atLogarithmic && row.valueLogarithmic);
    QVERIFY(std::abs(row.at[2] - 100.0) < 1e-4);
    // What no logarithmic scale can show is missing.
    QVERIFY(std::isnan(row.value[1]));
    QVERIFY(std::abs(row.value[0] - 5.0) < 1e-5);
}

void TestViewerValues::largeTableIsCheap()
{
    FormulaArea area;
    area.columns = area.rows = 1000;
    QString error;
    QVERIFY(m_window->present(std::make_unique<FormulaSource>("x*y", area), error));
    action("Data")->trigger();
    auto* table = child<ValueTableView>("values");
    QTRY_VERIFY(table->isVisible());
    QCOMPARE(table->model()->rowCount(), 1000);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 40; ++i) {
        table->scrollTo(table->model()->index(i * 23, i * 21));
        table->viewport()->repaint();
    }
    // Measured: 3.5 ms each.
    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
}

void TestViewerValues::pickMovesTheTable()
{
    paste(small);
    action("Data")->trigger();
    action("Slice")->trigger();
    auto* table = child<ValueTableView>("values");
    pick(30.0, 2.0, 7.0);
    QCOMPARE(table->currentIndex().data().toString(), QString("7"));
    QCOMPARE(table->model()->headerData(table->currentIndex().row(), Qt::Vertical).toString(), QString("2"));
    QVERIFY2(child<QLabel>("where")->text().contains("x: 30   y: 2   z: 7"),
             qPrintable(child<QLabel>("where")->text()));
    QVERIFY(child<SlicePanel>()->csv().contains("\n30,7,4,11\n"));
    // Beside the data the last point stays.
    emit m_window->page()->plot().selectedObject({});
    QCOMPARE(table->currentIndex().column(), 2);
    // A missing node shows as one.
    QCOMPARE(table->model()->index(1, 1).data().toString(), QString("\u2013"));
    // What was picked while the dock was hidden is there when it comes back.
    action("Data")->trigger();
    pick(40.0, 4.0, 0.5);
    action("Data")->trigger();
    QTRY_COMPARE(table->currentIndex().data().toString(), QString("0.5"));
}

void TestViewerValues::cellMarksThePoint()
{
    m_window->openFile(examples + "jacksboro_dem.asc");
    action("Data")->trigger();
    QCoreApplication::processEvents();
    auto& plot = dynamic_cast<Zel3D::SHPlot&>(m_window->page()->plot());
    // It marks what is under the mouse, held or not.
    plot.getLegend().setVisible(false);
    const QImage before = harness::grab(plot);
    auto* table = child<ValueTableView>("values");
    // A real pick, at the middle of the window.
    QSignalSpy found(&plot, &Zel3D::BasePlot::selectedObject);
    plot.findObjects(QPointF(plot.rect().center()), Qt::NoModifier);
    QCOMPARE(found.size(), 1);
    const auto info = found[0][0].value<Zel3D::SelectedObjectsInfo>();
    QVERIFY(info.valid);
    QCOMPARE(table->currentIndex().data().toString(), QString::number(info.z));
    table->setCurrentIndex(table->model()->index(172, 201));
    const QImage marked = harness::grab(plot);
    QVERIFY(marked != before);
    // The mouse does not take the chosen cell away.
    pick(values().x(3, 3), values().y(3, 3), values().value(3, 3));
    QCOMPARE(table->currentIndex(), table->model()->index(172, 201));
    QCOMPARE(harness::grab(plot), marked);
}

void TestViewerValues::clickHoldsThePoint()
{
    paste(small);
    action("Slice")->trigger();
    QCoreApplication::processEvents();
    Zel3D::BasePlot& plot = m_window->page()->plot();
    const auto click = [&plot] { QTest::mouseClick(&plot, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3)); };
    auto* panel = child<SlicePanel>();
    panel->findChild<QButtonGroup*>()->button(SlicePanel::Row)->click();
    const auto row = [panel] { return panel->csv().split('\n').first().right(1); };
    pick(30.0, 2.0, 7.0);
    click();
    pick(10.0, 1.0, 1.0);
    QCOMPARE(row(), QByteArray("2"));
    // On another point: that one; again: let go.
    click();
    QCOMPARE(row(), QByteArray("1"));
    pick(30.0, 2.0, 7.0);
    QCOMPARE(row(), QByteArray("1"));
    pick(10.0, 1.0, 1.0);
    click();
    pick(30.0, 2.0, 7.0);
    QCOMPARE(row(), QByteArray("2"));
    // Beside the data.
    click();
    emit plot.selectedObject({});
    click();
    pick(10.0, 1.0, 1.0);
    QCOMPARE(row(), QByteArray("1"));
    // Turning the plot is no click.
    QTest::mousePress(&plot, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    QTest::mouseRelease(&plot, Qt::LeftButton, Qt::NoModifier, QPoint(60, 3));
    pick(30.0, 2.0, 7.0);
    QCOMPARE(row(), QByteArray("2"));
    panel->findChild<QToolButton*>("hold")->click();
    pick(10.0, 1.0, 1.0);
    QCOMPARE(row(), QByteArray("2"));
}

void TestViewerValues::cellsAreCopied()
{
    paste(small);
    action("Data")->trigger();
    auto* table = child<ValueTableView>("values");
    QApplication::setActiveWindow(m_window.get());
    table->setFocus();
    QTRY_VERIFY(table->hasFocus());
    table->selectionModel()->select(QItemSelection(table->model()->index(0, 1), table->model()->index(1, 2)),
                                    QItemSelectionModel::ClearAndSelect);
    // Not the picture, which has the same keys elsewhere.
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("2\t3\n\t7\n"));
    // As a spreadsheet of the same country takes it.
    table->setLocale(QLocale(QLocale::German));
    table->setCurrentIndex(table->model()->index(2, 3));
    table->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("0,5\n"));
}

void TestViewerValues::pasteAsksWhatIsUnclear()
{
    const auto answer = [](TableMeaning wanted, TableMeaning guess) {
        QTimer::singleShot(0, [wanted, guess] {
            auto* dialog = qobject_cast<TableDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            QCOMPARE(int(dialog->meaning()), int(guess));
            dialog->findChild<QButtonGroup*>()->button(int(wanted))->click();
            dialog->accept();
        });
    };
    const QString unclear = "1\t5\t1\n2\t2\t7\n3\t1\t1\n4\t0\t2\n";
    answer(TableMeaning::HeightsWithY, TableMeaning::Spectra);
    paste(unclear);
    QVERIFY(m_window->page() != nullptr);
    QVERIFY2(m_window->page()->source().description().startsWith("2 x 4 nodes"),
             qPrintable(m_window->page()->source().description()));
    // On request even about what is clear.
    answer(TableMeaning::Spectra, TableMeaning::Spectra);
    paste("1\t5\n2\t7\n", "Paste data as...");
    QVERIFY(m_window->page()->view().kind() == PlotKind::Spectra);
}

void TestViewerValues::pastedOrDroppedPathOpens()
{
    paste('"' + examples + "bunny.off\"");
    QVERIFY(m_window->windowTitle().startsWith("bunny.off"));
    paste(QUrl::fromLocalFile(examples + "gasoline_nir.csv").toString());
    QVERIFY(m_window->windowTitle().startsWith("gasoline_nir.csv"));
    QMimeData data;
    data.setText(small);
    data.setHtml("<b>no table</b>");
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &drop);
    QVERIFY2(m_window->windowTitle().startsWith("Pasted table"), qPrintable(m_window->windowTitle()));
    QCOMPARE(values().columns(), 4);
}

void TestViewerValues::uselessClipboardSaysSo()
{
    const auto words = [this](const QString& text) { return harness::boxText([&] { paste(text); }); };
    QVERIFY(words(QString()).startsWith("There is no table"));
    QVERIFY(words("Dear Sir\nor Madam").contains("\"Madam\""));
    QVERIFY(m_window->page() == nullptr);
    QMimeData image;
    image.setImageData(QImage(2, 2, QImage::Format_RGB32));
    QVERIFY(!DataActions::canTake(image));
}

void TestViewerValues::plotClosesUnderTheDocks()
{
    QVERIFY(!action("Data")->isEnabled());
    m_window->openFile(examples + "jacksboro_dem.asc");
    action("Data")->trigger();
    action("Slice")->trigger();
    pick(values().x(3, 3), values().y(3, 3), values().value(3, 3));
    auto* dock = child<QDockWidget>("dataDock");
    QVERIFY(dock->isVisible());
    m_values.reset();
    m_window->closePlot();
    QCoreApplication::processEvents();
    // The start page has nothing to inspect; the docks come back with a plot.
    QVERIFY(!dock->isVisible());
    QCOMPARE(child<ValueTableView>("values")->model()->rowCount(), 0);
    m_window->openFile(examples + "bunny.off");
    QVERIFY(dock->isVisible());
    QCOMPARE(child<ValueTableView>("values")->model()->rowCount(), 1839);
    QVERIFY(child<QLabel>("hint")->isVisible());
    QVERIFY(child<QLabel>("hint")->text().startsWith("A mesh has no rows"));
    m_window->close();
    ViewerWindow again;
    again.show();
    again.openFile(examples + "bunny.off");
    QVERIFY(again.findChild<QDockWidget*>("dataDock")->isVisible());
}

void TestViewerValues::docksLeaveRoomToThePlot()
{
    m_window->resize(1000, 800);
    m_window->openFile(examples + "jacksboro_dem.asc");
    action("Data")->trigger();
    action("Slice")->trigger();
    QTest::qWait(50);
    auto* dock = child<QDockWidget>("dataDock");
    const int usual = dock->width();
    for (const QSize& size : {QSize(1000, 800), QSize(700, 500)}) {
        m_window->resize(size);
        QTest::qWait(50);
        const QSize plot = m_window->page()->plot().size();
        QVERIFY2(plot.width() >= 452 && plot.height() >= 200, qPrintable(QString::number(plot.width())));
    }
    QVERIFY(dock->width() < usual);
    // In the narrow dock no value is cut off.
    const QList<QLabel*> labels = dock->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        const int right = label->mapTo(dock, QPoint(label->minimumSizeHint().width(), 0)).x();
        QVERIFY2(!label->isVisible() || right <= dock->width(), qPrintable(label->text()));
    }
}

void TestViewerValues::movingDataAreFollowed()
{
    QString error;
    QVERIFY(m_window->present(std::make_unique<WaterSource>(), error));
    action("Slice")->trigger();
    const PlotValues& shown = values();
    pick(shown.x(50, 50), shown.y(50, 50), shown.value(50, 50));
    auto* panel = child<SlicePanel>();
    const QByteArray before = panel->csv();
    QVERIFY2(before.count(char(10)) == 101, before.constData());
    QTRY_VERIFY(panel->csv() != before);
    // Nodes of a shape have places of their own.
    m_values.reset();
    QVERIFY(m_window->present(std::make_unique<ToroidSource>(), error));
    const PlotValues& ring = values();
    QVERIFY(!ring.isRectangular());
    const std::optional<ValuePlace> place =
        ring.find({ring.x(17, 23), ring.y(17, 23), ring.value(17, 23), true});
    QVERIFY(place == (ValuePlace{17, 23}));
}

void TestViewerValues::pictureIsDraggedFromItsHandle()
{
    m_window->openFile(examples + "bunny.off");
    auto* handle = child<DragHandle>("dragHandle");
    QVERIFY(handle != nullptr && handle->isVisible());
    DragHandle alone;
    QSignalSpy dragged(&alone, &DragHandle::dragged);
    QSignalSpy clicked(&alone, &DragHandle::clicked);
    const auto send = [&alone](QEvent::Type type, const QPoint& at) {
        QMouseEvent event(type, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&alone, &event);
    };
    send(QEvent::MouseButtonPress, {5, 5});
    send(QEvent::MouseMove, {6, 6});
    QCOMPARE(dragged.size(), 0);
    send(QEvent::MouseMove, {40, 5});
    send(QEvent::MouseMove, {60, 5});
    QCOMPARE(dragged.size(), 1);
    send(QEvent::MouseButtonRelease, {60, 5});
    QCOMPARE(clicked.size(), 0);
    send(QEvent::MouseButtonPress, {5, 5});
    send(QEvent::MouseButtonRelease, {5, 5});
    QCOMPARE(clicked.size(), 1);
    m_window->closePlot();
    QVERIFY(child<DragHandle>("dragHandle") == nullptr);
}

int main(int argc, char* argv[])
{
    return harness::run<TestViewerValues>(argc, argv);
}

#include "tst_viewervalues.moc"
