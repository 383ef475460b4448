#include "core/celldata.h"
#include "core/functionof.h"
#include "core/griddata.h"
#include "core/testcelldata.h"
#include "core/toroid.h"
#include "core/watersurface.h"
#include "harness/harness.h"
#include "plots/shplot.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

using namespace Zel3D;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr double pi = 3.141592653589793;

/// No node of a grid can be sent elsewhere unseen.
double tilted(double x, double y)
{
    return 100.0 * x + y;
}

class Surface : public ParametricSurface
{
public:
    using ParametricSurface::ParametricSurface;
    QVector3D operator()(double u, double v) override { return definition(u, v); }

    std::function<QVector3D(double, double)> definition = [](double u, double v) {
        return QVector3D(float(u), float(v), float(tilted(u, v)));
    };
};

/// The water as its formulas say it, over whole grids that are made anew in each step.
class Model
{
public:
    Model(int columns, int rows) : c(grid(columns, rows)), p(grid(columns, rows)) {}

    void step()
    {
        auto next = p;
        for (std::size_t i = 1; i + 1 < c.size(); ++i) {
            for (std::size_t j = 1; j + 1 < c[i].size(); ++j) {
                const double around = c[i - 1][j] + c[i + 1][j] + c[i][j + 1] + c[i][j - 1];
                next[i][j] = 0.25 * around - c[i][j] + (1.995 * c[i][j] - 0.995 * p[i][j]);
            }
        }
        p = c;
        c = next;
    }

    std::vector<std::vector<double>> c;
    std::vector<std::vector<double>> p;

private:
    static std::vector<std::vector<double>> grid(int columns, int rows)
    {
        return std::vector<std::vector<double>>(std::size_t(columns), std::vector<double>(std::size_t(rows)));
    }
};

template <class Mapping>
bool createWith(Mapping& mapping, unsigned int columns, unsigned int rows)
{
    mapping.setMesh(columns, rows);
    mapping.setAreaLimits(0.0, 2.0, 0.0, 2.0);
    return mapping.create();
}

double sum(const WaterSurface& water)
{
    double result = 0.0;
    for (unsigned int i = 0; i < water.getColumns(); ++i) {
        for (unsigned int j = 0; j < water.getRows(); ++j)
            result += double(water.heightAt(i, j));
    }
    return result;
}

} // namespace

Q_DECLARE_METATYPE(Parallelepiped)

class TestMappings : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void functionSamplesTheAreaEndsIncluded();
    void functionRunsBackwardsOverAReversedArea();
    void functionClampsHeightsAlone_data();
    void functionClampsHeightsAlone();
    void functionWritesItsRestriction();
    void functionNeedsThreeByThreeWhileChecked();
    void surfaceCorrectsTheFirstViolatedBoundAlone_data();
    void surfaceCorrectsTheFirstViolatedBoundAlone();
    void surfaceSamplesAndPassesSignedSteps();
    void toroidAddsSineAndCosineOfTheTube();
    void toroidKnowsItsMesh();
    void cellsHaveCornersOfTheirOwn();
    void cellsAtZeroAreHoles();
    void withoutPlot();
    void deletedPlot();
    void tooLargeForMemoryKeepsTheOldPlot();
    void refusedAreaKeepsTheOldPlot();
    void stoneStartsAtTheMiddleNode();
    void stoneOutsideTheMeshIsReported();
    void stonesAddUp();
    void waterFollowsTheModel();
    void waterLoadsHeightsBeforeItMoves();
    void waterKeepsItsBorder();
    void waterRestrictsVerticesNotHeights();
    void waterWithoutMeshDoesNothing();
    void waterPausesWhileHiddenWhenAsked();

private:
    const GridData& grid() const { return *plot->getGridData(); }

    std::unique_ptr<SHPlot> plot;
};

void TestMappings::init()
{
    plot = std::make_unique<SHPlot>("plot", "voran-test", "voran-test");
}

void TestMappings::cleanup()
{
    plot.reset();
}

void TestMappings::functionSamplesTheAreaEndsIncluded()
{
    FunctionOf function(*plot, tilted);
    function.setMesh(5, 3);
    function.setAreaLimits(-1.0, 1.0, 10.0, 14.0);
    QVERIFY(function.create());
    QCOMPARE(grid().columns(), 5U);
    QCOMPARE(grid().rows(), 3U);
    QCOMPARE(grid().valueAt(0, 0), QVector3D(-1, 10, -90));
    QCOMPARE(grid().valueAt(1, 2), QVector3D(-0.5F, 14, -36));
    QCOMPARE(grid().valueAt(4, 1), QVector3D(1, 12, 112));
}

void TestMappings::functionRunsBackwardsOverAReversedArea()
{
    FunctionOf function(*plot, tilted);
    function.setMesh(3, 3);
    function.setAreaLimits(2.0, 0.0, 0.0, 4.0);
    QVERIFY(function.create());
    // Heights in the order of the area; the plot draws a descending range from its smaller end.
    QCOMPARE(grid().select(0, 1), QVector3D(2, 2, 202));
    QCOMPARE(grid().select(2, 1), QVector3D(0, 2, 2));
    QCOMPARE(grid().valueAt(0, 1), QVector3D(0, 2, 202));
}

void TestMappings::functionClampsHeightsAlone_data()
{
    QTest::addColumn<float>("lowest");
    QTest::addColumn<float>("highest");
    QTest::addColumn<double>("height");
    QTest::addColumn<float>("drawn");
    const double large = double(infinity);
    QTest::newRow("above") << -infinity << 1.0F << 5.0 << 1.0F;
    QTest::newRow("below") << -1.0F << infinity << -5.0 << -1.0F;
    QTest::newRow("between") << -1.0F << 1.0F << 0.5 << 0.5F;
    QTest::newRow("maximum first in an empty box") << 2.0F << 1.0F << 1.5 << 1.0F;
    QTest::newRow("infinite height") << -1.0F << 1.0F << large << 1.0F;
    QTest::newRow("bounds that are no numbers") << notANumber << notANumber << 5.0 << 5.0F;
}

void TestMappings::functionClampsHeightsAlone()
{
    QFETCH(float, lowest);
    QFETCH(float, highest);
    QFETCH(double, height);
    QFETCH(float, drawn);
    FunctionOf function(*plot, [height](double, double) { return height; });
    function.restrictRange({{0.5F, 0.5F, lowest}, {0.6F, 0.6F, highest}});
    QVERIFY(createWith(function, 3, 3));
    for (unsigned int i = 0; i < 3; ++i)
        QCOMPARE(grid().valueAt(i, i), QVector3D(float(i), float(i), drawn));
}

void TestMappings::functionWritesItsRestriction()
{
    FunctionOf function(*plot, tilted);
    function.restrictRange({{-infinity, -2, -3}, {4, 5.5F, infinity}});
    const harness::Messages messages;
    QVERIFY(createWith(function, 3, 3));
    QCOMPARE(messages.all(), QStringList({"debug: \tminVertex: x=-inf; y=-2.000000; z=-3.000000;",
                                          "debug: \tmaxVertex: x=4.000000; y=5.500000; z=inf;"}));
}

void TestMappings::functionNeedsThreeByThreeWhileChecked()
{
    int calls = 0;
    FunctionOf function(*plot, [&calls](double x, double y) { return ++calls, tilted(x, y); });
    QVERIFY(!createWith(function, 2, 5));
    QVERIFY(!createWith(function, 5, 2));
    QVERIFY(!createWith(function, 0, 0));
    QCOMPARE(calls, 0);
    QVERIFY(grid().isEmpty());
    function.setMeshCheck(false);
    QVERIFY(createWith(function, 2, 2));
    QCOMPARE(grid().valueAt(1, 0), QVector3D(2, 0, 200));
}

void TestMappings::surfaceCorrectsTheFirstViolatedBoundAlone_data()
{
    QTest::addColumn<QVector3D>("point");
    QTest::addColumn<QVector3D>("corrected");
    QTest::newRow("inside") << QVector3D(0, 1, -1) << QVector3D(0, 1, -1);
    QTest::newRow("x and y above") << QVector3D(5, 6, 0) << QVector3D(1, 6, 0);
    QTest::newRow("y and z above") << QVector3D(0, 6, 7) << QVector3D(0, 2, 7);
    QTest::newRow("z above, x below") << QVector3D(-5, 0, 7) << QVector3D(-5, 0, 3);
    QTest::newRow("all below") << QVector3D(-5, -6, -7) << QVector3D(-1, -6, -7);
    QTest::newRow("y and z below") << QVector3D(0, -6, -7) << QVector3D(0, -2, -7);
    QTest::newRow("z below") << QVector3D(0, 0, -7) << QVector3D(0, 0, -3);
}

void TestMappings::surfaceCorrectsTheFirstViolatedBoundAlone()
{
    QFETCH(QVector3D, point);
    QFETCH(QVector3D, corrected);
    Surface surface(*plot);
    surface.definition = [point](double, double) { return point; };
    surface.restrictRange({{-1, -2, -3}, {1, 2, 3}});
    QVERIFY(createWith(surface, 3, 4));
    QCOMPARE(grid().valueAt(0, 0), corrected);
    QCOMPARE(grid().valueAt(2, 3), corrected);
}

void TestMappings::surfaceSamplesAndPassesSignedSteps()
{
    Surface surface;
    surface.setMesh(5, 3);
    surface.setAreaLimits(4.0, 0.0, 1.0, 2.0);
    QVERIFY(surface.create(*plot));
    QCOMPARE(grid().columns(), 5U);
    QCOMPARE(grid().rows(), 3U);
    QCOMPARE(grid().valueAt(1, 2), QVector3D(3, 2, 302));
    QCOMPARE(grid().valueAt(4, 0), QVector3D(0, 1, 1));
    QCOMPARE(grid().getStepX(), -1.0);
    QCOMPARE(grid().getStepY(), 0.5);
    QVERIFY(!createWith(surface, 3, 2));
    QVERIFY(!createWith(surface, 2, 3));
    QCOMPARE(grid().columns(), 5U);
}

void TestMappings::toroidAddsSineAndCosineOfTheTube()
{
    Toroid toroid;
    QCOMPARE(toroid(0.0, 0.0), QVector3D(2.9F, 0, 1));
    QCOMPARE(toroid(pi / 2.0, 0.0).y(), 2.9F);
    QCOMPARE(toroid(0.0, pi / 2.0), QVector3D(1.9F, 0, 1));
    QCOMPARE(toroid(0.0, pi / 4.0).z(), std::sqrt(2.0F));
    QCOMPARE(toroid(0.0, -pi / 2.0).z(), -1.0F);
}

void TestMappings::toroidKnowsItsMesh()
{
    Toroid toroid(*plot);
    QVERIFY(toroid.create());
    QCOMPARE(grid().columns(), 41U);
    QCOMPARE(grid().rows(), 31U);
    QCOMPARE(grid().getStepX(), 6.283185307179586 / 40.0);
    // A quarter of u back from the end, at the outermost of the tube.
    const QVector3D p = grid().valueAt(30, 30);
    QVERIFY((p - QVector3D(0, -2.9F, 1)).length() < 1e-5F);
    QVERIFY((grid().valueAt(0, 0) - grid().valueAt(40, 0)).length() < 1e-5F);
}

void TestMappings::cellsHaveCornersOfTheirOwn()
{
    TestCellData mapping(plot.get());
    mapping.setMesh(4, 3);
    mapping.setAreaLimits(1.0, 7.0, 10.0, 11.0);
    QVERIFY(mapping.create());
    const CellData& data = *plot->getCellData();
    QCOMPARE(data.getCells().size(), 3 * 2);
    QCOMPARE(data.getVertices().size(), 4 * 3 * 2);
    QCOMPARE(data.getStepX(), 2.0);
    QCOMPARE(data.getStepY(), 0.5);
    // Column by column, so the fourth cell is the second of the second column.
    QCOMPARE(data.getCells().at(3), QVector<unsigned int>({12, 13, 14, 15}));
    const QVector<QPointF> corners = {{3, 10.5}, {5, 10.5}, {5, 11}, {3, 11}};
    for (int k = 0; k < 4; ++k) {
        const double x = corners.at(k).x();
        const double y = corners.at(k).y();
        QCOMPARE(data.getVertices().at(12 + k),
                 QVector3D(float(x), float(y), float(std::sin(x) * std::sin(y) / x * y)));
    }
}

void TestMappings::cellsAtZeroAreHoles()
{
    TestCellData mapping(*plot);
    mapping.setMesh(3, 2);
    mapping.setAreaLimits(0.0, 2.0, 1.0, 2.0);
    QVERIFY(mapping.create());
    QVERIFY(plot->getCellData()->isMissing(0));
    QVERIFY(!plot->getCellData()->isMissing(1));
    // Too few samples for a cell: refused, and the old cells stay.
    const harness::Messages messages;
    QVERIFY(!createWith(mapping, 1, 1));
    QCOMPARE(messages.warnings("there are no vertices"), 1);
    QCOMPARE(plot->getCellData()->getCells().size(), 2);
}

void TestMappings::withoutPlot()
{
    FunctionOf function(tilted);
    Surface surface;
    TestCellData cells;
    WaterSurface water;
    QTest::ignoreMessage(QtWarningMsg, "Function: Not Plot assigned");
    QVERIFY(!createWith(function, 3, 3));
    QTest::ignoreMessage(QtWarningMsg, "ParametricSurface: Not Plot assigned");
    QVERIFY(!createWith(surface, 3, 3));
    QTest::ignoreMessage(QtWarningMsg, "TestCellData: Not Plot assigned");
    QVERIFY(!createWith(cells, 3, 3));
    QTest::ignoreMessage(QtWarningMsg, "WaterSurface: Not Plot assigned");
    QVERIFY(!createWith(water, 3, 3));
}

void TestMappings::deletedPlot()
{
    // The definition itself takes the plot away.
    FunctionOf function(*plot, [this](double, double) { return plot.reset(), 0.0; });
    WaterSurface water(*plot);
    water.setMesh(20, 20);
    water.reset();
    const double before = sum(water);
    QTest::ignoreMessage(QtWarningMsg, "Function: Not Plot assigned");
    QVERIFY(!createWith(function, 3, 3));
    QVERIFY(!function.getPlot());
    const harness::Messages messages;
    water.timeout();
    QCOMPARE(sum(water), before);
    QVERIFY(messages.all().isEmpty());
}

void TestMappings::tooLargeForMemoryKeepsTheOldPlot()
{
    FunctionOf function(*plot, tilted);
    QVERIFY(createWith(function, 3, 3));
    Surface surface(*plot);
    TestCellData cells(*plot);
    WaterSurface water(*plot);
    // The first does not fit into an address space, the second not into the size of a block.
    for (unsigned int n : {40000000U, 4294967295U}) {
        const harness::Messages messages;
        QVERIFY(!createWith(function, n, n - 1));
        QVERIFY(!createWith(surface, n, n - 1));
        QVERIFY(!createWith(cells, n, n - 1));
        QVERIFY(!createWith(water, n, n - 1));
        const QString text = QString(": a mesh of %1 columns by %2 rows is too large for memory");
        QStringList expected;
        for (const char* name : {"Function", "ParametricSurface", "TestCellData", "WaterSurface"})
            expected.append("warning: " + QString(name) + text.arg(n).arg(n - 1));
        QCOMPARE(messages.all(), expected);
        water.timeout();
    }
    QCOMPARE(grid().columns(), 3U);
    QCOMPARE(water.getColumns(), 0U);
}

void TestMappings::refusedAreaKeepsTheOldPlot()
{
    FunctionOf function(*plot, tilted);
    QVERIFY(createWith(function, 3, 3));
    function.setMesh(4, 4);
    function.setAreaLimits(0.0, double(infinity), 0.0, 1.0);
    const harness::Messages messages;
    QVERIFY(!function.create());
    QCOMPARE(messages.warnings("xMax is inf"), 1);
    QCOMPARE(grid().columns(), 3U);
}

void TestMappings::stoneStartsAtTheMiddleNode()
{
    WaterSurface water;
    water.setMesh(21, 30);
    water.reset();
    // The middle of the stone lies three nodes behind the middle of the mesh in both directions.
    const auto raised = [](int n) { return float(n * 1.004); };
    QCOMPARE(water.heightAt(13, 18), raised(6));
    QCOMPARE(water.heightAt(13, 17), raised(5));
    QCOMPARE(water.heightAt(11, 18), raised(2));
    QCOMPARE(water.heightAt(12, 16), raised(1));
    QCOMPARE(water.heightAt(10, 15), 0.0F);
    // 6 + 4 * 5 + 4 * 4 + 4 * 2 + 8 * 1
    QVERIFY(std::abs(sum(water) - 58.0 * 1.004) < 1e-4);
}

void TestMappings::stoneOutsideTheMeshIsReported()
{
    WaterSurface water;
    water.setMesh(10, 10);
    const harness::Messages messages;
    water.reset();
    QCOMPARE(water.heightAt(8, 8), float(6 * 1.004));
    QStringList expected;
    for (int column = 5; column < 10; ++column)
        expected.append(QString("debug: out of range [%1][10]").arg(column));
    expected << "debug: out of range [10][5]"
             << "debug: out of range [11][5]";
    QCOMPARE(messages.all(), expected);
}

void TestMappings::stonesAddUp()
{
    WaterSurface water;
    water.setMesh(30, 30);
    water.reset();
    water.reset();
    QCOMPARE(water.heightAt(18, 18), 2.0F * float(6 * 1.004));
    water.setMesh(30, 30);
    QCOMPARE(sum(water), 0.0);
}

void TestMappings::waterFollowsTheModel()
{
    constexpr int columns = 23;
    constexpr int rows = 31;
    WaterSurface water(*plot);
    water.setMesh(columns, rows);
    water.setAreaLimits(0.0, 1.0, 0.0, 1.0);
    Model model(columns, rows);
    for (int step = 0; step < 200; ++step) {
        if (step == 0 || step == 50) {
            water.reset();
            for (int di = -3; di <= 3; ++di) {
                for (int dj = -3; dj <= 3; ++dj)
                    model.c[std::size_t(14 + di)][std::size_t(18 + dj)] +=
                        std::max(0, 6 - di * di - dj * dj) * 1.004;
            }
        }
        water.timeout();
        model.step();
        for (unsigned int i = 0; i < columns; ++i) {
            for (unsigned int j = 0; j < rows; ++j) {
                // Single precision over two hundred steps of heights of about 10.
                const double difference = double(water.heightAt(i, j)) - model.c[i][j];
                QVERIFY2(std::abs(difference) < 1e-3, qPrintable(QString("step %1 node %2 %3: %4 for %5")
                                                                     .arg(step)
                                                                     .arg(i)
                                                                     .arg(j)
                                                                     .arg(double(water.heightAt(i, j)))
                                                                     .arg(model.c[i][j])));
            }
        }
    }
    // The waves have come back from the border and still move.
    QVERIFY(std::abs(model.c[5][5]) > 1e-2);
}

void TestMappings::waterLoadsHeightsBeforeItMoves()
{
    WaterSurface water(*plot);
    water.setMesh(21, 31);
    water.setAreaLimits(-10.0, 10.0, 60.0, 0.0);
    water.reset();
    water.timeout();
    const float peak = float(6 * 1.004);
    QCOMPARE(grid().columns(), 21U);
    QCOMPARE(grid().rows(), 31U);
    QCOMPARE(grid().valueAt(13, 18), QVector3D(3, 24, peak));
    QCOMPARE(grid().valueAt(0, 30), QVector3D(-10, 0, 0));
    QCOMPARE(grid().getStepX(), 1.0);
    QCOMPARE(grid().getStepY(), -2.0);
    QVERIFY(water.heightAt(13, 18) != peak);
    // On the flanks of the stone: lower neighbour minus higher one.
    QCOMPARE(water.slopeAt(12, 18), QVector3D(float(2 * 1.004) - peak, 0, 0));
    QCOMPARE(water.slopeAt(13, 19), QVector3D(0, peak - float(2 * 1.004), 0));
    // Shown again without a step.
    const float moved = water.heightAt(13, 18);
    QVERIFY(water.create());
    QCOMPARE(grid().valueAt(13, 18).z(), moved);
    QCOMPARE(water.heightAt(13, 18), moved);
}

void TestMappings::waterKeepsItsBorder()
{
    // So small that the stone raises the last column and row.
    WaterSurface water(*plot);
    water.setMesh(9, 9);
    water.setAreaLimits(0.0, 1.0, 0.0, 1.0);
    {
        const harness::Messages messages;
        water.reset();
    }
    const float raised = water.heightAt(8, 7);
    QVERIFY(raised > 0.0F);
    for (int i = 0; i < 4; ++i) {
        water.timeout();
        QCOMPARE(grid().valueAt(8, 7).z(), 0.0F);
        QCOMPARE(grid().valueAt(7, 8).z(), 0.0F);
        // The stone lies in one of the two buffers, which take turns.
        QCOMPARE(water.heightAt(8, 7), i % 2 == 0 ? 0.0F : raised);
    }
}

void TestMappings::waterRestrictsVerticesNotHeights()
{
    WaterSurface water(*plot);
    water.setMesh(21, 21);
    water.setAreaLimits(0.0, 20.0, 0.0, 20.0);
    water.restrictRange({{2, -infinity, -infinity}, {14, infinity, 1}});
    water.reset();
    water.timeout();
    QCOMPARE(grid().valueAt(13, 13), QVector3D(13, 13, 1));
    QCOMPARE(grid().valueAt(15, 13), QVector3D(14, 13, float(2 * 1.004)));
    QCOMPARE(grid().valueAt(0, 5), QVector3D(2, 5, 0));
    QCOMPARE(water.slopeAt(12, 13).x(), float(2 * 1.004) - float(6 * 1.004));
}

void TestMappings::waterWithoutMeshDoesNothing()
{
    WaterSurface water(*plot);
    for (const auto& mesh : {std::make_pair(0U, 0U), std::make_pair(5U, 0U), std::make_pair(2U, 9U)}) {
        water.setMesh(mesh.first, mesh.second);
        const harness::Messages messages;
        water.reset();
        QVERIFY(!messages.all().isEmpty());
        water.timeout();
        QVERIFY(!water.create());
        QVERIFY(grid().isEmpty());
    }
    water.setMesh(30, 30);
    water.clear();
    water.timeout();
    QVERIFY(grid().isEmpty());
}

void TestMappings::waterPausesWhileHiddenWhenAsked()
{
    WaterSurface water(*plot);
    water.setMesh(20, 20);
    water.setAreaLimits(0.0, 1.0, 0.0, 1.0);
    water.setPausedWhenHidden(true);
    water.timeout();
    QVERIFY(grid().isEmpty());
    QVERIFY(harness::show(*plot, 100, 100));
    water.timeout();
    QVERIFY(!grid().isEmpty());
}

int main(int argc, char* argv[])
{
    return harness::run<TestMappings>(argc, argv);
}

#include "tst_mappings.moc"
