// What a change compiles and computes anew, and that it is no more than it must be.

#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/dot.h"
#include "plots/dotaddition.h"
#include "plots/look.h"
#include "plots/spectrum.h"
#include "scene/title.h"

#include <GL/gl.h>

#include <QtTest>

using namespace Zel3D;
using namespace fixture;

using Change = std::function<void(Plot&)>;
Q_DECLARE_METATYPE(Change)

namespace {

/// The lists that were compiled, each by what it holds.
QStringList compiled(const GLRecorder& recorder)
{
    QStringList lists;
    const QStringList& calls = recorder.calls();
    for (int i = recorder.indexOf("glNewList("); i >= 0; i = recorder.indexOf("glNewList(", i + 1)) {
        const QStringList sent = calls.mid(i, recorder.indexOf("glEndList(", i) - i);
        const auto has = [&sent](int mode) { return sent.contains(QString("glBegin(%1)").arg(mode)); };
        if (has(GL_TRIANGLE_STRIP) || has(GL_POLYGON) || sent.join(' ').contains("glCallList("))
            lists.append("data");
        else if (has(GL_POINTS))
            lists.append("points");
        else if (sent.join(' ').contains("glBegin("))
            lists.append(has(GL_LINE_LOOP) ? "mesh" : "normals");
    }
    return lists;
}

bool loadHill(Plot& plot)
{
    return Heights(6, 6, [](int i, int j) { return i * (5 - i) + j; }).into(plot);
}

bool loadCells(Plot& plot)
{
    return plot.loadFromData({{0, 0, 0}, {1, 0, 1}, {1, 1, 2}, {0, 1, 1}}, {{0, 1, 2}, {0, 2, 3}}, 1.0, 1.0);
}

int listsAlive(Plot& plot)
{
    plot.makeCurrent();
    int count = 0;
    for (unsigned int id = 1; id < 1000; ++id)
        count += glIsList(id) == GL_TRUE ? 1 : 0;
    return count;
}

/// A normal of the grid; writing to it tells whether it is computed again.
double& normal(Plot& plot)
{
    return const_cast<double&>(*plot.getGridData()->normalVectorAt(2, 2));
}

} // namespace

class TestRebuilding : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void aChangeRebuildsWhatItMust_data();
    void aChangeRebuildsWhatItMust();
    void theMeshIsDrawnWhereItWas_data();
    void theMeshIsDrawnWhereItWas();
    void theFirstGradientBringsTheMesh();
    void markersRebuildNoData();
    void spectraKeepTheirSheets();
    void picturesTakeTheWindowsLists_data();
    void picturesTakeTheWindowsLists();
    void nothingIsLeftOfClearedData();
};

void TestRebuilding::aChangeRebuildsWhatItMust_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("lists");
    QTest::addColumn<bool>("computes"); // normals
    const auto row = [](const char* name, int style, const char* lists, const Change& change,
                        bool computes = false) {
        QTest::newRow(name) << change << style << QString(lists) << computes;
    };
    const Change red = [](Plot& p) { p.setMeshColor(Qt::red); };
    const Change background = [](Plot& p) { p.setBackgroundColor(Qt::gray); };
    row("mesh colour", 5, "mesh", red);
    row("mesh colour, wireframe", 2, "mesh", red);
    row("mesh colour, no mesh shown", 4, "", red);
    row("mesh colour, points", 1, "", red);
    row("mesh colour, frames of the histogram", 6, "data", red);
    row("dots, surface", 4, "", [](Plot& p) { p.setDotSize(7.0); });
    row("dots, points", 1, "points", [](Plot& p) { p.setDotSize(7.0); });
    row("bars, surface", 5, "", [](Plot& p) {
        p.setCylinderRibNumber(5);
        p.setCylinderOpacity(50);
    });
    row("bars, histogram", 6, "data", [](Plot& p) { p.setCylinderRibNumber(5); });
    row("mesh width", 5, "mesh", [](Plot& p) { p.setMeshLineWidth(3.0); });
    row("mesh lines", 5, "mesh", [](Plot& p) { p.setMeshXVisible(false); });
    row("both, painted once", 5, "mesh", [](Plot& p) {
        p.setMeshColor(Qt::red);
        p.setMeshYVisible(false);
    });
    row("mesh colour and offset", 5, "data mesh", [](Plot& p) {
        p.setMeshColor(Qt::red);
        p.setPolygonOffset(2.0);
    });
    row("gradient", 5, "data normals", [](Plot& p) { p.setGradient("x", plain(Qt::red)); });
    row("gradient range", 4, "data normals", [](Plot& p) { p.setGradientRange({1.0, 2.0}); });
    row("the same gradient range", 4, "", [](Plot& p) { p.setGradientRange(p.getGradientRange()); });
    row("background", 4, "", background);
    row("background, hidden lines", 3, "data mesh", background);
    row("legend", 5, "", [](Plot& p) {
        p.getLegend().setVisible(true);
        p.setMajorInterval(ZAxis, Linear, 3);
    });
    row("title", 5, "", [](Plot& p) { p.getTitle().getSettings().setText("Other"); });
    row("colour of an axis", 5, "", [](Plot& p) {
        p.getCoordinateSystem().getAxis(XFrontBottom).getSettings().getLine().setColor(Qt::red);
    });
    row("the same look once more", 5, "", [](Plot& p) {
        p.setNormalsVisible(true);
        Look::light().applyTo(p);
    });
    row("view", 5, "", [](Plot& p) {
        p.setRotation({10.0, 20.0, 30.0});
        p.setZoom(2.0);
        p.setProjectionType(Perspective);
    });
    row("shading and light", 5, "", [](Plot& p) {
        p.setShadingStyle(FlatShading);
        p.setLighting(true);
    });
    row("style", 5, "data normals", [](Plot& p) { p.setPlotStyle(4); });
    row("resolution", 5, "data mesh normals", [](Plot& p) { p.setResolution(2); });
    row("normals hidden", 5, "", [](Plot& p) { p.setNormalsVisible(false); });
    row("normals longer", 5, "normals", [](Plot& p) { p.setNormalsLength(0.3); });
    row(
        "data", 5, "data mesh normals", [](Plot& p) { QVERIFY(loadHill(p)); }, true);
}

void TestRebuilding::aChangeRebuildsWhatItMust()
{
    QFETCH(Change, change);
    QFETCH(int, style);
    Plot plot;
    Look::light().applyTo(plot);
    plot.setPlotStyle(style);
    plot.setNormalsVisible(true);
    QVERIFY(loadHill(plot));
    QVERIFY(harness::show(plot, 80, 80));
    const double computed = normal(plot);
    normal(plot) = 7.0;
    GLRecorder recorder;
    change(plot);
    plot.updateGL();
    plot.updateGL();
    QTEST(compiled(recorder).join(' '), "lists");
    QTEST(normal(plot) != 7.0, "computes");
    normal(plot) = computed;
}

void TestRebuilding::theMeshIsDrawnWhereItWas_data()
{
    QTest::addColumn<bool>("cells");
    QTest::addColumn<int>("style");
    for (const bool cells : {false, true}) {
        for (const int style : {2, 3, 5})
            QTest::newRow(qPrintable(QString("%1, style %2").arg(cells ? "cells" : "grid").arg(style)))
                << cells << style;
    }
}

// A plot whose mesh changed shows what one shows that was built with it.
void TestRebuilding::theMeshIsDrawnWhereItWas()
{
    QFETCH(bool, cells);
    QFETCH(int, style);
    const auto prepared = [&](Plot& plot) {
        plot.setPlotStyle(style);
        plot.setPolygonOffset(1.0);
        plot.setRotation({40.0, 0.0, 30.0});
        return (cells ? loadCells(plot) : loadHill(plot)) && harness::show(plot, 120, 120);
    };
    const auto mend = [](Plot& plot) {
        plot.setMeshColor(QColor(0, 200, 0, 128));
        plot.setMeshLineWidth(3.0);
    };
    Plot changed;
    QVERIFY(prepared(changed));
    const QImage before = harness::grab(changed);
    mend(changed);
    const QImage after = harness::grab(changed);
    Plot built;
    mend(built);
    QVERIFY(prepared(built));
    QCOMPARE(after, harness::grab(built));
    QVERIFY(after != before);
}

void TestRebuilding::theFirstGradientBringsTheMesh()
{
    const auto prepared = [](SHPlot& plot) {
        plot.setPlotStyle(5);
        plot.setRotation({40.0, 0.0, 30.0});
        plot.getLegend().setVisible(false);
        return Heights(6, 6, plane).into(plot) && harness::show(plot, 120, 120);
    };
    Plot colored;
    QVERIFY(prepared(colored));
    SHPlot plot("plot", organization, application);
    QVERIFY(prepared(plot));
    const harness::Messages quiet;
    harness::grab(plot);
    plot.setGradient("ramp", ramp());
    QCOMPARE(harness::grab(plot), harness::grab(colored));
}

void TestRebuilding::markersRebuildNoData()
{
    Plot plot;
    plot.setPlotStyle(5);
    QVERIFY(loadHill(plot));
    QVERIFY(harness::show(plot, 80, 80));
    const QImage bare = harness::grab(plot);
    GLRecorder recorder;
    const auto rebuilt = [&] {
        recorder.clear();
        plot.updateGL();
        return compiled(recorder).join(' ');
    };
    DotAddition dot(5.0, false, Qt::red);
    Addition* held = plot.addAddition(dot);
    QCOMPARE(rebuilt(), "points");
    const QImage marked = harness::grab(plot);
    QVERIFY(pixels(marked, Qt::red) > 100);
    // A marker may use anything of its plot.
    plot.setMeshColor(Qt::blue);
    QCOMPARE(rebuilt(), "points mesh");
    plot.setGradient("x", plain(Qt::green));
    QCOMPARE(rebuilt(), "points data");
    plot.setResolution(2);
    QCOMPARE(rebuilt(), "points data mesh");
    plot.setResolution(1);
    plot.setMeshColor(Qt::black);
    plot.setGradient("ramp", ramp());
    QCOMPARE(harness::grab(plot), marked);
    QVERIFY(plot.removeAddition(held));
    QCOMPARE(rebuilt(), "");
    QCOMPARE(harness::grab(plot), bare);
}

void TestRebuilding::spectraKeepTheirSheets()
{
    Spectrum plot("plot", organization, application);
    plot.setGradient("ramp", ramp());
    plot.setPlotStyle(3);
    QVERIFY(plot.loadFromData({{1.0, {{0.0, 1.0}, {1.0, 3.0}}}}, YAxis));
    QVERIFY(harness::show(plot, 80, 80));
    GLRecorder recorder;
    plot.setMeshColor(Qt::red);
    plot.setBackgroundColor(Qt::gray);
    plot.updateGL();
    QVERIFY(compiled(recorder).isEmpty());
    plot.setMeshLineWidth(3.0); // of the frame, and of areas without height
    plot.updateGL();
    QVERIFY(!compiled(recorder).isEmpty());
}

void TestRebuilding::picturesTakeTheWindowsLists_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("style");
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("told");
    QTest::addColumn<bool>("apart");
    const auto row = [](
                         const char* name, int style, double scale, bool told, bool apart,
                         const Change& change = [](Plot&) {}) {
        QTest::newRow(name) << change << style << scale << told << apart;
    };
    row("of the window's size", 5, 1.0, false, false);
    row("of cells", 5, 1.0, false, false, [](Plot& p) { loadCells(p); });
    row("larger, of cells", 4, 3.0, false, false, [](Plot& p) { loadCells(p); });
    row("larger, of cells with a mesh", 5, 3.0, false, true, [](Plot& p) { loadCells(p); });
    row("larger, of changing data", 4, 3.0, false, false, [](Plot& p) { p.setDataChanging(true); });
    row("for feedback", 5, 1.0, true, true);
    row("larger", 4, 3.0, false, false);
    row("larger, for feedback", 4, 3.0, true, true);
    row("larger, with a mesh", 5, 3.0, false, true);
    row("larger, hidden lines", 3, 3.0, false, true);
    row("larger, points", 1, 3.0, false, true);
    row("larger, with normals", 4, 3.0, false, true, [](Plot& p) { p.setNormalsVisible(true); });
    row("larger, with markers", 4, 3.0, false, true, [](Plot& p) {
        Dot dot;
        p.addAddition(dot);
    });
    row("larger, bars", 6, 3.0, false, false);
    row("larger, bars with frames", 6, 3.0, false, true, [](Plot& p) { p.setCylinderFrameVisible(true); });
}

void TestRebuilding::picturesTakeTheWindowsLists()
{
    QFETCH(Change, change);
    QFETCH(int, style);
    QFETCH(double, scale);
    QFETCH(bool, told);
    QFETCH(bool, apart);
    Plot plot;
    plot.setPlotStyle(style);
    QVERIFY(loadHill(plot));
    change(plot);
    QVERIFY(harness::show(plot, 80, 80));
    plot.updateGL();
    const int shown = listsAlive(plot);
    GLRecorder recorder;
    QVERIFY(plot.beginPicture(scale, told));
    QCOMPARE(recorder.count("glNewList") > 0, apart);
    plot.endPicture();
    QCOMPARE(listsAlive(plot), shown);
    recorder.clear();
    plot.updateGL();
    QVERIFY(compiled(recorder).isEmpty());
    // A picture of one moment does not go by what the window may become.
    QVERIFY(plot.beginPicture(1.0, false, true));
    QCOMPARE(recorder.count("glNewList") > 0, true);
    plot.endPicture();
}

void TestRebuilding::nothingIsLeftOfClearedData()
{
    // Of lists of data, mesh and normals; what is left is the plot's own.
    const auto leftOf = [](int style) {
        Plot plot;
        plot.setPlotStyle(style);
        plot.setNormalsVisible(true);
        harness::show(plot, 80, 80);
        loadHill(plot);
        plot.updateGL();
        const int shown = listsAlive(plot);
        plot.clearData();
        const int left = listsAlive(plot);
        return left < shown ? left : -1;
    };
    const int left = leftOf(4);
    QVERIFY(left >= 0);
    QCOMPARE(leftOf(5), left);
}

int main(int argc, char* argv[])
{
    return harness::run<TestRebuilding>(argc, argv);
}

#include "tst_rebuilding.moc"
