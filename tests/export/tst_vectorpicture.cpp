#include "export/picturewriter.h"
#include "export/rasterpicture.h"
#include "export/visiblelines.h"
#include "exportfixture.h"
#include "harness/harness.h"

#include <QBuffer>
#include <QFontInfo>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

using namespace Zel3D;
using namespace fixture;

namespace {

struct Svg
{
    QStringList texts;
    QMap<QString, int> elements;
    bool wellFormed = false;
};

Svg readSvg(const QByteArray& file)
{
    Svg svg;
    QXmlStreamReader xml(file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        ++svg.elements[xml.name().toString()];
        if (xml.name() == QLatin1String("text"))
            svg.texts.append(xml.readElementText());
    }
    svg.wellFormed = !xml.hasError();
    return svg;
}

QByteArray run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0 ? process.readAllStandardOutput()
                                                                : QByteArray();
}

/// A picture of the first page, as people see it.
QImage shown(const QByteArray& pdf, int dotsPerInch)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("page.pdf");
    if (!PictureWriter::write(pdf, path).done)
        return QImage();
    run("pdftoppm",
        {"-r", QString::number(dotsPerInch), "-png", "-singlefile", path, folder.filePath("page")});
    return QImage(folder.filePath("page.png"));
}

QImage svgShown(QByteArray svg, const QSize& size)
{
    QBuffer buffer(&svg);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(size);
    QImage page(size, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter(&page).drawImage(0, 0, reader.read());
    return page;
}

PictureOptions limited(int mostPolygons)
{
    PictureOptions options;
    options.mostPolygons = mostPolygons;
    return options;
}

} // namespace

class TestVectorPicture : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void textsAreTexts_data();
    void textsAreTexts();
    void showsWhatTheRasterShows_data();
    void showsWhatTheRasterShows();
    void frontHidesBack();
    void linesEndWhereDataHideThem();
    void strokesAreInProportion();
    void epsHasItsPlace();
    void failuresKeepTheOldFile();
};

void TestVectorPicture::textsAreTexts_data()
{
    QTest::addColumn<int>("mostPolygons");
    QTest::newRow("vectors") << 30000;
    QTest::newRow("hybrid") << 100;
}

void TestVectorPicture::textsAreTexts()
{
    QFETCH(int, mostPolygons);
    const bool hybrid = mostPolygons == 100;
    Plot plot;
    QVERIFY(makeHill(plot, 4));
    plot.slotSetTitle(QString::fromUtf8("\u03b1 < 30\u00b0 & (more)"));
    plot.resize(400, 300);
    VectorPicture svgPicture(plot, VectorPicture::Svg, limited(mostPolygons));
    const Svg svg = readSvg(svgPicture.render());
    QVERIFY(svg.wellFormed);
    QCOMPARE(svgPicture.isHybrid(), hybrid);
    QCOMPARE(svg.elements.value("image"), hybrid ? 1 : 0);
    for (const QString& text : {plot.getTitle().getSettings().getText(), QString("East"), QString("North"),
                                QString("Height"), QString("7.72")})
        QVERIFY2(svg.texts.contains(text), qPrintable(svg.texts.join('|')));
    QVERIFY(svg.elements.value("polyline") > 20);

    const QTemporaryDir folder;
    const QString path = folder.filePath("a.pdf");
    const PictureResult result = PictureWriter::save(plot, path, limited(mostPolygons));
    QVERIFY2(result.done, qPrintable(result.message));
    QCOMPARE(result.hybrid, hybrid);
    QCOMPARE(result.message.contains("image"), hybrid);
    const QString texts = QString::fromUtf8(run("pdftotext", {path, "-"}));
    QVERIFY2(texts.contains("East") && texts.contains("Height") && texts.contains("7.72"), qPrintable(texts));
    // Greek letters are no text of the standard fonts: they become outlines, and no mark stays behind.
    QVERIFY(!texts.contains("more") && !texts.contains("@@"));
    QVERIFY(run("pdfinfo", {path}).contains("30\u00b0 & (more)"));
    QCOMPARE(run("pdfimages", {"-list", path}).count('\n') - 2, hybrid ? 1 : 0);
}

void TestVectorPicture::showsWhatTheRasterShows_data()
{
    QTest::addColumn<int>("mostPolygons");
    QTest::addColumn<bool>("transparent");
    QTest::addColumn<int>("format");
    const int pdf = VectorPicture::Pdf;
    const int svg = VectorPicture::Svg;
    QTest::newRow("PDF") << 30000 << false << pdf;
    QTest::newRow("hybrid PDF") << 100 << false << pdf;
    QTest::newRow("transparent hybrid PDF") << 100 << true << pdf;
    QTest::newRow("SVG") << 30000 << false << svg;
    QTest::newRow("transparent hybrid SVG") << 100 << true << svg;
}

void TestVectorPicture::showsWhatTheRasterShows()
{
    QFETCH(int, mostPolygons);
    QFETCH(bool, transparent);
    QFETCH(int, format);
    Plot plot;
    QVERIFY(makeHill(plot, 2));
    plot.resize(400, 300);
    PictureOptions options = limited(mostPolygons);
    options.transparent = transparent;
    const QByteArray file = VectorPicture(plot, VectorPicture::Format(format), options).render();
    const QImage page = format == VectorPicture::Pdf ? shown(file, 192) : svgShown(file, QSize(800, 600));
    QCOMPARE(page.size(), QSize(800, 600));
    options.pixels = QSize(800, 600);
    options.transparent = false;
    const QImage raster = RasterPicture(plot, options).render();
    // Texts are in another font and thin lines smoothed in another way. What is missing, moved or hidden
    // wrongly differs in more.
    const auto coarse = [](const QImage& image) {
        return image.scaled(100, 75, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const double found = difference(coarse(page), coarse(raster), 48);
    QVERIFY2(found < 0.02, qPrintable(QString::number(found)));
}

void TestVectorPicture::frontHidesBack()
{
    // A ridge stands before a plain, or behind it; seen from a little above it hides some of it.
    Plot plot;
    plot.setGradient("two", ramp());
    plot.setPlotStyle(4);
    plot.getTitle().setVisible(false);
    plot.getCoordinateSystem().setAxisVisible(false);
    plot.setAutomaticEdges(false);
    plot.setGridStyle(0);
    QVERIFY(Heights(6, 9, [](int, int row) { return row == 2 ? 10.0 : 0.0; }).into(plot));
    plot.resize(200, 200);
    for (double turn : {0.0, 180.0}) {
        plot.setRotation({15.0, 0.0, turn});
        const QImage page = shown(VectorPicture(plot, VectorPicture::Pdf, {}).render(), 96);
        PictureOptions options;
        options.pixels = page.size();
        const QImage raster = RasterPicture(plot, options).render();
        const double found = difference(page, raster, 32);
        QVERIFY2(found < 0.025, qPrintable(QString::number(found)));
    }
}

void TestVectorPicture::linesEndWhereDataHideThem()
{
    // An image of eight by two pixels, of lines at twice its size; something stands at the depth 0.5 in the
    // middle.
    QVector<float> depth(16, 1.0F);
    for (int column = 2; column < 6; ++column)
        depth[column] = depth[8 + column] = 0.5F;
    WindowPrimitive line;
    line.count = 2;
    line.vertices[0].place = {0.0F, 1.0F, 0.7F};
    line.vertices[1].place = {16.0F, 1.0F, 0.7F};
    const VisibleLines visible(depth, QSize(8, 2), 0.5);
    const QVector<WindowPrimitive> parts = visible.of({line});
    QCOMPARE(parts.size(), 2);
    QCOMPARE(parts.at(0).vertices[0].place[0], 0.0F);
    QCOMPARE(parts.at(0).vertices[1].place[0], 4.0F);
    QCOMPARE(parts.at(1).vertices[0].place[0], 12.0F);
    QCOMPARE(parts.at(1).vertices[1].place[0], 16.0F);
    line.vertices[0].place[2] = line.vertices[1].place[2] = 0.5F;
    QCOMPARE(visible.of({line}).size(), 1);
}

void TestVectorPicture::strokesAreInProportion()
{
    Plot plot;
    QVERIFY(makeHill(plot, 8));
    plot.setPlotStyle(2);
    plot.setMeshColor(Qt::red);
    plot.setMeshLineWidth(4.0);
    plot.getCoordinateSystem().getSettings().setMajorLineStyle(0x00FF);
    plot.resize(400, 300);
    PictureOptions options;
    options.millimetres = QSizeF(25.4 * 800 / 72, 25.4 * 600 / 72);
    const QByteArray svg = VectorPicture(plot, VectorPicture::Svg, options).render();
    QVERIFY(svg.contains("viewBox=\"0 0 800 600\""));
    QVERIFY(svg.contains("stroke=\"#ff0000\" stroke-width=\"8\""));
    QVERIFY(svg.contains("stroke-dasharray"));
    // The page is twice as many points wide as the window has pixels.
    const int title = QFontInfo(plot.getTitle().getSettings().getFont()).pixelSize();
    QVERIFY(svg.contains(QString("font-size:%1.000px;font-weight:bold").arg(2 * title).toUtf8()));
}

void TestVectorPicture::epsHasItsPlace()
{
    Plot plot;
    QVERIFY(makeHill(plot, 8));
    plot.resize(400, 300);
    for (int mostPolygons : {30000, 10}) {
        const QByteArray eps = VectorPicture(plot, VectorPicture::Eps, limited(mostPolygons)).render();
        QVERIFY(eps.startsWith("%!PS-Adobe-3.0 EPSF-3.0\n"));
        QVERIFY(eps.contains("%%BoundingBox: 0 0 300 225\n"));
        QVERIFY(eps.contains("(Height) show") && eps.contains("/Helvetica-Bold findfont"));
        QCOMPARE(eps.contains("/ImageType 1"), mostPolygons == 10);
    }
}

void TestVectorPicture::failuresKeepTheOldFile()
{
    Plot plot;
    QVERIFY(makeHill(plot, 8));
    plot.resize(400, 300);
    const QTemporaryDir folder;
    const QString path = folder.filePath("old.svg");
    QVERIFY(PictureWriter::write(QByteArray("old"), path).done);
    PictureOptions options;
    options.progress = [](int done, int) { return done < 2; };
    const PictureResult cancelled = PictureWriter::save(plot, path, options);
    QVERIFY(cancelled.cancelled && !cancelled.done && cancelled.message.isEmpty());
    const PictureResult failed = PictureWriter::save(plot, folder.filePath("missing/new.pdf"), {});
    QVERIFY(!failed.done && failed.message.contains("does not exist"));
    QFile old(path);
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("old"));
}

int main(int argc, char* argv[])
{
    return harness::run<TestVectorPicture>(argc, argv);
}

#include "tst_vectorpicture.moc"
