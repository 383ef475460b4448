#include "core/linearscale.h"
#include "core/log10scale.h"
#include "core/ticprecision.h"
#include "harness/harness.h"

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

using namespace Zel3D;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

QVector<double> logs(double exponent, const QVector<double>& mantissas)
{
    QVector<double> result;
    for (double mantissa : mantissas)
        result.append(exponent + std::log10(mantissa));
    return result;
}

void compare(const QVector<double>& found, const QVector<double>& expected)
{
    QCOMPARE(found.size(), expected.size());
    for (int i = 0; i < found.size(); ++i)
        QVERIFY2(std::abs(found.at(i) - expected.at(i)) < 1e-12,
                 qPrintable(QString("%1: %2 instead of %3").arg(i).arg(found.at(i)).arg(expected.at(i))));
}

} // namespace

class TestScale : public QObject
{
    Q_OBJECT
private slots:
    void linear_data();
    void linear();
    void linearZeroIsExact();
    void emptySpanKeepsTheCounts();
    void linearProperties();
    void unreachableLimitsEnd_data();
    void unreachableLimitsEnd();
    void log_data();
    void log();
    void texts();
    void precisionTellsTheTicksApart_data();
    void precisionTellsTheTicksApart();
};

void TestScale::linear_data()
{
    QTest::addColumn<QVector<double>>("limits"); // start, stop, major start, major stop
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<QVector<double>>("majors");
    QTest::addColumn<QVector<double>>("minors");
    QTest::addColumn<QVector<int>>("counts");
    using V = QVector<double>;
    QTest::newRow("majors but the first are minors too")
        << V{0, 2, 0, 2} << 2 << 2 << V{0, 1, 2} << V{0.5, 1, 1.5, 2} << QVector<int>{2, 2};
    QTest::newRow("no minors") << V{0, 1, 0, 1} << 4 << 0 << V{0, 0.25, 0.5, 0.75, 1} << V{}
                               << QVector<int>{4, 0};
    QTest::newRow("limits in the wrong order")
        << V{4, 0, 4, 0} << 2 << 1 << V{0, 2, 4} << V{2, 4} << QVector<int>{2, 1};
    QTest::newRow("minors outside the majors, below descending, ends left out")
        << V{-2, 5, 0, 2} << 1 << 2 << V{0, 2} << V{-1, 1, 2, 3, 4} << QVector<int>{1, 2};
    QTest::newRow("no major intervals") << V{0, 1, 0, 1} << 0 << 3 << V{} << V{} << QVector<int>{0, 0};
    QTest::newRow("negative major intervals") << V{0, 1, 0, 1} << -2 << 3 << V{} << V{} << QVector<int>{0, 0};
    QTest::newRow("negative minor intervals")
        << V{-3, 4, 0, 1} << 1 << -2 << V{0, 1} << V{} << QVector<int>{1, -2};
}

void TestScale::linear()
{
    QFETCH(QVector<double>, limits);
    QFETCH(int, major);
    QFETCH(int, minor);
    QFETCH(QVector<double>, majors);
    QFETCH(QVector<double>, minors);
    QFETCH(QVector<int>, counts);
    LinearScale scale;
    scale.setLimits(limits[0], limits[1]);
    scale.setMajorLimits(limits[2], limits[3]);
    scale.setMajorInterval(major);
    scale.setMinorInterval(minor);
    scale.calculate();
    compare(scale.getMajors(), majors);
    compare(scale.getMinors(), minors);
    QCOMPARE((QVector<int>{scale.getMajorInterval(), scale.getMinorInterval()}), counts);
}

void TestScale::linearZeroIsExact()
{
    LinearScale scale;
    scale.setMajorLimits(-0.3, 0.6);
    scale.setMajorInterval(9);
    scale.calculate();
    QCOMPARE(scale.getMajors().size(), 10);
    QVERIFY(scale.getMajors().at(3) == 0.0);
    QCOMPARE(scale.ticLabel(3), QString("0"));
    scale.setMajorLimits(1e-310, 1.0);
    scale.calculate();
    QVERIFY(scale.getMajors().first() == 0.0);
}

void TestScale::emptySpanKeepsTheCounts()
{
    LinearScale scale;
    scale.setMajorInterval(5);
    scale.setMinorInterval(3);
    for (double end : {2.0, std::nan(""), infinity}) {
        scale.setMajorLimits(2.0, end);
        scale.calculate();
        QVERIFY(scale.getMajors().isEmpty());
        QVERIFY(scale.getMinors().isEmpty());
        QCOMPARE(scale.getMajorInterval(), 5);
        QCOMPARE(scale.getMinorInterval(), 3);
    }
}

void TestScale::linearProperties()
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> exponent(-12.0, 12.0);
    std::uniform_real_distribution<double> offset(-5.0, 5.0);
    for (int round = 0; round < 2000; ++round) {
        const double span = std::pow(10.0, exponent(random));
        const double low = span * offset(random);
        const int major = 1 + round % 13;
        const int minor = 1 + round % 7;
        LinearScale scale;
        scale.setLimits(low, low + span);
        scale.setMajorLimits(low, low + span);
        scale.setMajorInterval(major);
        scale.setMinorInterval(minor);
        scale.calculate();
        const QVector<double>& majors = scale.getMajors();
        QCOMPARE(majors.size(), major + 1);
        QVERIFY(std::is_sorted(majors.begin(), majors.end()));
        for (int i = 0; i <= major; ++i)
            QVERIFY(std::abs((majors.at(i) - low) / span - double(i) / major) < 1e-12);
        // A minor outside by less than rounding can appear at either end.
        QVERIFY(scale.getMinors().size() >= major * minor && scale.getMinors().size() <= major * minor + 2);
        for (double value : scale.getMinors())
            QVERIFY(value > low - 1e-9 * span && value < low + span * (1.0 + 1e-9));
    }
}

void TestScale::unreachableLimitsEnd_data()
{
    QTest::addColumn<double>("limit");
    QTest::addColumn<double>("majorStart");
    QTest::newRow("infinite") << infinity << 0.0;
    QTest::newRow("far beyond counting") << 1e300 << 0.0;
    QTest::newRow("steps below the resolution") << 2e17 << 1e17;
}

void TestScale::unreachableLimitsEnd()
{
    QFETCH(double, limit);
    QFETCH(double, majorStart);
    LinearScale scale;
    scale.setLimits(-limit, limit);
    scale.setMajorLimits(majorStart, majorStart + 32.0);
    scale.setMajorInterval(1);
    scale.setMinorInterval(32);
    scale.calculate();
    QCOMPARE(scale.getMinors().size(), 32);
    Log10Scale exponents;
    exponents.setLimits(-limit, limit);
    exponents.calculate();
    QCOMPARE(exponents.getStart(), -307.0);
    QCOMPARE(exponents.getStop(), 308.0);
    QCOMPARE(exponents.getMajors().size(), 616);
}

void TestScale::log_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("stop");
    QTest::addColumn<int>("scheme");
    QTest::addColumn<QVector<double>>("majors");
    QTest::addColumn<QVector<double>>("minors");
    using V = QVector<double>;
    const V all{9, 8, 7, 6, 5, 4, 3, 2};
    QTest::newRow("nine, top decade without its first mantissa")
        << 0.5 << 2.5 << 9 << V{1, 2} << logs(0, {9, 8, 7, 6, 5, 4}) + logs(1, all) + logs(2, {3, 2});
    QTest::newRow("the first mantissa is skipped below the stop too")
        << 0.0 << 0.999 << 9 << V{0} << logs(0, {8, 7, 6, 5, 4, 3, 2});
    QTest::newRow("five") << -0.2 << 1.9 << 5 << V{0, 1}
                          << logs(-1, {8}) + logs(0, {8, 6, 4, 2}) + logs(1, {6, 4, 2});
    QTest::newRow("three") << 0.1 << 1.9 << 3 << V{1} << logs(0, {5, 2}) + logs(1, {2});
    QTest::newRow("two") << 0.1 << 1.9 << 2 << V{1} << logs(0, {5});
    QTest::newRow("any other count is nine") << 0.9 << 1.5 << 4 << V{1} << logs(0, {9, 8}) + logs(1, {3, 2});
    QTest::newRow("inside one decade") << 1.2 << 1.8 << 9 << V{} << V{};
    QTest::newRow("empty") << 1.0 << 1.0 << 9 << V{} << V{};
    QTest::newRow("not a number") << std::nan("") << 2.0 << 9 << V{} << V{};
}

void TestScale::log()
{
    QFETCH(double, start);
    QFETCH(double, stop);
    QFETCH(int, scheme);
    QFETCH(QVector<double>, majors);
    QFETCH(QVector<double>, minors);
    Log10Scale scale;
    QCOMPARE(scale.getMinorInterval(), 9);
    scale.setMinorInterval(scheme);
    scale.setLimits(start, stop);
    scale.calculate();
    compare(scale.getMajors(), majors);
    compare(scale.getMinors(), minors);
    QCOMPARE(scale.getMajorInterval(), std::max(0, majors.size() - 1));
}

void TestScale::texts()
{
    LinearScale linear;
    linear.setMajorLimits(0.0, 1234.0);
    linear.setMajorInterval(1);
    linear.calculate();
    QCOMPARE(linear.ticLabel(1), QString("1.2e+03"));
    linear.setTicFormat('f', 1);
    QCOMPARE(linear.ticLabel(1), QString("1234.0"));
    QCOMPARE(linear.ticLabel(2), QString());
    QCOMPARE(linear.ticLabel(-1), QString());
    Log10Scale exponents;
    exponents.setLimits(-1.0, 7.0);
    exponents.setTicFormat('f', 3);
    exponents.calculate();
    QCOMPARE(exponents.ticLabel(0), QString("0.1"));
    QCOMPARE(exponents.ticLabel(4), QString("1000"));
    QCOMPARE(exponents.ticLabel(8), QString("1e+07"));
    QCOMPARE(exponents.ticLabel(9), QString());
}

void TestScale::precisionTellsTheTicksApart_data()
{
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");
    QTest::addColumn<int>("intervals");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("two digits do") << 0.0 << 1.0 << 2 << QStringList{"0", "0.5", "1"};
    QTest::newRow("hundreds without exponents") << 0.0 << 400.0 << 2 << QStringList{"0", "200", "400"};
    QTest::newRow("narrow range far from zero")
        << 1000.0 << 1001.0 << 2 << QStringList{"1000", "1000.5", "1001"};
    QTest::newRow("millions") << 0.0 << 3e6 << 3 << QStringList{"0", "1e+06", "2e+06", "3e+06"};
    QTest::newRow("thirds") << 0.0 << 2.0 << 3 << QStringList{"0", "0.667", "1.33", "2"};
    QTest::newRow("tiny") << 0.0 << 2.5e-9 << 2 << QStringList{"0", "1.25e-09", "2.5e-09"};
}

void TestScale::precisionTellsTheTicksApart()
{
    QFETCH(double, low);
    QFETCH(double, high);
    QFETCH(int, intervals);
    QFETCH(QStringList, texts);
    LinearScale scale;
    scale.setMajorLimits(low, high);
    scale.setMajorInterval(intervals);
    scale.calculate();
    scale.setTicFormat('g', ticPrecision(scale.getMajors()));
    QStringList found;
    for (int i = 0; i <= intervals; ++i)
        found.append(scale.ticLabel(i));
    QCOMPARE(found, texts);
}

int main(int argc, char* argv[])
{
    return harness::run<TestScale>(argc, argv);
}

#include "tst_scale.moc"
