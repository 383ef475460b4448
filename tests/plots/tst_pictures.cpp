#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/look.h"
#include "plots/spectrum.h"
#include "scene/coordinatesystem.h"
#include "scene/title.h"
#include "view/light.h"

#include <QDir>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>

using namespace Zel3D;
using namespace fixture;

/// A plot that is ready to be shown; null when it could not be made.
using Setup = std::function<std::unique_ptr<BasePlot>()>;
Q_DECLARE_METATYPE(Setup)

namespace {

/// Part of the pixels in which a channel differs by more than 40.
///
/// Smoothed lines and hinted texts come out a little different with each version of driver and font renderer:
/// single pixels beside an edge differ, and by less than half the range. A part of the plot that is missing,
/// moved or of another colour differs in more.
double difference(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor other = b.pixelColor(x, y);
            const int most =
                std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                          std::abs(one.blue() - other.blue())});
            count += most > 40 ? 1 : 0;
        }
    }
    return double(count) / (a.width() * a.height());
}

constexpr double tolerance = 0.01;

double hill(int column, int row)
{
    const double x = (column - 20) / 8.0;
    const double y = (row - 20) / 8.0;
    return 8.0 * std::exp(-(x * x + y * y) / 2.0) - 3.0 * std::exp(-((x - 1.5) * (x - 1.5) + y * y));
}

/// A look in a font that the machines of the tests have, in sizes for a small picture.
void dress(BasePlot& plot, Look look)
{
    look.titleFont = QFont("DejaVu Sans", 10, QFont::Bold);
    look.nameFont = QFont("DejaVu Sans", 8);
    look.numberFont = QFont("DejaVu Sans", 7);
    look.applyTo(plot);
    plot.getCoordinateSystem().setAxisNames("East", "North", "Height");
    plot.getLights().first()->setPhi(135.0);
    plot.getLights().first()->setTheta(60.0);
    plot.getLights().first()->setOn(true);
    plot.setLighting(true);
    plot.setKeepProportions(true);
    plot.setZoom(0.7);
}

bool lightSurface(Plot& plot)
{
    dress(plot, Look::light());
    plot.slotSetTitle("Light: a hill");
    plot.setPlotStyle(4);
    plot.setRotation({30, 0, 35});
    return Heights(41, 41, hill).into(plot);
}

bool darkMesh(Plot& plot)
{
    dress(plot, Look::dark());
    plot.slotSetTitle("Dark: from behind");
    plot.setPlotStyle(5);
    plot.setResolution(2);
    plot.setRotation({25, 0, 205});
    return Heights(41, 41, hill).into(plot);
}

bool printLogarithmic(Plot& plot)
{
    dress(plot, Look::print());
    plot.slotSetTitle("Print: four decades");
    plot.setPlotStyle(4);
    plot.setRotation({25, 0, 35});
    plot.setLogarithmicData(ZAxis, true);
    plot.setMinorInterval(ZAxis, Logarithmic, 9);
    return Heights(41, 41, [](int column, int row) { return std::pow(10.0, (column + row) / 20.0); })
        .into(plot);
}

/// A surface plot after one of the functions above.
Setup surface(bool (*prepare)(Plot&))
{
    return [prepare]() -> std::unique_ptr<BasePlot> {
        auto plot = std::make_unique<Plot>();
        if (!prepare(*plot))
            return nullptr;
        return plot;
    };
}

QString exampleFile(const char* name)
{
    return QString("%1/examples/data/%2").arg(VORAN_SOURCE_DIR, name);
}

bool rabbit(Plot& plot)
{
    QFile file(exampleFile("bunny.off"));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QTextStream text(&file);
    QString word;
    int counts[3] = {};
    text >> word >> counts[0] >> counts[1] >> counts[2];
    QVector<QVector3D> vertices(counts[0]);
    for (QVector3D& vertex : vertices) {
        float p[3] = {};
        text >> p[0] >> p[1] >> p[2];
        vertex = QVector3D(p[0], -p[2], p[1]);
    }
    QVector<QVector<unsigned int>> triangles(counts[1], QVector<unsigned int>(3));
    for (QVector<unsigned int>& triangle : triangles)
        text >> counts[2] >> triangle[0] >> triangle[1] >> triangle[2];
    dress(plot, Look::light());
    plot.setBoxScaling(EqualUnits);
    plot.setPlotStyle(4);
    const bool loaded = plot.loadFromData(vertices, triangles, 1.0, 1.0);
    plot.fitView();
    return loaded;
}

std::unique_ptr<BasePlot> gasoline()
{
    QFile file(exampleFile("gasoline_nir.csv"));
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    const QList<QByteArray> wavelengths = file.readLine().split(',');
    SpectrumData::Map spectra;
    while (!file.atEnd()) {
        const QList<QByteArray> values = file.readLine().split(',');
        for (int i = 1; i < values.size(); ++i)
            spectra[values[0].toDouble()][wavelengths[i].toDouble()] = values[i].toDouble();
    }
    auto plot = std::make_unique<Spectrum>("plot", organization, application);
    dress(*plot, Look::light());
    plot->setLighting(false);
    plot->setPlotStyle(3);
    plot->setFixedHull({{900.0F, 0.0F, -0.2F}, {1700.0F, 60.0F, 1.4F}});
    if (!plot->loadFromData(spectra, YAxis))
        return nullptr;
    plot->fitView();
    return plot;
}

} // namespace

class TestPictures : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void wholePicture_data();
    void wholePicture();
};

void TestPictures::wholePicture_data()
{
    QTest::addColumn<Setup>("setup");
    QTest::newRow("light") << surface(lightSurface);
    QTest::newRow("dark") << surface(darkMesh);
    QTest::newRow("print") << surface(printLogarithmic);
    QTest::newRow("rabbit") << surface(rabbit);
    QTest::newRow("gasoline") << Setup(gasoline);
}

void TestPictures::wholePicture()
{
    QFETCH(Setup, setup);
    const QString name = QString("%1.png").arg(QTest::currentDataTag());
    const std::unique_ptr<BasePlot> plot = setup();
    QVERIFY(plot);
    QVERIFY(harness::show(*plot, 320, 240));
    const QImage seen = harness::grab(*plot).convertToFormat(QImage::Format_RGB32);
    const QDir folder(QCoreApplication::applicationDirPath() + "/pictures-seen");
    QVERIFY(QDir().mkpath(folder.path()) && seen.save(folder.filePath(name)));
    const QImage expected(QString("%1/tests/plots/pictures/%2").arg(VORAN_SOURCE_DIR, name));
    QVERIFY2(!expected.isNull(), qPrintable(QString("no reference; seen: %1").arg(folder.filePath(name))));
    QCOMPARE(seen.size(), expected.size());
    const double found = difference(seen, expected);
    QVERIFY2(
        found <= tolerance,
        qPrintable(
            QString("%1 of the pixels differ; seen: %2").arg(found, 0, 'f', 4).arg(folder.filePath(name))));
}

int main(int argc, char* argv[])
{
    return harness::run<TestPictures>(argc, argv);
}

#include "tst_pictures.moc"
