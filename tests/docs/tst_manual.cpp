// The manual says what the library does: its samples run, its tables are complete and true.

#include "core/translations.h"
#include "harness/harness.h"
#include "manualtables.h"
#include "ownaddition.h"
#include "ownplot.h"
#include "plots/plotfixture.h"
#include "plots/spectrum.h"
#include "samples.h"
#include "scene/title.h"
#include "settings/plotsettingsdialog.h"
#include "view/interaction.h"

#include <QKeySequence>
#include <QMainWindow>
#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QtTest>

#include <cmath>
#include <memory>

using namespace Zel3D;

namespace {

/// Opens a plot's own record to the test.
template <class Plot>
class Opened : public Plot
{
public:
    Opened() : Plot("plot", fixture::organization, fixture::application) {}
    using Plot::settingsRecord;
};

void mark(BaseDraw& drawn)
{
    drawn.markForSaving();
}

void mark(Label& label)
{
    label.markForSaving();
    label.getSettings().markForSaving();
}

void mark(Axis& axis)
{
    Axis::Settings& settings = axis.getSettings();
    for (SettingsRecord* record : std::initializer_list<SettingsRecord*>{
             &settings, &settings.getMajor(), &settings.getMinor(), &settings.getLine(), &settings.getTics(),
             &settings.getNumbers(), &axis.getArrow().getSettings()})
        record->markForSaving();
    mark(axis.getLabel());
    mark(static_cast<BaseDraw&>(axis.getArrow()));
}

/// Makes the next save write everything, with the values as they are.
void markEverything(BasePlot& plot, BasePlot::BasePlotSettings& record)
{
    for (SettingsRecord* part : std::initializer_list<SettingsRecord*>{
             &record, &record.getMesh(), &record.getNormals(), &record.getGradients(), &record.getAxes(),
             &plot.getCoordinateSystem().getSettings()})
        part->markForSaving();
    for (int i = 0; i < 2; ++i) {
        record.getDot().setSmooth(!record.getDot().isSmooth());
        record.getCylinder().setFrameVisible(!record.getCylinder().isFrameVisible());
    }
    mark(plot.getTitle());
    for (int i = 0; i < 12; ++i)
        mark(plot.getCoordinateSystem().getAxis(AxisType(i)));
    mark(static_cast<BaseDraw&>(plot.getLegend()));
    plot.getLegend().markSettingsForSaving();
    mark(plot.getLegend().getAxis());
}

using Entries = QMap<QString, QVariant>;

Entries stored()
{
    const QSettings store(fixture::organization, fixture::application);
    Entries entries;
    for (const QString& key : store.allKeys())
        entries.insert(key, store.value(key));
    return entries;
}

/// Compares a row's type and default, unless it states none, with a stored value.
QString difference(const QStringList& row, const QVariant& value)
{
    if (manual::typeName(value) != row.at(1))
        return QString("%1 is stored as %2").arg(row.at(0), manual::typeName(value));
    const QString standard = row.at(2);
    if (standard != "computed" && standard != "none" && standard != manual::text(value))
        return QString("%1 is at first %2").arg(row.at(0), manual::text(value));
    return {};
}

QString gestureText(Qt::KeyboardModifiers modifiers, const QString& rest)
{
    QString text;
    for (const auto& [modifier, name] : std::initializer_list<std::pair<Qt::KeyboardModifier, const char*>>{
             {Qt::ControlModifier, "Ctrl+"}, {Qt::AltModifier, "Alt+"}, {Qt::ShiftModifier, "Shift+"}})
        text += modifiers & modifier ? name : "";
    return text + rest;
}

const QMap<QString, MouseBinding MouseBindings::*> mouseFields = {
    {"rotateX", &MouseBindings::rotateX}, {"rotateY", &MouseBindings::rotateY},
    {"rotateZ", &MouseBindings::rotateZ}, {"scaleX", &MouseBindings::scaleX},
    {"scaleY", &MouseBindings::scaleY},   {"scaleZ", &MouseBindings::scaleZ},
    {"zoom", &MouseBindings::zoom},       {"shiftX", &MouseBindings::shiftX},
    {"shiftY", &MouseBindings::shiftY},
};
static_assert(sizeof(MouseBindings) == 9 * sizeof(MouseBinding), "a new drag belongs into the manual");

const QMap<QString, KeyBinding KeyBindings::*> keyFields = {
    {"rotateXPlus", &KeyBindings::rotateXPlus}, {"rotateXMinus", &KeyBindings::rotateXMinus},
    {"rotateYPlus", &KeyBindings::rotateYPlus}, {"rotateYMinus", &KeyBindings::rotateYMinus},
    {"rotateZPlus", &KeyBindings::rotateZPlus}, {"rotateZMinus", &KeyBindings::rotateZMinus},
    {"scaleXPlus", &KeyBindings::scaleXPlus},   {"scaleXMinus", &KeyBindings::scaleXMinus},
    {"scaleYMinus", &KeyBindings::scaleYMinus}, {"scaleYPlus", &KeyBindings::scaleYPlus},
    {"scaleZMinus", &KeyBindings::scaleZMinus}, {"scaleZPlus", &KeyBindings::scaleZPlus},
    {"zoomOut", &KeyBindings::zoomOut},         {"zoomIn", &KeyBindings::zoomIn},
    {"shiftXPlus", &KeyBindings::shiftXPlus},   {"shiftXMinus", &KeyBindings::shiftXMinus},
    {"shiftYMinus", &KeyBindings::shiftYMinus}, {"shiftYPlus", &KeyBindings::shiftYPlus},
};
static_assert(sizeof(KeyBindings) == 18 * sizeof(KeyBinding), "a new key belongs into the manual");

bool sameWay(const ViewPose& a, const ViewPose& b)
{
    return !(a.rotation != b.rotation) && !(a.scale != b.scale) && a.zoom == b.zoom &&
           a.viewportShift.x == b.viewportShift.x && a.viewportShift.y == b.viewportShift.y;
}

/// Whether a drag by a step does what one binding says, all others being out of reach.
bool acts(MouseBinding MouseBindings::*field, const QPoint& step)
{
    const MouseBinding gesture(Qt::LeftButton, Qt::NoModifier);
    MouseBindings only;
    for (MouseBinding MouseBindings::*other : mouseFields)
        only.*other = MouseBinding(Qt::RightButton, Qt::NoModifier);
    only.*field = gesture;
    return !sameWay(Interaction::dragged({}, step, {100, 100}, gesture, only), {});
}

template <class Plot>
std::shared_ptr<BasePlot> make()
{
    return std::make_shared<Opened<Plot>>();
}

template <class Plot>
void markAll(BasePlot& plot)
{
    markEverything(plot, static_cast<Opened<Plot>&>(plot).settingsRecord());
}

struct Kind
{
    std::shared_ptr<BasePlot> (*make)();
    void (*mark)(BasePlot&);
};

} // namespace

Q_DECLARE_METATYPE(Kind)

class TestManual : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void keys_data();
    void keys();
    void drags();
    void keyboard();
    void letters_data();
    void letters();
    void dataSamples();
    void appearanceSamples();
    void pickingSamples();
    void windowSamples();
    void ownClasses();
    void ownPlot();
};

void TestManual::keys_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("surface plot") << Kind{make<SHPlot>, markAll<SHPlot>};
    QTest::newRow("spectrum plot") << Kind{make<Spectrum>, markAll<Spectrum>};
    QTest::newRow("plot of a subclass") << Kind{make<samples::PathPlot>, markAll<samples::PathPlot>};
}

void TestManual::keys()
{
    QFETCH(Kind, kind);
    QMap<QString, QStringList> rows;
    for (const QStringList& row : manual::table("settings-keys.md", "key")) {
        for (const QString& key : manual::expanded(row.first())) {
            QVERIFY2(!rows.contains(key), qPrintable(key + " is listed twice"));
            rows.insert(key, row);
        }
    }
    QVERIFY(rows.size() > 500);
    // Held open, the store keeps the types of its values.
    const QSettings held(fixture::organization, fixture::application);
    const std::shared_ptr<BasePlot> plot = kind.make();
    kind.mark(*plot);
    plot->slotSaveSettings();
    const Entries fresh = stored();
    for (auto it = fresh.cbegin(); it != fresh.cend(); ++it) {
        QVERIFY2(rows.contains(it.key()), qPrintable(it.key() + " is not in the manual"));
        const QString fault = difference(rows.value(it.key()), it.value());
        QVERIFY2(fault.isEmpty(), qPrintable(it.key() + ": " + fault));
    }
    // What is written need not be written again.
    plot->resetNeedSave();
    plot->getCoordinateSystem().resetNeedSave();
    plot->getTitle().resetNeedSave();
    plot->getLegend().resetNeedSave();
    plot->setGradient("warm", fixture::ramp());
    plot->slotSaveSettings();
    PlotSettingsDialog dialog(nullptr, fixture::organization, fixture::application, plot.get());
    dialog.show();
    dialog.reject();
    const Entries all = stored();
    for (auto it = rows.cbegin(); it != rows.cend(); ++it) {
        QVERIFY2(all.contains(it.key()), qPrintable(it.key() + " is never written"));
        const bool none = it->at(2) == "none";
        QVERIFY2(!none || !fresh.contains(it.key()), qPrintable(it.key() + " is written at once"));
        QVERIFY2(manual::typeName(all.value(it.key())) == it->at(1), qPrintable(it.key()));
        const bool late = none || it.key().contains("/settingDialog/");
        QVERIFY2(late || fresh.contains(it.key()), qPrintable(it.key() + " is no key of a new plot"));
    }
    QCOMPARE(all.keys(), rows.keys());
}

void TestManual::drags()
{
    const Opened<SHPlot> plot;
    QStringList listed;
    for (const QStringList& row : manual::table("bindings.md", "field").mid(0, mouseFields.size())) {
        QVERIFY2(mouseFields.contains(row.at(0)), qPrintable(row.at(0)));
        const auto field = mouseFields.value(row.at(0));
        const MouseBinding& bound = plot.getMouseBindings().*field;
        QCOMPARE(bound.first, Qt::MouseButtons(Qt::LeftButton));
        QCOMPARE(row.at(2), gestureText(bound.second, "Left"));
        QCOMPARE(row.at(3), QString(acts(field, {10, 0}) ? "horizontal" : "vertical"));
        QVERIFY(acts(field, {10, 0}) != acts(field, {0, 10}));
        listed.append(row.at(0));
    }
    listed.sort();
    QCOMPARE(listed, QStringList(mouseFields.keys()));
}

void TestManual::keyboard()
{
    const Opened<SHPlot> plot;
    QStringList listed;
    for (const QStringList& row : manual::table("bindings.md", "field").mid(mouseFields.size())) {
        QVERIFY2(keyFields.contains(row.at(0)), qPrintable(row.at(0)));
        const KeyBinding& bound = plot.getKeyBindings().*keyFields.value(row.at(0));
        QCOMPARE(row.at(2), gestureText(bound.second, QKeySequence(bound.first).toString()));
        listed.append(row.at(0));
    }
    listed.sort();
    QCOMPARE(listed, QStringList(keyFields.keys()));
}

void TestManual::letters_data()
{
    QTest::addColumn<unsigned>("bit");
    for (const QStringList& row : manual::table("bindings.md", "letter"))
        QTest::newRow(qPrintable(row.at(0))) << row.at(1).toUInt();
}

void TestManual::letters()
{
    QFETCH(unsigned, bit);
    using Flag = std::function<bool(const SHPlot&)>;
    const QMap<QString, Flag> flags = {
        {"L", [](const SHPlot& p) { return p.isLighting(); }},
        {"S", [](const SHPlot& p) { return p.isSelecting(); }},
        {"I", [](const SHPlot& p) { return p.isShowInfo(); }},
        {"N", [](const SHPlot& p) { return p.getSettings().getNormals().isVisible(); }},
        {"A", [](const SHPlot& p) { return p.isAutoScaling(); }},
    };
    QCOMPARE(QStringList(flags.keys()).size(), manual::table("bindings.md", "letter").size());
    const QString letter = QTest::currentDataTag();
    QVERIFY(flags.contains(letter));
    fixture::Plot plot;
    QCOMPARE(plot.getHotKeyMask() & bit, bit);
    QVERIFY(harness::show(plot, 100, 100));
    const auto press = [&](unsigned mask) {
        plot.setHotKeyMask(mask);
        const bool before = flags.value(letter)(plot);
        QTest::keyClick(&plot, letter.at(0).toLatin1());
        return flags.value(letter)(plot) != before;
    };
    QVERIFY(press(bit));
    QVERIFY(!press(31U & ~bit));
}

void TestManual::dataSamples()
{
    fixture::Plot plot;
    QVERIFY(harness::show(plot, 100, 100));
    for (bool (*sample)(SHPlot&) : {samples::heights, samples::points, samples::cells, samples::parametric}) {
        plot.clearData();
        QVERIFY(sample(plot));
        QVERIFY(plot.getData() && !plot.getData()->isEmpty());
    }
    fixture::Heights powers(3, 3, [](int column, int row) { return std::pow(10.0, column + row); });
    QVERIFY(samples::logarithmic(plot, powers.data(), 3, 3));
    QCOMPARE(plot.getHull().maximum.z(), 4.0F);
    plot.setLogarithmicData(ZAxis, false);
    QTimer timer;
    samples::water(plot, timer);
    QTRY_VERIFY(plot.getHull().maximum.z() > plot.getHull().minimum.z());
    Opened<Spectrum> spectrum;
    QVERIFY(samples::spectra(spectrum));
    QCOMPARE(spectrum.getHull().maximum, QVector3D(700.0F, 5.0F, spectrum.getHull().maximum.z()));
}

void TestManual::appearanceSamples()
{
    fixture::Plot plot;
    QVERIFY(samples::heights(plot));
    plot.setPlotStyle(4);
    plot.getLegend().setVisible(true);
    plot.fitView();
    QVERIFY(harness::show(plot, 400, 300));
    QImage before = harness::grab(plot);
    int number = 0;
    using Sample = void (*)(BasePlot&);
    for (const Sample sample : {Sample(samples::look), Sample(samples::names), Sample(samples::divisions),
                                Sample(samples::edges), Sample(samples::box), Sample(samples::legend),
                                Sample(samples::gradient), Sample(samples::range), Sample(samples::light)}) {
        sample(plot);
        const QImage after = harness::grab(plot);
        QVERIFY2(after != before, qPrintable(QString("sample %1").arg(number)));
        ++number;
        before = after;
    }
    QVERIFY(samples::preset(plot, "Viridis"));
    QVERIFY(!samples::preset(plot, "No such gradient"));
    const QTemporaryDir folder;
    const QImage shown = samples::screenshot(plot, folder.filePath("plot.png"));
    QCOMPARE(QImage(folder.filePath("plot.png")).size(), shown.size());
}

void TestManual::pickingSamples()
{
    fixture::Plot plot;
    QVERIFY(samples::heights(plot));
    plot.setPlotStyle(4);
    plot.setRotation({90.0, 0.0, 0.0});
    QVERIFY(harness::show(plot, 200, 200));
    QString last;
    samples::picking(plot, last);
    int found = 0;
    for (int x = 60; x < 140; ++x) {
        plot.findObjects(QPointF(x, 102.0), Qt::NoModifier);
        found += last.count(',') == 2 ? 1 : 0;
    }
    QVERIFY(found > 20);
    samples::gestures(plot);
    QCOMPARE(plot.getMouseBindings().shiftX, MouseBinding(Qt::RightButton, Qt::NoModifier));
}

void TestManual::windowSamples()
{
    QCOMPARE(samples::inFrench(), QString("Fil de fer"));
    Translations::remove();
    QMainWindow window;
    const QPointer<SHPlot> plot = samples::window(window);
    const QPointer<SHPlot> detail = samples::dock(window);
    samples::heights(*plot);
    samples::heights(*detail);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(plot->getToolBar(ViewsToolBar)->parentWidget(), &window);
    QVERIFY(detail->isVisible());
    plot->setRotation({1.0, 2.0, 3.0});
    plot->setBackgroundColor(Qt::red);
    samples::keep(*plot);
    plot->setRotation({0.0, 0.0, 0.0});
    plot->setBackgroundColor(Qt::white);
    samples::bringBack(*plot);
    QCOMPARE(plot->getRotation().z, 3.0);
    QCOMPARE(plot->getBackgroundColor(), QColor(Qt::red));
    QVERIFY(plot->getCoordinateSystem().getAxis(XFrontBottom).getSettings().getLine().isVisible());
    samples::closeOnPick(*detail);
    emit detail->selectedObject({1.0, 2.0, 3.0, true});
    QVERIFY(detail);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!detail);
}

void TestManual::ownClasses()
{
    fixture::Plot plot;
    QVERIFY(samples::heights(plot));
    QVERIFY(harness::show(plot, 200, 200));
    const QColor color(255, 0, 255);
    QCOMPARE(fixture::pixels(harness::grab(plot), color), 0);
    samples::crosses(plot, 0.05, color);
    QVERIFY(fixture::pixels(harness::grab(plot), color) > 100);
    Opened<samples::MarkerPlot> markers;
    QVERIFY(samples::heights(markers));
    markers.setGradient("plain", fixture::plain(Qt::green));
    QVERIFY(harness::show(markers, 200, 200));
    samples::showCrosses(markers, 0.05, color);
    QVERIFY(fixture::pixels(harness::grab(markers), color) > 100);
    samples::colourByDistance(plot);
    QCOMPARE((*plot.getDataColor())(0.0, 0.0, 9.0), fixture::ramp().stops().first().second);
    QCOMPARE((*plot.getDataColor())(3.0, 4.0, 0.0), fixture::ramp().stops().last().second);
    samples::addPage(plot);
    PlotSettingsDialog dialog(plot.getSettingsDialogOptions(), fixture::organization, fixture::application,
                              &plot);
    QCOMPARE(dialog.getPages().size(), PlotSettingsDialog::libraryPages().size());
    QVERIFY(dialog.goTo("mine/zoom"));
}

void TestManual::ownPlot()
{
    Opened<samples::PathPlot> plot;
    plot.setGradient("plain", fixture::plain(Qt::red));
    plot.setPlotStyle(1);
    QVERIFY(harness::show(plot, 200, 200));
    plot.loadFromData({{0.0F, 0.0F, 0.0F}, {1.0F, 1.0F, 0.2F}, {2.0F, 0.5F, 1.0F}});
    QCOMPARE(plot.getHull().maximum, QVector3D(2.0F, 1.0F, 1.0F));
    QVERIFY(fixture::pixels(harness::grab(plot), Qt::red) > 50);
    plot.clearData();
    QCOMPARE(fixture::pixels(harness::grab(plot), Qt::red), 0);
}

int main(int argc, char* argv[])
{
    return harness::run<TestManual>(argc, argv);
}

#include "tst_manual.moc"
