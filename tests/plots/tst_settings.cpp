#include "harness/harness.h"
#include "plotfixture.h"

#include <QSettings>
#include <QtTest>

using namespace Zel3D;
using namespace fixture;

using Record = BasePlot::BasePlotSettings;
using Change = std::function<bool(Record&)>;
Q_DECLARE_METATYPE(Change)

namespace {

constexpr auto absentAxis = BaseAxisType(3);

/// A record with the three axes that a plot gives it.
class PlotRecord : public Record
{
public:
    PlotRecord()
    {
        for (BaseAxisType axis : {XAxis, YAxis, ZAxis})
            getAxes().addAxis(axis, BasePlot::BaseAxesSettings(Linear));
    }
    void save(const QString& prefix = "plot") { saveSettings(prefix, organization, application); }
    void load(const QString& prefix = "plot") { loadSettings(prefix, organization, application); }
};

QMap<QString, QGradient> gradients(std::initializer_list<QString> names)
{
    QMap<QString, QGradient> all;
    for (const QString& name : names)
        all.insert(name, ramp());
    return all;
}

using Entries = QMap<QString, QVariant>;

Entries stored()
{
    const QSettings store(organization, application);
    Entries entries;
    for (const QString& key : store.allKeys())
        entries.insert(key, store.value(key));
    return entries;
}

void write(const QString& key, const QVariant& value)
{
    QSettings(organization, application).setValue(key, value);
}

struct Entry
{
    QString key;
    QVariant standard; ///< invalid: a fresh record does not write the key
    QVariant changed;
};

/// Every key in its type, with the value of a fresh record and another one.
const Entry layout[] = {
    {"plot/resolution", 1, 3},
    {"plot/style", 0, 5},
    {"plot/shadingStyle", 1, 0},
    {"plot/polygonOffset", 0.0, 1.5},
    {"plot/viewProjection", 0, 2},
    {"plot/mesh/lineWidth", 1.0, 2.5},
    {"plot/mesh/color", QColor(Qt::black), QColor(1, 2, 3, 4)},
    {"plot/mesh/smooth", false, true},
    {"plot/mesh/xVisible", true, false},
    {"plot/mesh/yVisible", true, false},
    {"plot/normals/visible", false, true},
    {"plot/normals/quality", 10.0, 7.5},
    {"plot/normals/length", 0.05, 0.25},
    {"plot/dot/size", 1.0, 4.0},
    {"plot/dot/smooth", false, true},
    {"plot/cylinder/ribNumber", 10, 6},
    {"plot/cylinder/radius", 0.05, 0.75},
    {"plot/cylinder/frameVisible", false, true},
    {"plot/cylinder/angleZ", 45.0, 30.0},
    {"plot/gradients/names", QStringList(), QStringList{"warm"}},
    {"plot/gradients/current", "", "warm"},
    {"plot/gradients/warm/size", {}, 2},
    {"plot/gradients/warm/0/pos", {}, 0.0},
    {"plot/gradients/warm/0/color", {}, QColor(0, 0, 0)},
    {"plot/gradients/warm/1/pos", {}, 1.0},
    {"plot/gradients/warm/1/color", {}, QColor(200, 100, 50)},
    {"plot/axis0/scale0/minor", 1U, 11U},
    {"plot/axis0/scale0/major", 10U, 12U},
    {"plot/axis0/scale1/minor", 2U, 13U},
    {"plot/axis0/scale1/major", 10U, 14U},
    {"plot/axis1/scale0/minor", 1U, 15U},
    {"plot/axis1/scale0/major", 10U, 16U},
    {"plot/axis1/scale1/minor", 2U, 17U},
    {"plot/axis1/scale1/major", 10U, 18U},
    {"plot/axis2/scale0/minor", 1U, 19U},
    {"plot/axis2/scale0/major", 10U, 20U},
    {"plot/axis2/scale1/minor", 2U, 21U},
    {"plot/axis2/scale1/major", 10U, 22U},
};

void writeLayout()
{
    for (const Entry& entry : layout)
        write(entry.key, entry.changed);
}

/// The keys of layout that match a pattern, sorted.
QStringList keys(const QString& pattern)
{
    QStringList all;
    for (const Entry& entry : layout)
        all.append(entry.key);
    all.sort();
    return all.filter(QRegularExpression(pattern));
}

/// Compares the store with layout: names, types and values.
void compareWithLayout(QVariant Entry::*column)
{
    Entries rest = stored();
    for (const Entry& entry : layout) {
        const QVariant expected = entry.*column;
        const QVariant found = rest.take(entry.key);
        QVERIFY2(found.userType() == expected.userType() && found == expected, qPrintable(entry.key));
    }
    QCOMPARE(rest.keys(), QStringList());
}

/// Marks every record, each by a change that is taken back.
void markEverything(Record& r)
{
    const int resolution = r.getResolution();
    QVERIFY(r.setResolution(resolution + 1) && r.setResolution(resolution));
    QVERIFY(r.getMesh().setSmooth(!r.getMesh().isSmooth()) && r.getMesh().setSmooth(!r.getMesh().isSmooth()));
    const bool visible = r.getNormals().isVisible();
    QVERIFY(r.getNormals().setVisible(!visible) && r.getNormals().setVisible(visible));
    QVERIFY(r.getDot().setSmooth(!r.getDot().isSmooth()) && r.getDot().setSmooth(!r.getDot().isSmooth()));
    const bool frame = r.getCylinder().isFrameVisible();
    QVERIFY(r.getCylinder().setFrameVisible(!frame) && r.getCylinder().setFrameVisible(frame));
    const QString current = r.getGradients().getCurrent();
    QVERIFY(r.getGradients().setCurrent("other") && r.getGradients().setCurrent(current));
    QVERIFY(r.getAxes().setAxesScaleType(XAxis, Logarithmic) && r.getAxes().setAxesScaleType(XAxis, Linear));
}

} // namespace

class TestSettings : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void defaults();
    void everyKeyIsReadAndWrittenAsItStands();
    void onlyMarkedRecordsAreWritten_data();
    void onlyMarkedRecordsAreWritten();
    void rejectedAndEqualValuesChangeNothing();
    void resetClearsAllFlagsButThatOfTheGradients();
    void loadingTakesValuesAsTheyStand();
    void gradientLists_data();
    void gradientLists();
    void builtInGradientIsListedOnly();
    void prefixWithAPlaceholder();
    void scaleTypesKeepTheirDivisions();
    void freshPlotWritesOnlyTheSwitch();
    void wholePlotComesBack();
    void loadedScaleFollowsTheSwitch_data();
    void loadedScaleFollowsTheSwitch();
};

void TestSettings::defaults()
{
    PlotRecord r;
    markEverything(r);
    r.save();
    compareWithLayout(&Entry::standard);
    QCOMPARE(r.getCylinder().getMultiplier(), 1.0);
    QCOMPARE(r.getCylinder().getOpacity(), 100);
    QCOMPARE(r.getAxes().getMinorIntervals(ZAxis), (QList<unsigned>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    QCOMPARE(r.getAxes().getMinorIntervals(ZAxis, Logarithmic), (QList<unsigned>{2, 3, 5, 9}));
    // The first offered count replaces the minor one only where both counts are set.
    QCOMPARE(BasePlot::SingleAxesSettings(2, 0, {7}).minor, 2U);
    QCOMPARE(BasePlot::SingleAxesSettings(0, 2, {7}).minor, 0U);
    const BasePlot::AxesSettings none;
    QCOMPARE(none.getAxesScaleType(ZAxis), Linear);
    QCOMPARE(none.getMinorInterval(ZAxis) + none.getMajorInterval(ZAxis, Logarithmic), 0U);
    QVERIFY(none.getMinorIntervals(ZAxis).isEmpty());
}

void TestSettings::everyKeyIsReadAndWrittenAsItStands()
{
    writeLayout();
    PlotRecord r;
    r.load();
    harness::clearStore();
    r.save();
    QVERIFY(stored().isEmpty());
    markEverything(r);
    r.save();
    compareWithLayout(&Entry::changed);
}

void TestSettings::onlyMarkedRecordsAreWritten_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("pattern"); // of all keys that belong to the record
    QTest::newRow("nothing") << Change([](Record&) { return true; }) << "$^";
    QTest::newRow("the plot's own") << Change([](Record& r) { return r.setStyle(4); }) << "plot/[a-zA-Z]*$";
    QTest::newRow("mesh") << Change([](Record& r) { return r.getMesh().setXVisible(false); }) << "plot/mesh/";
    QTest::newRow("normals") << Change([](Record& r) { return r.getNormals().setLength(0.1); })
                             << "plot/normals/";
    QTest::newRow("dot") << Change([](Record& r) { return r.getDot().setSmooth(true); }) << "plot/dot/";
    QTest::newRow("cylinder") << Change([](Record& r) { return r.getCylinder().setAngleZ(0.0); })
                              << "plot/cylinder/";
    QTest::newRow("axes") << Change([](Record& r) {
        return r.getAxes().setAxesScaleType(YAxis, Logarithmic);
    }) << "plot/axis";
    QTest::newRow("current gradient") << Change([](Record& r) { return r.getGradients().setCurrent("x"); })
                                      << "plot/gradients/(names|current)";
    QTest::newRow("gradients one by one") << Change([](Record& r) {
        return r.getGradients().addGradient("warm", ramp()) && r.getGradients().setGradient("cold", ramp()) &&
               !r.getGradients().addGradient("warm", plain(Qt::red)) &&
               r.getGradients().getCurrent() == "cold";
    }) << "$^";
}

void TestSettings::onlyMarkedRecordsAreWritten()
{
    QFETCH(Change, change);
    QFETCH(QString, pattern);
    PlotRecord r;
    QVERIFY(change(r));
    r.save();
    QCOMPARE(stored().keys(), keys(pattern));
    // Saving clears no flag.
    harness::clearStore();
    r.save();
    QCOMPARE(stored().keys(), keys(pattern));
}

void TestSettings::rejectedAndEqualValuesChangeNothing()
{
    PlotRecord r;
    QVERIFY(!r.setResolution(0) && !r.setResolution(1));
    QVERIFY(!r.getMesh().setLineWidth(-1.0) && !r.getMesh().setLineWidth(qQNaN()));
    QVERIFY(!r.getMesh().setColor(Qt::black));
    QVERIFY(!r.getCylinder().setRibNumber(2));
    QVERIFY(!r.getCylinder().setRadius(-0.5) && !r.getCylinder().setRadius(qQNaN()));
    QVERIFY(!r.getCylinder().setOpacity(101));
    QVERIFY(!r.getGradients().setGradients({}) && !r.getGradients().setData("", {}));
    BasePlot::AxesSettings& axes = r.getAxes();
    QVERIFY(!axes.setAxesScaleType(XAxis, Linear) && !axes.setMinorInterval(XAxis, Linear, 1));
    QVERIFY(!axes.setMajorInterval(absentAxis, Linear, 5) && !axes.setAxesScaleType(absentAxis, Logarithmic));
    BasePlot::BaseAxesSettings linearOnly;
    linearOnly.scales.remove(Logarithmic);
    axes.addAxis(YAxis, linearOnly);
    QVERIFY(!axes.setMinorInterval(YAxis, Logarithmic, 5));
    r.save();
    QVERIFY(stored().isEmpty());
    // A line width of 0 is no rejected value, nor is a minor count that is not offered.
    QVERIFY(r.getMesh().setLineWidth(0.0) && axes.setMinorInterval(XAxis, Linear, 99));
}

void TestSettings::resetClearsAllFlagsButThatOfTheGradients()
{
    PlotRecord r;
    markEverything(r);
    QVERIFY(r.getGradients().setData("warm", gradients({"warm"})));
    r.resetNeedSave();
    r.save();
    QCOMPARE(stored().keys(), keys("/gradients/"));
}

void TestSettings::loadingTakesValuesAsTheyStand()
{
    write("plot/resolution", 0);
    write("plot/style", "five");
    write("plot/shadingStyle", 7);
    write("plot/mesh/lineWidth", -2.0);
    write("plot/mesh/color", 17.5);
    write("plot/dot/size", -1.0);
    write("plot/cylinder/ribNumber", 1);
    write("plot/axis1/scale1/minor", 0U);
    write("plot/axis3/scale0/minor", 5U);
    PlotRecord r;
    QVERIFY(r.setStyle(3));
    r.load();
    QCOMPARE(r.getResolution(), 0);
    QCOMPARE(r.getStyle(), 0);
    QCOMPARE(int(r.getShadingStyle()), 7);
    QCOMPARE(r.getMesh().getLineWidth(), -2.0);
    QVERIFY(!r.getMesh().getColor().isValid());
    QCOMPARE(r.getDot().getSize(), -1.0);
    QCOMPARE(r.getCylinder().getRibNumber(), 1);
    QCOMPARE(r.getAxes().getMinorInterval(YAxis, Logarithmic), 0U);
    QCOMPARE(r.getAxes().getMinorInterval(absentAxis, Linear), 0U);
}

void TestSettings::gradientLists_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("held");
    QTest::addColumn<QString>("current");
    QTest::newRow("empty list: the current one stays") << QStringList() << QStringList{"mine"} << "mine";
    QTest::newRow("one more") << QStringList{"warm"} << QStringList{"mine", "warm"} << "warm";
    QTest::newRow("without stops") << QStringList{"empty"} << QStringList{"mine"} << "warm";
    QTest::newRow("listed, nothing else stored") << QStringList{"lost"} << QStringList{"mine"} << "warm";
    QTest::newRow("the built-in one is not read") << QStringList{"Default"} << QStringList{"mine"} << "warm";
}

void TestSettings::gradientLists()
{
    QFETCH(QStringList, names);
    QFETCH(QStringList, held);
    QFETCH(QString, current);
    writeLayout();
    write("plot/gradients/empty/size", 0);
    write("plot/gradients/Default/size", 1);
    write("plot/gradients/names", names);
    PlotRecord r;
    QVERIFY(r.getGradients().setGradient("mine", ramp()));
    r.load();
    QCOMPARE(r.getGradients().getGradients().keys(), held);
    QCOMPARE(r.getGradients().getCurrent(), current);
}

void TestSettings::builtInGradientIsListedOnly()
{
    PlotRecord r;
    QVERIFY(r.getGradients().setGradients(gradients({"Default"})));
    QVERIFY(!r.getGradients().setGradients(gradients({"Default"})));
    // No stops are not the black and white that Qt invents for them.
    QMap<QString, QGradient> explicitly;
    explicitly.insert("Default", QLinearGradient());
    QVERIFY(r.getGradients().setGradients(explicitly));
    explicitly["Default"].setStops({{0.0, Qt::black}, {1.0, Qt::white}});
    explicitly.insert("empty", QLinearGradient());
    QVERIFY(r.getGradients().setGradients(explicitly));
    r.save();
    QCOMPARE(stored().keys(),
             (QStringList{"plot/gradients/current", "plot/gradients/empty/size", "plot/gradients/names"}));
    QCOMPARE(stored().value("plot/gradients/names"), QVariant(QStringList{"Default", "empty"}));
    QCOMPARE(stored().value("plot/gradients/empty/size"), QVariant(0));
}

void TestSettings::prefixWithAPlaceholder()
{
    PlotRecord r;
    QVERIFY(r.setResolution(2));
    QVERIFY(r.getGradients().setGradients(gradients({"warm"})));
    QVERIFY(r.getAxes().setMinorInterval(ZAxis, Logarithmic, 3));
    r.save("p%1");
    const Entries entries = stored();
    for (const char* key : {"p%1/resolution", "pwarm/gradients/warm/size", "pwarm/gradients/warm/1/pos",
                            "p2/axis2/scale1/minor"})
        QVERIFY2(entries.contains(key), key);
    PlotRecord loaded;
    loaded.load("p%1");
    QCOMPARE(loaded.getAxes().getMinorInterval(ZAxis, Logarithmic), 3U);
    QCOMPARE(loaded.getGradients().getGradients().value("warm").stops(), ramp().stops());
}

void TestSettings::scaleTypesKeepTheirDivisions()
{
    Plot plot;
    const BasePlot::AxesSettings& axes = plot.getSettings().getAxes();
    QVERIFY(plot.setMinorInterval(XAxis, Linear, 4) && plot.setMajorInterval(XAxis, Linear, 6));
    QVERIFY(plot.setMinorInterval(XAxis, Logarithmic, 9) && plot.setMajorInterval(XAxis, Logarithmic, 3));
    QVERIFY(plot.setAxesScaleType(XAxis, Logarithmic));
    QCOMPARE(axes.getMinorInterval(XAxis), 9U);
    QCOMPARE(axes.getMajorInterval(XAxis), 3U);
    QCOMPARE(axes.getMinorIntervals(XAxis), (QList<unsigned>{2, 3, 5, 9}));
    QVERIFY(plot.setAxesScaleType(XAxis, Linear));
    QCOMPARE(axes.getMinorInterval(XAxis), 4U);
    QCOMPARE(axes.getMajorInterval(XAxis), 6U);
    QCOMPARE(axes.getMinorInterval(YAxis), 1U);
}

void TestSettings::freshPlotWritesOnlyTheSwitch()
{
    Plot plot;
    QVERIFY(harness::show(plot, 100, 100)); // without data
    plot.slotSaveSettings();
    QStringList rest = stored().keys();
    for (const char* key : {"backgroundColor",
                            "autoRotate",
                            "deltaVelocity",
                            "rotationX",
                            "rotationY",
                            "rotationZ",
                            "shiftX",
                            "shiftY",
                            "shiftZ",
                            "viewportShiftX",
                            "viewportShiftY",
                            "scaleX",
                            "scaleY",
                            "scaleZ",
                            "zoom",
                            "projectionType",
                            "lighting",
                            "selecting",
                            "dataColor/id",
                            "dataColor/size",
                            "dataColor/0/pos",
                            "dataColor/0/color",
                            "dataColor/1/pos",
                            "dataColor/1/color"})
        QVERIFY2(rest.removeOne(QString("plot/") + key), key);
    for (int i = rest.size() - 1; i >= 0; --i) {
        // Lights are always written; the legend, and labels and arrows of the axes, are marked from the
        // start.
        const bool furniture = rest.at(i).contains("/label/") || rest.at(i).contains("/arrow/");
        if (rest.at(i).startsWith("plot/light") || rest.at(i).startsWith("plot/legend/") ||
            (rest.at(i).startsWith("plot/axis") && furniture))
            rest.removeAt(i);
    }
    QCOMPARE(rest, QStringList{"plot/autoScaling"});
    QCOMPARE(stored().value("plot/autoScaling"), QVariant(true));
}

void TestSettings::wholePlotComesBack()
{
    Heights heights(4, 3, plane);
    Plot plot;
    QVERIFY(heights.into(plot));
    writeLayout();
    plot.slotLoadSettings();
    markEverything(plot.settingsRecord());
    plot.setRotation({10.0, 20.0, 30.0});
    plot.setBackgroundColor(QColor(10, 20, 30));
    plot.setGradient("warm", ramp());
    QVERIFY(plot.setAutoScaling(false));
    plot.setScale({2.0, 3.0, 0.25});
    QVERIFY(harness::show(plot, 120, 120));
    const QImage before = harness::grab(plot);
    plot.slotSaveSettings();

    Plot other;
    other.setGradient("other", plain(Qt::green));
    QVERIFY(heights.into(other));
    QVERIFY(harness::show(other, 120, 120));
    QVERIFY(harness::grab(other) != before);
    other.slotLoadSettings();
    QCOMPARE(harness::grab(other), before);
    QVERIFY(!other.isAutoScaling());
    QCOMPARE(other.getScale().z, 0.25);
    // What a plot writes unasked is what it read.
    const Entries first = stored();
    harness::clearStore();
    other.slotSaveSettings();
    const Entries view = stored();
    for (auto it = view.cbegin(); it != view.cend(); ++it) {
        // An axis reads its records from another group than it writes.
        if (it.key().startsWith("plot/axis"))
            continue;
        QVERIFY2(first.value(it.key()) == *it, qPrintable(it.key()));
    }
    QVERIFY(view.contains("plot/dataColor/1/color"));
}

void TestSettings::loadedScaleFollowsTheSwitch_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("loaded");
    QTest::addColumn<double>("scaleX");
    // Over a box of 4 by 2 by 4 the automatic scale is (1, 2, 1).
    QTest::newRow("on, stays on: the box decides") << true << true << 1.0;
    QTest::newRow("switched on: the box decides") << false << true << 1.0;
    QTest::newRow("switched off: as loaded") << true << false << 5.0;
    QTest::newRow("off, stays off: as loaded") << false << false << 5.0;
}

void TestSettings::loadedScaleFollowsTheSwitch()
{
    QFETCH(bool, before);
    QFETCH(bool, loaded);
    QFETCH(double, scaleX);
    write("plot/scaleX", 5.0);
    write("plot/autoScaling", loaded);
    Heights heights(5, 3, [](int i, int) { return double(i); });
    Plot plot;
    plot.setAutoScaling(before);
    QVERIFY(heights.into(plot));
    plot.slotLoadSettings();
    QCOMPARE(plot.getScale().x, scaleX);
    QCOMPARE(plot.isAutoScaling(), loaded);
    // What was loaded is the user's scale: new data do not change it.
    QVERIFY(Heights(3, 3, plane).into(plot));
    QCOMPARE(plot.getScale().x == 5.0, !loaded);
}

int main(int argc, char* argv[])
{
    return harness::run<TestSettings>(argc, argv);
}

#include "tst_settings.moc"
