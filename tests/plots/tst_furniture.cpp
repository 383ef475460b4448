#include "core/datacolor.h"
#include "core/gradientstops.h"
#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/look.h"
#include "scene/coordinatesystem.h"
#include "scene/title.h"
#include "view/light.h"

#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace Zel3D;
using namespace fixture;

using Rotation = ValueXYZ<double>;
Q_DECLARE_METATYPE(Rotation)
Q_DECLARE_METATYPE(Zel3D::Look)

namespace {

constexpr BaseAxisType directions[] = {XAxis, YAxis, ZAxis};

QList<int> visibleEdges(Plot& plot, BaseAxisType direction)
{
    QList<int> visible;
    for (AxisType edge : edgesOf(direction)) {
        if (plot.getCoordinateSystem().isAxisVisible(edge))
            visible.append(edge);
    }
    return visible;
}

QStringList storedBelow(const QString& group)
{
    QSettings store(organization, application);
    store.beginGroup(group);
    return store.allKeys();
}

} // namespace

class TestFurniture : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void orderOfDrawing();
    void pickingLeavesTheFurnitureOut();
    void titleAndLegendKeepClear_data();
    void titleAndLegendKeepClear();
    void titleOfAnyWidthKeepsClearOfTheLegend_data();
    void titleOfAnyWidthKeepsClearOfTheLegend();
    void legendShowsTheRangeOfTheColours_data();
    void legendShowsTheRangeOfTheColours();
    void legendGetsTheGradient();
    void scalesAndIntervalsReachTheAxes();
    void loadedIntervalsReachTheAxes();
    void newCornersMoveCameraAndLights();
    void titleAndGridSlots();
    void nothingToSaveAfterReset();
    void furnitureComesBack();
    void axisRecordsAreReadFromAnotherGroup();
    void oneEdgeForEachDirection_data();
    void oneEdgeForEachDirection();
    void edgesOfTheHostStay();
    void boxScalings_data();
    void boxScalings();
    void looksDressThePlot_data();
    void looksDressThePlot();
    void framesRenderNothingAnew();
};

void TestFurniture::orderOfDrawing()
{
    Plot plot;
    plot.setPlotStyle(4);
    plot.slotSetTitle("Title");
    plot.getLegend().setVisible(true);
    plot.setGridStyle(GridBottom);
    plot.getCoordinateSystem().getSettings().setGridColor(Qt::magenta);
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 200, 200));
    plot.updateGL();
    const GLRecorder recorder;
    plot.updateGL();
    const QImage& text = plot.getTitle().getImage();
    const QString title = QString("glDrawPixels(%1,%2,").arg(text.width()).arg(text.height());
    int last = -1;
    // The frame of the bar, the title, the list of the data, the colour of the grid.
    for (const QString& call :
         {QString("glBegin(2)"), title, QString("glCallList("), QString("glColor4d(1,0,1,1)")}) {
        const int place = recorder.indexOf(call);
        QVERIFY2(place > last, qPrintable(call));
        last = place;
    }
}

void TestFurniture::pickingLeavesTheFurnitureOut()
{
    Plot plot;
    Look::light().applyTo(plot);
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 200, 200));
    plot.setSelecting(true);
    plot.updateSelection();
    const GLRecorder recorder;
    plot.findObjects(QPointF(100, 100), plot.getSelectingModifiers());
    QVERIFY(recorder.count("glInitNames") > 0);
    for (const char* call : {"glDrawPixels", "glLineStipple", "glRasterPos3d", "glBegin"})
        QCOMPARE(recorder.count(call), 0);
}

void TestFurniture::titleAndLegendKeepClear_data()
{
    QTest::addColumn<double>("titleHeight");
    QTest::addColumn<int>("position");
    QTest::newRow("legend below the title") << 0.95 << int(Legend::Top);
    QTest::newRow("title that was moved into the window") << 1.0 << int(Legend::Top);
    QTest::newRow("numbers beside the legend") << 0.95 << int(Legend::Right);
    QTest::newRow("numbers above the legend") << 0.95 << int(Legend::Bottom);
}

void TestFurniture::titleAndLegendKeepClear()
{
    QFETCH(double, titleHeight);
    QFETCH(int, position);
    Plot plot;
    Look::light().applyTo(plot);
    plot.slotSetTitle("Title");
    plot.getTitle().setRelativePosition({0.5, titleHeight});
    plot.getLegend().setPosition(Legend::Position(position));
    QVERIFY(Heights(4, 4, plane).into(plot));
    plot.setRotation({30, 0, 30});
    QVERIFY(harness::show(plot, 300, 300));
    // The box reaches under legend and title, more or less.
    for (double zoom = 0.8; zoom < 2.0; zoom += 0.2) {
        plot.setZoom(zoom);
        plot.updateGL();
        const QRectF title = plot.getTitle().getRectangle();
        const QRectF legend = plot.getLegend().getRectangle();
        QVERIFY(!title.isEmpty() && !legend.isEmpty());
        QVERIFY(!title.intersects(legend));
        for (int i = 0; i < 12; ++i) {
            if (!plot.getCoordinateSystem().isAxisVisible(AxisType(i)))
                continue;
            for (const Axis::Major& tic : plot.getCoordinateSystem().getAxis(AxisType(i)).getMajors()) {
                const QRectF number = tic.label.getRectangle();
                QVERIFY(!number.intersects(title) && !number.intersects(legend));
            }
        }
    }
}

void TestFurniture::titleOfAnyWidthKeepsClearOfTheLegend_data()
{
    QTest::addColumn<int>("position");
    QTest::newRow("right") << int(Legend::Right);
    QTest::newRow("left") << int(Legend::Left);
}

void TestFurniture::titleOfAnyWidthKeepsClearOfTheLegend()
{
    QFETCH(int, position);
    Plot plot;
    Look::light().applyTo(plot);
    plot.getTitle().setRelativePosition({0.5, 0.97});
    plot.getLegend().setPosition(Legend::Position(position));
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 400, 200));
    bool beside = false;
    bool above = false;
    for (int length = 1; length < 60; ++length) {
        plot.slotSetTitle(QString(length, 'i'));
        plot.updateGL();
        const QRectF title = plot.getTitle().getRectangle();
        const QRectF legend = plot.getLegend().getRectangle();
        QVERIFY(!title.isEmpty() && !legend.isEmpty());
        QVERIFY2(!title.intersects(legend), qPrintable(QString::number(length)));
        // The legend gives way only when it must.
        const bool apart = title.right() <= legend.left() || legend.right() <= title.left();
        (apart ? beside : above) = true;
    }
    QVERIFY(beside && above);
}

void TestFurniture::legendShowsTheRangeOfTheColours_data()
{
    QTest::addColumn<double>("lower");
    QTest::addColumn<double>("upper");
    QTest::addColumn<QVector<double>>("limits");
    const QVector<double> hull{0.0, 33.0};
    QTest::newRow("the hull's z") << 0.0 << 0.0 << hull;
    QTest::newRow("gradient range") << -2.0 << 8.5 << QVector<double>{-2.0, 8.5};
    QTest::newRow("equal ends") << 5.0 << 5.0 << hull;
}

void TestFurniture::legendShowsTheRangeOfTheColours()
{
    QFETCH(double, lower);
    QFETCH(double, upper);
    Plot plot;
    QVERIFY(Heights(4, 4, plane).into(plot));
    plot.setGradientRange({lower, upper});
    const AxisRange& shown = plot.getLegend().getAxis().getRange();
    QTEST((QVector<double>{shown.minimum, shown.maximum}), "limits");
    QTEST((QVector<double>{plot.getLegendRange().first, plot.getLegendRange().second}), "limits");
}

void TestFurniture::legendGetsTheGradient()
{
    Plot plot;
    plot.getLegend().setVisible(true);
    QCOMPARE(plot.getLegend().getGradient().stops(), ramp().stops());
    plot.setGradient("red", plain(Qt::red));
    QCOMPARE(plot.getLegend().getGradient().stops(), plain(Qt::red).stops());
    plot.setDataColor(new DataColor(&plot, "own", plain(Qt::blue)));
    QCOMPARE(plot.getLegend().getGradient().stops(), plain(Qt::blue).stops());
    plot.setDataColor(nullptr);
    QVERIFY(gradientStops(plot.getLegend().getGradient()).isEmpty());
}

void TestFurniture::scalesAndIntervalsReachTheAxes()
{
    Plot plot;
    QCOMPARE(legendIntervals(plot), QString("2/10"));
    plot.setMinorInterval(ZAxis, Linear, 3);
    plot.setMajorInterval(ZAxis, Linear, 7);
    plot.setMajorInterval(XAxis, Linear, 6);
    const QString y = intervals(plot, YAxis);
    QCOMPARE(intervals(plot, XAxis).section('/', 1), QString("6"));
    QCOMPARE(intervals(plot, ZAxis), QString("3/7"));
    QCOMPARE(legendIntervals(plot), QString("3/7"));
    plot.setAxesScaleType(XAxis, Logarithmic);
    QVERIFY(isLogarithmic(plot, XAxis) && !isLogarithmic(plot, YAxis) && !isLogarithmic(plot, ZAxis));
    QVERIFY(!isLogarithmic(plot.getLegend().getAxis()));
    plot.setAxesScaleType(ZAxis, Logarithmic);
    QVERIFY(isLogarithmic(plot, ZAxis) && isLogarithmic(plot.getLegend().getAxis()));
    plot.setMinorInterval(ZAxis, Logarithmic, 5);
    // Each scale has its own division, which comes back with it.
    plot.setAxesScaleType(ZAxis, Linear);
    QVERIFY(!isLogarithmic(plot.getLegend().getAxis()));
    QCOMPARE(intervals(plot, ZAxis), QString("3/7"));
    QCOMPARE(legendIntervals(plot), QString("3/7"));
    plot.setAxesScaleType(ZAxis, Logarithmic);
    QCOMPARE(intervals(plot, ZAxis).section('/', 0, 0), QString("5"));
    QCOMPARE(legendIntervals(plot).section('/', 0, 0), QString("5"));
    QCOMPARE(intervals(plot, YAxis), y);
}

void TestFurniture::loadedIntervalsReachTheAxes()
{
    Plot saved;
    saved.setMinorInterval(XAxis, Linear, 4);
    saved.setMajorInterval(XAxis, Linear, 6);
    saved.setMajorInterval(ZAxis, Linear, 8);
    saved.slotSaveSettings();
    Plot loaded;
    loaded.slotLoadSettings();
    QCOMPARE(intervals(loaded, XAxis), QString("4/6"));
    QCOMPARE(intervals(loaded, ZAxis).section('/', 1), QString("8"));
    QCOMPARE(legendIntervals(loaded).section('/', 1), QString("8"));
}

void TestFurniture::newCornersMoveCameraAndLights()
{
    Plot plot;
    QVERIFY(loadHeights(plot, {0.0, 1.0, 2.0}));
    QCOMPARE(plot.first(), QVector3D(0, 0, 0));
    QCOMPARE(plot.second(), QVector3D(1, 2, 2));
    QCOMPARE(plot.getRadius(), 1.5);
    QCOMPARE(plot.getCenter(), QVector3D(0.5F, 1, 1));
    QCOMPARE(plot.getLights().first()->getMarkerHeight(), 3.0 * 0.5 / 10.0);
    QCOMPARE(plot.getLights().first()->getCenter(), plot.getCenter());
    plot.setLightsHeight(7.0);
    plot.createCoordinateSystem();
    plot.createCoordinateSystem({0, 0, 0}, {1, 2, 2});
    QCOMPARE(plot.getLights().first()->getMarkerHeight(), 7.0);
    plot.createCoordinateSystem({0, 0, 0}, {2, 4, 4});
    QCOMPARE(plot.getLights().first()->getMarkerHeight(), 6.0 * 0.5 / 10.0);
    QCOMPARE(plot.getRadius(), 3.0);
}

void TestFurniture::titleAndGridSlots()
{
    Plot plot;
    QVERIFY(harness::show(plot, 100, 100));
    QSignalSpy changed(&plot, &BasePlot::gridStyleChanged);
    const GLRecorder recorder;
    plot.slotSetTitle("Heights");
    QCOMPARE(plot.getTitle().getSettings().getText(), QString("Heights"));
    QCOMPARE(recorder.count("glClear"), 0);
    plot.slotSetGridStyle(GridLeft | GridTop);
    plot.slotSetGridStyle(GridLeft | GridTop);
    QCOMPARE(recorder.count("glClear"), 1);
    QCOMPARE(changed.size(), 0);
    QVERIFY(!plot.setGridStyle(GridLeft | GridTop) && plot.setGridStyle(GridFront));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toInt(), int(GridFront));
    QCOMPARE(recorder.count("glClear"), 1);
}

void TestFurniture::nothingToSaveAfterReset()
{
    const char* const groups[] = {"plot/title", "plot/coordsystem", "plot/axis0", "plot/legend"};
    Plot plot;
    Look::print().applyTo(plot);
    plot.slotSetTitle("Heights");
    plot.getTitle().setRelativePosition({0.2, 0.3});
    plot.slotSaveSettings();
    for (const char* group : groups)
        QVERIFY2(!storedBelow(group).isEmpty(), group);
    harness::clearStore();
    plot.resetNeedSave();
    plot.slotSaveSettings();
    for (const char* group : groups)
        QVERIFY2(storedBelow(group).isEmpty(), qPrintable(storedBelow(group).join(' ')));
}

void TestFurniture::furnitureComesBack()
{
    Plot saved;
    saved.slotSetTitle("Heights");
    saved.getTitle().setRelativePosition({0.2, 0.3});
    saved.getLegend().setVisible(true);
    saved.getLegend().setPosition(Legend::Bottom);
    saved.getLegend().markSettingsForSaving();
    saved.setGridStyle(GridLeft | GridTop);
    saved.getCoordinateSystem().getSettings().setGridColor(Qt::magenta);
    saved.slotSaveSettings();
    Plot loaded;
    loaded.slotLoadSettings();
    QCOMPARE(loaded.getTitle().getSettings().getText(), QString("Heights"));
    QCOMPARE(loaded.getTitle().getRelativePosition(), QPointF(0.2, 0.3));
    QVERIFY(loaded.getLegend().isVisible());
    QCOMPARE(loaded.getLegend().getSettings().getPosition(), Legend::Bottom);
    QCOMPARE(loaded.getLegend().getSettings().getOrientation(), 1);
    QCOMPARE(loaded.getCoordinateSystem().getSettings().getGridStyle(), GridLeft | GridTop);
    QCOMPARE(loaded.getCoordinateSystem().getSettings().getGridColor(), QColor(Qt::magenta));
}

void TestFurniture::axisRecordsAreReadFromAnotherGroup()
{
    Plot saved;
    saved.getCoordinateSystem().getAxis(XFrontTop).getSettings().getLine().setColor(Qt::magenta);
    saved.getCoordinateSystem().getAxis(XFrontTop).getLabel().getSettings().setText("x");
    saved.slotSaveSettings();
    QVERIFY(!storedBelow("plot/axis3").isEmpty());
    Plot loaded;
    loaded.slotLoadSettings();
    const Axis& axis = loaded.getCoordinateSystem().getAxis(XFrontTop);
    QVERIFY(axis.getSettings().getLine().getColor() != QColor(Qt::magenta));
    QVERIFY(axis.getLabel().getSettings().getText() != "x");
}

void TestFurniture::oneEdgeForEachDirection_data()
{
    QTest::addColumn<Rotation>("rotation");
    QTest::addColumn<QVector<int>>("edges"); // x, y, z; -1 for an axis that is seen end-on
    const auto row = [](const char* name, const Rotation& rotation, const QVector<int>& edges) {
        QTest::newRow(name) << rotation << edges;
    };
    row("turned a little", {30, 0, 30}, {XFrontBottom, YLeftBottom, ZBackLeft});
    row("turned to the other side", {30, 0, -30}, {XFrontBottom, YRightBottom, ZFrontLeft});
    row("from behind", {30, 0, 150}, {XBackBottom, YLeftBottom, ZBackRight});
    row("from the front", {0, 0, 0}, {XFrontBottom, -1, ZFrontLeft});
    row("from above", {90, 0, 0}, {XFrontBottom, YRightBottom, -1});
}

void TestFurniture::oneEdgeForEachDirection()
{
    QFETCH(Rotation, rotation);
    QFETCH(QVector<int>, edges);
    Plot plot;
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 200, 200));
    plot.setRotation(rotation);
    plot.updateGL();
    QVector<int> found;
    for (BaseAxisType direction : directions) {
        const QList<int> visible = visibleEdges(plot, direction);
        QVERIFY(visible.size() <= 1);
        found.append(visible.isEmpty() ? -1 : visible.first());
    }
    QVERIFY2(found == edges, qPrintable(QString("%1 %2 %3").arg(found[0]).arg(found[1]).arg(found[2])));
}

void TestFurniture::edgesOfTheHostStay()
{
    Plot plot;
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 200, 200));
    plot.setAutomaticEdges(false);
    plot.getCoordinateSystem().setAxisVisible(false);
    plot.getCoordinateSystem().setAxesVisible(XBackTop, true);
    plot.getCoordinateSystem().setAxesVisible(XFrontTop, true);
    for (double turn : {0.0, 100.0, 200.0}) {
        plot.setRotation({30, 0, turn});
        plot.updateGL();
        QCOMPARE(visibleEdges(plot, XAxis), (QList<int>{XFrontTop, XBackTop}));
        QVERIFY(visibleEdges(plot, YAxis).isEmpty() && visibleEdges(plot, ZAxis).isEmpty());
    }
    plot.setAutomaticEdges(true);
    plot.updateGL();
    QCOMPARE(visibleEdges(plot, XAxis).size(), 1);
    QCOMPARE(visibleEdges(plot, YAxis).size(), 1);
}

void TestFurniture::boxScalings_data()
{
    QTest::addColumn<QVector<BoxScaling>>("way");
    QTest::addColumn<QVector<double>>("scale");
    QTest::addColumn<int>("changes");
    const QVector<double> user{2, 3, 0.5};
    QTest::newRow("cube") << QVector<BoxScaling>{CubeScaling} << QVector<double>{4, 2, 1} << 1;
    QTest::newRow("equal units") << QVector<BoxScaling>{EqualUnits} << QVector<double>{1, 1, 1} << 1;
    QTest::newRow("equal units after the cube")
        << QVector<BoxScaling>{CubeScaling, EqualUnits} << QVector<double>{1, 1, 1} << 2;
    QTest::newRow("twice the same") << QVector<BoxScaling>{CubeScaling, CubeScaling}
                                    << QVector<double>{4, 2, 1} << 1;
    QTest::newRow("by hand again") << QVector<BoxScaling>{CubeScaling, EqualUnits, ManualScaling} << user
                                   << 3;
    QTest::newRow("by hand all the time") << QVector<BoxScaling>{ManualScaling} << user << 0;
}

void TestFurniture::boxScalings()
{
    QFETCH(QVector<BoxScaling>, way);
    QFETCH(int, changes);
    Plot plot;
    QVERIFY(loadHeights(plot, {0.0, 4.0, 1.0}));
    // Without a context the slot does nothing.
    plot.slotSetBoxScaling(EqualUnits);
    QCOMPARE(plot.getBoxScaling(), CubeScaling);
    QVERIFY(harness::show(plot, 100, 100));
    plot.slotSetBoxScaling(ManualScaling);
    plot.slotSetScale({2.0, 3.0, 0.5});
    QSignalSpy changed(&plot, &BasePlot::boxScalingChanged);
    QSignalSpy never(&plot, &BasePlot::autoScalingChanged);
    const GLRecorder recorder;
    for (BoxScaling scaling : way)
        plot.slotSetBoxScaling(scaling);
    QCOMPARE(recorder.count("glClear"), changes);
    QCOMPARE(changed.size(), changes);
    QCOMPARE(never.size(), 0);
    QCOMPARE(plot.isAutoScaling(), way.last() == CubeScaling);
    const auto scale = [&plot] {
        return QVector<double>{plot.getScale().x, plot.getScale().y, plot.getScale().z};
    };
    QTEST(scale(), "scale");
    const QVector<double> before = scale();
    plot.slotSetScale({5.0, 5.0, 5.0});
    QCOMPARE(scale() == before, way.last() != ManualScaling);
}

void TestFurniture::looksDressThePlot_data()
{
    QTest::addColumn<Look>("look");
    for (const Look& look : Look::all())
        QTest::newRow(qPrintable(look.name)) << look;
}

void TestFurniture::looksDressThePlot()
{
    QFETCH(Look, look);
    Plot plot;
    QVERIFY(Heights(4, 4, plane).into(plot));
    plot.slotSetTitle("Heights");
    plot.setRotation({30, 0, 40});
    plot.setZoom(0.8);
    plot.getCoordinateSystem().getAxis(XBackTop).getLabel().getSettings().setText("x");
    look.applyTo(plot);
    QCOMPARE(plot.getTitle().getSettings().getText(), QString("Heights"));
    QCOMPARE(plot.getCoordinateSystem().getAxis(XBackTop).getLabel().getSettings().getText(), QString("x"));
    QCOMPARE(plot.getRotation().z, 40.0);
    QCOMPARE(plot.getZoom(), 0.8);
    QCOMPARE(plot.getHull(), (Parallelepiped{{0, 0, 0}, {3, 3, 33}}));
    QCOMPARE(plot.getBackgroundColor(), look.background);
    QCOMPARE(plot.getCurrentGradient().stops(), look.gradient.stops());
    QVERIFY(plot.getLegend().isVisible());
    QVERIFY(plot.getCoordinateSystem().getSettings().getGridStyle() != 0);
    QVERIFY(look.gridColor != look.background);

    QList<QColor> inks{plot.getTitle().getSettings().getColor()};
    const auto check = [&inks](Axis& axis) {
        const Axis::Settings& settings = axis.getSettings();
        inks << settings.getLine().getColor() << settings.getNumbers().getColor()
             << axis.getLabel().getSettings().getColor() << axis.getArrow().getSettings().getColor();
        return settings.getLine().isVisible() && settings.getTics().isVisible() &&
               settings.getNumbers().isVisible();
    };
    for (int i = 0; i < 12; ++i)
        QVERIFY(check(plot.getCoordinateSystem().getAxis(AxisType(i))));
    QVERIFY(check(plot.getLegend().getAxis()));
    for (const QColor& ink : inks)
        QVERIFY2(std::abs(ink.lightness() - plot.getBackgroundColor().lightness()) >= 100,
                 qPrintable(ink.name()));
}

void TestFurniture::framesRenderNothingAnew()
{
    Plot plot;
    plot.setPlotStyle(5);
    Look::light().applyTo(plot);
    plot.slotSetTitle("Heights");
    QVERIFY(Heights(4, 4, plane).into(plot));
    plot.getCoordinateSystem().getAxis(XFrontBottom).getLabel().getSettings().setText("x");
    plot.setRotation({30, 0, 30});
    QVERIFY(harness::show(plot, 300, 300));
    plot.updateGL();
    const auto images = [&plot] {
        QList<qint64> keys{plot.getTitle().getImage().cacheKey()};
        QList<Axis*> axes{&plot.getLegend().getAxis()};
        for (int i = 0; i < 12; ++i)
            axes.append(&plot.getCoordinateSystem().getAxis(AxisType(i)));
        for (const Axis* axis : qAsConst(axes)) {
            keys.append(axis->getLabel().getImage().cacheKey());
            for (const Axis::Major& tic : axis->getMajors())
                keys.append(tic.label.getImage().cacheKey());
        }
        return keys;
    };
    const QList<qint64> first = images();
    QVERIFY(std::count_if(first.begin(), first.end(), [](qint64 key) { return key != 0; }) > 12);
    const GLRecorder recorder;
    for (int i = 0; i < 3; ++i)
        plot.updateGL();
    QVERIFY(recorder.count("glDrawPixels") > 12);
    QCOMPARE(recorder.count("glNewList"), 0);
    QCOMPARE(images(), first);
}

int main(int argc, char* argv[])
{
    return harness::run<TestFurniture>(argc, argv);
}

#include "tst_furniture.moc"
