// A plot on its way between two screens, the second of which has twice the pixels to the same length.

#include "harness/harness.h"
#include "plotfixture.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>
#include <QtTest>

#include <array>

using namespace Zel3D;
using namespace fixture;

namespace {

constexpr QSize shownSize(300, 200);

bool load(Plot& plot)
{
    plot.setPlotStyle(4);
    plot.setRotation({30.0, 0.0, 20.0});
    return Heights(7, 7, plane).into(plot);
}

/// Puts a shown window onto a screen, of which nothing but its pixel ratio tells it. False when it does not
/// get there.
bool putOnto(QWidget& window, QScreen* screen)
{
    window.move(screen->geometry().topLeft() + QPoint(20, 20));
    window.windowHandle()->setScreen(screen);
    return QTest::qWaitFor([&] { return window.devicePixelRatioF() == screen->devicePixelRatio(); });
}

/// The same as a desktop does it: the pixels of the window follow its size.
bool moveTo(QWidget& window, QScreen* screen)
{
    const QSize size = window.size();
    if (!putOnto(window, screen))
        return false;
    window.resize(size + QSize(0, 1));
    QCoreApplication::processEvents();
    window.resize(size);
    return QTest::qWaitForWindowExposed(&window);
}

/// What is picked in the middle of the window, in the data's coordinates.
std::array<double, 3> pickMiddle(Plot& plot)
{
    SelectedObjectsInfo found;
    const auto connection = QObject::connect(&plot, &ZelGLWidget::selectedObject,
                                             [&](const SelectedObjectsInfo& info) { found = info; });
    plot.findObjects(QPointF(plot.width() / 2.0, plot.height() / 2.0), Qt::NoModifier);
    QObject::disconnect(connection);
    return found.valid ? std::array<double, 3>{found.x, found.y, found.z}
                       : std::array<double, 3>{-1.0, -1.0, -1.0};
}

} // namespace

class TestScreens : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void aMovedPlotIsAsSharpAsANewOne();
    void picksFollow();
    void aDockedPlotMovesWithItsWindow();

private:
    QScreen* coarse = nullptr;
    QScreen* fine = nullptr;
};

void TestScreens::init()
{
    harness::clearStore();
    const QList<QScreen*> screens = QGuiApplication::screens();
    QCOMPARE(screens.size(), 2);
    coarse = screens.at(0);
    fine = screens.at(1);
    QCOMPARE(coarse->devicePixelRatio(), 1.0);
    QCOMPARE(fine->devicePixelRatio(), 2.0);
}

void TestScreens::aMovedPlotIsAsSharpAsANewOne()
{
    Plot plot;
    QVERIFY(load(plot));
    QVERIFY(harness::show(plot, shownSize.width(), shownSize.height()));
    const QImage before = harness::grab(plot);
    QCOMPARE(before.size(), shownSize);
    QVERIFY(moveTo(plot, fine));
    const QImage moved = harness::grab(plot);
    QCOMPARE(moved.size(), 2 * shownSize);

    Plot fresh;
    QVERIFY(load(fresh));
    QVERIFY(harness::show(fresh, shownSize.width(), shownSize.height()));
    QVERIFY(moveTo(fresh, fine));
    QVERIFY(load(fresh));
    QCOMPARE(moved, harness::grab(fresh));

    QVERIFY(moveTo(plot, coarse));
    QCOMPARE(harness::grab(plot), before);
}

void TestScreens::picksFollow()
{
    Plot plot;
    QVERIFY(load(plot));
    plot.setRotation({90.0, 0.0, 0.0});
    plot.setSelecting(true);
    QVERIFY(harness::show(plot, shownSize.width(), shownSize.height()));
    const std::array<double, 3> before = pickMiddle(plot);
    QVERIFY(before[0] >= 0.0);
    for (QScreen* screen : {fine, coarse, fine}) {
        QVERIFY(putOnto(plot, screen));
        harness::grab(plot);
        QCOMPARE(pickMiddle(plot), before);
    }
}

void TestScreens::aDockedPlotMovesWithItsWindow()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* plot = new Plot;
    layout->addWidget(plot);
    QVERIFY(load(*plot));
    QVERIFY(harness::show(window, shownSize.width(), shownSize.height()));
    const QImage before = harness::grab(*plot);
    QVERIFY(moveTo(window, fine));
    QVERIFY(load(*plot));
    Plot alone;
    QVERIFY(load(alone));
    QVERIFY(harness::show(alone, shownSize.width(), shownSize.height()));
    QVERIFY(moveTo(alone, fine));
    QCOMPARE(harness::grab(*plot), harness::grab(alone));
    QVERIFY(moveTo(window, coarse));
    QCOMPARE(harness::grab(*plot), before);
}

int main(int argc, char* argv[])
{
    return harness::run<TestScreens>(argc, argv);
}

#include "tst_screens.moc"
