// Large grids: what is read of them within a budget, and parts of them.

#include "gridfile.h"
#include "gridpart.h"
#include "harness/harness.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

#include <gdal.h>

namespace {

/// Heights that rise evenly: the mean of a block is the height at its centre.
double height(double column, double line)
{
    return 0.5 * column + 0.25 * line;
}

constexpr double missing = -9999.0;

struct Raster
{
    int columns = 3000;
    int lines = 2000;
    QVector<double> transform; ///< empty: none
    QRect hole;                ///< columns and lines without heights
    QVector<int> overviews;
};

void write(const QString& path, const Raster& raster)
{
    GDALAllRegister();
    QFile::remove(path);
    const char* const options[] = {"TILED=YES", nullptr};
    const GDALDatasetH dataset =
        GDALCreate(GDALGetDriverByName("GTiff"), path.toUtf8().constData(), raster.columns, raster.lines, 1,
                   GDT_Float32, const_cast<char**>(options));
    QVERIFY(dataset != nullptr);
    if (!raster.transform.isEmpty())
        GDALSetGeoTransform(dataset, const_cast<double*>(raster.transform.constData()));
    const GDALRasterBandH band = GDALGetRasterBand(dataset, 1);
    GDALSetRasterNoDataValue(band, missing);
    std::vector<double> values(std::size_t(raster.columns));
    for (int line = 0; line < raster.lines; ++line) {
        for (int column = 0; column < raster.columns; ++column)
            values[std::size_t(column)] = raster.hole.contains(column, line) ? missing : height(column, line);
        QCOMPARE(GDALRasterIO(band, GF_Write, 0, line, raster.columns, 1, values.data(), raster.columns, 1,
                              GDT_Float64, 0, 0),
                 CE_None);
    }
    QVector<int> levels = raster.overviews;
    if (!levels.isEmpty())
        QCOMPARE(GDALBuildOverviews(dataset, "AVERAGE", levels.size(), levels.data(), 0, nullptr, nullptr,
                                    nullptr),
                 CE_None);
    GDALClose(dataset);
}

/// Where a coordinate of the plot lies in the file, in columns or lines.
double back(double coordinate, double origin, double step)
{
    return (coordinate - origin) / step - 0.5;
}

} // namespace

Q_DECLARE_METATYPE(Raster)

class TestGridThinning : public QObject
{
    Q_OBJECT
private slots:
    void smallestFactorThatFits_data();
    void smallestFactorThatFits();
    void partsOfALayout();
    void meansStandAtTheirCentres_data();
    void meansStandAtTheirCentres();
    void missingNodesTakeNoPart_data();
    void missingNodesTakeNoPart();
    void overviewsServe();
    void partInFullIsAWindowOfTheWhole_data();
    void partInFullIsAWindowOfTheWhole();
    void partsThatCannotBeShown_data();
    void partsThatCannotBeShown();

private:
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath("large.tif");
};

void TestGridThinning::smallestFactorThatFits_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<double>("budget");
    QTest::addColumn<QSize>("size");
    QTest::newRow("no budget") << 8000 << 6000 << 0.0 << QSize(8000, 6000);
    QTest::newRow("just fits") << 2000 << 2000 << 4e6 << QSize(2000, 2000);
    QTest::newRow("one row too many") << 2000 << 2001 << 4e6 << QSize(1000, 1000);
    QTest::newRow("large") << 8000 << 6000 << 4e6 << QSize(2000, 1500);
    QTest::newRow("rounding down helps") << 5 << 5 << 4.0 << QSize(2, 2);
    QTest::newRow("narrow") << 2 << 100000000 << 1e4 << QSize(2, 5000);
    QTest::newRow("beyond integers") << 2000000000 << 2000000000 << 1e6 << QSize(1000, 1000);
}

void TestGridThinning::smallestFactorThatFits()
{
    QFETCH(int, columns);
    QFETCH(int, rows);
    QFETCH(double, budget);
    const GridSize size = GridPart{0, 0, columns, rows}.thinned(budget);
    QTEST(QSize(size.columns, size.rows), "size");
}

void TestGridThinning::partsOfALayout()
{
    const GridLayout layout{101, 51, {1000.0, 1010.0, -5.0, 0.0}};
    const auto text = [](const GridPart& part) {
        return QString("%1,%2 %3x%4").arg(part.column).arg(part.row).arg(part.columns).arg(part.rows);
    };
    // A coordinate that was rounded still means its node; corners come in any order, also from outside.
    QCOMPARE(text(layout.within({1002.00001, 1000.99999, -4.0, -3.0})), QString("10,10 11x11"));
    QCOMPARE(text(layout.within({0.0, 1000.05, -99.0, 99.0})), QString("0,0 1x51"));
    QCOMPARE(text(layout.within({1000.04, 1000.06, -5.0, 0.0})), QString("0,0 0x51"));
    QCOMPARE(text(layout.within({2000.0, 3000.0, -5.0, 0.0})), QString("0,0 0x51"));
    for (const GridPart& part :
         {GridPart{0, 0, 101, 51}, GridPart{7, 3, 1, 2}, GridPart{100, 50, 1, 1}, GridPart{33, 0, 35, 50}}) {
        QCOMPARE(text(layout.within(layout.rangeOf(part))), text(part));
        QCOMPARE(text(layout.covered(layout.fractionsOf(part))), text(part));
    }
    QCOMPARE(text(layout.covered({0.5, 0.5, 0.999, 1.5})), QString("50,50 1x1"));
    // About the place, as many nodes as fit, with the proportions of the grid; at the edge beside the place.
    QCOMPARE(text(layout.around(1005.0, -2.5, 1300.0)), QString("26,13 50x26"));
    QCOMPARE(text(layout.around(1010.0, -5.0, 1300.0)), QString("51,0 50x26"));
    QCOMPARE(text(layout.around(1005.0, -2.5, 1e6)), QString("0,0 101x51"));
    const GridLayout strip{1000000, 3, {0.0, 999999.0, 0.0, 2.0}};
    QCOMPARE(text(strip.around(500000.0, 1.0, 10000.0)), QString("497501,1 5000x2"));
}

void TestGridThinning::meansStandAtTheirCentres_data()
{
    QTest::addColumn<Raster>("raster");
    QTest::addColumn<double>("tolerance"); // of the place, in nodes of the file
    const QVector<double> northUp{100, 2, 0, 50, 0, -4};
    QTest::newRow("first row north") << Raster{3000, 2000, northUp, {}, {}} << 1e-3;
    QTest::newRow("first row south") << Raster{3000, 2000, {100, 2, 0, 50, 0, 4}, {}, {}} << 1e-3;
    QTest::newRow("first column east") << Raster{3000, 2000, {100, -2, 0, 50, 0, -4}, {}, {}} << 1e-3;
    QTest::newRow("no georeferencing") << Raster{3000, 2000, {}, {}, {}} << 1e-3;
    QTest::newRow("sides no factor divides") << Raster{3001, 2003, northUp, {}, {}} << 1e-3;
    QTest::newRow("overviews") << Raster{3000, 2000, northUp, {}, {2, 4, 8}} << 1e-3;
    QTest::newRow("finer overviews") << Raster{3000, 2000, northUp, {}, {2}} << 1e-3;
    // The last nodes of such overviews stand for less than the others, which GDAL does not tell.
    QTest::newRow("overviews of odd sides") << Raster{3001, 2003, northUp, {}, {2, 4}} << 4.0;
}

void TestGridThinning::meansStandAtTheirCentres()
{
    QFETCH(Raster, raster);
    QFETCH(double, tolerance);
    write(m_path, raster);
    GridFile reader(m_path);
    Grid grid;
    QVERIFY2(reader.read(grid, 1, {1e5, {}}), qPrintable(reader.error()));
    QCOMPARE(grid.columns, 375);
    QCOMPARE(grid.rows, 250);
    QCOMPARE(reader.layout().columns, raster.columns);
    QVector<double> transform = raster.transform;
    if (transform.isEmpty())
        transform = {-0.5, 1.0, 0.0, raster.lines - 0.5, 0.0, -1.0};
    // The blocks of the outer nodes reach to the edges of the grid.
    const double halfX = 0.5 * (grid.xMax - grid.xMin) / (grid.columns - 1);
    const double edges[] = {transform[0], transform[0] + raster.columns * transform[1]};
    QVERIFY(std::abs(grid.xMin - halfX - std::min(edges[0], edges[1])) < 1e-6);
    QVERIFY(std::abs(grid.xMax + halfX - std::max(edges[0], edges[1])) < 1e-6);
    QCOMPARE(int(grid.validNodes), 375 * 250);
    for (int column = 0; column < grid.columns; ++column) {
        const double x = grid.xMin + column * (grid.xMax - grid.xMin) / (grid.columns - 1);
        for (int row = 0; row < grid.rows; ++row) {
            const double y = grid.yMin + row * (grid.yMax - grid.yMin) / (grid.rows - 1);
            const double expected =
                height(back(x, transform[0], transform[1]), back(y, transform[3], transform[5]));
            const double found = grid.z()[column][row];
            QVERIFY2(std::abs(found - expected) < tolerance,
                     qPrintable(QString("%1,%2: %3 for %4").arg(column).arg(row).arg(found).arg(expected)));
        }
    }
}

void TestGridThinning::missingNodesTakeNoPart_data()
{
    QTest::addColumn<QVector<int>>("overviews");
    QTest::newRow("from the grid") << QVector<int>{};
    QTest::newRow("through overviews") << QVector<int>{2};
}

void TestGridThinning::missingNodesTakeNoPart()
{
    QFETCH(QVector<int>, overviews);
    // Of the blocks 12 and 37 along x, three and six eighths are missing; along y whole blocks are.
    const QRect hole(102, 80, 200, 160);
    write(m_path, {3000, 2000, {0, 1, 0, 0, 0, -1}, hole, overviews});
    GridFile reader(m_path);
    Grid grid;
    QVERIFY2(reader.read(grid, 1, {1e5, {}}), qPrintable(reader.error()));
    for (int line = 0; line < grid.rows; ++line) {
        for (int column = 0; column < grid.columns; ++column) {
            const double found = grid.z()[column][grid.rows - 1 - line];
            const bool inside = column >= 13 && column <= 37 && line >= 10 && line < 30;
            QCOMPARE(std::isnan(found), inside);
            // No block tells of heights beyond its nodes.
            QVERIFY(inside || std::abs(found - height(8 * column + 3.5, 8 * line + 3.5)) < 0.5 * 4.0);
        }
    }
}

void TestGridThinning::overviewsServe()
{
    write(m_path, {3000, 2000, {}, {}, {2, 4, 8}});
    const GDALDatasetH dataset = GDALOpen(m_path.toUtf8().constData(), GA_Update);
    for (int level = 0; level < 3; ++level)
        GDALFillRaster(GDALGetOverview(GDALGetRasterBand(dataset, 1), level), 7000.0 + level, 0.0);
    GDALClose(dataset);
    const struct
    {
        double budget;
        double height; // of the coarsest overview that is fine enough; below 7000 of the grid itself
    } cases[] = {{1e5, 7002.0}, {2e5, 7001.0}, {1.5e6, 7000.0}, {1.4e6, 7000.0}, {6e6, 1999.25}};
    for (const auto& budget : cases) {
        Grid grid;
        GridFile reader(m_path);
        QVERIFY2(reader.read(grid, 1, {budget.budget, {}}), qPrintable(reader.error()));
        QCOMPARE(grid.zMax, budget.height);
    }
}

void TestGridThinning::partInFullIsAWindowOfTheWhole_data()
{
    QTest::addColumn<QVector<double>>("transform");
    QTest::newRow("first row north") << QVector<double>{100, 2, 0, 50, 0, -4};
    QTest::newRow("first row south") << QVector<double>{100, 2, 0, 50, 0, 4};
    QTest::newRow("first column east") << QVector<double>{100, -2, 0, 50, 0, -4};
    QTest::newRow("no georeferencing") << QVector<double>{};
}

void TestGridThinning::partInFullIsAWindowOfTheWhole()
{
    QFETCH(QVector<double>, transform);
    write(m_path, {300, 200, transform, QRect(140, 20, 9, 9), {2, 4}});
    Grid whole;
    GridFile all(m_path);
    QVERIFY2(all.read(whole), qPrintable(all.error()));
    const GridPart part{50, 7, 120, 180};
    const GridRange range = all.layout().rangeOf(part);
    Grid grid;
    GridFile reader(m_path);
    QVERIFY2(reader.read(grid, 1, {30000.0, range}), qPrintable(reader.error()));
    QCOMPARE(grid.columns, part.columns);
    QCOMPARE(grid.rows, part.rows);
    QCOMPARE((QVector<double>{grid.xMin, grid.xMax, grid.yMin, grid.yMax}),
             (QVector<double>{range.xMin, range.xMax, range.yMin, range.yMax}));
    for (int column = 0; column < part.columns; ++column) {
        for (int row = 0; row < part.rows; ++row) {
            const double found = grid.z()[column][row];
            const double expected = whole.z()[part.column + column][part.row + row];
            QVERIFY(found == expected || (std::isnan(found) && std::isnan(expected)));
        }
    }
    QVERIFY(grid.validNodes < grid.heights.size());
    // A part beyond the budget is thinned like a whole grid.
    QVERIFY(reader.read(grid, 1, {10000.0, range}));
    QCOMPARE(QSize(grid.columns, grid.rows), QSize(60, 90));
    const double inset = 0.5 * (range.xMax - range.xMin) / (part.columns - 1);
    QVERIFY(std::abs(grid.xMin - (range.xMin + inset)) < 1e-9);
    QVERIFY(std::abs(grid.z()[0][0] - 0.25 * (whole.z()[50][7] + whole.z()[51][7] + whole.z()[50][8] +
                                              whole.z()[51][8])) < 1e-9);
}

void TestGridThinning::partsThatCannotBeShown_data()
{
    QTest::addColumn<QVector<double>>("range"); // x from and to, y from and to
    QTest::addColumn<QString>("reason");
    QTest::newRow("outside") << QVector<double>{1000, 1010, -100, 0}
                             << "has no nodes in that part; its x are from 101 to 699, its y from -748 to 48";
    QTest::newRow("between nodes") << QVector<double>{101.5, 102.5, -100, 0} << "has no nodes in that part";
    QTest::newRow("one column") << QVector<double>{101, 102, -100, 0} << "has 1 x 26 nodes";
    QTest::newRow("one node") << QVector<double>{101, 101, 48, 48} << "has 1 x 1 nodes";
}

void TestGridThinning::partsThatCannotBeShown()
{
    QFETCH(QVector<double>, range);
    QFETCH(QString, reason);
    write(m_path, {300, 200, {100, 2, 0, 50, 0, -4}, {}, {}});
    GridFile reader(m_path);
    Grid grid;
    QVERIFY(!reader.read(grid, 1, {0.0, GridRange{range[0], range[1], range[2], range[3]}}));
    QVERIFY2(reader.error().contains(reason) && reader.error().contains(m_path), qPrintable(reader.error()));
}

int main(int argc, char* argv[])
{
    return harness::run<TestGridThinning>(argc, argv);
}

#include "tst_gridthinning.moc"
