#include "core/griddata.h"
#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/look.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace Zel3D;
using namespace fixture;

using Load = std::function<bool(Plot&, const QVector<double>&)>;
Q_DECLARE_METATYPE(Load)

namespace {

/// "text@position" of the numbers of an axis along its direction.
QString numbers(Plot& plot, AxisType edge)
{
    Axis& axis = plot.getCoordinateSystem().getAxis(edge);
    axis.updateTics();
    QStringList found;
    for (const Axis::Major& tic : axis.getMajors())
        found.append(QString("%1@%2")
                         .arg(tic.label.getSettings().getText())
                         .arg(double(tic.position[int(baseAxisType(edge))]), 0, 'g', 3));
    return found.join(' ');
}

QVector<double> heights(const Plot& plot)
{
    QVector<double> all;
    const GridData& grid = *plot.getGridData();
    for (unsigned int i = 0; i < grid.columns(); ++i) {
        for (unsigned int j = 0; j < grid.rows(); ++j)
            all.append(grid.valueAt(i, j, 2));
    }
    return all;
}

bool loadPoints(Plot& plot, const QVector<double>& values)
{
    QVector<QVector3D> points;
    for (int i = 0; i < 2; ++i) {
        for (int j = 0; j < values.size(); ++j)
            points.append(QVector3D(float(i), float(j), float(values[j])));
    }
    QVector<QVector3D*> columns{points.data(), points.data() + values.size()};
    return plot.loadFromData(columns.data(), 2, unsigned(values.size()), 1.0, 1.0);
}

bool loadCells(Plot& plot, const QVector<double>& values)
{
    QVector<QVector3D> vertices;
    QVector<QVector<unsigned int>> cells;
    for (int j = 0; j < values.size(); ++j) {
        for (int i = 0; i < 2; ++i)
            vertices.append(QVector3D(float(i), float(j), float(values[j])));
        const unsigned int k = 2 * unsigned(j);
        if (j > 0)
            cells.append({k - 2, k - 1, k + 1, k});
    }
    return plot.loadFromData(vertices, cells, 1.0, 1.0);
}

} // namespace

class TestLogarithmicData : public QObject
{
    Q_OBJECT
private slots:
    void plainValuesStandAtTheirExponents_data();
    void plainValuesStandAtTheirExponents();
    void logarithmicPlanes();
    void valuesWithoutAnExponentAreMissing_data();
    void valuesWithoutAnExponentAreMissing();
    void switchHoldsFromTheNextLoadOn();
    void looksLeaveLogarithmicDivisions();
};

void TestLogarithmicData::plainValuesStandAtTheirExponents_data()
{
    QTest::addColumn<Load>("load");
    QTest::newRow("heights") << Load(loadHeights);
    QTest::newRow("points") << Load(loadPoints);
    QTest::newRow("cells") << Load(loadCells);
}

void TestLogarithmicData::plainValuesStandAtTheirExponents()
{
    QFETCH(Load, load);
    Plot plot;
    plot.setAutomaticEdges(false);
    plot.setLogarithmicData(ZAxis, true);
    QVERIFY(load(plot, {1.0, 10.0, 1000.0}));
    QCOMPARE(plot.getHull(), (Parallelepiped{{0, 0, 0}, {1, 2, 3}}));
    QCOMPARE(plot.second(), QVector3D(1, 2, 3));
    QCOMPARE(numbers(plot, ZFrontLeft), QString("1@0 10@1 100@2 1000@3"));
    QVERIFY(numbers(plot, XFrontBottom).endsWith(" 1@1"));
    const Axis& legend = plot.getLegend().getAxis();
    QVERIFY(isLogarithmic(legend));
    QCOMPARE(legend.getRange().minimum, 0.0);
    QCOMPARE(legend.getRange().maximum, 3.0);
    plot.setLogarithmicData(ZAxis, false);
    QVERIFY(load(plot, {1.0, 10.0, 1000.0}));
    QCOMPARE(plot.second(), QVector3D(1, 2, 1000));
    QVERIFY(!isLogarithmic(legend) && !isLogarithmic(plot, ZAxis));
    QCOMPARE(legend.getRange().maximum, 1000.0);
}

void TestLogarithmicData::logarithmicPlanes()
{
    Plot plot;
    for (BaseAxisType direction : {XAxis, YAxis, ZAxis})
        plot.setLogarithmicData(direction, true);
    Heights grid(3, 2, [](int, int row) { return row == 0 ? 0.01 : 100.0; });
    QVERIFY(plot.loadFromData(grid.data(), 3, 2, 1.0, 100.0, 1000.0, 10.0));
    QCOMPARE(plot.getHull(), (Parallelepiped{{0, 1, -2}, {2, 3, 2}}));
    QCOMPARE(plot.getGridData()->valueAt(1, 0, 0), std::log10(50.5));
    QCOMPARE(plot.getGridData()->valueAt(0, 0, 1), 1.0);
    QCOMPARE(heights(plot), (QVector<double>{-2, 2, -2, 2, -2, 2}));
    // What the caller gave.
    QCOMPARE(plot.getGridData()->select(0, 0), QVector3D(1, 1000, 0.01F));
    QCOMPARE(plot.getGridData()->select(2, 1), QVector3D(100, 10, 100));
    QCOMPARE(numbers(plot, XFrontBottom), QString("1@0 10@1 100@2"));
    QCOMPARE(numbers(plot, YLeftBottom), QString("10@1 100@2 1000@3"));
    QCOMPARE(numbers(plot, ZFrontLeft), QString("0.01@-2 0.1@-1 1@0 10@1 100@2"));
}

void TestLogarithmicData::valuesWithoutAnExponentAreMissing_data()
{
    QTest::addColumn<Load>("load");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("warnings");
    const QVector<QPair<const char*, Load>> loads{
        {"heights", loadHeights}, {"points", loadPoints}, {"cells", loadCells}};
    for (const QPair<const char*, Load>& load : loads) {
        QTest::addRow("%s, zero", load.first) << load.second << 0.0 << 1;
        QTest::addRow("%s, negative", load.first) << load.second << -5.0 << 1;
        QTest::addRow("%s, missing before", load.first)
            << load.second << std::numeric_limits<double>::quiet_NaN() << 0;
    }
}

void TestLogarithmicData::valuesWithoutAnExponentAreMissing()
{
    QFETCH(Load, load);
    QFETCH(double, value);
    QFETCH(int, warnings);
    Plot plot;
    plot.setPlotStyle(4);
    plot.setLogarithmicData(ZAxis, true);
    const harness::Messages messages;
    QVERIFY(load(plot, {10.0, 100.0, value, 100.0, 1000.0, 10.0}));
    QVERIFY(load(plot, {10.0, 100.0, value, 100.0, 1000.0, 10.0}));
    QCOMPARE(messages.warnings("2 points have a value at or below zero"), warnings);
    QCOMPARE(messages.warnings(QString()), warnings);
    QCOMPARE(plot.getHull(), (Parallelepiped{{0, 0, 1}, {1, 5, 3}}));
    QVERIFY(harness::show(plot, 60, 60));
    const GLRecorder recorder;
    plot.updateData();
    // Nothing is drawn at the hole, whatever stands on both sides of it.
    int corners = 0;
    for (const GLRecorder::Primitive& primitive : recorder.primitives()) {
        for (const GLRecorder::Vertex& vertex : primitive.vertices) {
            QVERIFY(std::isfinite(vertex.position[2]) && vertex.position[1] != 2.0);
            ++corners;
        }
    }
    QVERIFY(corners > 0);
}

void TestLogarithmicData::switchHoldsFromTheNextLoadOn()
{
    Plot plot;
    Heights heights(3, 3, [](int i, int j) { return double(1 + i + j); });
    QVERIFY(heights.into(plot));
    plot.setLogarithmicData(ZAxis, true);
    // The data are plain still, and so is their scale.
    QVERIFY(!isLogarithmic(plot, ZAxis) && !isLogarithmic(plot.getLegend().getAxis()));
    QVERIFY(heights.into(plot));
    QVERIFY(isLogarithmic(plot, ZAxis) && isLogarithmic(plot.getLegend().getAxis()));
    plot.setLogarithmicData(ZAxis, false);
    QVERIFY(heights.into(plot));
    QVERIFY(!isLogarithmic(plot, ZAxis));
    QCOMPARE(plot.getHull().maximum.z(), 5.0F);
    // A host that has exponents sets the scale, and a load leaves it.
    plot.setAxesScaleType(ZAxis, Logarithmic);
    QVERIFY(heights.into(plot));
    QVERIFY(isLogarithmic(plot, ZAxis));
}

void TestLogarithmicData::looksLeaveLogarithmicDivisions()
{
    Plot plot;
    plot.setAxesScaleType(ZAxis, Logarithmic);
    plot.setMinorInterval(ZAxis, Logarithmic, 9);
    Look::print().applyTo(plot);
    QVERIFY(isLogarithmic(plot, ZAxis) && isLogarithmic(plot.getLegend().getAxis()));
    QCOMPARE(intervals(plot, ZAxis).section('/', 0, 0), QString("9"));
    QCOMPARE(legendIntervals(plot).section('/', 0, 0), QString("9"));
    QCOMPARE(intervals(plot, XAxis), QString("2/5"));
}

int main(int argc, char* argv[])
{
    return harness::run<TestLogarithmicData>(argc, argv);
}

#include "tst_logarithmicdata.moc"
