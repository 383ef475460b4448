// Views that follow each other and changes of views that are taken back.

#include "formulasource.h"
#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plots/baseplot.h"
#include "spectrasource.h"
#include "viewhistory.h"
#include "viewlink.h"

#include <QAction>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QtTest>

#include <cmath>
#include <functional>

using Zel3D::BasePlot;

namespace {

/// A plot with the source that it must not outlive.
struct Shown
{
    explicit Shown(std::unique_ptr<PlotSource> origin) : source(std::move(origin)), view(source->open()) {}
    BasePlot& plot() const { return view->plot(); }

    std::unique_ptr<PlotSource> source;
    std::unique_ptr<PlotView> view;
};

void sendMouse(QWidget& plot, QEvent::Type type, const QPoint& position)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, position, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&plot, &event);
}

/// A drag through steps, slow at its end unless it is to go on turning.
void drag(QWidget& plot, const QList<QPoint>& steps, bool keepTurning = false)
{
    QPoint place(100, 100);
    sendMouse(plot, QEvent::MouseButtonPress, place);
    for (const QPoint& step : steps) {
        place += step;
        sendMouse(plot, QEvent::MouseMove, place);
        QCoreApplication::processEvents();
    }
    if (!keepTurning)
        sendMouse(plot, QEvent::MouseMove, place);
    sendMouse(plot, QEvent::MouseButtonRelease, place);
    QCoreApplication::processEvents();
}

void turnWheel(QWidget& plot, int notches)
{
    for (int i = 0; i < std::abs(notches); ++i) {
        QWheelEvent event(QPointF(50, 50), plot.mapToGlobal(QPoint(50, 50)), QPoint(),
                          QPoint(0, notches > 0 ? 120 : -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&plot, &event);
        QCoreApplication::processEvents();
    }
}

bool same(PlotView& view, const ViewState& state)
{
    return ViewState::of(view).differingFrom(state) == 0;
}

double widthOf(PlotView& view)
{
    const Zel3D::Parallelepiped& box = view.plot().getHull();
    return double(box.maximum.x() - box.minimum.x());
}

const QList<QPoint> steps{{7, 3}, {5, 9}, {-2, 4}};

using Act = std::function<void(PlotView&)>;
using Reading = std::function<double(PlotView&)>;

} // namespace

Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Reading)

class TestViewHistory : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void linkPassesEveryPart_data();
    void linkPassesEveryPart();
    void linkDoesNotDrift();
    void linkFitsEachToItsWindow();
    void onlyOneTurnsByItself();
    void gesturesAreEntries_data();
    void gesturesAreEntries();
    void sizeOfTheWindowIsNoEntry();
    void linkedPlotsGoBackTogether();
    void linkingCanBeTakenBack();

private:
    std::unique_ptr<ViewLink> m_link;
    std::unique_ptr<ViewHistory> m_history;
    std::vector<Shown> m_plots; ///< a surface, spectra and a surface that is hidden
};

void TestViewHistory::init()
{
    m_plots.emplace_back(std::make_unique<FormulaSource>("x*y", FormulaArea()));
    m_plots.emplace_back(
        std::make_unique<SpectraSource>(QString(VORAN_SOURCE_DIR) + "/examples/data/gasoline_nir.csv"));
    m_plots.emplace_back(std::make_unique<FormulaSource>("x+y", FormulaArea()));
    m_link = std::make_unique<ViewLink>();
    m_history = std::make_unique<ViewHistory>(*m_link);
    for (const Shown& shown : m_plots) {
        QVERIFY(harness::show(shown.plot(), 300, 240));
        m_history->add(*shown.view);
        m_link->add(*shown.view);
    }
    m_plots[2].plot().hide();
    m_plots[1].plot().resize(200, 300);
    QCoreApplication::processEvents();
    m_history->setCurrent(m_plots[0].view.get());
}

void TestViewHistory::cleanup()
{
    m_history.reset();
    m_link.reset();
    m_plots.clear();
}

void TestViewHistory::linkPassesEveryPart_data()
{
    QTest::addColumn<Act>("change");
    QTest::addColumn<Reading>("reading"); // alike in all plots
    QTest::addColumn<int>("from");
    const auto row = [](const char* name, const Act& change, const Reading& reading) {
        for (const int from : {0, 1})
            QTest::newRow(qPrintable(QString("%1 from %2").arg(name).arg(from))) << change << reading << from;
    };
    row(
        "rotation",
        [](PlotView& view) {
            view.plot().slotSetRotation({10.0, 20.0, 30.0});
        },
        [](PlotView& view) { return view.plot().getRotation().y; });
    row(
        "zoom", [](PlotView& view) { view.plot().slotSetZoom(2.0 * view.plot().getZoom()); },
        [](PlotView& view) { return view.plot().getZoom() / view.fittedZoom(); });
    row(
        "shift",
        [](PlotView& view) {
            view.plot().slotSetShift({0.25 * widthOf(view), 0.0, 0.0});
        },
        [](PlotView& view) { return view.plot().getShift().x / widthOf(view); });
    row(
        "shift of the picture",
        [](PlotView& view) {
            view.plot().slotSetViewportShift({0.3, -0.2});
        },
        [](PlotView& view) { return view.plot().getViewportShift().y; });
    row(
        "projection", [](PlotView& view) { view.plot().slotSetProjectionType(Zel3D::Perspective); },
        [](PlotView& view) { return double(view.plot().getProjectionType()); });
}

void TestViewHistory::linkPassesEveryPart()
{
    QFETCH(Act, change);
    QFETCH(Reading, reading);
    QFETCH(int, from);
    m_link->setOn(true, *m_plots[0].view);
    PlotView& source = *m_plots[std::size_t(from)].view;
    const double before = reading(source);
    QCoreApplication::processEvents();
    const GLRecorder recorder;
    change(source);
    QCoreApplication::processEvents();
    const double after = reading(source);
    QVERIFY(std::abs(after - before) > 1e-3);
    for (const Shown& shown : m_plots)
        QVERIFY2(std::abs(reading(*shown.view) - after) < 1e-6, qPrintable(shown.source->name()));
    // Each plot that is seen is painted once.
    QCOMPARE(recorder.count("glClear"), 2);
    m_link->setOn(false, source);
    m_history->undo();
    QVERIFY(std::abs(reading(*m_plots[0].view) - before) < 1e-6);
    QVERIFY(std::abs(reading(*m_plots[1].view) - after) < 1e-6);
}

void TestViewHistory::linkDoesNotDrift()
{
    m_link->setOn(true, *m_plots[0].view);
    BasePlot& surface = m_plots[0].plot();
    BasePlot& spectra = m_plots[1].plot();
    spectra.setShift({0.1, 0.7, 1.0 / 3.0});
    surface.setZoom(1.3);
    const Zel3D::ValueXYZ<double> shift = surface.getShift();
    const double zoom = spectra.getZoom();
    QSignalSpy heard(&surface, &BasePlot::rotationChanged);
    for (int i = 0; i < 300; ++i)
        (i % 2 == 0 ? surface : spectra).setRotation({0.1 * i, 45.0, -0.7 * i});
    QCOMPARE(heard.count(), 300);
    QVERIFY(surface.getRotation().z == spectra.getRotation().z);
    // What nobody changed is the same to the last bit.
    QVERIFY(surface.getShift().y == shift.y && surface.getZoom() == 1.3 && spectra.getZoom() == zoom);
}

void TestViewHistory::linkFitsEachToItsWindow()
{
    for (const Shown& shown : m_plots)
        shown.plot().setZoom(0.1);
    m_link->setOn(true, *m_plots[0].view);
    m_plots[0].view->resetView();
    QVERIFY(m_plots[1].view->isFitted());
    const double zoom = m_plots[1].plot().getZoom();
    m_plots[1].plot().resize(500, 200);
    QTRY_VERIFY(m_plots[1].plot().getZoom() != zoom);
    QVERIFY(m_plots[0].view->isFitted() && m_plots[1].view->isFitted());
}

void TestViewHistory::onlyOneTurnsByItself()
{
    m_link->setOn(true, *m_plots[0].view);
    drag(m_plots[0].plot(), {{9, 9}}, true);
    QVERIFY(m_plots[0].plot().isAutoRotating());
    const double angle = m_plots[1].plot().getRotation().z;
    QTRY_VERIFY(std::abs(m_plots[1].plot().getRotation().z - angle) > 2.0);
    sendMouse(m_plots[1].plot(), QEvent::MouseButtonPress, {50, 50});
    QVERIFY(!m_plots[0].plot().isAutoRotating() && m_plots[0].plot().isAutoRotate());
    sendMouse(m_plots[1].plot(), QEvent::MouseButtonRelease, {50, 50});
}

void TestViewHistory::gesturesAreEntries_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QStringList>("entries"); // the latest first
    const auto row = [](const char* name, const QStringList& entries, const Act& act) {
        QTest::newRow(name) << act << entries;
    };
    row("drag", {"rotate"}, [](PlotView& view) { drag(view.plot(), steps); });
    row("two drags", {"rotate", "rotate"}, [](PlotView& view) {
        drag(view.plot(), steps);
        drag(view.plot(), steps);
    });
    row("drag with a rest", {"rotate"}, [](PlotView& view) {
        sendMouse(view.plot(), QEvent::MouseButtonPress, {100, 100});
        sendMouse(view.plot(), QEvent::MouseMove, {120, 100});
        QTest::qWait(1000);
        sendMouse(view.plot(), QEvent::MouseMove, {130, 100});
        sendMouse(view.plot(), QEvent::MouseMove, {130, 100});
        sendMouse(view.plot(), QEvent::MouseButtonRelease, {130, 100});
    });
    row("there and back", {}, [](PlotView& view) { drag(view.plot(), {{8, 4}, {-8, -4}}); });
    row("drag that goes on turning", {"auto-rotation", "rotate"}, [](PlotView& view) {
        drag(view.plot(), {{9, 9}}, true);
        QTest::qWait(100);
        sendMouse(view.plot(), QEvent::MouseButtonPress, {50, 50});
        sendMouse(view.plot(), QEvent::MouseButtonRelease, {50, 50});
    });
    row("wheel", {"zoom"}, [](PlotView& view) { turnWheel(view.plot(), 5); });
    row("wheel after a rest", {"zoom", "zoom"}, [](PlotView& view) {
        turnWheel(view.plot(), 3);
        QTest::qWait(1000);
        turnWheel(view.plot(), 3);
    });
    row("keys that turn and shift", {"shift", "rotate"}, [](PlotView& view) {
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(&view.plot(), Qt::Key_Left);
        QTest::keyClick(&view.plot(), Qt::Key_Left, Qt::ControlModifier);
    });
    row("wheel, then reset", {"reset view", "zoom"}, [](PlotView& view) {
        turnWheel(view.plot(), 2);
        view.resetView();
    });
    row("standard views", {"standard view", "standard view"}, [](PlotView& view) {
        view.plot().slotTopView();
        QCoreApplication::processEvents();
        view.plot().slotLeftView();
    });
    row("scale by hand", {"stretch"}, [](PlotView& view) {
        view.plot().slotSetBoxScaling(Zel3D::ManualScaling);
        QCoreApplication::processEvents();
        view.plot().slotSetScale({1.0, 2.0, 3.0});
    });
    row("perspective", {"projection"},
        [](PlotView& view) { view.plot().slotSetProjectionType(Zel3D::Perspective); });
}

void TestViewHistory::gesturesAreEntries()
{
    QFETCH(Act, act);
    QFETCH(QStringList, entries);
    PlotView& view = *m_plots[0].view;
    const ViewState start = ViewState::of(view);
    act(view);
    QCoreApplication::processEvents();
    const ViewState end = ViewState::of(view);
    for (const QString& entry : entries) {
        QCOMPARE(m_history->undoAction()->text(), "&Undo " + entry);
        m_history->undoAction()->trigger();
    }
    QVERIFY(!m_history->undoAction()->isEnabled());
    QVERIFY(same(view, start));
    for (int i = 0; i < entries.size(); ++i)
        m_history->redoAction()->trigger();
    QVERIFY(!m_history->redoAction()->isEnabled());
    QVERIFY(same(view, end));
}

void TestViewHistory::sizeOfTheWindowIsNoEntry()
{
    PlotView& view = *m_plots[0].view;
    const double zoom = view.plot().getZoom();
    view.plot().resize(180, 300);
    QTRY_VERIFY(view.plot().getZoom() != zoom);
    QVERIFY(!m_history->undoAction()->isEnabled());
    const double fitting = view.plot().getZoom();
    view.plot().resize(300, 240);
    QTRY_COMPARE(view.plot().getZoom(), zoom);
    turnWheel(view.plot(), 3);
    view.plot().resize(180, 300);
    QCoreApplication::processEvents();
    m_history->undo();
    // It filled the window, and fills the one that it has now.
    QCOMPARE(view.plot().getZoom(), fitting);
    QVERIFY(view.isFitted());
}

void TestViewHistory::linkedPlotsGoBackTogether()
{
    PlotView& first = *m_plots[0].view;
    PlotView& second = *m_plots[1].view;
    drag(second.plot(), steps);
    m_link->setOn(true, second);
    const ViewState before[] = {ViewState::of(first), ViewState::of(second)};
    turnWheel(first.plot(), 4);
    drag(first.plot(), steps);
    const ViewState after[] = {ViewState::of(first), ViewState::of(second)};
    // Whichever of them is shown.
    m_history->setCurrent(&second);
    m_history->undo();
    QCOMPARE(m_history->undoAction()->text(), QString("&Undo zoom"));
    m_history->undo();
    QVERIFY(same(first, before[0]) && same(second, before[1]));
    m_history->setCurrent(&first);
    m_history->redo();
    m_history->redo();
    QVERIFY(same(first, after[0]) && same(second, after[1]));
    // To the last bit, although the others' zooms are computed from one.
    QList<double> zooms;
    for (int i = 1; i < 12; ++i) {
        zooms.append(first.plot().getZoom());
        first.plot().setZoom(1.0 / 3.0 + 0.17 * i);
        QCoreApplication::processEvents();
    }
    m_history->setCurrent(&second);
    while (!zooms.isEmpty()) {
        m_history->undo();
        QVERIFY(first.plot().getZoom() == zooms.takeLast());
    }
    m_history->setCurrent(&first);
    // Apart they go back apart.
    m_link->setOn(false, first);
    m_history->undo();
    QVERIFY(!same(first, after[0]) && same(second, after[1]));
    m_history->remove(second);
    m_link->remove(second);
    m_history->undo();
    QVERIFY(same(first, before[0]));
}

void TestViewHistory::linkingCanBeTakenBack()
{
    PlotView& second = *m_plots[1].view;
    const ViewState own = ViewState::of(second);
    m_plots[0].plot().setRotation({80.0, 0.0, 10.0});
    QCoreApplication::processEvents();
    m_link->setOn(true, *m_plots[0].view);
    QVERIFY(!same(second, own));
    m_link->setOn(false, second);
    m_history->setCurrent(&second);
    QCOMPARE(m_history->undoAction()->text(), QString("&Undo link of views"));
    m_history->undo();
    QVERIFY(same(second, own));
}

int main(int argc, char* argv[])
{
    return harness::run<TestViewHistory>(argc, argv);
}

#include "tst_viewhistory.moc"
