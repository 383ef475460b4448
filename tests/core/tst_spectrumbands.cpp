#include "core/spectrumbands.h"
#include "harness/harness.h"

#include <QtTest>

#include <limits>
#include <random>

using namespace Zel3D;

using Levels = std::vector<double>;
using Band = SpectrumBands::Band;
Q_DECLARE_METATYPE(Levels)
Q_DECLARE_METATYPE(CurvePoint)

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::vector<Band> bandsOf(const Levels& levels, const CurvePoint& from, const CurvePoint& to)
{
    std::vector<Band> result;
    SpectrumBands(levels).cut(from, to, [&](const Band& band) { result.push_back(band); });
    return result;
}

/// "position,height" of the corners; the bands apart by bars.
QString text(const std::vector<Band>& bands)
{
    QStringList all;
    for (const Band& band : bands) {
        QStringList corners;
        for (std::size_t i = 0; i < band.count; ++i)
            corners.append(QString("%1,%2").arg(band.corners[i].position).arg(band.corners[i].height));
        all.append(corners.join(' '));
    }
    return all.join(" | ");
}

/// Twice the area, positive for corners that run clockwise.
double turn(const CurvePoint& a, const CurvePoint& b, const CurvePoint& c)
{
    return (c.position - a.position) * (b.height - a.height) -
           (b.position - a.position) * (c.height - a.height);
}

double area(const Band& band)
{
    double sum = 0.0;
    for (std::size_t i = 2; i < band.count; ++i)
        sum += turn(band.corners[0], band.corners[i - 1], band.corners[i]);
    return 0.5 * sum;
}

/// Whether the corners are distinct and bend one way only, but for rounding.
bool isConvex(const Band& band, double sign)
{
    for (std::size_t i = 0; i < band.count; ++i) {
        const CurvePoint& a = band.corners[i];
        const CurvePoint& b = band.corners[(i + 1) % band.count];
        const CurvePoint& c = band.corners[(i + 2) % band.count];
        if ((a.position == b.position && a.height == b.height) || sign * turn(a, b, c) < -1e-12)
            return false;
    }
    return band.count >= 3;
}

} // namespace

class TestSpectrumBands : public QObject
{
    Q_OBJECT
private slots:
    void corners_data();
    void corners();
    void randomPiecesAreCovered_data();
    void randomPiecesAreCovered();
};

void TestSpectrumBands::corners_data()
{
    QTest::addColumn<CurvePoint>("from");
    QTest::addColumn<CurvePoint>("to");
    QTest::addColumn<Levels>("levels");
    QTest::addColumn<QString>("bands");
    const auto row = [](const char* name, CurvePoint from, CurvePoint to, const Levels& levels,
                        const char* bands) { QTest::newRow(name) << from << to << levels << QString(bands); };
    row("no levels", {0, 2}, {4, 6}, {}, "0,0 0,2 4,6 4,0");
    row("a level through both edges", {0, 2}, {4, 6}, {1}, "0,0 0,1 4,1 4,0 | 0,1 0,2 4,6 4,1");
    row("a level through the curve", {0, 2}, {4, 6}, {4}, "0,0 0,2 2,4 4,4 4,0 | 2,4 4,6 4,4");
    row("falling", {0, 6}, {4, 2}, {4}, "0,0 0,4 2,4 4,2 4,0 | 0,4 0,6 2,4");
    row("two levels through the curve", {0, 2}, {4, 6}, {3, 5},
        "0,0 0,2 1,3 4,3 4,0 | 1,3 3,5 4,5 4,3 | 3,5 4,6 4,5");
    row("a level at the lower end", {0, 2}, {4, 6}, {2}, "0,0 0,2 4,2 4,0 | 0,2 4,6 4,2");
    row("a level at the upper end", {0, 2}, {4, 6}, {6}, "0,0 0,2 4,6 4,0");
    row("a level at a flat top", {0, 2}, {4, 2}, {1, 2}, "0,0 0,1 4,1 4,0 | 0,1 0,2 4,2 4,1");
    row("levels outside", {0, 2}, {4, 6}, {-3, 7}, "0,0 0,2 4,6 4,0");
    row("a level at the base line", {0, 2}, {4, 6}, {0}, "0,0 0,2 4,6 4,0");
    row("equal levels in any order", {0, 2}, {4, 2}, {1, -1, 1}, "0,0 0,1 4,1 4,0 | 0,1 0,2 4,2 4,1");
    row("levels that are no numbers", {0, 2}, {4, 2}, {infinity, 1, notANumber},
        "0,0 0,1 4,1 4,0 | 0,1 0,2 4,2 4,1");
    row("one end at the base line", {0, 0}, {4, 4}, {1}, "0,0 1,1 4,1 4,0 | 1,1 4,4 4,1");
    row("under the base line", {0, -2}, {4, -6}, {-4, 4}, "0,0 0,-2 2,-4 4,-4 4,0 | 2,-4 4,-6 4,-4");
    row("through the base line", {0, -1}, {2, 1}, {}, "0,0 0,-1 1,0 | 1,0 2,1 2,0");
    row("through the base line and levels", {0, 2}, {4, -2}, {1, -1},
        "0,0 0,1 1,1 2,0 | 0,1 0,2 1,1 | 2,0 3,-1 4,-1 4,0 | 3,-1 4,-2 4,-1");
    row("no area", {0, 0}, {4, 0}, {0}, "");
    row("a hole", {0, notANumber}, {4, 1}, {}, "");
    row("an endless value", {0, 1}, {4, -infinity}, {}, "");
}

void TestSpectrumBands::corners()
{
    QFETCH(CurvePoint, from);
    QFETCH(CurvePoint, to);
    QFETCH(Levels, levels);
    QTEST(text(bandsOf(levels, from, to)), "bands");
}

void TestSpectrumBands::randomPiecesAreCovered_data()
{
    QTest::addColumn<double>("snap"); // heights and levels are multiples of it
    QTest::newRow("any numbers") << 0.0;
    QTest::newRow("levels often at the ends") << 0.5;
}

void TestSpectrumBands::randomPiecesAreCovered()
{
    QFETCH(double, snap);
    std::mt19937 random(7);
    const auto number = [&](double low, double high) {
        const double value = std::uniform_real_distribution<double>(low, high)(random);
        return snap > 0.0 ? snap * std::round(value / snap) : value;
    };
    for (int round = 0; round < 20000; ++round) {
        Levels levels(std::size_t(std::uniform_int_distribution<int>(0, 9)(random)));
        for (double& level : levels)
            level = number(-3.0, 3.0);
        const CurvePoint from{std::uniform_real_distribution<double>(-5.0, 5.0)(random), number(-3.0, 3.0)};
        const CurvePoint to{from.position + std::uniform_real_distribution<double>(0.01, 2.0)(random),
                            number(-3.0, 3.0)};
        const double width = to.position - from.position;
        double expected = 0.5 * width * (std::abs(from.height) + std::abs(to.height));
        if (from.height * to.height < 0.0)
            expected = 0.5 * width * (from.height * from.height + to.height * to.height) /
                       std::abs(from.height - to.height);
        double sum = 0.0;
        for (const Band& band : bandsOf(levels, from, to)) {
            QVERIFY(band.lower < band.upper && band.lower * band.upper >= 0.0);
            const double sign = band.upper > 0.0 ? 1.0 : -1.0;
            QVERIFY2(isConvex(band, sign), qPrintable(text({band})));
            // As everything stays in the area and its band, an overlap would add to the sum.
            for (std::size_t i = 0; i < band.count; ++i) {
                const CurvePoint& p = band.corners[i];
                const double t = (p.position - from.position) / width;
                const double curve = from.height + t * (to.height - from.height);
                QVERIFY(p.height >= band.lower && p.height <= band.upper);
                QVERIFY(t >= 0.0 && t <= 1.0);
                QVERIFY(std::abs(p.height) <= std::abs(curve) + 1e-12);
            }
            for (double level : levels)
                QVERIFY(level <= band.lower || level >= band.upper);
            sum += sign * area(band);
        }
        QVERIFY2(std::abs(sum - expected) <= 1e-9 * std::max(expected, 1e-3),
                 qPrintable(QString("%1 instead of %2").arg(sum).arg(expected)));
    }
}

int main(int argc, char* argv[])
{
    return harness::run<TestSpectrumBands>(argc, argv);
}

#include "tst_spectrumbands.moc"
