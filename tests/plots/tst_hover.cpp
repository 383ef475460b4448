// What follows the mouse moves over an image of the scene: cheaply, and as a full frame would show it.

#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/look.h"
#include "scene/title.h"

#include <GL/gl.h>

#include <QMouseEvent>
#include <QtTest>

#include <cmath>
#include <functional>

using namespace Zel3D;
using namespace fixture;

namespace {

/// Keeps what every frame left in the window.
class SeenPlot : public Plot
{
public:
    QImage seen;

protected:
    void paintGL() override
    {
        Plot::paintGL();
        // Read as the window shows it, several samples made one.
        QImage image(width(), height(), QImage::Format_RGBA8888);
        glReadPixels(0, 0, width(), height(), GL_RGBA, GL_UNSIGNED_BYTE, image.bits());
        seen = image.mirrored().convertToFormat(QImage::Format_RGB32);
    }
};

void hover(Plot& plot, int x, int y)
{
    QMouseEvent event(QEvent::MouseMove, QPointF(x, y), plot.mapToGlobal(QPoint(x, y)), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&plot, &event);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

int fullFrames(const GLRecorder& recorder)
{
    return recorder.calls().count(QString("glClear(%1)").arg(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT));
}

bool prepare(Plot& plot, int samples)
{
    QGLFormat format = plot.format();
    format.setSampleBuffers(samples > 0);
    format.setSamples(samples);
    plot.setFormat(format);
    Look::light().applyTo(plot);
    plot.setPlotStyle(5);
    plot.slotSetTitle("Title");
    plot.setPickHighlight(true);
    plot.setSelecting(true);
    if (!Heights(30, 30, [](int i, int j) { return std::sin(0.3 * i) * std::cos(0.3 * j); }).into(plot))
        return false;
    plot.fitView();
    return harness::show(plot, 300, 240);
}

/// Two repaints that the mouse alone asks for; from then on there is an image.
void settle(Plot& plot)
{
    for (int x : {120, 140, 160})
        hover(plot, x, 120);
}

} // namespace

using Change = std::function<void(SeenPlot&)>;
Q_DECLARE_METATYPE(Change)

class TestHover : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void framesAreExact_data();
    void framesAreExact();
    void otherChangesDrawTheScene_data();
    void otherChangesDrawTheScene();
    void aPointOfTheHostsIsMarked();
};

void TestHover::framesAreExact_data()
{
    QTest::addColumn<int>("samples");
    QTest::newRow("no multisampling") << 0;
    QTest::newRow("four samples") << 4;
}

void TestHover::framesAreExact()
{
    QFETCH(int, samples);
    SeenPlot plot;
    QVERIFY(prepare(plot, samples));
    QCOMPARE(plot.getContextDescription().contains("no multisampling"), samples == 0);
    settle(plot);
    int quick = 0;
    GLRecorder recorder;
    // Over the surface, past it, and over the legend.
    for (const QPoint& place : {QPoint(150, 100), QPoint(170, 130), QPoint(130, 140), QPoint(5, 5),
                                QPoint(160, 118), QPoint(110, 125), QPoint(290, 120)}) {
        recorder.clear();
        plot.seen = QImage();
        hover(plot, place.x(), place.y());
        if (plot.seen.isNull())
            continue; // the same pick
        QCOMPARE(fullFrames(recorder), 0);
        ++quick;
        const QImage shown = plot.seen;
        plot.updateGL();
        QVERIFY(fullFrames(recorder) > 0);
        QCOMPARE(shown, plot.seen);
        settle(plot);
    }
    QVERIFY2(quick >= 5, qPrintable(QString::number(quick)));
}

void TestHover::otherChangesDrawTheScene_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
    row("setter without a repaint", [](SeenPlot& p) { p.setZoom(0.7); });
    row("background", [](SeenPlot& p) { p.setBackgroundColor(Qt::gray); });
    row("mesh", [](SeenPlot& p) { p.setMeshColor(Qt::red); });
    row("title and a repaint", [](SeenPlot& p) {
        p.slotSetTitle("Other");
        p.update();
    });
    row("frame rate", [](SeenPlot& p) { p.setShowInfo(true); });
    row("data", [](SeenPlot& p) { QVERIFY(loadHeights(p, {1.0, 2.0, 5.0})); });
    row("size", [](SeenPlot& p) {
        p.resize(250, 200);
        QTest::qWait(50);
    });
    row("hidden between", [](SeenPlot& p) {
        p.hide();
        p.seen = QImage();
        QVERIFY(harness::show(p, 300, 240));
        QTRY_VERIFY(!p.seen.isNull()); // as soon as the window system asks for it
    });
}

void TestHover::otherChangesDrawTheScene()
{
    QFETCH(Change, change);
    SeenPlot plot;
    QVERIFY(prepare(plot, 0));
    settle(plot);
    GLRecorder recorder;
    hover(plot, 150, 100);
    QCOMPARE(fullFrames(recorder), 0);
    change(plot);
    hover(plot, 125, 110);
    hover(plot, 5, 5);
    QVERIFY(fullFrames(recorder) > 0);
    const QImage shown = plot.seen;
    plot.setShowInfo(false);
    plot.updateGL();
    if (qstrcmp(QTest::currentDataTag(), "frame rate") != 0)
        QCOMPARE(shown, plot.seen);
}

void TestHover::aPointOfTheHostsIsMarked()
{
    SeenPlot plot;
    QVERIFY(prepare(plot, 0));
    plot.slotTopView();
    plot.updateGL();
    const QImage before = plot.seen;
    // By itself, at once and after an image of the scene was taken.
    for (int i = 0; i < 3; ++i) {
        plot.seen = QImage();
        plot.highlightPoint(plot.getGridData()->valueAt(15, 15));
        QTRY_VERIFY(!plot.seen.isNull());
        QRect changed;
        for (int y = 0; y < before.height(); ++y) {
            for (int x = 0; x < before.width(); ++x) {
                if (plot.seen.pixel(x, y) != before.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
            }
        }
        QVERIFY(!changed.isEmpty() && changed.width() < 30 && changed.height() < 30);
        // The middle of the box is the middle of the window.
        QVERIFY((changed.center() - before.rect().center()).manhattanLength() < 20);
        plot.seen = QImage();
        plot.highlightPoint(QVector3D(float(qQNaN()), 0.0F, 0.0F));
        QTRY_COMPARE(plot.seen, before);
    }
}

int main(int argc, char* argv[])
{
    return harness::run<TestHover>(argc, argv);
}

#include "tst_hover.moc"
