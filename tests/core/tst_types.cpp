#include "core/gradientstops.h"
#include "core/types.h"
#include "harness/harness.h"

#include <QtTest>

#include <cmath>

using namespace Zel3D;

class TestTypes : public QObject
{
    Q_OBJECT
private slots:
    void fuzzyEquality_data();
    void fuzzyEquality();
    void radians();
    void rotationTurnsZOntoTheDirection_data();
    void rotationTurnsZOntoTheDirection();
    void inventedStopsDoNotCount();
};

void TestTypes::fuzzyEquality_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<bool>("equal");
    QTest::newRow("zeros") << 0.0 << 0.0 << true;
    QTest::newRow("denormal against zero") << 1e-310 << 0.0 << true;
    QTest::newRow("smallest normal against zero") << 2.2250738585072014e-308 << 0.0 << true;
    QTest::newRow("zero against denormal") << 0.0 << 1e-310 << false;
    QTest::newRow("below epsilon") << 1.0 << 1.0 + 1e-16 << true;
    QTest::newRow("above epsilon") << 1.0 << 1.0 + 1e-15 << false;
    QTest::newRow("relative, not absolute") << 1e-20 << 2e-20 << false;
    QTest::newRow("negative") << -3.0 << 3.0 << false;
    QTest::newRow("not a number") << std::nan("") << std::nan("") << false;
}

void TestTypes::fuzzyEquality()
{
    QFETCH(double, a);
    QFETCH(double, b);
    QFETCH(bool, equal);
    QCOMPARE(isZero(a, b), equal);
    const ValueXYZ<double> z1{0.0, 0.0, a};
    const ValueXYZ<double> z2{0.0, 0.0, b};
    QCOMPARE(z1 != z2, !equal);
    const ValueXYZ<double> x1{a, 0.0, 0.0};
    const ValueXYZ<double> x2{b, 0.0, 0.0};
    QCOMPARE(x1 != x2, !equal);
}

void TestTypes::radians()
{
    QVERIFY(translateToRadian(180.0) == 3.141592653589793);
    QVERIFY(translateToRadian(-90.0) == -3.141592653589793 / 2.0);
}

void TestTypes::rotationTurnsZOntoTheDirection_data()
{
    QTest::addColumn<QVector3D>("from");
    QTest::addColumn<QVector3D>("to");
    QTest::addColumn<double>("angle");
    QTest::addColumn<QVector3D>("axis");
    QTest::newRow("along x") << QVector3D(1, 1, 1) << QVector3D(3, 1, 1) << 90.0 << QVector3D(0, 1, 0);
    QTest::newRow("along y") << QVector3D() << QVector3D(0, 5, 0) << 90.0 << QVector3D(-1, 0, 0);
    QTest::newRow("up") << QVector3D() << QVector3D(0, 0, 2) << 0.0 << QVector3D();
    QTest::newRow("down") << QVector3D() << QVector3D(0, 0, -2) << 180.0 << QVector3D();
    QTest::newRow("oblique") << QVector3D() << QVector3D(1, 0, 1) << 45.0 << QVector3D(0, 1, 0);
}

void TestTypes::rotationTurnsZOntoTheDirection()
{
    QFETCH(QVector3D, from);
    QFETCH(QVector3D, to);
    QFETCH(double, angle);
    QFETCH(QVector3D, axis);
    QVector3D found(9, 9, 9);
    QVERIFY(std::abs(getRotationAngle(found, from, to) - angle) < 1e-4);
    QVERIFY((found - axis).length() < 1e-6F);
}

void TestTypes::inventedStopsDoNotCount()
{
    QLinearGradient gradient;
    QVERIFY(gradientStops(gradient).isEmpty());
    QVERIFY(gradientStops(QGradient()).isEmpty());
    QLinearGradient explicitStops;
    explicitStops.setColorAt(0.0, Qt::black);
    explicitStops.setColorAt(1.0, Qt::white);
    QCOMPARE(gradientStops(explicitStops).size(), 2);
    QVERIFY(!sameGradient(gradient, explicitStops));
    QVERIFY(sameGradient(explicitStops, explicitStops));
    gradient.setColorAt(0.5, Qt::red);
    QCOMPARE(gradientStops(gradient).size(), 1);
    QCOMPARE(gradientStops(gradient).first().second, QColor(Qt::red));
}

int main(int argc, char* argv[])
{
    return harness::run<TestTypes>(argc, argv);
}

#include "tst_types.moc"
