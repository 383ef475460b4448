// Data far from zero, of which single precision would show steps.

#include "core/dataorigin.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/spectrum.h"

#include <QtTest>

#include <cmath>

using namespace Zel3D;
using namespace fixture;

namespace {

constexpr double noon = 1789992000.0; // seconds, as time stamps are

/// Two seconds at noon, with heights around a million that differ by thousandths.
bool loadSeconds(Plot& plot)
{
    Heights heights(5, 3, [](int column, int row) { return 1e6 + 0.001 * column + 0.0001 * row; });
    return plot.loadFromData(heights.data(), 5, 3, noon, noon + 2.0, 0.0, 4.0);
}

int distinctColumns(const Plot& plot)
{
    QSet<float> places;
    for (unsigned int i = 0; i < 5; ++i)
        places.insert(plot.getGridData()->valueAt(i, 0).x());
    return places.size();
}

template <class AnyPlot>
SelectedObjectsInfo pickMiddle(AnyPlot& plot)
{
    SelectedObjectsInfo found;
    const auto connection = QObject::connect(&plot, &ZelGLWidget::selectedObject,
                                             [&](const SelectedObjectsInfo& info) { found = info; });
    plot.findObjects(QPointF(plot.width() / 2.0, plot.height() / 2.0), Qt::NoModifier);
    QObject::disconnect(connection);
    return found;
}

} // namespace

class TestDataCentring : public QObject
{
    Q_OBJECT

private slots:
    void init() { harness::clearStore(); }

    void origins_data()
    {
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        QTest::addColumn<double>("origin");
        QTest::newRow("around zero") << -1.0 << 1.0 << 0.0;
        QTest::newRow("wide enough") << 1000.0 << 1001.0 << 0.0;
        QTest::newRow("an hour of time stamps") << noon << noon + 3600.0 << noon + 1800.0;
        QTest::newRow("a year of time stamps") << noon << noon + 3.2e7 << 0.0;
        QTest::newRow("below zero") << -1e9 << -1e9 + 0.001 << -1e9 + 0.0005;
        QTest::newRow("one value") << 1e9 << 1e9 << 0.0;
        QTest::newRow("nothing") << HUGE_VAL << -HUGE_VAL << 0.0;
        QTest::newRow("the whole range of doubles") << -1.7e308 << 1.7e308 << 0.0;
    }
    void origins()
    {
        QFETCH(double, low);
        QFETCH(double, high);
        QTEST(dataOrigin(low, high), "origin");
    }

    void surfaces()
    {
        Plot plot;
        QVERIFY(loadSeconds(plot));
        QVERIFY(distinctColumns(plot) < 3);
        QVERIFY(plot.setDataCentred(true));
        QVERIFY(loadSeconds(plot));
        QCOMPARE(distinctColumns(plot), 5);
        QCOMPARE(plot.getHull().minimum.x(), -1.0F);
        QCOMPARE(plot.getHull().maximum.x(), 1.0F);
        QCOMPARE(plot.getHull().maximum.y(), 4.0F);
        QCOMPARE(plot.getDataOrigin().x, noon + 1.0);
        QCOMPARE(plot.getDataOrigin().y, 0.0);
        // What people read are the caller's values.
        QCOMPARE(plot.getCoordinateSystem().getAxis(XFrontBottom).getRange().minimum, noon);
        QCOMPARE(plot.getCoordinateSystem().getAxis(XFrontBottom).getRange().maximum, noon + 2.0);
        QVERIFY(std::abs(plot.getLegend().getAxis().getRange().maximum - 1000000.0042) < 1e-6);
        plot.setSelecting(true);
        plot.setRotation({90, 0, 0});
        plot.setPlotStyle(4);
        QVERIFY(harness::show(plot, 200, 200));
        const SelectedObjectsInfo found = pickMiddle(plot);
        QVERIFY(found.valid);
        QCOMPARE(found.x, noon + 1.0);
        QCOMPARE(found.y, 2.0);
        QCOMPARE(found.z, 1e6 + 0.002 + 0.0001);
        // The range of the colours is given as people read it.
        plot.setGradientRange({1e6, 1e6 + 0.01});
        QCOMPARE(plot.getLegend().getAxis().getRange().maximum, 1e6 + 0.01);
        QVERIFY(std::abs(plot.getLegendRange().first + 0.0021) < 1e-6);
        // The next data stand at zero again.
        loadHeights(plot, {0.0, 1.0, 2.0});
        QCOMPARE(plot.getDataOrigin().x, 0.0);
        QCOMPARE(plot.getCoordinateSystem().getAxis(XFrontBottom).getRange().maximum, 1.0);
    }

    void spectraKeepTheirBaseLine()
    {
        Spectrum plot("plot", organization, application);
        plot.setGradient("ramp", ramp());
        plot.setDataCentred(true);
        const double height = 2e9;
        QVERIFY(plot.loadFromData({{1.0, {{noon, height}, {noon + 1.0, height + 1.0}, {noon + 2.0, height}}},
                                   {2.0, {{noon, height}, {noon + 2.0, height}}},
                                   {3.0, {{noon, height}, {noon + 2.0, height}}}},
                                  YAxis));
        QCOMPARE(plot.getDataOrigin().x, noon + 1.0);
        QCOMPARE(plot.getDataOrigin().y, 0.0);
        QCOMPARE(plot.getDataOrigin().z, 0.0);
        plot.setPlotStyle(2);
        plot.setSelecting(true);
        plot.setRotation({90, 0, 0});
        QVERIFY(harness::show(plot, 200, 200));
        const QVector3D places = plot.second() - plot.first();
        QCOMPARE(places.x(), 2.0F);
        // The point of the first spectrum lies in the middle of the lower edge.
        SelectedObjectsInfo found;
        connect(&plot, &ZelGLWidget::selectedObject, this, [&](const SelectedObjectsInfo& info) {
            if (info.valid && info.z == height + 1.0)
                found = info;
        });
        for (int y = 0; y < 200 && !found.valid; y += 4)
            plot.findObjects(QPointF(100, y), Qt::NoModifier);
        QVERIFY(found.valid);
        QCOMPARE(found.x, noon + 1.0);
        QCOMPARE(found.y, 1.0);
    }
};

int main(int argc, char* argv[])
{
    return harness::run<TestDataCentring>(argc, argv);
}

#include "tst_datacentring.moc"
