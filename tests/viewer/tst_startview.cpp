#include "harness/harness.h"
#include "plots/viewfit.h"
#include "startview.h"
#include "terraingradient.h"
#include "thinning.h"

#include <QtTest>

#include <cmath>

using Zel3D::Parallelepiped;
using Zel3D::ValueXYZ;

Q_DECLARE_METATYPE(Zel3D::Parallelepiped)
Q_DECLARE_METATYPE(Zel3D::ValueXYZ<double>)

class TestStartView : public QObject
{
    Q_OBJECT
private slots:
    void scaleOfTheBox_data();
    void scaleOfTheBox();
    void zoomFillsThePart_data();
    void zoomFillsThePart();
    void thinningLeavesAFewNodes_data();
    void thinningLeavesAFewNodes();
    void gradientRisesEvenly();
};

void TestStartView::scaleOfTheBox_data()
{
    QTest::addColumn<Parallelepiped>("box");
    QTest::addColumn<QVector3D>("drawn"); // the extents after scaling, the longer side being 100
    const auto box = [](float x, float y, float z) {
        return Parallelepiped{QVector3D(5, 5, 5), QVector3D(5 + x, 5 + y, 5 + z)};
    };
    QTest::newRow("metres") << box(4000, 3000, 800) << QVector3D(100, 75, 25);
    QTest::newRow("degrees and metres") << box(0.5F, 0.25F, 800) << QVector3D(100, 50, 25);
    QTest::newRow("strip") << box(10, 1000, 800) << QVector3D(100, 100, 25);
    QTest::newRow("longer in y") << box(2, 8, 1) << QVector3D(25, 100, 25);
}

void TestStartView::scaleOfTheBox()
{
    QFETCH(Parallelepiped, box);
    QFETCH(QVector3D, drawn);
    const ValueXYZ<double> scale = StartView::scale(box);
    const QVector3D extent =
        (box.maximum - box.minimum) * QVector3D(float(scale.x), float(scale.y), float(scale.z));
    const QVector3D found = extent * (100.0F / std::max(extent.x(), extent.y()));
    QVERIFY2(
        (found - drawn).length() < 0.01F,
        qPrintable(QString("%1 %2 %3").arg(double(found.x())).arg(double(found.y())).arg(double(found.z()))));
    const Parallelepiped flat{box.minimum, QVector3D(box.maximum.x(), box.maximum.y(), box.minimum.z())};
    QCOMPARE(StartView::scale(flat).z, 1.0);
}

void TestStartView::zoomFillsThePart_data()
{
    QTest::addColumn<ValueXYZ<double>>("scale");
    QTest::addColumn<ValueXYZ<double>>("rotation");
    QTest::addColumn<double>("aspect");
    QTest::addColumn<double>("reach"); // of the farthest corner, in halves of the cube that the camera shows
    const double diagonal = std::sqrt(2.0);
    QTest::newRow("front") << ValueXYZ<double>{1, 1, 1} << ValueXYZ<double>{0, 0, 0} << 1.0 << 1.0;
    QTest::newRow("wide window shows more across")
        << ValueXYZ<double>{4, 1, 1} << ValueXYZ<double>{0, 0, 0} << 2.0 << 2.0;
    QTest::newRow("wide window, high box")
        << ValueXYZ<double>{4, 1, 3} << ValueXYZ<double>{0, 0, 0} << 2.0 << 3.0;
    QTest::newRow("tall window shows more upwards")
        << ValueXYZ<double>{1, 1, 4} << ValueXYZ<double>{0, 0, 0} << 0.5 << 2.0;
    QTest::newRow("turned about the upright")
        << ValueXYZ<double>{1, 1, 1} << ValueXYZ<double>{0, 0, 45} << 1.0 << diagonal;
    QTest::newRow("from above, longer in y")
        << ValueXYZ<double>{1, 3, 9} << ValueXYZ<double>{90, 0, 0} << 1.0 << 3.0;
    QTest::newRow("from the front, longer in y")
        << ValueXYZ<double>{1, 3, 2} << ValueXYZ<double>{0, 0, 0} << 1.0 << 2.0;
    QTest::newRow("tilted") << ValueXYZ<double>{1, 1, 1} << ValueXYZ<double>{45, 0, 0} << 1.0 << diagonal;
}

void TestStartView::zoomFillsThePart()
{
    QFETCH(ValueXYZ<double>, scale);
    QFETCH(ValueXYZ<double>, rotation);
    QFETCH(double, aspect);
    QFETCH(double, reach);
    const Parallelepiped box{QVector3D(9, 9, 9), QVector3D(11, 11, 11)};
    const double zoom = Zel3D::ViewFit::zoom(box, scale, rotation, aspect, 0.5);
    // The camera sees as far as the box's own corner, the root of 3, from the middle to the nearer edges.
    QVERIFY2(std::abs(zoom * reach / std::sqrt(3.0) - 0.5) < 1e-5, qPrintable(QString::number(zoom)));
    QCOMPARE(Zel3D::ViewFit::zoom(Parallelepiped(), scale, rotation, aspect, 0.5), 1.0);
}

void TestStartView::thinningLeavesAFewNodes_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("most");
    QTest::addColumn<int>("step");
    QTest::newRow("few enough") << 60 << 40 << 60 << 1;
    QTest::newRow("one too many") << 62 << 40 << 60 << 2;
    QTest::newRow("longer side counts") << 11 << 601 << 60 << 10;
    QTest::newRow("whole to the edges") << 421 << 337 << 100 << 6;
    QTest::newRow("strip keeps two rows") << 2000 << 5 << 60 << 4;
    QTest::newRow("smallest grid") << 2 << 2 << 1 << 1;
}

void TestStartView::thinningLeavesAFewNodes()
{
    QFETCH(int, columns);
    QFETCH(int, rows);
    QFETCH(int, most);
    QTEST(thinning(columns, rows, most), "step");
}

void TestStartView::gradientRisesEvenly()
{
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    const auto lightness = [&linear](const QColor& c) {
        const double y = 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
        return 116.0 * std::cbrt(y) - 16.0;
    };
    const QGradientStops stops = terrainGradient().stops();
    QCOMPARE(stops.size(), 9);
    for (int i = 1; i < stops.size(); ++i) {
        const double rise = lightness(stops[i].second) - lightness(stops[i - 1].second);
        QVERIFY2(rise > 5.5 && rise < 8.0, qPrintable(QString::number(rise)));
    }
    QVERIFY(lightness(stops.last().second) < 90.0);
}

int main(int argc, char* argv[])
{
    return harness::run<TestStartView>(argc, argv);
}

#include "tst_startview.moc"
