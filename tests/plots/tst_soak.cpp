// Random handling at speed. VORAN_SOAK_SECONDS sets for how long; VORAN_SOAK_SEED repeats a run.

#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/look.h"

#include <QElapsedTimer>
#include <QFile>
#include <QMouseEvent>
#include <QtTest>

#include <random>

using namespace Zel3D;
using namespace fixture;

namespace {

/// Resident memory of the program in MB.
double residentMemory()
{
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly))
        return -1.0;
    return file.readAll().split(' ').value(1).toDouble() * 4096.0 / 1e6;
}

class Handling
{
public:
    explicit Handling(unsigned int seed) : random(seed)
    {
        plot.setShowToolTips(true);
        plot.setPickHighlight(true);
        Look::light().applyTo(plot);
        plot.resize(300, 240);
        plot.show();
    }

    void step()
    {
        switch (upTo(14)) {
        case 0:
            plot.slotSetPlotStyle(upTo(7));
            break;
        case 1:
            load(2 + upTo(40), 2 + upTo(40));
            break;
        case 2:
            plot.resize(60 + upTo(400), 60 + upTo(300));
            break;
        case 3:
            plot.setVisible(!plot.isVisible());
            break;
        case 4:
            press();
            break;
        case 5:
            wheel();
            break;
        case 6:
            plot.slotSetSelecting(upTo(3) != 0);
            break;
        case 7:
            plot.slotSetLighting(upTo(2) == 0);
            break;
        case 8:
            plot.setResolution(1 + upTo(4));
            break;
        case 9:
            plot.slotSetGridStyle(upTo(64));
            break;
        case 10:
            plot.setViewProjection(ViewProjection(upTo(3)));
            break;
        case 11:
            plot.slotSetAutoScaling(upTo(2) == 0);
            break;
        case 12:
            plot.slotShowNormals(upTo(4) == 0);
            break;
        default:
            drag();
        }
        QCoreApplication::processEvents();
    }

private:
    int upTo(int count) { return int(random() % unsigned(count)); }
    QPointF place() { return {double(upTo(plot.width())), double(upTo(plot.height()))}; }
    void mouse(QEvent::Type type, const QPointF& at, Qt::MouseButtons held)
    {
        const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ShiftModifier, Qt::AltModifier,
                                                   Qt::ControlModifier};
        QMouseEvent event(type, at, plot.mapToGlobal(at.toPoint()), Qt::LeftButton, held, modifiers[upTo(4)]);
        QCoreApplication::sendEvent(&plot, &event);
    }
    void drag()
    {
        mouse(QEvent::MouseButtonPress, place(), Qt::LeftButton);
        for (int i = upTo(4); i >= 0; --i)
            mouse(QEvent::MouseMove, place(), Qt::LeftButton);
        // Sometimes the release goes elsewhere.
        if (upTo(5) != 0)
            mouse(QEvent::MouseButtonRelease, place(), Qt::NoButton);
        mouse(QEvent::MouseMove, place(), Qt::NoButton);
    }
    void wheel()
    {
        const QPointF at = place();
        QWheelEvent event(at, plot.mapToGlobal(at.toPoint()), QPoint(), QPoint(0, 120 * (upTo(5) - 2)),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&plot, &event);
    }
    void press()
    {
        const int keys[] = {Qt::Key_Left, Qt::Key_Up, Qt::Key_L, Qt::Key_S, Qt::Key_I, Qt::Key_A, Qt::Key_N};
        QTest::keyClick(&plot, Qt::Key(keys[upTo(7)]));
    }
    void load(int columns, int rows)
    {
        const bool cells = upTo(4) == 0;
        if (!cells) {
            Heights(columns, rows, [](int i, int j) { return std::sin(0.3 * i) + 0.1 * j; }).into(plot);
            return;
        }
        QVector<QVector3D> vertices;
        for (int i = 0; i < columns; ++i)
            vertices.append(QVector3D(float(i), float(upTo(10)), float(upTo(10))));
        plot.loadFromData(vertices, {{0, 1, 1}}, 1.0, 1.0);
    }

    std::mt19937 random;
    Plot plot;
};

} // namespace

class TestSoak : public QObject
{
    Q_OBJECT

private slots:
    void handlingAtSpeed()
    {
        const int seconds = qEnvironmentVariableIntValue("VORAN_SOAK_SECONDS");
        const auto seed = unsigned(qEnvironmentVariableIntValue("VORAN_SOAK_SEED"));
        const qint64 limit = 1000 * qMax(seconds, 3);
        const harness::Messages quiet;
        Handling handling(seed);
        QElapsedTimer clock;
        clock.start();
        int steps = 0;
        double settled = 0.0;
        while (clock.elapsed() < limit) {
            handling.step();
            ++steps;
            if (settled == 0.0 && clock.elapsed() > limit / 3)
                settled = residentMemory();
        }
        const double grown = residentMemory() - settled;
        QVERIFY(steps > 100);
        // The driver's caches and the allocator's freed blocks come and go by some MB.
        QVERIFY2(grown < 60.0, qPrintable(QString("%1 MB more after %2 steps").arg(grown).arg(steps)));
        fprintf(stderr, "%d steps in %d s, memory %+.1f MB since %.1f MB\n", steps, int(limit / 1000), grown,
                settled);
    }
};

int main(int argc, char* argv[])
{
    // A long run is no hang.
    const int seconds = qEnvironmentVariableIntValue("VORAN_SOAK_SECONDS");
    if (seconds > 100)
        qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(3000 * seconds));
    return harness::run<TestSoak>(argc, argv);
}

#include "tst_soak.moc"
