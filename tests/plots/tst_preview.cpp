// Fewer nodes while a person turns a grid that is too large to turn smoothly.

#include "export/rasterpicture.h"
#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/dotaddition.h"
#include "plots/preview.h"

#include <GL/gl.h>

#include <QMouseEvent>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace Zel3D;
using namespace fixture;

namespace {

constexpr int side = 193;

/// A plot whose frames take as long as the test says.
class TimedPlot : public Plot
{
public:
    double milliseconds = 200.0; // a third of the nodes a side
    int frames = 0;

protected:
    void frameDrawn(double /*measured*/) override
    {
        ++frames;
        Plot::frameDrawn(milliseconds);
    }
};

bool load(Plot& plot, bool hole = false)
{
    return Heights(side, side,
                   [hole](int i, int j) {
                       return hole && i == 96 && j == 96 ? std::numeric_limits<double>::quiet_NaN()
                                                         : std::sin(0.05 * i) + std::cos(0.05 * j);
                   })
        .into(plot);
}

bool prepare(Plot& plot, int style = 4, bool hole = false)
{
    plot.setAutoRotate(false);
    plot.setPreviewing(true);
    plot.setPlotStyle(style);
    plot.setGradient("ramp", ramp());
    if (!load(plot, hole) || !harness::show(plot, 160, 160))
        return false;
    plot.updateGL();
    return true;
}

void send(QWidget& plot, QEvent::Type type, const QPointF& place, Qt::MouseButtons buttons)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, plot.mapToGlobal(place.toPoint()), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&plot, &event);
}

void press(QWidget& plot)
{
    send(plot, QEvent::MouseButtonPress, {40, 40}, Qt::LeftButton);
}

void move(QWidget& plot, double x)
{
    send(plot, QEvent::MouseMove, {x, 50}, Qt::LeftButton);
}

void release(QWidget& plot)
{
    send(plot, QEvent::MouseButtonRelease, {60, 50}, Qt::NoButton);
    QCoreApplication::processEvents();
}

QList<double> columnsOf(const QVector<GLRecorder::Primitive>& primitives)
{
    QMap<double, bool> found;
    for (const auto& primitive : primitives) {
        for (const auto& vertex : primitive.vertices)
            found.insert(vertex.position[0], true);
    }
    return found.keys();
}

} // namespace

using Change = std::function<void(TimedPlot&)>;
Q_DECLARE_METATYPE(Change)

class TestPreview : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void steps_data();
    void steps();
    void timesOfFrames();
    void aDragIsShownCoarser();
    void aRestingHandShowsEverything();
    void whatCountsAsAHand_data();
    void whatCountsAsAHand();
    void listsLiveAsLongAsTheData_data();
    void listsLiveAsLongAsTheData();
    void stylesAndResolutions_data();
    void stylesAndResolutions();
    void additionsStay();
    void picturesAndPicksShowEverything();
    void theMarkCanBeRead_data();
    void theMarkCanBeRead();
};

void TestPreview::steps_data()
{
    QTest::addColumn<double>("full");
    QTest::addColumn<int>("coarsest");
    QTest::addColumn<int>("step");
    QTest::newRow("nothing known") << 0.0 << 50 << 1;
    QTest::newRow("smooth as it is") << 49.0 << 50 << 1;
    QTest::newRow("just not smooth") << 51.0 << 50 << 2;
    QTest::newRow("a quarter of the time is enough") << 100.0 << 50 << 2;
    QTest::newRow("half a second") << 500.0 << 50 << 5;
    QTest::newRow("too few nodes") << 500.0 << 3 << 3;
    QTest::newRow("hardly any nodes") << 500.0 << 1 << 1;
}

void TestPreview::steps()
{
    QFETCH(double, full);
    QFETCH(int, coarsest);
    QTEST(Preview::stepFor(full, coarsest), "step");
}

void TestPreview::timesOfFrames()
{
    FrameTimes times;
    QCOMPARE(times.full(), 0.0);
    times.add(300.0); // the first frame of a list
    QCOMPARE(times.full(), 150.0);
    times.add(20.0);
    QCOMPARE(times.full(), 20.0);
    times.add(400.0); // disturbed
    QCOMPARE(times.full(), 20.0);
    times.add(380.0);
    QCOMPARE(times.full(), 380.0);
    times.restart();
    times.add(60.0);
    QCOMPARE(times.full(), 30.0);
}

void TestPreview::aDragIsShownCoarser()
{
    TimedPlot plot;
    QVERIFY(prepare(plot));
    GLRecorder recorder;
    press(plot);
    move(plot, 44);
    QVERIFY(plot.isPreviewShown());
    QCOMPARE(recorder.count("glNewList"), 2);
    const QList<double> columns = columnsOf(recorder.primitives(GL_TRIANGLE_STRIP));
    QCOMPARE(columns.size(), 65);
    QCOMPARE(columns.at(1), 3.0);
    for (int x : {50, 55, 60})
        move(plot, x);
    QCOMPARE(recorder.count("glNewList"), 2);
    release(plot);
    QVERIFY(!plot.isPreviewShown());
    const QImage rested = harness::grab(plot);
    plot.setPreviewing(false);
    QCOMPARE(rested, harness::grab(plot));
    QCOMPARE(recorder.count("glNewList"), 2);
}

void TestPreview::aRestingHandShowsEverything()
{
    TimedPlot plot;
    QVERIFY(prepare(plot));
    GLRecorder recorder;
    press(plot);
    move(plot, 50);
    QVERIFY(plot.isPreviewShown());
    QTRY_VERIFY_WITH_TIMEOUT(!plot.isPreviewShown(), 2000);
    move(plot, 60);
    QVERIFY(plot.isPreviewShown());
    QCOMPARE(recorder.count("glNewList"), 2);
    plot.hide();
    QVERIFY(harness::show(plot, 160, 160));
    QTRY_VERIFY(!plot.isPreviewShown());
}

void TestPreview::whatCountsAsAHand_data()
{
    QTest::addColumn<Change>("move");
    QTest::addColumn<bool>("shown");
    const auto row = [](const char* name, bool shown, const Change& change) {
        QTest::newRow(name) << change << shown;
    };
    row("wheel", true, [](TimedPlot& p) {
        QWheelEvent event({50, 50}, p.mapToGlobal(QPoint(50, 50)), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&p, &event);
    });
    row("key", true, [](TimedPlot& p) { QTest::keyClick(&p, Qt::Key_Up); });
    row("key without a meaning", false, [](TimedPlot& p) { QTest::keyClick(&p, Qt::Key_Q); });
    row("the host", false, [](TimedPlot& p) { p.slotSetRotation({1.0, 2.0, 3.0}); });
    row("mouse without a button", false, [](TimedPlot& p) {
        send(p, QEvent::MouseMove, {70, 70}, Qt::NoButton);
    });
    row("quick frames", false, [](TimedPlot& p) {
        p.milliseconds = 5.0;
        p.updateGL();
        p.updateGL();
        press(p);
        move(p, 50);
    });
    row("switched off", false, [](TimedPlot& p) {
        p.setPreviewing(false);
        press(p);
        move(p, 50);
    });
    row("a turning view", true, [](TimedPlot& p) {
        p.setAutoRotate(true);
        press(p);
        move(p, 60);
        release(p);
        QVERIFY(p.isAutoRotating());
        QTest::qWait(300);
    });
}

void TestPreview::whatCountsAsAHand()
{
    QFETCH(Change, move);
    TimedPlot plot;
    QVERIFY(!plot.isPreviewing());
    QVERIFY(prepare(plot));
    move(plot);
    QTEST(plot.isPreviewShown(), "shown");
}

void TestPreview::listsLiveAsLongAsTheData_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("lists"); // those of data and additions, and of the preview
    const auto row = [](const char* name, int lists, const Change& change) {
        QTest::newRow(name) << change << lists;
    };
    row("nothing", 0, [](TimedPlot&) {});
    row("gradient", 4, [](TimedPlot& p) { p.setGradient("x", plain(Qt::red)); });
    row("style", 4, [](TimedPlot& p) { p.setPlotStyle(1); });
    row("data", 4, [](TimedPlot& p) { load(p); });
    row("mesh", 2, [](TimedPlot& p) { p.setMeshColor(Qt::red); });
    row("title", 0, [](TimedPlot& p) { p.slotSetTitle("other"); });
}

void TestPreview::listsLiveAsLongAsTheData()
{
    QFETCH(Change, change);
    TimedPlot plot;
    QVERIFY(prepare(plot));
    press(plot);
    move(plot, 50);
    release(plot);
    GLRecorder recorder;
    change(plot);
    plot.updateGL();
    press(plot);
    move(plot, 60);
    QVERIFY(plot.isPreviewShown());
    QTEST(recorder.count("glNewList"), "lists");
}

void TestPreview::stylesAndResolutions_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("resolution");
    QTest::addColumn<bool>("hole");
    QTest::addColumn<bool>("changing");
    for (const int style : {1, 2, 3, 4, 5, 6})
        QTest::addRow("style %d", style) << style << 1 << false << false;
    QTest::newRow("every second node") << 5 << 2 << false << false;
    QTest::newRow("a hole") << 5 << 1 << true << false;
    QTest::newRow("changing data") << 4 << 1 << false << true;
}

void TestPreview::stylesAndResolutions()
{
    QFETCH(int, style);
    QFETCH(int, resolution);
    QFETCH(bool, hole);
    QFETCH(bool, changing);
    TimedPlot plot;
    plot.setResolution(resolution);
    plot.setDataChanging(changing);
    plot.setViewProjection(BottomProjection);
    QVERIFY(prepare(plot, style, hole));
    GLRecorder recorder;
    press(plot);
    move(plot, 60);
    QVERIFY(plot.isPreviewShown());
    // Cylinders stand around their nodes.
    const QList<double> columns = columnsOf(recorder.primitives());
    if (style != 6)
        QVERIFY2(columns.contains(3.0 * resolution) && !columns.contains(resolution) &&
                     !columns.contains(2.0 * resolution),
                 qPrintable(QString::number(columns.value(1))));
    recorder.clear();
    const QImage coarse = plot.grabFrameBuffer();
    QVERIFY(plot.isPreviewShown());
    QCOMPARE(recorder.count("glDrawElements"), 0);
    release(plot);
    const QImage full = harness::grab(plot);
    // Coarser, and still of the same extent.
    const int ofCoarse = 160 * 160 - pixels(coarse, Qt::white);
    const int ofFull = 160 * 160 - pixels(full, Qt::white);
    QVERIFY(coarse != full);
    QVERIFY2(ofCoarse > 0 && (style != 4 || qAbs(ofCoarse - ofFull) < ofFull / 8),
             qPrintable(QString("%1 %2").arg(ofCoarse).arg(ofFull)));
}

void TestPreview::additionsStay()
{
    TimedPlot plot;
    DotAddition dot(2.0, false, Qt::red);
    plot.addAddition(dot);
    QVERIFY(prepare(plot));
    GLRecorder recorder;
    press(plot);
    move(plot, 50);
    QVERIFY(plot.isPreviewShown());
    QCOMPARE(columnsOf(recorder.primitives(GL_POINTS)).size(), side);
    QCOMPARE(columnsOf(recorder.primitives(GL_TRIANGLE_STRIP)).size(), 65);
}

void TestPreview::picturesAndPicksShowEverything()
{
    TimedPlot plot;
    QVERIFY(prepare(plot, 5));
    plot.setSelecting(true);
    PictureOptions options;
    options.pixels = QSize(200, 200);
    const auto picked = [&plot] {
        QStringList all;
        QSignalSpy spy(&plot, &ZelGLWidget::selectedObject);
        for (int x = 50; x < 110; x += 7) {
            plot.findObjects(QPointF(x, 80), Qt::NoModifier);
            const auto info = spy.takeLast().first().value<SelectedObjectsInfo>();
            all.append(QString("%1 %2 %3").arg(info.valid).arg(info.x).arg(info.y));
        }
        return all;
    };
    press(plot);
    move(plot, 60);
    QVERIFY(plot.isPreviewShown());
    const QImage during = RasterPicture(plot, options).render();
    const QStringList found = picked();
    QVERIFY(plot.isPreviewShown());
    release(plot);
    QVERIFY(!plot.isPreviewShown());
    QCOMPARE(during, RasterPicture(plot, options).render());
    QCOMPARE(found, picked());
    QVERIFY(found.join(' ').contains("1 "));
}

void TestPreview::theMarkCanBeRead_data()
{
    QTest::addColumn<QColor>("background");
    QTest::newRow("white") << QColor(Qt::white);
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("grey") << QColor(128, 128, 128);
}

void TestPreview::theMarkCanBeRead()
{
    QFETCH(QColor, background);
    TimedPlot plot;
    plot.setBackgroundColor(background);
    QVERIFY(prepare(plot));
    plot.setZoom(0.2); // the corner is free
    press(plot);
    move(plot, 50);
    const auto contrast = [&background](const QImage& image, int left = 0, int right = 80) {
        int count = 0;
        for (int y = 130; y < 160; ++y) {
            for (int x = left; x < right; ++x)
                count += qAbs(qGray(image.pixel(x, y)) - qGray(background.rgb())) > 50 ? 1 : 0;
        }
        return count;
    };
    QVERIFY(contrast(plot.grabFrameBuffer()) > 30);
    QCOMPARE(contrast(plot.grabFrameBuffer(), 80, 160), 0); // on the left
    release(plot);
    QCOMPARE(contrast(harness::grab(plot)), 0);
}

int main(int argc, char* argv[])
{
    return harness::run<TestPreview>(argc, argv);
}

#include "tst_preview.moc"
