#include "core/spectrumdata.h"
#include "harness/harness.h"

#include <QtTest>

#include <limits>

using namespace Zel3D;

Q_DECLARE_METATYPE(Zel3D::SpectrumData::Map)
Q_DECLARE_METATYPE(Zel3D::BaseAxisType)

class TestSpectrumData : public QObject
{
    Q_OBJECT
private slots:
    void box_data();
    void box();
    void axisAndClearing();
    void heightsOverTheSamePositions_data();
    void heightsOverTheSamePositions();
};

void TestSpectrumData::box_data()
{
    QTest::addColumn<BaseAxisType>("axis");
    QTest::addColumn<SpectrumData::Map>("spectra");
    QTest::addColumn<QVector3D>("minimum");
    QTest::addColumn<QVector3D>("maximum");
    const float inf = std::numeric_limits<float>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    using Map = SpectrumData::Map;
    QTest::newRow("the outer key seeds the inner range")
        << XAxis << Map{{5, {{1, 2}, {3, 4}}}} << QVector3D(5, 1, 2) << QVector3D(5, 5, 4);
    QTest::newRow("along y") << YAxis << Map{{5, {{1, 2}, {3, 4}}}} << QVector3D(1, 5, 2)
                             << QVector3D(5, 5, 4);
    QTest::newRow("only the first outer key seeds")
        << XAxis << Map{{-9, {{1, 2}}}, {70, {{3, -4}}}} << QVector3D(-9, -9, -4) << QVector3D(70, 3, 2);
    QTest::newRow("an empty spectrum does not seed") << XAxis << Map{{-9, {}}, {2, {{30, 1}}}, {4, {{31, 2}}}}
                                                     << QVector3D(-9, 2, 1) << QVector3D(4, 31, 2);
    QTest::newRow("empty spectra only")
        << YAxis << Map{{1, {}}, {2, {}}} << QVector3D(inf, 1, inf) << QVector3D(-inf, 2, -inf);
    QTest::newRow("no spectra") << XAxis << Map{} << QVector3D(inf, inf, inf) << QVector3D(-inf, -inf, -inf);
    QTest::newRow("a hole counts by its keys")
        << XAxis << Map{{0, {{0, 1}, {8, nan}}}, {6, {{-7, double(inf)}}}} << QVector3D(0, -7, 1)
        << QVector3D(6, 8, 1);
    QTest::newRow("beyond float") << XAxis << Map{{0, {{-1e300, 1e300}}}} << QVector3D(0, -inf, inf)
                                  << QVector3D(0, 0, inf);
}

void TestSpectrumData::box()
{
    QFETCH(BaseAxisType, axis);
    QFETCH(SpectrumData::Map, spectra);
    QFETCH(QVector3D, minimum);
    QFETCH(QVector3D, maximum);
    SpectrumData data;
    data.setAxis(axis);
    data.setData(spectra);
    QVERIFY(data.getMinimum() == minimum);
    QVERIFY(data.getMaximum() == maximum);
    QCOMPARE(data.columns(), unsigned(spectra.size()));
    QCOMPARE(data.rows(), 0U);
    QCOMPARE(data.getStepX(), 0.0);
    QCOMPARE(data.getStepY(), 0.0);
}

void TestSpectrumData::axisAndClearing()
{
    SpectrumData data;
    data.setData({{5, {{1, 2}}}});
    data.setAxis(YAxis);
    QCOMPARE(data.getMinimum(), QVector3D(5, 1, 2));
    data.setData(data.getSpectrum());
    QCOMPARE(data.getMinimum(), QVector3D(1, 5, 2));
    QVERIFY(!data.isEmpty());
    data.clear();
    QVERIFY(data.isEmpty());
    QCOMPARE(data.getMinimum(), QVector3D());
    QCOMPARE(data.getMaximum(), QVector3D());
    QCOMPARE(data.getAxis(), YAxis);
}

void TestSpectrumData::heightsOverTheSamePositions_data()
{
    using Map = SpectrumData::Map;
    QTest::addColumn<Map>("heights");
    QTest::addColumn<bool>("taken");
    QTest::newRow("the same") << Map{{1, {{2, 9}, {3, -9}}}, {4, {{5, 6}}}} << true;
    QTest::newRow("another point") << Map{{1, {{2, 9}, {3.5, -9}}}, {4, {{5, 6}}}} << false;
    QTest::newRow("another spectrum") << Map{{1, {{2, 9}, {3, -9}}}, {5, {{5, 6}}}} << false;
    QTest::newRow("a point more") << Map{{1, {{2, 9}, {3, -9}}}, {4, {{5, 6}, {6, 1}}}} << false;
    QTest::newRow("a spectrum less") << Map{{1, {{2, 9}, {3, -9}}}} << false;
}

void TestSpectrumData::heightsOverTheSamePositions()
{
    QFETCH(SpectrumData::Map, heights);
    QFETCH(bool, taken);
    const SpectrumData::Map before{{1, {{2, 0}, {3, 1}}}, {4, {{5, 2}}}};
    SpectrumData data;
    data.setData(before);
    QCOMPARE(data.setHeights(heights), taken);
    QVERIFY(data.getSpectrum() == (taken ? heights : before));
    QCOMPARE(data.getMaximum().z(), taken ? 9.0F : 2.0F);
}

int main(int argc, char* argv[])
{
    return harness::run<TestSpectrumData>(argc, argv);
}

#include "tst_spectrumdata.moc"
