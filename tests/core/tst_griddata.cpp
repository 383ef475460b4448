#include "core/griddata.h"
#include "harness/harness.h"

#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <vector>

using namespace Zel3D;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

/// A column-major field with the array of column pointers that the grid is filled from.
template <class T>
class Field
{
public:
    Field(unsigned columns, unsigned rows, const std::function<T(unsigned, unsigned)>& f)
        : values(std::size_t(columns) * rows), pointers(columns)
    {
        for (unsigned i = 0; i < columns; ++i) {
            pointers[i] = values.data() + std::size_t(i) * rows;
            for (unsigned j = 0; j < rows; ++j)
                pointers[i][j] = f(i, j);
        }
    }
    T** data() { return pointers.data(); }

private:
    std::vector<T> values;
    std::vector<T*> pointers;
};

using Heights = Field<double>;
using Points = Field<QVector3D>;

bool isFinite(const QVector3D& v)
{
    return std::isfinite(v.x()) && std::isfinite(v.y()) && std::isfinite(v.z());
}

/// The normal of a node written down plainly with Qt's operations.
QVector3D plainNormal(const GridData& grid, unsigned column, unsigned row)
{
    const int columns = int(grid.columns());
    const int rows = int(grid.rows());
    QVector3D sum;
    const auto add = [&](int di1, int dj1, int di2, int dj2) {
        const int i1 = int(column) + di1;
        const int j1 = int(row) + dj1;
        const int i2 = int(column) + di2;
        const int j2 = int(row) + dj2;
        if (std::min(i1, i2) < 0 || std::min(j1, j2) < 0 || std::max(i1, i2) >= columns ||
            std::max(j1, j2) >= rows)
            return;
        const QVector3D a = grid.valueAt(column, row);
        const QVector3D b = grid.valueAt(unsigned(i1), unsigned(j1));
        const QVector3D c = grid.valueAt(unsigned(i2), unsigned(j2));
        if (isFinite(a) && isFinite(b) && isFinite(c))
            sum += QVector3D::normal(a, b, c);
    };
    add(1, 0, 0, 1);
    add(0, -1, 1, 0);
    add(-1, 0, 0, -1);
    add(0, 1, -1, 0);
    sum.normalize();
    return sum;
}

} // namespace

class TestGridData : public QObject
{
    Q_OBJECT
private slots:
    void rangesAreDrawnAscending_data();
    void rangesAreDrawnAscending();
    void singleColumnOrRowKeepsTheSteps();
    void heightBox_data();
    void heightBox();
    void pointGrid();
    void normalsOfKnownSurfaces_data();
    void normalsOfKnownSurfaces();
    void smallTrianglesAreFlat_data();
    void smallTrianglesAreFlat();
    void normalsEqualQtsArithmetic_data();
    void normalsEqualQtsArithmetic();
    void holesFollowTheValues();
    void valuesBeyondFloat();
    void clearAndSizeGoThroughTheVirtuals();
};

void TestGridData::rangesAreDrawnAscending_data()
{
    QTest::addColumn<QVector<double>>("range");
    QTest::addColumn<QVector3D>("firstDrawn");
    QTest::addColumn<QVector3D>("lastDrawn");
    QTest::addColumn<QVector3D>("firstGiven");
    QTest::addColumn<QVector3D>("lastGiven");
    // Heights 10 * column + row on 3 columns and 2 rows: 0 at the first node, 21 at the last.
    QTest::newRow("ascending") << QVector<double>{1, 5, -2, 7} << QVector3D(1, -2, 0) << QVector3D(5, 7, 21)
                               << QVector3D(1, -2, 0) << QVector3D(5, 7, 21);
    QTest::newRow("x descends") << QVector<double>{5, 1, -2, 7} << QVector3D(1, -2, 0) << QVector3D(5, 7, 21)
                                << QVector3D(5, -2, 0) << QVector3D(1, 7, 21);
    QTest::newRow("y descends") << QVector<double>{1, 5, 7, -2} << QVector3D(1, -2, 0) << QVector3D(5, 7, 21)
                                << QVector3D(1, 7, 0) << QVector3D(5, -2, 21);
    QTest::newRow("no extent") << QVector<double>{3, 3, 4, 4} << QVector3D(3, 4, 0) << QVector3D(3, 4, 21)
                               << QVector3D(3, 4, 0) << QVector3D(3, 4, 21);
}

void TestGridData::rangesAreDrawnAscending()
{
    QFETCH(QVector<double>, range);
    Heights heights(3, 2, [](unsigned i, unsigned j) { return 10.0 * i + j; });
    GridData grid;
    grid.setData(heights.data(), 3, 2, range[0], range[1], range[2], range[3]);
    QCOMPARE(grid.columns(), 3U);
    QCOMPARE(grid.rows(), 2U);
    QTEST(grid.valueAt(0, 0), "firstDrawn");
    QTEST(grid.valueAt(2, 1), "lastDrawn");
    QTEST(grid.select(0, 0), "firstGiven");
    QTEST(grid.select(2, 1), "lastGiven");
    QTEST(grid.getMinimum(), "firstDrawn");
    QTEST(grid.getMaximum(), "lastDrawn");
    QCOMPARE(grid.valueAt(1, 0, 2), 10.0);
    QCOMPARE(grid.getStepX(), std::abs(range[1] - range[0]) / 2.0);
    QCOMPARE(grid.getStepY(), std::abs(range[3] - range[2]));
    QCOMPARE(grid.getXMin(), range[0]);
    QCOMPARE(grid.getYMax(), range[3]);
}

void TestGridData::singleColumnOrRowKeepsTheSteps()
{
    Heights heights(3, 3, [](unsigned, unsigned) { return 1.0; });
    GridData grid;
    grid.setData(heights.data(), 1, 3, 0, 10, 0, 10);
    QCOMPARE(grid.valueAt(0, 2), QVector3D(0, 0, 1));
    grid.setData(heights.data(), 3, 3, 0, 10, 0, 20);
    grid.setData(heights.data(), 1, 3, 0, 1, 0, 1);
    QCOMPARE(grid.getStepX(), 5.0);
    QCOMPARE(grid.getStepY(), 10.0);
    QCOMPARE(grid.valueAt(0, 2), QVector3D(0, 20, 1));
    grid.setData(heights.data(), 3, 1, 0, 1, 0, 1);
    QCOMPARE(grid.getStepX(), 5.0);
    QCOMPARE(grid.getMaximum(), QVector3D(10, 0, 1));
}

void TestGridData::heightBox_data()
{
    QTest::addColumn<QVector<double>>("heights");
    QTest::addColumn<unsigned>("columns");
    QTest::addColumn<unsigned>("rows");
    QTest::addColumn<QVector3D>("minimum");
    QTest::addColumn<QVector3D>("maximum");
    const double inf = std::numeric_limits<double>::infinity();
    QTest::newRow("all negative") << QVector<double>{-5, -7, -6, -8} << 2U << 2U << QVector3D(2, 3, -8)
                                  << QVector3D(4, 9, -5);
    QTest::newRow("holes") << QVector<double>{notANumber, 1, inf, -2, -inf, 0} << 2U << 3U
                           << QVector3D(2, 3, -2) << QVector3D(4, 9, 1);
    QTest::newRow("holes only") << QVector<double>{inf, notANumber, -inf, inf} << 2U << 2U
                                << QVector3D(2, 3, infinity) << QVector3D(4, 9, -infinity);
    QTest::newRow("no columns") << QVector<double>{} << 0U << 3U << QVector3D(0, 0, infinity)
                                << QVector3D(0, 0, -infinity);
    QTest::newRow("no rows") << QVector<double>{} << 3U << 0U << QVector3D(0, 0, infinity)
                             << QVector3D(0, 0, -infinity);
}

void TestGridData::heightBox()
{
    QFETCH(QVector<double>, heights);
    QFETCH(unsigned, columns);
    QFETCH(unsigned, rows);
    QFETCH(QVector3D, minimum);
    QFETCH(QVector3D, maximum);
    Heights field(columns, rows, [&](unsigned i, unsigned j) { return heights[int(i * rows + j)]; });
    GridData grid;
    grid.setData(field.data(), columns, rows, 2, 4, 3, 9);
    QVERIFY(grid.getMinimum() == minimum);
    QVERIFY(grid.getMaximum() == maximum);
    QCOMPARE(grid.columns(), columns);
    QCOMPARE(grid.rows(), columns == 0 ? 0U : rows);
    QCOMPARE(grid.isEmpty(), columns == 0);
}

void TestGridData::pointGrid()
{
    // The extremes of the three components lie in different nodes; the hole lies beyond all.
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const QVector3D given[4] = {{-3, 2, 0}, {1, -5, 4}, {7, 0, -1}, {-100, nan, 100}};
    Points points(2, 2, [&](unsigned i, unsigned j) { return given[2 * i + j]; });
    GridData grid;
    grid.setRange(1, 2, 3, 4);
    grid.setData(points.data(), 2, 2, -0.5, 3.0);
    QVERIFY(grid.getMinimum() == QVector3D(-3, -5, -1));
    QVERIFY(grid.getMaximum() == QVector3D(7, 2, 4));
    QCOMPARE(grid.valueAt(1, 0), given[2]);
    QCOMPARE(grid.getStepX(), -0.5);
    QCOMPARE(grid.getStepY(), 3.0);
    QCOMPARE(grid.getXMax(), 2.0);
    QVERIFY(grid.hasMissing());
    QVERIFY(grid.isMissing(1, 1));
    QVERIFY(!grid.isMissing(1, 0));
    grid.setData(points.data(), 0, 0, 1, 1);
    QVERIFY(grid.getMinimum() == QVector3D(infinity, infinity, infinity));
    QVERIFY(grid.getMaximum() == -grid.getMinimum());
    QVERIFY(!grid.hasMissing());
}

void TestGridData::normalsOfKnownSurfaces_data()
{
    QTest::addColumn<QVector<double>>("range");
    QTest::newRow("ascending") << QVector<double>{-1, 1, -1, 1};
    QTest::newRow("descending") << QVector<double>{1, -1, 1, -1};
}

void TestGridData::normalsOfKnownSurfaces()
{
    QFETCH(QVector<double>, range);
    const unsigned columns = 41;
    const unsigned rows = 61;
    const auto x = [](unsigned i) { return -1.0 + i / 20.0; };
    const auto y = [](unsigned j) { return -1.0 + j / 30.0; };
    GridData grid;
    // The plane z = 2x - 3y: (-2, 3, 1) everywhere.
    Heights plane(columns, rows, [&](unsigned i, unsigned j) { return 2.0 * x(i) - 3.0 * y(j); });
    grid.setData(plane.data(), columns, rows, range[0], range[1], range[2], range[3]);
    const QVector3D tilted = QVector3D(-2, 3, 1).normalized();
    for (unsigned i = 0; i < columns; ++i) {
        for (unsigned j = 0; j < rows; ++j)
            QVERIFY((grid.normalAt(i, j) - tilted).length() < 1e-4F);
    }
    // The top of a sphere of radius 2: the normal is the radius. Differences at the edges are one-sided.
    Heights sphere(columns, rows,
                   [&](unsigned i, unsigned j) { return std::sqrt(4.0 - x(i) * x(i) - y(j) * y(j)); });
    grid.setData(sphere.data(), columns, rows, range[0], range[1], range[2], range[3]);
    for (unsigned i = 1; i + 1 < columns; ++i) {
        for (unsigned j = 1; j + 1 < rows; ++j)
            QVERIFY((grid.normalAt(i, j) - grid.valueAt(i, j) / 2.0F).length() < 2e-3F);
    }
    QVERIFY((grid.normalAt(columns / 2, rows / 2) - QVector3D(0, 0, 1)).length() < 1e-5F);
}

void TestGridData::smallTrianglesAreFlat_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<QVector3D>("normal");
    // The area of a cell is compared with 1e-6.
    QTest::newRow("below") << 0.9e-3 << QVector3D();
    QTest::newRow("above") << 1.1e-3 << QVector3D(0, 0, 1);
    QTest::newRow("far below") << 1e-30 << QVector3D();
}

void TestGridData::smallTrianglesAreFlat()
{
    QFETCH(double, step);
    Heights flat(3, 3, [](unsigned, unsigned) { return 0.0; });
    GridData grid;
    grid.setData(flat.data(), 3, 3, 0, 2 * step, 0, 2 * step);
    for (unsigned i = 0; i < 3; ++i) {
        for (unsigned j = 0; j < 3; ++j)
            QTEST(grid.normalAt(i, j), "normal");
    }
}

void TestGridData::normalsEqualQtsArithmetic_data()
{
    QTest::addColumn<unsigned>("columns");
    QTest::addColumn<unsigned>("rows");
    QTest::addColumn<double>("size");
    QTest::addColumn<double>("holes");
    QTest::newRow("one node") << 1U << 1U << 1.0 << 0.0;
    QTest::newRow("one column") << 1U << 9U << 1.0 << 0.0;
    QTest::newRow("one row") << 9U << 1U << 1.0 << 0.0;
    QTest::newRow("one cell") << 2U << 2U << 1.0 << 0.0;
    QTest::newRow("narrow") << 2U << 23U << 1.0 << 0.0;
    QTest::newRow("grid") << 37U << 41U << 1.0 << 0.0;
    QTest::newRow("around the flat limit") << 37U << 41U << 1.2e-3 << 0.0;
    QTest::newRow("large") << 37U << 41U << 1e8 << 0.0;
    QTest::newRow("some holes") << 37U << 41U << 1.0 << 0.05;
    QTest::newRow("mostly holes") << 37U << 41U << 1.0 << 0.7;
}

void TestGridData::normalsEqualQtsArithmetic()
{
    QFETCH(unsigned, columns);
    QFETCH(unsigned, rows);
    QFETCH(double, size);
    QFETCH(double, holes);
    std::mt19937 random(4711);
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    Points points(columns, rows, [&](unsigned i, unsigned j) {
        const float z = uniform(random) < holes ? (uniform(random) < 0.5 ? infinity : float(notANumber))
                                                : float(size * uniform(random));
        return QVector3D(float(size * (i + uniform(random))), float(size * (j + uniform(random))), z);
    });
    GridData grid;
    grid.setData(points.data(), columns, rows, 1, 1);
    bool anyMissing = false;
    for (unsigned i = 0; i < columns; ++i) {
        for (unsigned j = 0; j < rows; ++j) {
            const QVector3D expected = plainNormal(grid, i, j);
            const QVector3D found = grid.normalAt(i, j);
            QVERIFY(isFinite(found));
            QCOMPARE(found == QVector3D(), expected == QVector3D());
            QVERIFY((found - expected).length() < 1e-6F);
            if (grid.isMissing(i, j))
                QVERIFY(found == QVector3D());
            anyMissing = anyMissing || grid.isMissing(i, j);
        }
    }
    QCOMPARE(anyMissing, holes > 0.0);
    QCOMPARE(grid.hasMissing(), anyMissing);
}

void TestGridData::holesFollowTheValues()
{
    Heights heights(3, 3, [](unsigned, unsigned) { return 0.0; });
    GridData grid;
    grid.setData(heights.data(), 3, 3, 0, 2, 0, 2);
    QVERIFY(!grid.hasMissing());
    // Any coordinate makes a hole; its neighbours keep what the other triangles give.
    grid.valueVectorAt(0, 0)[1] = notANumber;
    grid.calcNormals();
    QVERIFY(grid.hasMissing());
    QVERIFY(grid.isMissing(0, 0));
    QCOMPARE(grid.normalAt(0, 0), QVector3D());
    QCOMPARE(grid.normalAt(1, 0), QVector3D(0, 0, 1));
    QCOMPARE(grid.normalAt(1, 1), QVector3D(0, 0, 1));
    grid.valueVectorAt(0, 0)[1] = 0.0;
    grid.calcNormals();
    QVERIFY(!grid.hasMissing());
    QCOMPARE(grid.normalAt(0, 0), QVector3D(0, 0, 1));
    QCOMPARE(grid.normalVectorAt(0, 0)[2], 1.0);
}

void TestGridData::valuesBeyondFloat()
{
    Heights heights(4, 4, [](unsigned i, unsigned j) { return i == 0 && j == 0 ? 1e39 : 0.0; });
    heights.data()[3][3] = -3e38;
    GridData grid;
    grid.setData(heights.data(), 4, 4, 0, 3, 0, 3);
    QVERIFY(grid.getMaximum() == QVector3D(3, 3, infinity));
    QVERIFY(!grid.hasMissing());
    QCOMPARE(grid.valueAt(0, 0).z(), infinity);
    for (unsigned i = 0; i < 4; ++i) {
        for (unsigned j = 0; j < 4; ++j)
            QVERIFY(isFinite(grid.normalAt(i, j)));
    }
    QCOMPARE(grid.normalAt(1, 1), QVector3D(0, 0, 1));
}

void TestGridData::clearAndSizeGoThroughTheVirtuals()
{
    class Counting : public GridData
    {
    public:
        void clear() override
        {
            ++cleared;
            GridData::clear();
        }
        bool isEmpty() const override { return hidden || GridData::isEmpty(); }
        int cleared = 0;
        bool hidden = false;
    };
    Heights heights(2, 3, [](unsigned i, unsigned j) { return double(i + j); });
    Counting grid;
    grid.setData(heights.data(), 2, 3, 1, 2, 3, 7);
    QCOMPARE(grid.cleared, 1);
    grid.hidden = true;
    QCOMPARE(grid.rows(), 0U);
    grid.hidden = false;
    grid.clear();
    QVERIFY(grid.isEmpty());
    QCOMPARE(grid.rows(), 0U);
    QCOMPARE(grid.getMinimum(), QVector3D());
    QCOMPARE(grid.getMaximum(), QVector3D());
    QCOMPARE(grid.getStepX(), 1.0);
    QCOMPARE(grid.getStepY(), 2.0);
    QCOMPARE(grid.getYMax(), 7.0);
}

int main(int argc, char* argv[])
{
    return harness::run<TestGridData>(argc, argv);
}

#include "tst_griddata.moc"
