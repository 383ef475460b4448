#include "export/picturewriter.h"
#include "export/rasterpicture.h"
#include "exportfixture.h"
#include "harness/harness.h"

#include <QImageReader>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

#include <sys/resource.h>

using namespace Zel3D;
using namespace fixture;

namespace {

/// Files of this process cannot grow beyond a size, as on a disk that is nearly full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }

private:
    rlimit before{};
    void (*handler)(int) = nullptr;
};

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage onWhite(const QImage& image)
{
    QImage composed(image.size(), QImage::Format_RGB32);
    composed.fill(Qt::white);
    QPainter(&composed).drawImage(0, 0, image);
    return composed;
}

PictureOptions ofSize(int width, int height)
{
    PictureOptions options;
    options.pixels = QSize(width, height);
    return options;
}

} // namespace

class TestRasterPicture : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void hasTheLayoutOfTheWindow_data();
    void hasTheLayoutOfTheWindow();
    void leavesThePlotAsItWas();
    void needsNoWindow();
    void tilesHaveNoSeams_data();
    void tilesHaveNoSeams();
    void tilesShowOneMoment();
    void newContextsGetTheirData();
    void isLargerThanTheDriverDraws();
    void transparentBackground();
    void canBeCancelled();
    void formats_data();
    void formats();
    void failuresKeepTheOldFile_data();
    void failuresKeepTheOldFile();
};

void TestRasterPicture::hasTheLayoutOfTheWindow_data()
{
    QTest::addColumn<int>("style");
    QTest::newRow("points") << 1;
    QTest::newRow("wireframe") << 2;
    QTest::newRow("surface") << 4;
    QTest::newRow("surface and mesh") << 5;
    QTest::newRow("bars") << 6;
}

void TestRasterPicture::hasTheLayoutOfTheWindow()
{
    QFETCH(int, style);
    Plot plot;
    QVERIFY(makeHill(plot, 2));
    plot.setPlotStyle(style);
    plot.setDotSize(4.0);
    QVERIFY(harness::show(plot, 320, 240));
    const QImage window = harness::grab(plot).convertToFormat(QImage::Format_RGB32);
    const QImage large = RasterPicture(plot, ofSize(960, 720)).render();
    QCOMPARE(large.size(), QSize(960, 720));
    const QImage small = large.scaled(window.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // Texts are hinted for the window's pixels and lines smoothed in them; where and how wide they are is the
    // same.
    const double found = difference(window, small, 96);
    QVERIFY2(found < 0.02, qPrintable(QString::number(found)));
    // The strokes are as dark on the whole.
    const QImage one = window.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage other = small.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QVERIFY(std::abs(one.pixelColor(0, 0).lightness() - other.pixelColor(0, 0).lightness()) <= 2);
}

void TestRasterPicture::leavesThePlotAsItWas()
{
    Plot plot;
    Plot neighbour("neighbour");
    QVERIFY(makeHill(plot, 2) && makeHill(neighbour, 2));
    QVERIFY(harness::show(plot, 320, 240) && harness::show(neighbour, 320, 240));
    const QImage before = harness::grab(plot);
    const QImage beside = harness::grab(neighbour);
    const QRectF legend = plot.getLegend().getRectangle();
    QSignalSpy scaled(&plot, &ZelGLWidget::scaleChanged);
    // The callback lets the windows paint, also between the tiles.
    PictureOptions options = ofSize(900, 700);
    options.largestTile = 400;
    options.transparent = true;
    QImage during;
    options.progress = [&](int, int) {
        during = harness::grab(plot);
        return harness::grab(neighbour) == beside;
    };
    QVERIFY(!RasterPicture(plot, options).render().isNull());
    QCOMPARE(during, before);
    QCOMPARE(harness::grab(plot), before);
    QCOMPARE(harness::grab(neighbour), beside);
    QCOMPARE(plot.getLegend().getRectangle(), legend);
    QCOMPARE(plot.size(), QSize(320, 240));
    QCOMPARE(scaled.count(), 0);
}

void TestRasterPicture::needsNoWindow()
{
    Plot shown;
    QVERIFY(makeHill(shown, 2));
    QVERIFY(harness::show(shown, 320, 240));
    const QImage expected = RasterPicture(shown, ofSize(640, 480)).render();
    shown.hide();
    QCOMPARE(RasterPicture(shown, ofSize(640, 480)).render(), expected);
    Plot never;
    QVERIFY(makeHill(never, 2));
    never.resize(320, 240);
    QCOMPARE(RasterPicture(never, ofSize(640, 480)).render(), expected);
}

void TestRasterPicture::tilesHaveNoSeams_data()
{
    QTest::addColumn<int>("projection");
    QTest::addColumn<int>("style");
    QTest::newRow("parallel") << int(Orthogonal) << 5;
    QTest::newRow("perspective") << int(Perspective) << 5;
    // Points whose middle is outside of a tile reach into it.
    QTest::newRow("points") << int(Orthogonal) << 1;
}

void TestRasterPicture::tilesHaveNoSeams()
{
    QFETCH(int, projection);
    QFETCH(int, style);
    Plot plot;
    QVERIFY(makeHill(plot, 2));
    plot.setPlotStyle(style);
    plot.setDotSize(7.0);
    plot.setProjectionType(ProjectionType(projection));
    plot.resize(320, 240);
    const QImage whole = RasterPicture(plot, ofSize(800, 600)).render();
    PictureOptions options = ofSize(800, 600);
    options.largestTile = 190;
    int most = 0;
    options.progress = [&most](int, int total) {
        most = total;
        return true;
    };
    const QImage tiled = RasterPicture(plot, options).render();
    QVERIFY(most >= 20);
    // Rasterising in another place rounds edges differently: single pixels, and by little.
    const double found = difference(whole, tiled, 64);
    QVERIFY2(found < 0.001, qPrintable(QString::number(found)));
}

void TestRasterPicture::tilesShowOneMoment()
{
    Plot plot;
    plot.setPlotStyle(4);
    QVERIFY(makeHill(plot, 2));
    QVERIFY(harness::show(plot, 320, 240));
    PictureOptions options = ofSize(320, 240);
    options.largestTile = 100;
    const QImage undisturbed = RasterPicture(plot, options).render();
    // A host's timer that comes while tiles are drawn, and the window's repaint.
    options.progress = [&plot](int done, int) {
        if (done == 2) {
            plot.setPlotStyle(0);
            plot.updateGL();
        }
        return true;
    };
    const QImage disturbed = RasterPicture(plot, options).render();
    QVERIFY(difference(undisturbed, disturbed, 8) < 0.001);
}

void TestRasterPicture::newContextsGetTheirData()
{
    Plot plot;
    plot.setPlotStyle(4);
    QVERIFY(makeHill(plot, 2));
    QVERIFY(harness::show(plot, 320, 240));
    const QImage shown = RasterPicture(plot, ofSize(320, 240)).render();
    // Lists do not come along.
    plot.setFormat(plot.format());
    const QImage picture = RasterPicture(plot, ofSize(320, 240)).render();
    QVERIFY(difference(shown, picture, 8) < 0.001);
}

void TestRasterPicture::isLargerThanTheDriverDraws()
{
    Plot plot;
    QVERIFY(makeHill(plot, 4));
    plot.setPlotStyle(4);
    plot.resize(400, 10);
    // The driver of the tests draws 16384 pixels.
    const QImage image = RasterPicture(plot, ofSize(16800, 420)).render();
    QCOMPARE(image.size(), QSize(16800, 420));
    const QImage small = image.scaled(400, 10, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage window = RasterPicture(plot, ofSize(400, 10)).render();
    const double found = difference(window, small, 96);
    QVERIFY2(found < 0.02, qPrintable(QString::number(found)));
    QVERIFY(RasterPicture(plot, ofSize(2000000, 2000000)).render().isNull());
}

void TestRasterPicture::transparentBackground()
{
    Plot plot;
    QVERIFY(makeHill(plot));
    plot.resize(320, 240);
    PictureOptions options = ofSize(320, 240);
    const QImage opaque = RasterPicture(plot, options).render();
    options.transparent = true;
    const QImage image = RasterPicture(plot, options).render();
    for (const QPoint& corner : {QPoint(0, 0), QPoint(0, 239), QPoint(319, 0), QPoint(319, 239)})
        QCOMPARE(qAlpha(image.pixel(corner)), 0);
    QCOMPARE(qAlpha(image.pixel(160, 120)), 255);
    // On the background it is the opaque picture again, smoothed edges included.
    const double found = difference(onWhite(image), opaque, 12);
    QVERIFY2(found < 0.001, qPrintable(QString::number(found)));
}

void TestRasterPicture::canBeCancelled()
{
    Plot plot;
    QVERIFY(makeHill(plot, 4));
    plot.resize(320, 240);
    const QTemporaryDir folder;
    PictureOptions options = ofSize(800, 600);
    options.largestTile = 200;
    options.progress = [](int done, int) { return done < 3; };
    const PictureResult result = PictureWriter::save(plot, folder.filePath("a.png"), options);
    QVERIFY(!result.done && result.cancelled);
    QVERIFY(result.message.isEmpty());
    QVERIFY(!QFile::exists(folder.filePath("a.png")));
}

void TestRasterPicture::formats_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<bool>("exact");
    QTest::addColumn<bool>("alpha");
    QTest::addColumn<bool>("resolution");
    QTest::addColumn<bool>("title");
    QTest::newRow("PNG") << "png" << true << true << true << true;
    QTest::newRow("JPEG") << "jpg" << false << false << true << true;
    QTest::newRow("TIFF") << "tif" << true << true << true << false;
    QTest::newRow("WebP") << "webp" << false << true << false << false;
}

void TestRasterPicture::formats()
{
    QFETCH(QString, suffix);
    QFETCH(bool, exact);
    QFETCH(bool, alpha);
    QFETCH(bool, resolution);
    QFETCH(bool, title);
    QVERIFY(PictureWriter::suffixes().contains(suffix));
    Plot plot;
    QVERIFY(makeHill(plot, 2));
    plot.resize(320, 240);
    PictureOptions options;
    options.millimetres = QSizeF(50.8, 38.1);
    options.resolution = 200.0;
    options.transparent = true;
    options.quality = 95;
    const QTemporaryDir folder;
    const QString path = folder.filePath("hill." + suffix);
    const PictureResult result = PictureWriter::save(plot, path, options);
    QVERIFY2(result.done, qPrintable(result.message));
    QVERIFY(!result.hybrid && result.message.isEmpty());
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QImage read = reader.read();
    QVERIFY(QByteArray(suffix.toLatin1()).startsWith(reader.format().left(3)) || reader.format() == "jpeg");
    QCOMPARE(read.size(), QSize(400, 300));
    const QImage rendered = RasterPicture(plot, options).render();
    QCOMPARE(qAlpha(read.pixel(0, 0)), alpha ? 0 : 255);
    if (!alpha)
        QCOMPARE(read.pixelColor(0, 0).lightness() > 245, true);
    if (exact)
        QCOMPARE(difference(read, rendered.convertToFormat(read.format()), 1), 0.0);
    else
        QVERIFY(difference(onWhite(read), onWhite(rendered), 64) < 0.01);
    if (resolution)
        QCOMPARE(qRound(read.dotsPerMeterX() * 0.0254), 200);
    if (title)
        QCOMPARE(read.text("Title"), QString("A hill"));
}

void TestRasterPicture::failuresKeepTheOldFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("diskFull");
    QTest::addColumn<QString>("message");
    QTest::newRow("disk full") << "old.png" << true << "cannot be written: ";
    QTest::newRow("missing folder") << "missing/new.png" << false << "missing\" does not exist.";
    QTest::newRow("a folder") << "folder.png" << false << "it is a folder.";
    QTest::newRow("unknown format") << "new.xyz" << false << "\"xyz\" is not a format of pictures.";
    QTest::newRow("no format") << "new" << false << "no suffix";
}

void TestRasterPicture::failuresKeepTheOldFile()
{
    QFETCH(QString, name);
    QFETCH(bool, diskFull);
    QFETCH(QString, message);
    Plot plot;
    QVERIFY(makeHill(plot, 4));
    plot.resize(320, 240);
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir("folder.png");
    QFile old(folder.filePath("old.png"));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    const QStringList before = QDir(folder.path()).entryList();
    PictureResult result;
    {
        std::unique_ptr<FullDisk> disk;
        if (diskFull)
            disk = std::make_unique<FullDisk>(4096);
        result = PictureWriter::save(plot, folder.filePath(name), ofSize(640, 480));
    }
    QVERIFY(!result.done && !result.cancelled);
    QVERIFY2(result.message.contains(message) && result.message.contains(name), qPrintable(result.message));
    QCOMPARE(contents(folder.filePath("old.png")), QByteArray("old"));
    QCOMPARE(QDir(folder.path()).entryList(), before);
}

int main(int argc, char* argv[])
{
    return harness::run<TestRasterPicture>(argc, argv);
}

#include "tst_rasterpicture.moc"
