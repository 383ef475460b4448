#include "core/celldata.h"
#include "harness/harness.h"

#include <QtTest>

#include <limits>

using namespace Zel3D;

using Cells = QVector<QVector<unsigned int>>;
using Vertices = QVector<QVector3D>;

namespace {

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();
const QVector3D up(0, 0, 1);

} // namespace

class TestCellData : public QObject
{
    Q_OBJECT
private slots:
    void normals_data();
    void normals();
    void normalsAddUpUntilDataAreSet();
    void box();
    void clearKeepsStepsAndNormals();
};

void TestCellData::normals_data()
{
    QTest::addColumn<Vertices>("vertices");
    QTest::addColumn<Cells>("cells");
    QTest::addColumn<Vertices>("expected");
    const Vertices square{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    QTest::newRow("counter-clockwise") << square << Cells{{0, 1, 2, 3}} << Vertices{up, up, up, up};
    QTest::newRow("clockwise") << square << Cells{{3, 2, 1, 0}} << Vertices{-up, -up, -up, -up};
    // Every corner has a normal of its own, so that a wrong neighbour shows.
    QTest::newRow("skew") << Vertices{{0, 0, 0}, {1, 0, 0}, {1, 1, 1}, {0, 1, 0}} << Cells{{0, 1, 2, 3}}
                          << Vertices{up, QVector3D(0, -1, 1), QVector3D(-1, -1, 1), QVector3D(-1, 0, 1)};
    QTest::newRow("cube corner") << Vertices{{0, 0, 0}, {-1, 0, 0}, {0, -1, 0}, {0, 0, -1}}
                                 << Cells{{0, 1, 2}, {0, 2, 3}, {0, 3, 1}}
                                 << Vertices{QVector3D(1, 1, 1), QVector3D(0, 1, 1), QVector3D(1, 0, 1),
                                             QVector3D(1, 1, 0)};
    QTest::newRow("two corners give nothing") << square << Cells{{0, 1}, {2}, {}} << Vertices{{}, {}, {}, {}};
    QTest::newRow("a hole spoils its corners only")
        << Vertices{{0, 0, 0}, {1, 0, 0}, {2, 1, 0}, {1, 2, notANumber}, {0, 1, 0}} << Cells{{0, 1, 2, 3, 4}}
        << Vertices{up, up, {}, {}, {}};
    QTest::newRow("infinite") << Vertices{{0, 0, 0}, {1, 0, 0}, {infinity, 1, 0}, {0, 1, 0}}
                              << Cells{{0, 1, 2, 3}, {0, 1, 3}} << Vertices{up, up, {}, up};
}

void TestCellData::normals()
{
    QFETCH(Vertices, vertices);
    QFETCH(Cells, cells);
    QFETCH(Vertices, expected);
    CellData data;
    data.setData(vertices, cells, 1, 1);
    QCOMPARE(data.getVertexNormals().size(), vertices.size());
    for (int i = 0; i < vertices.size(); ++i)
        QVERIFY2((data.getVertexNormals()[i] - expected[i].normalized()).length() < 1e-6F,
                 qPrintable(QString::number(i)));
}

void TestCellData::normalsAddUpUntilDataAreSet()
{
    const Vertices flat{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}};
    const Cells cells{{0, 1, 2}};
    CellData data;
    data.setData(flat, cells, 1, 1);
    // Turned upright, the triangle faces along x.
    data(0, 1) = QVector3D(0, 1, 0);
    data(0, 2) = QVector3D(0, 0, 1);
    data.calcNormals();
    QVERIFY((data.getVertexNormals()[0] - QVector3D(1, 0, 1).normalized()).length() < 1e-6F);
    QCOMPARE(flat[1], QVector3D(1, 0, 0));
    data.setData(flat, cells, 1, 1);
    QCOMPARE(data.getVertexNormals()[0], up);
}

void TestCellData::box()
{
    CellData data;
    data.setData({{1, -2, 5}, {100, 100, notANumber}, {-1, 7, 3}, {0, 0, 4}}, {{0, 2, 3}}, 0.25, -4.0);
    QVERIFY(data.getMinimum() == QVector3D(-1, -2, 3));
    QVERIFY(data.getMaximum() == QVector3D(1, 7, 5));
    QCOMPARE(data.getStepX(), 0.25);
    QCOMPARE(data.getStepY(), -4.0);
    QVERIFY(data.hasMissing());
    QVERIFY(data.isMissing(1));
    QVERIFY(!data.isMissing(2));
    const CellData& constant = data;
    QCOMPARE(constant(0, 1), QVector3D(-1, 7, 3));
    data.setData({}, {}, 1, 1);
    QVERIFY(data.getMinimum() == QVector3D(infinity, infinity, infinity));
    QVERIFY(data.getMaximum() == QVector3D(-infinity, -infinity, -infinity));
    QVERIFY(!data.hasMissing());
}

void TestCellData::clearKeepsStepsAndNormals()
{
    CellData data;
    data.setData({{0, 0, 1}, {1, 0, 1}, {0, 1, notANumber}}, {{0, 1, 2}}, 2, 3);
    QVERIFY(!data.isEmpty());
    data.clear();
    QVERIFY(data.isEmpty());
    QVERIFY(data.getVertices().isEmpty());
    QVERIFY(!data.hasMissing());
    QCOMPARE(data.getVertexNormals().size(), 3);
    QCOMPARE(data.getMinimum(), QVector3D());
    QCOMPARE(data.getMaximum(), QVector3D());
    QCOMPARE(data.getStepX(), 2.0);
    QCOMPARE(data.getStepY(), 3.0);
}

int main(int argc, char* argv[])
{
    return harness::run<TestCellData>(argc, argv);
}

#include "tst_celldata.moc"
