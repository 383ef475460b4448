// The arithmetic of gestures and hit lists against values worked out by hand.

#include "harness/harness.h"
#include "view/hitlist.h"
#include "view/interaction.h"

#include <QtTest>

#include <array>
#include <functional>

using namespace Zel3D;

namespace {

constexpr auto plain = Qt::NoModifier;
constexpr auto shift = Qt::ShiftModifier;
constexpr auto control = Qt::ControlModifier;
constexpr auto alt = Qt::AltModifier;
constexpr auto leftButton = Qt::LeftButton;

// Width and height differ, as do all values, so that a swapped axis shows.
const QSize size(200, 100);
const ViewPose start{{10.0, 20.0, 30.0}, {1.0, 2.0, 3.0}, {0.25, -0.5}, 1.5};

enum Part { RotX, RotY, RotZ, ScaleX, ScaleY, ScaleZ, ShiftX, ShiftY, Zoom };
using Parts = std::array<double, 9>;
using Changes = QMap<int, double>;

Parts parts(const ViewPose& p)
{
    return {p.rotation.x, p.rotation.y,      p.rotation.z,      p.scale.x, p.scale.y,
            p.scale.z,    p.viewportShift.x, p.viewportShift.y, p.zoom};
}

ViewPose drag(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers, int dx, int dy, QSize in = size)
{
    return Interaction::dragged(start, {dx, dy}, in, {buttons, modifiers}, MouseBindings());
}

ViewPose key(int code, Qt::KeyboardModifiers modifiers, const KeySpeeds& speeds = {}, QSize in = size)
{
    return Interaction::keyed(start, in, {code, modifiers}, KeyBindings(), speeds);
}

ViewPose turned(double vx, double vy, const MouseBindings& bindings = {})
{
    ViewPose pose = start;
    pose.rotation = Interaction::autoRotated(start.rotation, {vx, vy}, size, bindings);
    return pose;
}

} // namespace

Q_DECLARE_METATYPE(ViewPose)
Q_DECLARE_METATYPE(Changes)

class TestInteraction : public QObject
{
    Q_OBJECT
private slots:
    void gestures_data()
    {
        QTest::addColumn<ViewPose>("after");
        QTest::addColumn<Changes>("changes");
        const auto row = [](const char* name, const ViewPose& after, const Changes& changes) {
            QTest::newRow(name) << after << changes;
        };
        // A drag turns by 3 * 360 degrees a width or height: here 5.4 a pixel across and 10.8 a pixel down.
        row("drag tilts and spins", drag(leftButton, plain, 20, 5), {{RotX, 64.0}, {RotZ, 138.0}});
        row("drag left and up", drag(leftButton, plain, -3, -3), {{RotX, -22.0}, {RotZ, 14.0}});
        row("drag rounds to the nearest degree", drag(leftButton, plain, 2, 1), {{RotX, 21.0}, {RotZ, 41.0}});
        row("drag rounds negative angles", drag(leftButton, plain, 0, -2), {{RotX, -12.0}});
        row("drag by a width is whole turns", drag(leftButton, plain, 200, 0), {});
        row("drag by half a width", drag(leftButton, plain, 100, 0), {{RotZ, 210.0}});
        row("drag keeps the sign of the remainder", drag(leftButton, plain, -100, 0), {{RotZ, -150.0}});
        row("shift drag turns about y", drag(leftButton, shift, 20, 5), {{RotY, 128.0}});
        row("alt drag scales x and y", drag(leftButton, alt, 20, -10),
            {{ScaleX, 1.6487212707001282}, {ScaleY, 2.3934693402873666}});
        row("alt shift drag scales z", drag(leftButton, alt | shift, 20, -10),
            {{ScaleZ, 3.3934693402873666}});
        row("control alt drag zooms", drag(leftButton, control | alt, 20, -10), {{Zoom, 1.8934693402873666}});
        row("control drag shifts", drag(leftButton, control, 20, -10), {{ShiftX, 0.45}, {ShiftY, -0.3}});
        row("scale stops at 0", drag(leftButton, alt, 0, 100), {{ScaleY, 0.0}});
        row("z scale stops at 0", drag(leftButton, alt | shift, 0, 100), {{ScaleZ, 0.0}});
        row("zoom stops at 0", drag(leftButton, control | alt, 0, 100), {{Zoom, 0.0}});
        row("an empty size counts as one pixel", drag(leftButton, control, 1, 1, QSize(0, -3)),
            {{ShiftX, 2.25}, {ShiftY, -2.5}});
        row("other button", drag(Qt::RightButton, plain, 20, 5), {});
        row("second button", drag(leftButton | Qt::RightButton, plain, 20, 5), {});
        row("no button", drag(Qt::NoButton, plain, 20, 5), {});
        row("other modifier", drag(leftButton, Qt::MetaModifier, 20, 5), {});
        row("one modifier too many", drag(leftButton, control | shift, 20, 5), {});

        row("down", key(Qt::Key_Down, plain), {{RotX, 21.0}});
        row("up", key(Qt::Key_Up, plain), {{RotX, -1.0}});
        row("shift right", key(Qt::Key_Right, shift), {{RotY, 25.0}});
        row("shift left", key(Qt::Key_Left, shift), {{RotY, 15.0}});
        row("right", key(Qt::Key_Right, plain), {{RotZ, 35.0}});
        row("left", key(Qt::Key_Left, plain), {{RotZ, 25.0}});
        row("alt right", key(Qt::Key_Right, alt), {{ScaleX, 1.0253151205244289}});
        row("alt left", key(Qt::Key_Left, alt), {{ScaleX, 0.9746848794755711}});
        row("alt down", key(Qt::Key_Down, alt), {{ScaleY, 1.948728903623976}});
        row("alt up", key(Qt::Key_Up, alt), {{ScaleY, 2.051271096376024}});
        row("alt shift down", key(Qt::Key_Down, alt | shift), {{ScaleZ, 2.948728903623976}});
        row("alt shift up", key(Qt::Key_Up, alt | shift), {{ScaleZ, 3.051271096376024}});
        row("control shift down", key(Qt::Key_Down, control | shift), {{Zoom, 1.448728903623976}});
        row("control shift up", key(Qt::Key_Up, control | shift), {{Zoom, 1.551271096376024}});
        row("control right", key(Qt::Key_Right, control), {{ShiftX, 0.275}});
        row("control left", key(Qt::Key_Left, control), {{ShiftX, 0.225}});
        row("control down", key(Qt::Key_Down, control), {{ShiftY, -0.55}});
        row("control up", key(Qt::Key_Up, control), {{ShiftY, -0.45}});
        row("rotation speed", key(Qt::Key_Down, plain, {10.0, 5.0, 5.0}), {{RotX, 46.0}});
        row("shift speed", key(Qt::Key_Up, control, {3.0, 5.0, 20.0}), {{ShiftY, -0.3}});
        row("scale speed serves the zoom", key(Qt::Key_Up, control | shift, {3.0, 100.0, 5.0}),
            {{Zoom, 3.218281828459045}});
        row("key scale stops at 0", key(Qt::Key_Down, alt, {3.0, 200.0, 5.0}), {{ScaleY, 0.0}});
        row("key in an empty size", key(Qt::Key_Right, control, {}, QSize(0, 0)), {{ShiftX, 5.25}});
        row("key with another modifier", key(Qt::Key_Down, Qt::MetaModifier), {});
        row("unbound key", key(Qt::Key_PageDown, plain), {});

        row("wheel zooms in", Interaction::wheeled(start, 120, false), {{Zoom, 1.551271096376024}});
        row("wheel zooms out", Interaction::wheeled(start, -120, false), {{Zoom, 1.451229424500714}});
        row("shift wheel scales z", Interaction::wheeled(start, 120, true), {{ScaleZ, 3.051271096376024}});
        row("wheel without angle", Interaction::wheeled(start, 0, false), {});
        row("wheel stops at 0",
            Interaction::wheeled(Interaction::wheeled(start, -1200000, false), -1200000, false),
            {{Zoom, 0.0}});

        MouseBindings onlyX;
        onlyX.rotateZ = {leftButton, control};
        MouseBindings plainY;
        plainY.rotateX = {Qt::RightButton, plain};
        plainY.rotateY = {leftButton, plain};
        plainY.rotateZ = {leftButton, shift};
        row("auto-rotation", turned(10.0, -5.0), {{RotX, 8.0}, {RotZ, 32.0}});
        row("auto-rotation about x alone", turned(10.0, -5.0, onlyX), {{RotX, 8.0}});
        row("auto-rotation about y alone", turned(10.0, -5.0, plainY), {{RotY, 22.0}});
        row("auto-rotation too slow for a degree", turned(2.0, 1.0), {});
    }

    void gestures()
    {
        QFETCH(ViewPose, after);
        QFETCH(Changes, changes);
        const Parts found = parts(after);
        Parts expected = parts(start);
        for (auto change = changes.cbegin(); change != changes.cend(); ++change)
            expected[std::size_t(change.key())] = change.value();
        for (std::size_t i = 0; i < found.size(); ++i)
            QVERIFY2(qAbs(found[i] - expected[i]) < 1e-12,
                     qPrintable(QString("value %1: %2 instead of %3").arg(i).arg(found[i]).arg(expected[i])));
    }

    void anglesAreRoundedThenReduced_data()
    {
        QTest::addColumn<double>("angle");
        QTest::addColumn<double>("reduced");
        QTest::newRow("rounds up to a turn") << 359.5 << 0.0;
        QTest::newRow("rounds down to a turn") << -359.6 << 0.0;
        QTest::newRow("two turns") << 725.4 << 5.0;
        QTest::newRow("negative") << -725.6 << -6.0;
        QTest::newRow("half") << 30.5 << 31.0;
        QTest::newRow("negative half goes as qRound") << -30.5 << -30.0;
        QTest::newRow("beyond int") << 1e12 << 280.0;
        QTest::newRow("infinite") << qInf() << 0.0;
        QTest::newRow("not a number") << qQNaN() << 0.0;
    }

    void anglesAreRoundedThenReduced()
    {
        QFETCH(double, angle);
        QFETCH(double, reduced);
        QCOMPARE(Interaction::reducedAngle(angle), reduced);
    }

    void nearestHitComesFirst_data()
    {
        QTest::addColumn<int>("hits");
        QTest::addColumn<QVector<unsigned>>("buffer");
        QTest::addColumn<QVector<int>>("ids");
        const auto row = [](const char* name, int hits, const QVector<unsigned>& buffer,
                            const QVector<int>& ids) { QTest::newRow(name) << hits << buffer << ids; };
        constexpr unsigned one = 2147483647; // depth 1
        row("nothing", 0, {}, {});
        row("buffer too small", -1, {1, 5, 6, 7}, {});
        row("nearer later", 2, {1, 90, 95, 7, 1, 50, 60, 8}, {8, 7});
        row("farther later", 2, {1, 50, 60, 8, 1, 90, 95, 7}, {8, 7});
        row("against the best so far", 3, {1, 50, 60, 7, 1, 70, 80, 8, 1, 40, 45, 9}, {9, 7, 8});
        row("not against the last", 3, {1, 50, 60, 7, 1, 70, 80, 8, 1, 60, 65, 9}, {7, 8, 9});
        row("a tie keeps the earlier", 2, {1, 50, 60, 7, 1, 50, 55, 8}, {7, 8});
        row("beyond depth 1 in buffer order", 2, {1, one + 9, one + 9, 7, 1, one, one + 1, 8}, {7, 8});
        row("depth 1 is passed by a nearer one", 2, {1, one, one, 7, 1, one - 1, one, 8}, {8, 7});
        row("last name counts", 2, {3, 50, 60, 1, 2, 3, 1, 40, 50, 4}, {4, 3});
        row("no names", 2, {0, 10, 20, 1, 50, 60, 5}, {5});
        row("skipped ones set no depth", 3, {1, 10, 20, 0, 1, 50, 60, 5, 1, 30, 40, 6}, {6, 5});
        row("negative name", 2, {1, 10, 20, 0xFFFFFFFF, 1, 50, 60, 5}, {5});
    }

    void nearestHitComesFirst()
    {
        QFETCH(int, hits);
        QFETCH(QVector<unsigned>, buffer);
        QFETCH(QVector<int>, ids);
        QVector<int> found;
        for (const SelectionInfo& info : selectedList(hits, buffer.constData(), false))
            found.append(info.id);
        QCOMPARE(found, ids);
    }

    void hitsAreDescribed()
    {
        const unsigned buffer[] = {2, 1073741824, 4294967295U, 3, 4};
        const harness::Messages messages;
        const SelectionInfo info = selectedList(1, buffer, true).value(0);
        QCOMPARE(info.stackPosition, 2);
        QCOMPARE(info.minimumDepth, 0.5000000002328306);
        QCOMPARE(info.maximumDepth, 2.0000000004656613);
        QCOMPARE(messages.all(),
                 (QStringList{"debug: \nNumber selected objects = 1", "debug: Stacks position = 2",
                              "debug: Min depth = 0.5", "debug: Max depth = 2",
                              "debug: Ids in stack:", "debug: \tk=0; id=3", "debug: \tk=1; id=4",
                              "debug: id=4: [0.500000;2.000000], stack position 2"}));
    }
};

int main(int argc, char* argv[])
{
    return harness::run<TestInteraction>(argc, argv);
}

#include "tst_interaction.moc"
