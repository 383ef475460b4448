// Data at the ends of what numbers can be: every plot style draws them without an error of OpenGL and answers
// a pick, and what can be seen is seen.

#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/spectrum.h"

#include <QtTest>

#include <cfloat>
#include <cmath>

using namespace Zel3D;
using namespace fixture;

namespace {

constexpr double missing = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr int filled = 4;

using Height = double (*)(int, int);
using Area = std::array<double, 4>; // xMin, xMax, yMin, yMax

/// Draws what a plot holds in every style from several sides and picks in the middle. The first sentence that
/// names a fault, or an empty one.
template <class AnyPlot>
QString tryStyles(AnyPlot& plot, int styles)
{
    for (int style = 0; style < styles; ++style) {
        plot.setPlotStyle(style);
        for (const double angle : {0.0, 30.0, 90.0}) {
            plot.setRotation({angle, 0.0, 2.0 * angle});
            if (harness::grab(plot).size() != plot.size())
                return QString("style %1 at %2 degrees: no picture").arg(style).arg(angle);
            plot.makeCurrent();
            // Polygon modes that OpenGL rejects are part of every frame.
            while (const unsigned int error = glGetError()) {
                if (error != GL_INVALID_ENUM)
                    return QString("style %1 at %2 degrees: OpenGL error %3")
                        .arg(style)
                        .arg(angle)
                        .arg(error);
            }
        }
        plot.findObjects(QPointF(plot.width() / 2.0, plot.height() / 2.0), Qt::NoModifier);
        const ValueXYZ<double> scale = plot.getScale();
        if (!std::isfinite(plot.getZoom()) || !std::isfinite(scale.x * scale.y * scale.z))
            return QString("style %1: the view is not finite").arg(style);
    }
    return QString();
}

template <class AnyPlot>
bool showsData(AnyPlot& plot)
{
    plot.setRotation({20.0, 0.0, 30.0});
    const QImage picture = harness::grab(plot);
    return pixels(picture, plot.getBackgroundColor()) < picture.width() * picture.height();
}

} // namespace

Q_DECLARE_METATYPE(Height)
Q_DECLARE_METATYPE(Area)

class TestExtremeData : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }

    void grids_data();
    void grids();
    void points_data();
    void points();
    void spectra_data();
    void spectra();
    void moreThanMemoryIsRefused();
};

void TestExtremeData::grids_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<Area>("area");
    QTest::addColumn<Height>("height");
    QTest::addColumn<bool>("seen");
    const Area usual{0.0, 1.0, 0.0, 1.0};
    const auto row = [&](const char* name, Height height, bool seen, const Area& area, int columns = 5,
                         int rows = 4) { QTest::newRow(name) << columns << rows << area << height << seen; };
    const Height wave = [](int i, int j) { return std::sin(i + 2.0 * j); };
    row(
        "every node missing", [](int, int) { return missing; }, false, usual);
    row(
        "one hole", [](int i, int j) { return i == 2 && j == 2 ? missing : double(i + j); }, true, usual);
    row(
        "one node left", [](int i, int j) { return i == 2 && j == 2 ? 1.0 : missing; }, false, usual);
    row(
        "an infinite node", [](int i, int j) { return i == 2 && j == 2 ? infinite : double(i + j); }, true,
        usual);
    row(
        "infinite downwards", [](int i, int) { return i == 0 ? -infinite : 1.0 * i; }, true, usual);
    row(
        "denormal heights", [](int i, int j) { return DBL_TRUE_MIN * (i + j); }, true, usual);
    row(
        "beyond single precision", [](int i, int j) { return 1e300 * (i - j); }, false, usual);
    row(
        "the whole range of floats", [](int i, int) { return i % 2 ? double(FLT_MAX) : -double(FLT_MAX); },
        false, usual);
    row(
        "all zero", [](int, int) { return 0.0; }, true, usual);
    row(
        "all equal", [](int, int) { return -7.25; }, true, usual);
    row(
        "thousandths on a billion", [](int i, int j) { return 1e9 + 1e-3 * (i + j); }, true, usual);
    row("time stamps along x", wave, true, {1789992000.0, 1789992010.0, 0.0, 1.0});
    row("an area beyond single precision", wave, false, {0.0, 1e300, -1e300, 0.0});
    row("an area from right to left", wave, true, {1.0, 0.0, 1.0, 0.0});
    row("an area without width", wave, true, {2.0, 2.0, 0.0, 1.0});
    row("a denormal area", wave, true, {0.0, DBL_TRUE_MIN, 0.0, 1.0});
    row("one node", wave, false, usual, 1, 1);
    row("one column", wave, false, usual, 1, 4);
    row("one row", wave, false, usual, 5, 1);
    row("two nodes by two", wave, true, usual, 2, 2);
}

void TestExtremeData::grids()
{
    QFETCH(int, columns);
    QFETCH(int, rows);
    QFETCH(Area, area);
    QFETCH(Height, height);
    QFETCH(bool, seen);
    const harness::Messages messages;
    Plot plot;
    QVERIFY(harness::show(plot, 120, 90));
    for (const bool centred : {false, true}) {
        plot.setDataCentred(centred);
        Heights heights(columns, rows, height);
        QVERIFY(plot.loadFromData(heights.data(), unsigned(columns), unsigned(rows), area[0], area[1],
                                  area[2], area[3]));
        QCOMPARE(tryStyles(plot, 7), QString());
        plot.setPlotStyle(filled);
        // With a centre of its own the detail of single precision is kept, too.
        if (centred)
            QCOMPARE(showsData(plot), seen);
    }
    // Whatever it was, the plot is as good as new.
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(showsData(plot));
}

void TestExtremeData::points_data()
{
    QTest::addColumn<QVector<QVector3D>>("vertices");
    QTest::addColumn<bool>("seen");
    const float none = std::numeric_limits<float>::quiet_NaN();
    const float huge = FLT_MAX;
    QTest::newRow("a triangle") << QVector<QVector3D>{{0, 0, 0}, {1, 0, 0}, {0, 1, 1}} << true;
    QTest::newRow("three in one place") << QVector<QVector3D>{{1, 1, 1}, {1, 1, 1}, {1, 1, 1}} << false;
    QTest::newRow("three in a line") << QVector<QVector3D>{{0, 0, 0}, {1, 1, 1}, {2, 2, 2}} << false;
    QTest::newRow("a missing corner") << QVector<QVector3D>{{0, 0, 0}, {none, 0, 0}, {0, 1, 1}} << false;
    QTest::newRow("no corner left") << QVector<QVector3D>{{none, 0, 0}, {0, none, 0}, {0, 0, none}} << false;
    QTest::newRow("at the ends of floats")
        << QVector<QVector3D>{{huge, 0, 0}, {-huge, huge, 0}, {0, -huge, huge}} << false;
    const float least = FLT_TRUE_MIN;
    QTest::newRow("denormal") << QVector<QVector3D>{{0, 0, 0}, {least, 0, 0}, {0, least, least}} << false;
}

void TestExtremeData::points()
{
    QFETCH(QVector<QVector3D>, vertices);
    QFETCH(bool, seen);
    const harness::Messages messages;
    Plot plot;
    QVERIFY(harness::show(plot, 120, 90));
    QVERIFY(plot.loadFromData(vertices, {{0, 1, 2}, {0, 0, 0}, {1}, {}}, 1.0, 1.0));
    QCOMPARE(tryStyles(plot, 7), QString());
    plot.setPlotStyle(filled);
    QCOMPARE(showsData(plot), seen);
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(showsData(plot));
}

void TestExtremeData::spectra_data()
{
    using Map = SpectrumData::Map;
    QTest::addColumn<Map>("map");
    QTest::newRow("nothing") << Map();
    QTest::newRow("an empty spectrum") << Map{{1.0, {}}};
    QTest::newRow("one point") << Map{{1.0, {{2.0, 3.0}}}};
    QTest::newRow("holes alone") << Map{{1.0, {{2.0, missing}, {3.0, missing}}}};
    QTest::newRow("infinite heights") << Map{{1.0, {{2.0, infinite}, {3.0, -infinite}, {4.0, 1.0}}}};
    QTest::newRow("beyond single precision")
        << Map{{1.0, {{2.0, 1e300}, {3.0, -1e300}}}, {2.0, {{2.0, 1.0}}}};
    QTest::newRow("denormal") << Map{{0.0, {{0.0, DBL_TRUE_MIN}, {DBL_TRUE_MIN, 0.0}}}};
    QTest::newRow("far positions") << Map{{1e300, {{-1e300, 1.0}, {1e300, 2.0}}}, {-1e300, {{0.0, 1.0}}}};
    QTest::newRow("flat") << Map{{1.0, {{1.0, 0.0}, {2.0, 0.0}}}, {2.0, {{1.0, 0.0}, {2.0, 0.0}}}};
}

void TestExtremeData::spectra()
{
    QFETCH(SpectrumData::Map, map);
    const harness::Messages messages;
    Spectrum plot("plot", organization, application);
    plot.setGradient("ramp", ramp());
    plot.getLegend().setVisible(false);
    QVERIFY(harness::show(plot, 120, 90));
    for (const BaseAxisType axis : {XAxis, YAxis}) {
        QVERIFY(plot.loadFromData(map, axis));
        QCOMPARE(tryStyles(plot, 5), QString());
    }
    QVERIFY(plot.loadFromData({{1.0, {{1.0, 1.0}, {2.0, 2.0}}}, {2.0, {{1.0, 1.0}, {2.0, 3.0}}}}, XAxis));
    QVERIFY(showsData(plot));
}

void TestExtremeData::moreThanMemoryIsRefused()
{
    Plot plot;
    QVERIFY(harness::show(plot, 120, 90));
    QVERIFY(Heights(4, 4, plane).into(plot));
    const QImage before = harness::grab(plot);
    const harness::Messages messages;
    // The columns are never read.
    std::vector<double> column(1);
    std::vector<double*> columns(1U << 20U, column.data());
    QVERIFY(!plot.loadFromData(columns.data(), unsigned(columns.size()), 1U << 26U, 0.0, 1.0, 0.0, 1.0));
    QCOMPARE(messages.warnings("too large for memory"), 1);
    QCOMPARE(harness::grab(plot), before);
}

int main(int argc, char* argv[])
{
    return harness::run<TestExtremeData>(argc, argv);
}

#include "tst_extremedata.moc"
