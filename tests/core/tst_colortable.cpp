#include "core/colortable.h"
#include "harness/harness.h"

#include <QtTest>

#include <cfloat>
#include <cmath>
#include <limits>

using namespace Zel3D;

class TestColorTable : public QObject
{
    Q_OBJECT
private slots:
    void lookup_data();
    void lookup();
    void everySegmentIsFound_data();
    void everySegmentIsFound();
};

void TestColorTable::lookup_data()
{
    QTest::addColumn<QGradientStops>("stops");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<QColor>("color");
    const QColor none;
    const QColor black(0, 0, 0);
    const QColor white(255, 255, 255);
    const QColor first(10, 20, 30, 40);
    const QColor last(110, 220, 130, 240);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const QGradientStops empty;
    const QGradientStops single{{0.5, first}};
    const QGradientStops grey{{0.0, black}, {1.0, white}};
    const QGradientStops mixed{{0.0, first}, {1.0, last}};
    const QGradientStops doubled{
        {0.0, black}, {0.5, QColor(100, 0, 0)}, {0.5, QColor(0, 100, 0)}, {1.0, white}};
    const QGradientStops coincident{{0.5, first}, {0.5, last}};
    const QGradientStops inner{{0.5, black}, {0.75, white}};
    const QGradientStops narrow{{0.5, black}, {0.5 + 1e-15, white}};

    QTest::newRow("truncated") << grey << 5.0 << 0.0 << 10.0 << QColor(127, 127, 127);
    QTest::newRow("truncated when falling")
        << QGradientStops{{0.0, white}, {1.0, black}} << 5.0 << 0.0 << 10.0 << QColor(127, 127, 127);
    QTest::newRow("each channel") << mixed << -1.5 << -2.0 << 0.0 << QColor(35, 70, 55, 90);
    QTest::newRow("at the minimum") << mixed << 0.0 << 0.0 << 10.0 << first;
    QTest::newRow("below") << mixed << -inf << 0.0 << 10.0 << first;
    QTest::newRow("at the maximum") << mixed << 10.0 << 0.0 << 10.0 << last;
    QTest::newRow("above") << mixed << 11.0 << 0.0 << 10.0 << last;
    QTest::newRow("not a number") << grey << nan << 0.0 << 10.0 << none;
    QTest::newRow("single stop inside") << single << 5.0 << 0.0 << 10.0 << first;
    QTest::newRow("single stop whatever the value") << single << nan << 0.0 << 10.0 << first;
    QTest::newRow("no stops inside") << empty << 5.0 << 0.0 << 10.0 << none;
    QTest::newRow("no stops below") << empty << -5.0 << 0.0 << 10.0 << none;
    QTest::newRow("empty range, at it") << mixed << 3.0 << 3.0 << 3.0 << first;
    QTest::newRow("empty range, above") << mixed << 3.5 << 3.0 << 3.0 << last;
    QTest::newRow("denormal range") << grey << DBL_MIN / 4 << 0.0 << DBL_MIN / 2 << none;
    QTest::newRow("normal range") << grey << DBL_MIN << 0.0 << 2.0 * DBL_MIN << QColor(127, 127, 127);
    QTest::newRow("range beyond double") << mixed << 0.0 << -1.5e308 << 1.5e308 << first;
    QTest::newRow("on a doubled stop") << doubled << 0.5 << 0.0 << 1.0 << QColor(100, 0, 0);
    QTest::newRow("behind a doubled stop") << doubled << 0.75 << 0.0 << 1.0 << QColor(127, 177, 127);
    QTest::newRow("before a doubled first stop")
        << QGradientStops{{0.5, white}, {0.5, QColor(100, 100, 100)}, {1.0, QColor(200, 100, 0)}} << 0.25
        << 0.0 << 1.0 << QColor(50, 100, 150);
    QTest::newRow("coincident stops, inside") << coincident << 0.5 << 0.0 << 1.0 << none;
    QTest::newRow("coincident stops, above") << coincident << 2.0 << 0.0 << 1.0 << last;
    QTest::newRow("before the first stop") << inner << 0.25 << 0.0 << 1.0 << none;
    QTest::newRow("just before the first stop") << inner << 0.4999 << 0.0 << 1.0 << black;
    QTest::newRow("far before a narrow segment") << narrow << 1e-3 << 0.0 << 1.0 << none;
    QTest::newRow("behind the last stop") << inner << 0.8 << 0.0 << 1.0 << none;
}

void TestColorTable::lookup()
{
    QFETCH(QGradientStops, stops);
    QFETCH(double, value);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    const ColorTable table(stops);
    QTEST(table.colorAt(value, minimum, maximum), "color");
    QFETCH(QColor, color);
    QCOMPARE(table.channelsAt(value, minimum, maximum), channelsOf(color));
    // In a row, between others, at the end of a block and behind it.
    const double middle = minimum + 0.3 * (maximum - minimum);
    std::vector<double> row(65, middle);
    row[1] = row[63] = row[64] = value;
    std::vector<ColorChannels> colors(row.size());
    table.channelsAt(row.data(), row.size(), minimum, maximum, colors.data());
    for (std::size_t i = 0; i < row.size(); ++i)
        QCOMPARE(colors[i], table.channelsAt(row[i], minimum, maximum));
    QCOMPARE(table.isEmpty(), stops.isEmpty());
    QCOMPARE(table.getStopCount(), stops.size());
}

void TestColorTable::everySegmentIsFound_data()
{
    QTest::addColumn<int>("segments");
    for (int segments : {1, 2, 3, 7, 8, 9, 10, 15, 16, 17, 100})
        QTest::addRow("%d", segments) << segments;
}

void TestColorTable::everySegmentIsFound()
{
    QFETCH(int, segments);
    // A zigzag between 0 and 200, so that no segment continues its neighbour.
    QGradientStops stops;
    for (int i = 0; i <= segments; ++i)
        stops << QGradientStop(double(i) / segments, QColor(i % 2 == 0 ? 0 : 200, 0, 0));
    const ColorTable table(stops);
    for (int k = 1; k < 4 * segments; ++k) {
        const int quarter = k % 8;
        const int expected = 50 * (quarter <= 4 ? quarter : 8 - quarter);
        const QColor found = table.colorAt(k, 0.0, 4.0 * segments);
        QVERIFY(found.isValid());
        // One less where rounding falls short of the whole number.
        QVERIFY2(found.red() == expected || found.red() == expected - 1, qPrintable(QString::number(k)));
    }
}

int main(int argc, char* argv[])
{
    return harness::run<TestColorTable>(argc, argv);
}

#include "tst_colortable.moc"
