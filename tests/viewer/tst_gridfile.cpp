#include "gridfile.h"
#include "harness/harness.h"
#include "memoryneed.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <limits>

#include <gdal.h>
#include <ogr_srs_api.h>

namespace {

// Columns of the test grids; rows are 3. The height of a file's cell is 10 * column + line: no two are equal
// and no mirror image or transposition looks like another.
constexpr int gridColumns = 4;
constexpr int gridLines = 3;

struct Raster
{
    QVector<double> transform; ///< empty: no georeferencing
    GDALDataType type = GDT_Float64;
    int columns = gridColumns;
    int lines = gridLines;
    int bands = 1;
};

using Change = std::function<void(GDALRasterBandH)>;

void writeRaster(const QString& path, const Raster& raster, const Change& change = {})
{
    GDALAllRegister();
    GDALDatasetH dataset = GDALCreate(GDALGetDriverByName("GTiff"), path.toUtf8().constData(), raster.columns,
                                      raster.lines, raster.bands, raster.type, nullptr);
    QVERIFY(dataset != nullptr);
    if (!raster.transform.isEmpty())
        QCOMPARE(GDALSetGeoTransform(dataset, const_cast<double*>(raster.transform.constData())), CE_None);
    for (int number = 1; number <= raster.bands; ++number) {
        const GDALRasterBandH band = GDALGetRasterBand(dataset, number);
        for (int line = 0; line < raster.lines; ++line) {
            for (int column = 0; column < raster.columns; ++column) {
                double height = 100.0 * (number - 1) + 10.0 * column + line;
                QCOMPARE(GDALRasterIO(band, GF_Write, column, line, 1, 1, &height, 1, 1, GDT_Float64, 0, 0),
                         CE_None);
            }
        }
        if (change)
            change(band);
    }
    GDALClose(dataset);
}

void setHeight(GDALRasterBandH band, int column, int line, double height)
{
    QCOMPARE(GDALRasterIO(band, GF_Write, column, line, 1, 1, &height, 1, 1, GDT_Float64, 0, 0), CE_None);
}

void writeText(const QString& path, const QByteArray& text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

/// A file with two grids in it.
void writeContainer(const QString& path)
{
    writeRaster(path + ".tif", {{0, 1, 0, 0, 0, -1}, GDT_Byte});
    const GDALDatasetH source = GDALOpen((path + ".tif").toUtf8().constData(), GA_ReadOnly);
    for (const char* table : {"RASTER_TABLE=one", "RASTER_TABLE=two"}) {
        const char* const options[] = {table, "APPEND_SUBDATASET=YES", nullptr};
        GDALClose(GDALCreateCopy(GDALGetDriverByName("GPKG"), path.toUtf8().constData(), source, 0,
                                 const_cast<char**>(options), nullptr, nullptr));
    }
    GDALClose(source);
}

QByteArray asciiGrid(const QByteArray& rows, int columns = 2, int lines = 2)
{
    return "ncols " + QByteArray::number(columns) + "\nnrows " + QByteArray::number(lines) +
           "\nxllcorner 0\nyllcorner 0\ncellsize 1\nNODATA_value -9999\n" + rows;
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestGridFile : public QObject
{
    Q_OBJECT
private slots:
    void everyHeightStaysWithItsCoordinates_data();
    void everyHeightStaysWithItsCoordinates();
    void valuesOfTheBand_data();
    void valuesOfTheBand();
    void bandNameAndUnit();
    void axesAreNamedByTheGeoreferencing_data();
    void axesAreNamedByTheGeoreferencing();
    void decimalsAfterWholeNumbersStay();
    void errorsNameFileAndReason_data();
    void errorsNameFileAndReason();
    void failureKeepsTheGrid();
    void memoryNeedOfAnySize();
    void exampleElevationModel();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void TestGridFile::everyHeightStaysWithItsCoordinates_data()
{
    QTest::addColumn<QVector<double>>("transform");
    QTest::addColumn<QVector<double>>("range");   // xMin, xMax, yMin, yMax
    QTest::addColumn<QVector<double>>("corners"); // at (xMin, yMin), (xMax, yMin), (xMin, yMax), (xMax, yMax)
    const QVector<double> northUp{2, 32, 0, 30};
    const QVector<double> southUp{0, 30, 2, 32};
    QTest::newRow("first row north") << QVector<double>{100, 2, 0, 50, 0, -4}
                                     << QVector<double>{101, 107, 40, 48} << northUp;
    QTest::newRow("first row south") << QVector<double>{100, 2, 0, 50, 0, 4}
                                     << QVector<double>{101, 107, 52, 60} << southUp;
    QTest::newRow("first column east") << QVector<double>{100, -2, 0, 50, 0, -4}
                                       << QVector<double>{93, 99, 40, 48} << QVector<double>{32, 2, 30, 0};
    QTest::newRow("both reversed") << QVector<double>{100, -2, 0, 50, 0, 4} << QVector<double>{93, 99, 52, 60}
                                   << QVector<double>{30, 0, 32, 2};
    QTest::newRow("turn of a rounding error")
        << QVector<double>{100, 2, 1e-9, 50, -1e-9, -4} << QVector<double>{101, 107, 40, 48} << northUp;
    QTest::newRow("no georeferencing") << QVector<double>{} << QVector<double>{0, 3, 0, 2} << northUp;
}

void TestGridFile::everyHeightStaysWithItsCoordinates()
{
    QFETCH(QVector<double>, transform);
    QFETCH(QVector<double>, range);
    QFETCH(QVector<double>, corners);
    const QString file = path("orientation grid \u00e9.tif");
    Raster raster;
    raster.transform = transform;
    writeRaster(file, raster);
    GridFile reader(file);
    Grid grid;
    QVERIFY2(reader.read(grid), qPrintable(reader.error()));
    QCOMPARE(grid.columns, gridColumns);
    QCOMPARE(grid.rows, gridLines);
    QCOMPARE((QVector<double>{grid.xMin, grid.xMax, grid.yMin, grid.yMax}), range);
    double** z = grid.z();
    QCOMPARE((QVector<double>{z[0][0], z[3][0], z[0][2], z[3][2]}), corners);
    // An inner node: a quarter of a step from the corners' symmetry.
    QCOMPARE(z[1][1], 0.5 * (z[0][1] + z[2][1]));
    QCOMPARE(grid.zMin, 0.0);
    QCOMPARE(grid.zMax, 32.0);
}

void TestGridFile::valuesOfTheBand_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<Change>("change");
    QTest::addColumn<double>("height"); // of the file's cell in column 1, line 0; 10 when nothing is changed
    QTest::addColumn<int>("missing");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("bytes") << int(GDT_Byte) << Change() << 10.0 << 0;
    QTest::newRow("scale and offset") << int(GDT_Int16) << Change([](GDALRasterBandH band) {
        GDALSetRasterScale(band, 0.25);
        GDALSetRasterOffset(band, -3.0);
    }) << -0.5 << 0;
    QTest::newRow("missing value") << int(GDT_Int16) << Change([](GDALRasterBandH band) {
        GDALSetRasterNoDataValue(band, 10.0);
    }) << nan << 1;
    QTest::newRow("missing value before scaling") << int(GDT_Int16) << Change([](GDALRasterBandH band) {
        GDALSetRasterNoDataValue(band, 10.0);
        GDALSetRasterScale(band, 2.0);
    }) << nan << 1;
    QTest::newRow("missing single precision value") << int(GDT_Float32) << Change([](GDALRasterBandH band) {
        GDALSetRasterNoDataValue(band, -3.4028234663852886e38);
        setHeight(band, 1, 0, -3.4028234663852886e38);
    }) << nan << 1;
    QTest::newRow("not a number") << int(GDT_Float32)
                                  << Change([nan](GDALRasterBandH band) { setHeight(band, 1, 0, nan); })
                                  << nan << 1;
    QTest::newRow("infinite") << int(GDT_Float64) << Change([](GDALRasterBandH band) {
        setHeight(band, 1, 0, std::numeric_limits<double>::infinity());
    }) << nan << 1;
    QTest::newRow("beyond single precision")
        << int(GDT_Float64) << Change([](GDALRasterBandH band) { setHeight(band, 1, 0, -1e300); }) << nan
        << 1;
    QTest::newRow("mask") << int(GDT_Int32) << Change([](GDALRasterBandH band) {
        QCOMPARE(GDALCreateMaskBand(band, GMF_PER_DATASET), CE_None);
        const GDALRasterBandH mask = GDALGetMaskBand(band);
        for (int line = 0; line < gridLines; ++line) {
            for (int column = 0; column < gridColumns; ++column)
                setHeight(mask, column, line, line == 0 && column < 2 ? 0.0 : 255.0);
        }
    }) << nan << 2;
}

void TestGridFile::valuesOfTheBand()
{
    QFETCH(int, type);
    QFETCH(Change, change);
    QFETCH(double, height);
    QFETCH(int, missing);
    const QString file = path(QString("values %1.tif").arg(QTest::currentDataTag()));
    Raster raster;
    raster.type = static_cast<GDALDataType>(type);
    writeRaster(file, raster, change);
    GridFile reader(file);
    Grid grid;
    QVERIFY2(reader.read(grid), qPrintable(reader.error()));
    const double found = grid.z()[1][gridLines - 1];
    QVERIFY2(found == height || (std::isnan(found) && std::isnan(height)),
             qPrintable(QString::number(found)));
    QCOMPARE(int(grid.validNodes), gridColumns * gridLines - missing);
    QVERIFY(std::isfinite(grid.zMin) && std::isfinite(grid.zMax));
}

void TestGridFile::bandNameAndUnit()
{
    const QString file = path("bands.tif");
    Raster raster;
    raster.bands = 2;
    writeRaster(file, raster, [](GDALRasterBandH band) {
        GDALSetDescription(band, GDALGetBandNumber(band) == 2 ? "snow" : "ground");
        GDALSetRasterUnitType(band, "m");
    });
    GridFile reader(file);
    Grid grid;
    QVERIFY2(reader.read(grid, 2), qPrintable(reader.error()));
    QCOMPARE(grid.zMin, 100.0);
    QCOMPARE(grid.name, QString("snow"));
    QCOMPARE(grid.unit, QString("m"));
}

void TestGridFile::axesAreNamedByTheGeoreferencing_data()
{
    QTest::addColumn<bool>("placed");
    QTest::addColumn<int>("system"); // EPSG code; 0 for none
    QTest::addColumn<QString>("xName");
    QTest::addColumn<QString>("yName");
    QTest::newRow("geographic") << true << 4326 << QString("Longitude (\u00b0)")
                                << QString("Latitude (\u00b0)");
    QTest::newRow("projected, metres") << true << 32616 << "Easting (m)"
                                       << "Northing (m)";
    QTest::newRow("projected, feet") << true << 2274 << "Easting (US survey foot)"
                                     << "Northing (US survey foot)";
    QTest::newRow("no reference system") << true << 0 << "x"
                                         << "y";
    QTest::newRow("no georeferencing") << false << 0 << "Column"
                                       << "Row, from the bottom";
}

void TestGridFile::axesAreNamedByTheGeoreferencing()
{
    QFETCH(bool, placed);
    QFETCH(int, system);
    const QString file = path("named.tif");
    Raster raster;
    if (placed)
        raster.transform = {100, 2, 0, 50, 0, -4};
    writeRaster(file, raster);
    if (system != 0) {
        const OGRSpatialReferenceH reference = OSRNewSpatialReference(nullptr);
        QCOMPARE(OSRImportFromEPSG(reference, system), OGRERR_NONE);
        const GDALDatasetH dataset = GDALOpen(file.toUtf8().constData(), GA_Update);
        QCOMPARE(GDALSetSpatialRef(dataset, reference), CE_None);
        GDALClose(dataset);
        OSRDestroySpatialReference(reference);
    }
    Grid grid;
    GridFile reader(file);
    QVERIFY2(reader.read(grid), qPrintable(reader.error()));
    QTEST(grid.xName, "xName");
    QTEST(grid.yName, "yName");
}

void TestGridFile::decimalsAfterWholeNumbersStay()
{
    // Formats of text are typed by their beginning unless a type is asked for.
    const int lines = 60000;
    QByteArray rows;
    for (int line = 0; line < lines - 1; ++line)
        rows += "1 2\n";
    const QString file = path("late.asc");
    writeText(file, asciiGrid(rows + "1.5 2.25\n", 2, lines));
    GridFile reader(file);
    Grid grid;
    QVERIFY2(reader.read(grid), qPrintable(reader.error()));
    QCOMPARE(grid.z()[0][0], 1.5);
    QCOMPARE(grid.z()[1][0], 2.25);
}

void TestGridFile::errorsNameFileAndReason_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("band");
    QTest::addColumn<QString>("reason");

    QTest::newRow("absent") << path("absent.asc") << 1 << "does not exist";
    QTest::newRow("folder") << m_folder.path() << 1 << "is a folder";
    writeText(path("empty.asc"), QByteArray());
    QTest::newRow("empty file") << path("empty.asc") << 1 << "is empty";
    writeText(path("letter.txt"), "Dear reader, this is no grid.\n");
    QTest::newRow("no grid") << path("letter.txt") << 1 << "no grid file of a known format";
    writeText(path("short.asc"), asciiGrid("1 2\n3 4\n", 2, 4));
    QTest::newRow("cut off") << path("short.asc") << 1 << "cannot be read: File short";
    writeText(path("column.asc"), asciiGrid("1\n2\n3\n", 1, 3));
    QTest::newRow("one column") << path("column.asc") << 1 << "1 x 3 nodes";
    writeText(path("row.asc"), asciiGrid("1 2 3\n", 3, 1));
    QTest::newRow("one row") << path("row.asc") << 1 << "3 x 1 nodes";
    writeText(path("void.asc"), asciiGrid("-9999 -9999\n-9999 -9999\n"));
    QTest::newRow("nothing valid") << path("void.asc") << 1 << "every node is missing";

    Raster raster;
    writeRaster(path("plain.tif"), raster);
    QTest::newRow("band 0") << path("plain.tif") << 0 << "no band 0";
    QTest::newRow("band too high") << path("plain.tif") << 2 << "no band 2; its bands are 1 to 1";
    raster.type = GDT_CFloat32;
    writeRaster(path("complex.tif"), raster);
    QTest::newRow("complex") << path("complex.tif") << 1 << "complex numbers (CFloat32)";
    raster = Raster();
    raster.transform = {0, 1, 0.5, 0, 0.5, -1};
    writeRaster(path("turned.tif"), raster);
    QTest::newRow("rotated") << path("turned.tif") << 1 << "is rotated";
    raster.transform = {0, 0, 1, 0, 1, 0};
    writeRaster(path("quarter.tif"), raster);
    QTest::newRow("rotated by a right angle") << path("quarter.tif") << 1 << "is rotated";
    raster.transform = {1e9, 1e-3, 0, 0, 0, -1};
    writeRaster(path("flat.tif"), raster);
    QTest::newRow("cells too small") << path("flat.tif") << 1 << "unusable georeferencing";

    writeText(path("huge.vrt"), "<VRTDataset rasterXSize=\"2000000000\" rasterYSize=\"2000000000\">"
                                "<VRTRasterBand dataType=\"Byte\" band=\"1\"/></VRTDataset>");
    QTest::newRow("too large")
        << path("huge.vrt") << 1
        << "needs about 1600000000000.0 GB of memory for 2000000000 x 2000000000 nodes";
    writeText(path("points.geojson"), R"({"type": "FeatureCollection", "features": []})");
    QTest::newRow("no raster") << path("points.geojson") << 1 << "holds no raster";
    writeContainer(path("several.gpkg"));
    QTest::newRow("several grids") << path("several.gpkg") << 1
                                   << "holds several grids; name one of them, such as GPKG:";
}

void TestGridFile::errorsNameFileAndReason()
{
    QFETCH(QString, name);
    QFETCH(int, band);
    QFETCH(QString, reason);
    GridFile reader(name);
    Grid grid;
    QVERIFY(!reader.read(grid, band));
    QVERIFY2(reader.error().contains(QString("\"%1\"").arg(name)), qPrintable(reader.error()));
    QVERIFY2(reader.error().contains(reason), qPrintable(reader.error()));
    QVERIFY2(reader.error().endsWith('.') && !reader.error().endsWith("..") && !reader.error().contains('\n'),
             qPrintable(reader.error()));
}

void TestGridFile::failureKeepsTheGrid()
{
    writeText(path("good.asc"), asciiGrid("1 2\n3 4\n"));
    writeText(path("bad.asc"), asciiGrid("7 8\n9 10\n", 2, 4));
    Grid grid;
    QVERIFY(GridFile(path("good.asc")).read(grid));
    QVERIFY(!GridFile(path("bad.asc")).read(grid));
    QCOMPARE(grid.z()[0][0], 3.0);
    QCOMPARE(grid.z()[1][1], 2.0);
}

void TestGridFile::memoryNeedOfAnySize()
{
    const MemoryNeed small(1000, 1000);
    QVERIFY(small.fits(400e6));
    QVERIFY(!small.fits(399e6));
    // Products that leave every integer type still count.
    const int most = std::numeric_limits<int>::max();
    QVERIFY(!MemoryNeed(most, most).fits(1e18));
    QVERIFY(MemoryNeed::freeBytes().value_or(0.0) > 1e6);
}

void TestGridFile::exampleElevationModel()
{
    const QString name = QString(VORAN_SOURCE_DIR) + "/examples/data/jacksboro_dem.asc";
    GridFile reader(name);
    Grid grid;
    QVERIFY2(reader.read(grid), qPrintable(reader.error()));
    QCOMPARE(grid.columns, 403);
    QCOMPARE(grid.rows, 344);
    QCOMPARE(grid.zMin, 236.0);
    QCOMPARE(grid.zMax, 1076.0);
    const double cell = 0.00083333;
    QVERIFY(std::abs(grid.xMin - (-84.41375 + 0.5 * cell)) < 1e-9);
    QVERIFY(std::abs(grid.xMax - (-84.41375 + 402.5 * cell)) < 1e-9);
    QVERIFY(std::abs(grid.yMin - (36.44625 + 0.5 * cell)) < 1e-9);
    QVERIFY(std::abs(grid.yMax - (36.44625 + 343.5 * cell)) < 1e-9);

    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    const QList<QByteArray> numbers = file.readAll().simplified().split(' ').mid(12);
    QCOMPARE(numbers.size(), 403 * 344);
    double** z = grid.z();
    QCOMPARE(z[0][343], numbers.at(0).toDouble());
    QCOMPARE(z[402][343], numbers.at(402).toDouble());
    QCOMPARE(z[0][0], numbers.at(343 * 403).toDouble());
    QCOMPARE(z[402][0], numbers.last().toDouble());
    QCOMPARE(z[100][343 - 200], numbers.at(200 * 403 + 100).toDouble());
}

int main(int argc, char* argv[])
{
    return harness::run<TestGridFile>(argc, argv);
}

#include "tst_gridfile.moc"
