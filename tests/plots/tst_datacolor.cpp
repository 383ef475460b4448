#include "core/datacolor.h"
#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "view/opengl.h"

#include <QSettings>
#include <QtTest>

using namespace Zel3D;
using namespace fixture;

class TestDataColor : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void rangeIsAskedOfThePlotAtEveryLookUp_data();
    void rangeIsAskedOfThePlotAtEveryLookUp();
    void subclassIsAskedForEveryColour();
    void storeLayout();
    void loadDropsWhatWasThere();
    void plotDrawsWithTheLoadedColours();
};

void TestDataColor::rangeIsAskedOfThePlotAtEveryLookUp_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("second");
    QTest::addColumn<QColor>("ofFive");
    QTest::newRow("none: the box") << 0.0 << 0.0 << QColor(100, 50, 25);
    QTest::newRow("its own") << 0.0 << 20.0 << QColor(50, 25, 12);
    QTest::newRow("equal ends: the box") << 5.0 << 5.0 << QColor(100, 50, 25);
    QTest::newRow("above the value") << 6.0 << 7.0 << QColor(0, 0, 0);
    QTest::newRow("below the value") << 3.0 << 4.0 << QColor(200, 100, 50);
    QTest::newRow("reversed: what is not above the first end") << 8.0 << 2.0 << QColor(0, 0, 0);
    QTest::newRow("tiny first against zero counts as equal") << 1e-310 << 0.0 << QColor(100, 50, 25);
    QTest::newRow("zero against tiny does not") << 0.0 << 1e-310 << QColor(200, 100, 50);
}

void TestDataColor::rangeIsAskedOfThePlotAtEveryLookUp()
{
    QFETCH(double, first);
    QFETCH(double, second);
    QFETCH(QColor, ofFive);
    Plot plot;
    QVERIFY(Heights(2, 2, [](int i, int) { return 10.0 * i; }).into(plot));
    const DataColor& color = *plot.getDataColor();
    QCOMPARE(color(0.0, 0.0, 5.0), QColor(100, 50, 25));
    plot.setGradientRange({first, second});
    QCOMPARE(color(0.0, 0.0, 5.0), ofFive);
    QCOMPARE(color(QVector3D(9.0F, -9.0F, 5.0F)), ofFive);
}

void TestDataColor::subclassIsAskedForEveryColour()
{
    class ByColumn : public DataColor
    {
    public:
        using DataColor::DataColor;
        using DataColor::operator();
        QColor operator()(double x, double /*y*/, double /*z*/) const override
        {
            return x < 0.5 ? QColor(Qt::red) : QColor(Qt::blue);
        }
    };
    Plot plot;
    plot.setDataColor(new ByColumn(&plot, "column", ramp()));
    plot.setPlotStyle(4);
    QVERIFY(harness::show(plot, 80, 80));
    GLRecorder recorder;
    QVERIFY(Heights(2, 2, [](int, int j) { return 10.0 * j; }).into(plot));
    const QVector<GLRecorder::Primitive> strips = recorder.primitives(GL_TRIANGLE_STRIP);
    QCOMPARE(strips.size(), 1);
    for (const GLRecorder::Vertex& vertex : strips[0].vertices)
        QCOMPARE(vertex.color[2], vertex.position[0]);
}

void TestDataColor::storeLayout()
{
    Plot plot;
    QRadialGradient gradient;
    gradient.setColorAt(0.25, Qt::red);
    gradient.setColorAt(0.75, QColor(1, 2, 3, 4));
    DataColor(&plot, "warm", gradient).saveSettings("p%1", organization, application);
    const QSettings store(organization, application);
    QCOMPARE(store.allKeys(),
             (QStringList{"p%1/dataColor/id", "p%1/dataColor/size", "p0/dataColor/0/color",
                          "p0/dataColor/0/pos", "p1/dataColor/1/color", "p1/dataColor/1/pos"}));
    QCOMPARE(store.value("p%1/dataColor/id"), QVariant(QString("warm")));
    QCOMPARE(store.value("p%1/dataColor/size"), QVariant(2));
    QCOMPARE(store.value("p1/dataColor/1/pos"), QVariant(0.75));
    QCOMPARE(store.value("p1/dataColor/1/color"), QVariant(QColor(1, 2, 3, 4)));

    DataColor loaded(&plot, "cold", plain(Qt::blue));
    loaded.loadSettings("p%1", organization, application);
    QCOMPARE(loaded.getId(), QString("warm"));
    QCOMPARE(loaded.getGradient().type(), QGradient::LinearGradient);
    QCOMPARE(loaded.getGradient().stops(), gradient.stops());
}

void TestDataColor::loadDropsWhatWasThere()
{
    Plot plot;
    for (const QVariant& size : {QVariant(), QVariant(0), QVariant(-3), QVariant("many")}) {
        if (size.isValid())
            QSettings(organization, application).setValue("plot/dataColor/size", size);
        DataColor color(&plot, "warm", ramp());
        color.loadSettings("plot", organization, application);
        QVERIFY(color.isEmpty() && color.getId().isEmpty());
        QVERIFY(!color(0.0, 0.0, 0.0).isValid());
    }
}

void TestDataColor::plotDrawsWithTheLoadedColours()
{
    Plot plot;
    plot.setGradient("blue", plain(Qt::blue));
    plot.slotSaveSettings();
    Plot other;
    other.slotLoadSettings();
    QCOMPARE(other.getDataColor()->getId(), QString("blue"));
    QCOMPARE(other.getCurrentGradient().stops(), plain(Qt::blue).stops());
    QVERIFY(other.canDrawData());
    // A missing key colours with its default: an invalid colour at position 0.
    QSettings(organization, application).remove("plot/dataColor/0/color");
    other.slotLoadSettings();
    QVERIFY(!(*other.getDataColor())(0.0, 0.0, 1.0).isValid());
}

int main(int argc, char* argv[])
{
    return harness::run<TestDataColor>(argc, argv);
}

#include "tst_datacolor.moc"
