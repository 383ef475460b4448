// What eyes make of gradients, and whether the published tables are what they are said to be.

#include "gradients/colorvision.h"
#include "gradients/gradientcolors.h"
#include "gradients/gradientpresets.h"
#include "harness/harness.h"

#include <QSet>
#include <QtTest>

#include <cmath>

using Zel3D::ColorVision;
using Kind = Zel3D::ColorVision::Kind;
using Shape = Zel3D::ColorVision::Course::Shape;

namespace {

QGradientStops greys(std::initializer_list<QPair<double, int>> list)
{
    QGradientStops stops;
    for (const auto& grey : list)
        stops.append({grey.first, QColor(grey.second, grey.second, grey.second)});
    return stops;
}

int distance(const QColor& a, const QColor& b)
{
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
}

} // namespace

class TestColorVision : public QObject
{
    Q_OBJECT
private slots:
    void lightness_data();
    void lightness();
    void deficiencies();
    void courses_data();
    void courses();
    void presets();
};

void TestColorVision::lightness_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("expected");
    // Known values of CIE L* of the sRGB primaries and of mid grey.
    QTest::newRow("black") << QColor(Qt::black) << 0.0;
    QTest::newRow("white") << QColor(Qt::white) << 100.0;
    QTest::newRow("red") << QColor(255, 0, 0) << 53.24;
    QTest::newRow("green") << QColor(0, 255, 0) << 87.73;
    QTest::newRow("blue") << QColor(0, 0, 255) << 32.30;
    QTest::newRow("mid grey") << QColor(119, 119, 119) << 50.03;
    QTest::newRow("dark, on the straight branch") << QColor(10, 10, 10) << 2.74;
}

void TestColorVision::lightness()
{
    QFETCH(QColor, color);
    QFETCH(double, expected);
    QVERIFY(std::abs(ColorVision::lightness(color) - expected) < 0.02);
}

void TestColorVision::deficiencies()
{
    const auto seen = [](const QColor& color, Kind kind) { return ColorVision::simulate(color, kind); };
    for (const Kind kind : {Kind::Protanopia, Kind::Deuteranopia, Kind::Tritanopia}) {
        // The rows of each matrix add up to one: greys stay, and so does alpha.
        QCOMPARE(seen(QColor(90, 90, 90, 40), kind), QColor(90, 90, 90, 40));
        QVERIFY(!ColorVision::name(kind).isEmpty());
    }
    QCOMPARE(seen(QColor(1, 2, 3, 4), Kind::Normal), QColor(1, 2, 3, 4));
    // Independent values: the first column of the matrices, encoded as sRGB.
    QCOMPARE(seen(Qt::red, Kind::Protanopia), QColor(109, 95, 0));
    QCOMPARE(seen(Qt::red, Kind::Deuteranopia), QColor(163, 144, 0));
    // Red and green of equal use are told apart by normal eyes, hardly by the first two, well by the third.
    const QColor a(200, 90, 0);
    const QColor b(110, 140, 0);
    for (const Kind kind : {Kind::Protanopia, Kind::Deuteranopia})
        QVERIFY(distance(seen(a, kind), seen(b, kind)) < distance(a, b) / 2);
    QVERIFY(distance(seen(a, Kind::Tritanopia), seen(b, Kind::Tritanopia)) > distance(a, b) / 2);
    // Blue and green are what the third confuses.
    const QColor cyan(0, 160, 160);
    const QColor green(0, 160, 120);
    QVERIFY(distance(seen(cyan, Kind::Tritanopia), seen(green, Kind::Tritanopia)) < distance(cyan, green));
}

void TestColorVision::courses_data()
{
    QTest::addColumn<QGradientStops>("stops");
    QTest::addColumn<int>("shape");
    QTest::addColumn<bool>("even");
    QTest::addColumn<QString>("said");
    const auto row = [](const char* name, const QGradientStops& stops, Shape shape, bool even,
                        const QString& said) {
        QTest::newRow(name) << stops << static_cast<int>(shape) << even << said;
    };
    row("no stops", {}, Shape::None, false, "");
    row("one colour", greys({{0.3, 90}}), Shape::Flat, false, "hardly");
    row("colours of one lightness", {{0.0, QColor(190, 100, 100)}, {1.0, QColor(100, 135, 100)}}, Shape::Flat,
        false, "hardly");
    row("black to white", greys({{0.0, 0}, {1.0, 255}}), Shape::Rising, true, "rises evenly");
    row("white to black", greys({{0.0, 255}, {1.0, 0}}), Shape::Falling, true, "falls evenly");
    row("a jump near the end", greys({{0.0, 0}, {0.9, 40}, {1.0, 255}}), Shape::Rising, false,
        "at 90\u00a0%");
    row("up and down", greys({{0.0, 0}, {0.5, 255}, {1.0, 0}}), Shape::Peak, true, "up to 50\u00a0%");
    row("down and up", greys({{0.0, 255}, {0.25, 0}, {1.0, 255}}), Shape::Valley, true, "up to 25\u00a0%");
    row("rainbow", {{0.0, Qt::blue}, {0.25, Qt::cyan}, {0.5, Qt::green}, {0.75, Qt::yellow}, {1.0, Qt::red}},
        Shape::Wavy, false, "direction");
    // A dent too small to see is no turning point.
    row("a small dent", greys({{0.0, 0}, {0.5, 128}, {0.51, 127}, {1.0, 255}}), Shape::Rising, true,
        "evenly");
    row("a dent that is seen", greys({{0.0, 0}, {0.5, 128}, {0.6, 110}, {1.0, 255}}), Shape::Wavy, false,
        "2 times");
}

void TestColorVision::courses()
{
    QFETCH(QGradientStops, stops);
    QFETCH(int, shape);
    QFETCH(bool, even);
    QFETCH(QString, said);
    const ColorVision::Course course = ColorVision::lightnessCourse(stops);
    QCOMPARE(static_cast<int>(course.shape), shape);
    QCOMPARE(course.isEven(), even);
    const QString note = ColorVision::note(course);
    QVERIFY2(note.contains(said) && note.isEmpty() == said.isEmpty(), qPrintable(note));
    QVERIFY2(!note.contains('%') || !note.contains("%1"), qPrintable(note));
}

void TestColorVision::presets()
{
    QSet<QString> names;
    for (const Zel3D::GradientPreset& preset : Zel3D::gradientPresets()) {
        const QByteArray name = preset.name.toUtf8();
        names.insert(preset.name);
        QVERIFY2(preset.stops.size() >= 9 && preset.stops.size() <= 17, name);
        QVERIFY2(!preset.source.isEmpty() && !preset.terms.isEmpty(), name);
        QCOMPARE(preset.stops.first().first, 0.0);
        QCOMPARE(preset.stops.last().first, 1.0);
        for (const QGradientStop& stop : preset.stops)
            QVERIFY2(stop.second.isValid(), name);
        const ColorVision::Course course = ColorVision::lightnessCourse(preset.stops);
        QVERIFY2(course.isEven(), name);
        if (preset.kind == Zel3D::GradientPreset::Kind::Sequential) {
            QVERIFY2(course.shape == Shape::Rising, name);
            // Each stop is lighter than the one before: one wrong digit in a table shows here.
            for (int i = 1; i < preset.stops.size(); ++i) {
                const double step = ColorVision::lightness(preset.stops[i].second) -
                                    ColorVision::lightness(preset.stops[i - 1].second);
                QVERIFY2(step > 2.5 && step < 8.5,
                         qPrintable(QString("%1 %2: %3").arg(preset.name).arg(i).arg(step)));
            }
        } else {
            QVERIFY2(course.shape == Shape::Peak && std::abs(course.turn - 0.5) < 0.01, name);
        }
    }
    QCOMPARE(names.size(), 10);
    // The middle of the best known table, which has no stop there.
    const QColor middle = Zel3D::stopsColor(Zel3D::gradientPresets().first().stops, 127.5 / 255.0);
    QVERIFY(distance(middle, QColor(0x21, 0x91, 0x8c)) <= 3);
}

int main(int argc, char* argv[])
{
    return harness::run<TestColorVision>(argc, argv);
}

#include "tst_colorvision.moc"
