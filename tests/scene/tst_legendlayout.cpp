#include "harness/harness.h"
#include "scene/labelplacement.h"
#include "scene/legend.h"
#include "scene/legendlayout.h"

#include <QPolygonF>
#include <QtTest>

using namespace Zel3D;

namespace {

QRectF pointerBounds(const LegendLayout& layout, double t)
{
    const std::array<QPointF, 3> corners = legendPointer(layout, t);
    return QPolygonF({corners[0], corners[1], corners[2]}).boundingRect();
}

} // namespace

class TestLegendLayout : public QObject
{
    Q_OBJECT
private slots:
    void layoutKeepsEverythingApart_data();
    void layoutKeepsEverythingApart();
    void layoutUsesTheWantedBarWhereItCan();
    void layoutGivesUpInOrder_data();
    void layoutGivesUpInOrder();
};

void TestLegendLayout::layoutKeepsEverythingApart_data()
{
    QTest::addColumn<QSizeF>("window");
    QTest::addColumn<QSizeF>("number");
    QTest::addColumn<double>("ratio");
    QTest::newRow("usual") << QSizeF(800, 600) << QSizeF(30, 14) << 1.0;
    QTest::newRow("large") << QSizeF(1600, 1000) << QSizeF(60, 20) << 1.0;
    QTest::newRow("small") << QSizeF(300, 200) << QSizeF(30, 14) << 1.0;
    QTest::newRow("smaller") << QSizeF(120, 90) << QSizeF(30, 14) << 1.0;
    QTest::newRow("long numbers") << QSizeF(300, 200) << QSizeF(180, 14) << 1.0;
    QTest::newRow("large font") << QSizeF(300, 200) << QSizeF(90, 60) << 1.0;
    QTest::newRow("doubled pixels") << QSizeF(800, 600) << QSizeF(60, 28) << 2.0;
    QTest::newRow("upright window") << QSizeF(200, 900) << QSizeF(80, 14) << 1.0;
}

void TestLegendLayout::layoutKeepsEverythingApart()
{
    QFETCH(QSizeF, window);
    QFETCH(QSizeF, number);
    QFETCH(double, ratio);
    const QRectF whole(QPointF(0, 0), window);
    QVector<QRectF> relatives = Legend().getSettings().getRelativePositions().values().toVector();
    relatives << QRectF(0, 0, 1, 1) << QRectF(-0.5, -0.5, 3, 3) << QRectF(0.4, 0.4, 0.2, 0.3);
    for (const QRectF& relative : relatives) {
        for (bool horizontal : {false, true}) {
            for (bool below : {false, true}) {
                LegendLayoutInput input;
                input.window = window;
                input.relative = relative;
                input.horizontal = horizontal;
                input.numbersBelow = below;
                input.pixelRatio = ratio;
                for (double t : {0.0, 0.25, 0.5, 0.75, 1.0})
                    input.numbers.append({t, number});
                const LegendLayout layout = layoutLegend(input);
                QVERIFY(layout.visible);
                QVERIFY(layout.numbersFit);
                QVERIFY(whole.contains(layout.bar));
                QVERIFY(std::min(layout.bar.width(), layout.bar.height()) >= 3.0);
                // The axis stands on a long side of the bar, the numbers beyond its ticks.
                for (const LegendNumber& entry : input.numbers) {
                    const QPointF end = layout.axisStart + (layout.axisEnd - layout.axisStart) * entry.t +
                                        layout.outward * layout.majorTic;
                    LabelBox box;
                    box.size = number.toSize();
                    box.outward = QVector2D(layout.outward);
                    box.gap = 3.0 * ratio;
                    const QRectF text(end + labelOffset(box), number);
                    QVERIFY(whole.contains(text));
                    QVERIFY(!text.intersects(layout.bar));
                    QVERIFY(!text.intersects(pointerBounds(layout, entry.t)));
                }
                for (double t : {0.0, 0.4, 1.0}) {
                    const QRectF triangle = pointerBounds(layout, t);
                    QVERIFY(layout.pointerSize > 3.0);
                    QVERIFY(whole.contains(triangle));
                    QVERIFY(!triangle.intersects(layout.bar));
                }
                const QPointF along = layout.axisEnd - layout.axisStart;
                QVERIFY(std::abs(horizontal ? along.y() : along.x()) < 1e-9);
                QVERIFY((horizontal ? along.x() : along.y()) > 0.0);
            }
        }
    }
}

void TestLegendLayout::layoutUsesTheWantedBarWhereItCan()
{
    LegendLayoutInput input;
    input.window = QSizeF(1000, 1000);
    input.relative = QRectF(0.5, 0.9, 0.05, -0.8);
    input.numbers = {{0.0, QSizeF(30, 14)}, {1.0, QSizeF(30, 14)}};
    const LegendLayout layout = layoutLegend(input);
    QCOMPARE(layout.bar, QRectF(500.5, 100.5, 50, 800));
    QCOMPARE(layout.axisStart, QPointF(500.5, 100.5));
    QCOMPARE(layout.outward, QPointF(-1, 0));
    // The tip next to the bar, on the other side than the numbers, at the value's height.
    QCOMPARE(legendPointer(layout, 0.5)[0], QPointF(551.5, 500.5));
    QVERIFY(legendPointer(layout, 0.5)[1].x() > 555.0);
}

void TestLegendLayout::layoutGivesUpInOrder_data()
{
    QTest::addColumn<QSizeF>("window");
    QTest::addColumn<QRectF>("relative");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("numbers");
    QTest::addColumn<bool>("hasPointer");
    const QRectF right(0.94, 0.95, 0.05, -0.9);
    QTest::newRow("numbers wider than the window") << QSizeF(60, 200) << right << true << false << true;
    QTest::newRow("tiny window") << QSizeF(8, 10) << right << true << false << false;
    QTest::newRow("no window") << QSizeF(0, 0) << right << false << false << false;
    QTest::newRow("empty rectangle") << QSizeF(400, 300) << QRectF() << false << false << false;
    QTest::newRow("not a number") << QSizeF(400, 300) << QRectF(qQNaN(), 0, qQNaN(), 1) << false << false
                                  << false;
}

void TestLegendLayout::layoutGivesUpInOrder()
{
    QFETCH(QSizeF, window);
    QFETCH(QRectF, relative);
    QFETCH(bool, visible);
    QFETCH(bool, numbers);
    QFETCH(bool, hasPointer);
    LegendLayoutInput input;
    input.window = window;
    input.relative = relative;
    input.numbers = {{0.0, QSizeF(70, 14)}, {1.0, QSizeF(70, 14)}};
    const LegendLayout layout = layoutLegend(input);
    QCOMPARE(layout.visible, visible);
    QCOMPARE(layout.numbersFit, numbers);
    QCOMPARE(layout.pointerSize > 0.0, hasPointer);
}

int main(int argc, char* argv[])
{
    return harness::run<TestLegendLayout>(argc, argv);
}

#include "tst_legendlayout.moc"
