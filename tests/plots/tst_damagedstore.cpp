// Plots that read a settings store in which anything may stand.

#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/arrowaddition.h"
#include "plots/look.h"
#include "plots/spectrum.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"
#include "view/light.h"

#include <QBrush>
#include <QElapsedTimer>
#include <QSettings>
#include <QtTest>

#include <limits>
#include <random>

using namespace Zel3D;
using namespace fixture;

namespace {

/// What may stand where something else is expected. The large numbers ask for loops, memory and lines.
QVector<QVariant> absurdities()
{
    QVariantList deep{1, 2, 3};
    return {QVariant(),
            QString("abc"),
            QString(),
            -1,
            0,
            1,
            7,
            2000000000,
            std::numeric_limits<int>::min(),
            1e300,
            1e30,
            -1e30,
            1e-320,
            std::numeric_limits<double>::quiet_NaN(),
            std::numeric_limits<double>::infinity(),
            QByteArray("\x00\xff\x80garbage", 10),
            QStringList{"a", "b", ""},
            deep,
            QColor(),
            QFont("Sans Serif", 4000),
            true};
}

QSettings store()
{
    return QSettings(organization, application);
}

/// Writes every key that a plot keeps, those that are written only where they differ from the usual as well.
template <class AnyPlot>
QStringList writeEverything(AnyPlot& plot)
{
    Look::light().applyTo(plot);
    plot.setAutoScaling(false);
    plot.setScale({2.0, 1.0, 3.0});
    plot.setCylinderOpacity(50);
    plot.setCylinderMultiplier(0.5);
    plot.setBoxScaling(ManualScaling);
    plot.setAutomaticEdges(false);
    plot.getCoordinateSystem().setAxesVisible(XFrontBottom, false);
    plot.getLegend().setAutoPositioning(false);
    plot.getLegend().setManualRectangle(QRectF(0.1, 0.2, 0.1, 0.5));
    plot.setKeepProportions(false);
    for (Light* light : plot.getLights()) {
        light->setDiffuse(Qt::green);
        light->setSpecular(Qt::yellow);
        light->setAmbient(Qt::gray);
        light->setRadius(5.0);
        light->setPhi(11.0);
        light->setTheta(12.0);
        light->setConstAttenuation(0.5);
        light->setLinearAttenuation(0.5);
        light->setQuadraticAttenuation(0.5);
    }
    plot.setMarkers({QVariantMap{{"kind", "dot"}}, QVariantMap{{"kind", "cylinder"}},
                     QVariantMap{{"kind", "sphere"}}, QVariantMap{{"kind", "arrow"}}});
    plot.slotSaveSettings();
    return store().allKeys();
}

template <class AnyPlot>
void fill(AnyPlot& plot);

template <>
void fill(Plot& plot)
{
    Heights(6, 5, plane).into(plot);
}

class Spectra : public Spectrum
{
public:
    Spectra() : Spectrum("plot", fixture::organization, fixture::application) { setGradient("ramp", ramp()); }
};

template <>
void fill(Spectra& plot)
{
    plot.loadFromData({{1.0, {{1.0, 2.0}, {2.0, -3.0}, {3.0, 1.0}}}, {2.0, {{1.0, 1.0}, {3.0, 4.0}}}}, YAxis);
}

/// Loads what stands in the store and draws in every style, with the normals and the contour plot.
template <class AnyPlot>
void useStore()
{
    AnyPlot plot;
    fill(plot);
    plot.slotLoadSettings();
    QVERIFY(harness::show(plot, 120, 90));
    harness::grab(plot);
    plot.slotSetSelecting(true);
    QTest::mouseMove(&plot, QPoint(60, 45));
    plot.slotShowNormals(true);
    plot.setViewProjection(BottomProjection);
    for (int style : {1, 3, 6}) {
        plot.slotSetPlotStyle(style);
        harness::grab(plot);
    }
    // What was read can be written and mended.
    plot.slotSaveSettings();
    plot.slotDefault();
    plot.slotSetResolution(1);
    harness::grab(plot);
}

} // namespace

class TestDamagedStore : public QObject
{
    Q_OBJECT

private slots:
    void init() { harness::clearStore(); }
    void everyKeyHoldsTheSame_data();
    void everyKeyHoldsTheSame();
    void keysHoldAnything();

private:
    template <class AnyPlot>
    QStringList keysOf()
    {
        AnyPlot plot;
        fill(plot);
        return writeEverything(plot);
    }
};

void TestDamagedStore::everyKeyHoldsTheSame_data()
{
    QTest::addColumn<int>("which");
    for (int i = 0; i < absurdities().size(); ++i)
        QTest::addRow("%d %s", i, absurdities()[i].typeName()) << i;
}

void TestDamagedStore::everyKeyHoldsTheSame()
{
    QFETCH(int, which);
    const harness::Messages quiet;
    const QStringList keys = keysOf<Plot>() + keysOf<Spectra>();
    QVERIFY(keys.size() > 300);
    const auto damage = [&] {
        QSettings damaged(organization, application);
        for (const QString& key : keys)
            damaged.setValue(key, absurdities()[which]);
    };
    QElapsedTimer clock;
    clock.start();
    damage();
    useStore<Plot>();
    damage();
    useStore<Spectra>();
    QVERIFY2(clock.elapsed() < 20000, qPrintable(QString("%1 ms").arg(clock.elapsed())));
}

void TestDamagedStore::keysHoldAnything()
{
    const harness::Messages quiet;
    const QVector<QVariant> values = absurdities();
    std::mt19937 random(5);
    for (int round = 0; round < 6; ++round) {
        const QStringList keys = keysOf<Plot>();
        QSettings damaged(organization, application);
        for (const QString& key : keys) {
            if (random() % 4 == 0)
                damaged.setValue(key, values[int(random() % unsigned(values.size()))]);
            else if (random() % 8 == 0)
                damaged.remove(key);
        }
        damaged.sync();
        useStore<Plot>();
    }
}

int main(int argc, char* argv[])
{
    return harness::run<TestDamagedStore>(argc, argv);
}

#include "tst_damagedstore.moc"
