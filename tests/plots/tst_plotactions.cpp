#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/plotactions.h"
#include "plots/styleaction.h"

#include <QActionGroup>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QSet>
#include <QSignalSpy>
#include <QTimer>
#include <QToolBar>
#include <QtTest>

#include <memory>

using namespace Zel3D;
using namespace fixture;

Q_DECLARE_METATYPE(QContextMenuEvent::Reason)
Q_DECLARE_METATYPE(ValueXYZ<double>)
Q_DECLARE_METATYPE(std::function<void(Plot&)>)

namespace {

/// A plot without data and without styles, unless some are added.
class Bare : public BasePlot
{
public:
    explicit Bare(bool withStyles = false)
        : BasePlot("bare", fixture::organization, fixture::application), styles(withStyles)
    {
        Bare::createPlotStyleActions();
        createPlotStyleToolBar();
        createContextMenu();
    }
    void updateDataType(int) override {}
    void clearData() override {}
    void slotSettingsDialog() override { ++dialogs; }

    using BasePlot::createContextMenu;
    using BasePlot::createViewsToolBar;

    int dialogs = 0;

protected:
    void createNormals() override {}
    void createPlotStyleActions() override
    {
        if (!styles)
            return;
        addStyleAction(9, "", "Nine");
        addStyleAction(2, "", "Two");
    }

private:
    bool styles;
};

QAction* actionIn(const QWidget* holder, const QString& text)
{
    for (QAction* action : holder->actions()) {
        if (action->text() == text)
            return action;
    }
    qFatal("No action %s", qPrintable(text));
}

QStringList textsOf(const QWidget* holder)
{
    QStringList texts;
    for (const QAction* action : holder->actions())
        texts.append(action->isSeparator() ? QString("-") : action->text());
    return texts;
}

QString checkedIn(const QWidget* holder)
{
    QStringList texts;
    for (const QAction* action : holder->actions()) {
        if (action->isChecked())
            texts.append(action->text());
    }
    return texts.join(' ');
}

/// The value that the legend marks; NaN without one.
double marked(Plot& plot)
{
    return plot.getLegend().isValueShown() ? plot.getLegend().getValue() : qQNaN();
}

bool same(const ValueXYZ<double>& a, const ValueXYZ<double>& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

} // namespace

class TestPlotActions : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void bars_data();
    void bars();
    void icons();
    void standardViews_data();
    void standardViews();
    void gridFaces_data();
    void gridFaces();
    void unknownActionsChooseNothing();
    void barsFollowThePlot_data();
    void barsFollowThePlot();
    void followingDoesNotFeedBack();
    void stylesExclude();
    void stylesWaitForTheContext();
    void contextMenu_data();
    void contextMenu();
    void menuOpensBesideTheEvent_data();
    void menuOpensBesideTheEvent();
    void plotGoesWhileItsMenuIsOpen();
    void barsAndHosts_data();
    void barsAndHosts();
    void actionsOutliveTheirBars();
    void pickedValueOnTheLegend_data();
    void pickedValueOnTheLegend();
    void hoveringMarksTheExponent();
    void legendRepaintsWhenTheMarkerChanges();
    void pickingMakesItsGeometry();
};

void TestPlotActions::bars_data()
{
    QTest::addColumn<PlotToolBarType>("type");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("tips");
    QTest::addColumn<bool>("checkable");
    const QStringList faces{"Top", "Bottom", "Left", "Right", "Front", "Back"};
    const QStringList styles{"No plot", "Points",          "Wireframe", "Hidden line",
                             "Filled",  "Filled and mesh", "Histogram"};
    QTest::newRow("grid") << GridStyleToolBar << "Grid style"
                          << "gridStyleToolBar" << faces << faces << true;
    QTest::newRow("styles") << PlotStyleToolBar << "Plot style"
                            << "plotStyleToolBar" << styles << styles << true;
    QTest::newRow("views") << ViewsToolBar << "Views"
                           << "viewsToolBar" << QStringList{"&Top view",   "&Bottom view", "&Left view",
                                                            "&Right view", "&Front view",  "Bac&k view"}
                           << QStringList{"Top view",   "Bottom view", "Left view",
                                          "Right view", "Front view",  "Back view"}
                           << false;
}

void TestPlotActions::bars()
{
    QFETCH(PlotToolBarType, type);
    QFETCH(QString, title);
    QFETCH(QString, name);
    QFETCH(QStringList, texts);
    QFETCH(QStringList, tips);
    QFETCH(bool, checkable);
    const Plot plot;
    const QToolBar* bar = plot.getToolBar(type);
    QVERIFY(bar && !bar->parent());
    QCOMPARE(bar->windowTitle(), title);
    QCOMPARE(bar->objectName(), name);
    QCOMPARE(textsOf(bar), texts);
    for (int i = 0; i < tips.size(); ++i) {
        const QAction* action = bar->actions().at(i);
        QCOMPARE(action->toolTip(), tips.at(i));
        QCOMPARE(action->statusTip(), tips.at(i));
        QCOMPARE(action->isCheckable(), checkable);
        // Hosts put them into menus of their own.
        QCOMPARE(action->menuRole(), QAction::NoRole);
        QCOMPARE(action->parent(), &plot);
    }
}

void TestPlotActions::icons()
{
    QStringList paths;
    for (const PlotActions::Entry& entry : PlotActions::viewEntries())
        paths.append(entry.icon);
    for (const PlotActions::GridEntry& grid : PlotActions::gridEntries())
        paths.append(grid.entry.icon);
    paths.append(PlotActions::settingsEntry().icon);
    const QStringList names{"viewtop",   "viewbottom", "viewleft",   "viewright", "viewfront",
                            "viewback",  "topgrig",    "bottomgrig", "leftgrig",  "rightgrig",
                            "frontgrig", "backgrig",   "settings"};
    QCOMPARE(paths.size(), names.size());
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(paths.at(i), ":/plot/images/" + names.at(i) + ".svg");
    // Once there are pictures, none may be missing.
    if (!QDir(":/plot/images").exists())
        return;
    const Plot plot;
    for (const QAction* action : plot.findChildren<QAction*>()) {
        if (!action->toolTip().isEmpty() && !action->isSeparator() && !action->menu())
            QVERIFY2(!action->icon().pixmap(24, 24).isNull(), qPrintable(action->text()));
    }
}

void TestPlotActions::standardViews_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<ValueXYZ<double>>("angles");
    const auto row = [](const char* text, double x, double z) {
        QTest::newRow(text) << QString(text) << ValueXYZ<double>{x, 0.0, z};
    };
    row("&Top view", 90.0, 0.0);
    row("&Bottom view", -90.0, 0.0);
    row("&Left view", 0.0, 90.0);
    row("&Right view", 0.0, -90.0);
    row("&Front view", 0.0, 0.0);
    row("Bac&k view", 0.0, 180.0);
}

void TestPlotActions::standardViews()
{
    QFETCH(QString, text);
    QFETCH(ValueXYZ<double>, angles);
    Plot plot;
    const ValueXYZ<double> before{10.0, 20.0, 30.0};
    plot.setRotation(before);
    QAction* action = actionIn(plot.getToolBar(ViewsToolBar), text);
    action->trigger();
    QVERIFY(same(plot.getRotation(), before));
    QVERIFY(harness::show(plot, 60, 60));
    const GLRecorder recorder;
    action->trigger();
    QVERIFY(same(plot.getRotation(), angles));
    QCOMPARE(recorder.count("glClear"), 1);
}

void TestPlotActions::gridFaces_data()
{
    QTest::addColumn<QString>("face");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("top") << "Top" << 0 << 16;
    QTest::newRow("bottom") << "Bottom" << 0 << 32;
    QTest::newRow("left") << "Left" << 0 << 1;
    QTest::newRow("right") << "Right" << 0 << 2;
    QTest::newRow("front") << "Front" << 0 << 4;
    QTest::newRow("back") << "Back" << 0 << 8;
    QTest::newRow("joins the others") << "Back" << 37 << 45;
    QTest::newRow("alone off") << "Top" << 16 << 0;
    QTest::newRow("off, the others stay") << "Top" << 63 << 47;
    QTest::newRow("unknown bits stay") << "Top" << 64 << 80;
}

void TestPlotActions::gridFaces()
{
    QFETCH(QString, face);
    QFETCH(int, before);
    QFETCH(int, after);
    Plot plot;
    plot.setGridStyle(before);
    QVERIFY(harness::show(plot, 60, 60));
    const QSignalSpy changed(&plot, &BasePlot::gridStyleChanged);
    const GLRecorder recorder;
    QAction* action = actionIn(plot.getToolBar(GridStyleToolBar), face);
    action->trigger();
    QCOMPARE(plot.getCoordinateSystem().getSettings().getGridStyle(), after);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(recorder.count("glClear"), 1);
    action->trigger();
    QCOMPARE(plot.getCoordinateSystem().getSettings().getGridStyle(), before);
    QCOMPARE(changed.count(), 2);
}

void TestPlotActions::unknownActionsChooseNothing()
{
    Plot plot;
    plot.setGridStyle(40);
    plot.setPlotStyle(4);
    QVERIFY(harness::show(plot, 60, 60));
    const QSignalSpy grid(&plot, &BasePlot::gridStyleChanged);
    const QSignalSpy style(&plot, &BasePlot::plotStyleChanged);
    const GLRecorder recorder;
    QAction stranger("stranger");
    stranger.setCheckable(true);
    for (QAction* action : {static_cast<QAction*>(nullptr), &stranger, &stranger}) {
        stranger.toggle();
        plot.slotGridStyleChanged(action);
        plot.slotPlotStyleChanged(action);
    }
    QCOMPARE(plot.getCoordinateSystem().getSettings().getGridStyle(), 40);
    QCOMPARE(plot.getSettings().getStyle(), 4);
    QCOMPARE(grid.count() + style.count() + recorder.count("glClear"), 0);
}

void TestPlotActions::barsFollowThePlot_data()
{
    using Change = std::function<void(Plot&)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("faces");
    QTest::addColumn<QString>("style");
    const auto row = [](const char* name, const Change& change, const char* faces, const char* style) {
        QTest::newRow(name) << change << QString(faces) << QString(style);
    };
    row(
        "a new plot", [](Plot&) {}, "", "No plot");
    row(
        "grid by the setter", [](Plot& p) { p.setGridStyle(40); }, "Bottom Back", "No plot");
    row(
        "grid by the slot", [](Plot& p) { p.slotSetGridStyle(21); }, "Top Left Front", "No plot");
    row(
        "style by the setter", [](Plot& p) { p.setPlotStyle(4); }, "", "Filled");
    row(
        "style by the slot", [](Plot& p) { p.slotSetPlotStyle(6); }, "", "Histogram");
    row(
        "a style without an action", [](Plot& p) { p.setPlotStyle(4), p.setPlotStyle(99); }, "", "Filled");
    row(
        "from the store",
        [](Plot& p) {
            Plot saved;
            saved.setGridStyle(3);
            saved.setPlotStyle(5);
            saved.slotSaveSettings();
            p.slotLoadSettings();
        },
        "Left Right", "Filled and mesh");
    row(
        "past the setters",
        [](Plot& p) {
            p.getCoordinateSystem().getSettings().setGridStyle(2);
            p.settingsRecord().setStyle(1);
            p.updateGridStyleToolBar();
            p.updatePlotStyleToolBar();
        },
        "Right", "Points");
}

void TestPlotActions::barsFollowThePlot()
{
    QFETCH(std::function<void(Plot&)>, change);
    QFETCH(QString, faces);
    QFETCH(QString, style);
    Plot plot;
    QVERIFY(harness::show(plot, 60, 60));
    change(plot);
    QCOMPARE(checkedIn(plot.getToolBar(GridStyleToolBar)), faces);
    QCOMPARE(checkedIn(plot.getToolBar(PlotStyleToolBar)), style);
    // The bars still act, and once.
    const QSignalSpy grid(&plot, &BasePlot::gridStyleChanged);
    const QSignalSpy styles(&plot, &BasePlot::plotStyleChanged);
    actionIn(plot.getToolBar(GridStyleToolBar), "Front")->trigger();
    actionIn(plot.getToolBar(PlotStyleToolBar), "Wireframe")->trigger();
    QCOMPARE(grid.count(), 1);
    QCOMPARE(styles.count(), 1);
}

void TestPlotActions::followingDoesNotFeedBack()
{
    Plot plot;
    plot.setGridStyle(16);
    QVERIFY(harness::show(plot, 60, 60));
    // A host that passes every toggle on as a choice.
    QToolBar* bar = plot.getToolBar(GridStyleToolBar);
    for (QAction* action : bar->actions())
        connect(action, &QAction::toggled, bar, [bar, action] { emit bar->actionTriggered(action); });
    auto* group = plot.findChild<QActionGroup*>();
    for (QAction* action : group->actions())
        connect(action, &QAction::toggled, group, [group, action] { emit group->triggered(action); });
    plot.setGridStyle(32);
    QCOMPARE(plot.getCoordinateSystem().getSettings().getGridStyle(), 32);
    plot.slotSetPlotStyle(4);
    QCOMPARE(plot.getSettings().getStyle(), 4);
}

void TestPlotActions::stylesExclude()
{
    Plot plot;
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 60, 60));
    const QSignalSpy changed(&plot, &BasePlot::plotStyleChanged);
    const QList<StyleAction*> actions = plot.getStyleActions();
    for (int style = 6; style >= 0; --style) {
        actions.at(style)->trigger();
        QCOMPARE(plot.getSettings().getStyle(), style);
        QCOMPARE(checkedIn(plot.getToolBar(PlotStyleToolBar)), actions.at(style)->text());
    }
    QCOMPARE(changed.count(), 7);
    // Chosen by its number, wherever it stands in the bar.
    Bare bare(true);
    QVERIFY(harness::show(bare, 60, 60));
    bare.getStyleActions().first()->trigger();
    QCOMPARE(bare.getSettings().getStyle(), 9);
}

void TestPlotActions::stylesWaitForTheContext()
{
    Plot plot;
    plot.getStyleActions().at(4)->trigger();
    QCOMPARE(plot.getSettings().getStyle(), 0);
    QCOMPARE(checkedIn(plot.getToolBar(PlotStyleToolBar)), QString("No plot"));
}

void TestPlotActions::contextMenu_data()
{
    QTest::addColumn<bool>("styles");
    QTest::addColumn<QStringList>("entries");
    QTest::newRow("with styles") << true << QStringList{"Grid style", "Plot style", "Views", "-", "Settings"};
    QTest::newRow("without styles") << false << QStringList{"Grid style", "Views", "-", "Settings"};
}

void TestPlotActions::contextMenu()
{
    QFETCH(bool, styles);
    QFETCH(QStringList, entries);
    Bare plot(styles);
    const QMenu* menu = plot.getContextMenu();
    QCOMPARE(menu->parent(), &plot);
    QCOMPARE(textsOf(menu), entries);
    QCOMPARE(menu->actions().first()->menu()->actions(), plot.getToolBar(GridStyleToolBar)->actions());
    QAction* settings = menu->actions().last();
    QCOMPARE(settings->statusTip(), QString("Settings"));
    QCOMPARE(settings->menuRole(), QAction::NoRole);
    settings->trigger();
    QCOMPARE(plot.dialogs, 1);
    // Made again, with a bar made again and one that its host has deleted.
    delete plot.getToolBar(GridStyleToolBar);
    const QPointer<QToolBar> before = plot.getToolBar(ViewsToolBar);
    plot.createViewsToolBar();
    QVERIFY(!before);
    plot.createContextMenu();
    entries.removeFirst();
    QCOMPARE(textsOf(plot.getContextMenu()), entries);
    plot.getContextMenu()->actions().last()->trigger();
    QCOMPARE(plot.dialogs, 2);
}

void TestPlotActions::menuOpensBesideTheEvent_data()
{
    QTest::addColumn<QContextMenuEvent::Reason>("reason");
    QTest::newRow("mouse") << QContextMenuEvent::Mouse;
    QTest::newRow("menu key") << QContextMenuEvent::Keyboard;
}

void TestPlotActions::menuOpensBesideTheEvent()
{
    QFETCH(QContextMenuEvent::Reason, reason);
    Plot plot;
    plot.move(40, 40);
    QVERIFY(harness::show(plot, 100, 100));
    QTest::mousePress(&plot, Qt::RightButton, Qt::NoModifier, QPoint(10, 20));
    QPoint opened;
    QTimer::singleShot(0, &plot, [&] {
        opened = plot.getContextMenu()->pos();
        plot.getContextMenu()->close();
    });
    // Where the event lies counts, not where the mouse is.
    QContextMenuEvent event(reason, QPoint(10, 20), QPoint(900, 900));
    QApplication::sendEvent(&plot, &event);
    QCOMPARE(opened, plot.mapToGlobal(QPoint(15, 20)));
    QVERIFY(event.isAccepted());
    // The press that opened the menu is forgotten: what follows does not turn the view.
    QMouseEvent move(QEvent::MouseMove, QPointF(60, 70), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&plot, &move);
    QVERIFY(same(plot.getRotation(), {}));
}

void TestPlotActions::plotGoesWhileItsMenuIsOpen()
{
    auto* plot = new Plot;
    QVERIFY(harness::show(*plot, 100, 100));
    const QPointer<QMenu> menu = plot->getContextMenu();
    bool wasOpen = false;
    QTimer::singleShot(0, qApp, [&] {
        wasOpen = menu->isVisible();
        delete plot;
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(10, 20));
    QApplication::sendEvent(plot, &event);
    QVERIFY(wasOpen);
    QVERIFY(!menu);
}

void TestPlotActions::barsAndHosts_data()
{
    QTest::addColumn<bool>("taken");
    QTest::addColumn<bool>("hostFirst");
    QTest::newRow("nobody took them") << false << true;
    QTest::newRow("the host dies first") << true << true;
    QTest::newRow("the plot dies first") << true << false;
}

void TestPlotActions::barsAndHosts()
{
    QFETCH(bool, taken);
    QFETCH(bool, hostFirst);
    auto host = std::make_unique<QMainWindow>();
    auto plot = std::make_unique<Plot>();
    QList<QPointer<QToolBar>> bars;
    for (PlotToolBarType type : {GridStyleToolBar, PlotStyleToolBar, ViewsToolBar}) {
        bars.append(plot->getToolBar(type));
        if (taken)
            host->addToolBar(bars.last());
    }
    if (hostFirst)
        host.reset();
    for (const QPointer<QToolBar>& bar : qAsConst(bars))
        QCOMPARE(bar.isNull(), taken && hostFirst);
    plot->setGridStyle(40);
    plot->setPlotStyle(4);
    QCOMPARE(plot->getToolBar(ViewsToolBar), bars.last().data());
    plot.reset();
    for (const QPointer<QToolBar>& bar : qAsConst(bars)) {
        QCOMPARE(bar.isNull(), hostFirst || !taken);
        if (bar)
            QVERIFY(bar->actions().isEmpty());
    }
}

void TestPlotActions::actionsOutliveTheirBars()
{
    Plot plot;
    QVERIFY(harness::show(plot, 60, 60));
    for (PlotToolBarType type : {GridStyleToolBar, PlotStyleToolBar, ViewsToolBar})
        delete plot.getToolBar(type);
    const QList<QAction*> parts = plot.getContextMenu()->actions();
    plot.setGridStyle(2);
    QCOMPARE(checkedIn(parts.at(0)->menu()), QString("Right"));
    actionIn(parts.at(0)->menu(), "Top")->trigger();
    QCOMPARE(plot.getCoordinateSystem().getSettings().getGridStyle(), 18);
    actionIn(parts.at(1)->menu(), "Filled")->trigger();
    QCOMPARE(plot.getSettings().getStyle(), 4);
    actionIn(parts.at(2)->menu(), "&Top view")->trigger();
    QCOMPARE(plot.getRotation().x, 90.0);
}

void TestPlotActions::pickedValueOnTheLegend_data()
{
    using Prepare = std::function<void(Plot&)>;
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<double>("z");
    QTest::addColumn<double>("expected");
    const auto row = [](const char* name, const Prepare& prepare, double z, double expected) {
        QTest::newRow(name) << prepare << z << expected;
    };
    const auto logarithmic = [](Plot& p) {
        p.setLogarithmicData(ZAxis, true);
        QVERIFY(loadHeights(p, {1.0, 1e6}));
    };
    row(
        "linear", [](Plot&) {}, 5.0, 5.0);
    row(
        "negative", [](Plot&) {}, -5.0, -5.0);
    row("logarithmic data", logarithmic, 1000.0, 3.0);
    row("no exponent", logarithmic, 0.0, qQNaN());
    row(
        "not a number", [](Plot&) {}, qQNaN(), qQNaN());
    // Exponents that the host gave as such, on a logarithmic scale.
    row(
        "a logarithmic scale", [](Plot& p) { p.setAxesScaleType(ZAxis, Logarithmic); }, 3.0, 3.0);
    row(
        "logarithmic from the next load on", [](Plot& p) { p.setLogarithmicData(ZAxis, true); }, 1000.0,
        1000.0);
    row(
        "picking off", [](Plot& p) { p.setSelecting(false); }, 5.0, qQNaN());
    row(
        "legend invisible", [](Plot& p) { p.getLegend().setVisible(false); }, 5.0, qQNaN());
}

void TestPlotActions::pickedValueOnTheLegend()
{
    QFETCH(std::function<void(Plot&)>, prepare);
    QFETCH(double, z);
    QFETCH(double, expected);
    Plot plot;
    plot.getLegend().setVisible(true);
    plot.setSelecting(true);
    QVERIFY(loadHeights(plot, {1.0, 8.0}));
    prepare(plot);
    emit plot.selectedObject({1.0, 2.0, z, true});
    QCOMPARE(marked(plot), expected);
    emit plot.selectedObject({});
    QCOMPARE(marked(plot), qQNaN());
    // Picking off takes the marker away.
    emit plot.selectedObject({1.0, 2.0, z, true});
    plot.setSelecting(false);
    QCOMPARE(marked(plot), qQNaN());
}

void TestPlotActions::hoveringMarksTheExponent()
{
    Plot plot;
    plot.getLegend().setVisible(true);
    plot.setLogarithmicData(ZAxis, true);
    plot.setPlotStyle(4);
    QVERIFY(loadHeights(plot, {10.0, 1e3, 1e6}));
    QVERIFY(harness::show(plot, 80, 80));
    plot.setSelecting(true);
    QSet<double> values;
    QSet<double> exponents;
    connect(&plot, &ZelGLWidget::selectedObject, &plot, [&](const SelectedObjectsInfo& info) {
        if (!info.valid)
            return;
        values.insert(info.z);
        exponents.insert(marked(plot));
    });
    for (int y = 1; y < 80; y += 2) {
        for (int x = 1; x < 80; x += 2) {
            QMouseEvent move(QEvent::MouseMove, QPointF(x, y), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(&plot, &move);
        }
    }
    QCOMPARE(values, (QSet<double>{10.0, 1e3, 1e6}));
    QCOMPARE(exponents, (QSet<double>{1.0, 3.0, 6.0}));
}

void TestPlotActions::legendRepaintsWhenTheMarkerChanges()
{
    Plot plot;
    plot.getLegend().setVisible(true);
    QVERIFY(loadHeights(plot, {1.0, 8.0}));
    QVERIFY(harness::show(plot, 100, 100));
    plot.setSelecting(true);
    QCoreApplication::processEvents();
    GLRecorder recorder;
    const auto frames = [&](const std::function<SelectedObjectsInfo(int)>& hit) {
        recorder.clear();
        for (int i = 0; i < 100; ++i)
            emit plot.selectedObject(hit(i));
        const int before = recorder.count("glClear");
        QCoreApplication::processEvents();
        return before == 0 ? recorder.count("glClear") : -1;
    };
    const auto miss = [](int) { return SelectedObjectsInfo(); };
    QCOMPARE(frames(miss), 0);
    QCOMPARE(frames([](int) { return SelectedObjectsInfo{0.0, 0.0, 2.0, true}; }), 1);
    QCOMPARE(frames([](int i) { return SelectedObjectsInfo{double(i), 0.0, 2.0, true}; }), 0);
    QCOMPARE(frames([](int i) { return SelectedObjectsInfo{0.0, 0.0, 3.0 + i, true}; }), 1);
    QCOMPARE(frames(miss), 1);
    QCOMPARE(frames(miss), 0);
    emit plot.selectedObject({0.0, 0.0, 2.0, true});
    QCoreApplication::processEvents();
    recorder.clear();
    plot.setSelecting(false);
    QCoreApplication::processEvents();
    QCOMPARE(recorder.count("glClear"), 1);
}

void TestPlotActions::pickingMakesItsGeometry()
{
    Plot plot;
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 60, 60));
    const GLRecorder recorder;
    plot.setSelecting(true);
    QCOMPARE(recorder.count("glNewList"), 1);
    QCOMPARE(recorder.count("glInitNames"), 1);
    plot.setSelecting(false);
    QCOMPARE(recorder.count("glNewList"), 1);
}

int main(int argc, char* argv[])
{
    return harness::run<TestPlotActions>(argc, argv);
}

#include "tst_plotactions.moc"
