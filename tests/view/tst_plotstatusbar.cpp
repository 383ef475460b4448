#include "harness/harness.h"
#include "plots/shplot.h"
#include "view/plotstatusbar.h"

#include <QLabel>
#include <QtTest>

#include <functional>
#include <memory>

using namespace Zel3D;

using Change = std::function<void(SHPlot&)>;
Q_DECLARE_METATYPE(Change)

namespace {

/// The labels in the order in which they stand, from the left.
QList<QLabel*> labelsOf(const PlotStatusBar& bar)
{
    return bar.findChildren<QLabel*>();
}

QStringList textsOf(const PlotStatusBar& bar)
{
    QStringList texts;
    for (const QLabel* label : labelsOf(bar))
        texts.append(label->text());
    return texts;
}

std::unique_ptr<SHPlot> makePlot()
{
    return std::make_unique<SHPlot>("plot", "voran-test", "voran-test");
}

} // namespace

class TestPlotStatusBar : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void startsWithTheView();
    void labelsFollow_data();
    void labelsFollow();
    void messages_data();
    void messages();
    void messageOfASwitchGoes();
    void missClearsTheMessage();
    void selectingIsNotTold();
    void labelsAreReadOut();
    void livesWithoutPlotAndLabels();
};

void TestPlotStatusBar::startsWithTheView()
{
    const auto plot = makePlot();
    plot->setRotation({1.2345678, -20.0, 1e-7});
    plot->setViewportShift({0.1234, -2.0});
    plot->setScale({1.26, 20.0, 1234.0});
    plot->setZoom(0.755);
    const PlotStatusBar bar(plot.get());
    QCOMPARE(textsOf(bar), (QStringList{"Rotation: 1.23457; -20; 1e-07", "Viewport shift: 0.12; -2",
                                        "Scale: 1.3; 20; 1.2e+03", "Zoom: 0.76"}));
}

void TestPlotStatusBar::labelsFollow_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("label");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, int label, const char* text, const Change& change) {
        QTest::newRow(name) << change << label << QString(text);
    };
    // Later texts of rotation and scale name the change.
    row("rotation", 0, "Turn: 30; 0; 45.5", [](SHPlot& p) { p.setRotation({30.0, 0.0, 45.5}); });
    row("viewport shift", 1, "Viewport shift: 0.67; 0", [](SHPlot& p) { p.setViewportShift({0.6667, 0.0}); });
    row("scale", 2, "Scaling: 2; 3.1; 1", [](SHPlot& p) { p.setScale({2.0, 3.14, 1.0}); });
    row("zoom", 3, "Zoom: 1.2", [](SHPlot& p) { p.setZoom(1.23456); });
}

void TestPlotStatusBar::labelsFollow()
{
    QFETCH(Change, change);
    QFETCH(int, label);
    QFETCH(QString, text);
    const auto plot = makePlot();
    const PlotStatusBar bar(plot.get());
    QStringList expected = textsOf(bar);
    expected[label] = text;
    change(*plot);
    QCOMPARE(textsOf(bar), expected);
}

void TestPlotStatusBar::messages_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* message, const Change& change) {
        QTest::newRow(message) << change << QString(message);
    };
    row("Lighting on", [](SHPlot& p) { p.setLighting(true); });
    row("Lighting off", [](SHPlot& p) { p.setLighting(true), p.setLighting(false); });
    row("Auto scaling on", [](SHPlot& p) { emit p.autoScalingChanged(true); });
    row("Auto scaling off", [](SHPlot& p) { emit p.autoScalingChanged(false); });
    row("Show info on", [](SHPlot& p) { p.setShowInfo(true); });
    row("Show info off", [](SHPlot& p) { p.setShowInfo(true), p.setShowInfo(false); });
    row("Value: 0.333333; -2; 1e+07", [](SHPlot& p) { emit p.selectedObject({1.0 / 3.0, -2.0, 1e7, true}); });
}

void TestPlotStatusBar::messages()
{
    QFETCH(Change, change);
    QFETCH(QString, message);
    const auto plot = makePlot();
    const PlotStatusBar bar(plot.get());
    change(*plot);
    QCOMPARE(bar.currentMessage(), message);
}

void TestPlotStatusBar::messageOfASwitchGoes()
{
    const auto plot = makePlot();
    PlotStatusBar bar(plot.get());
    emit plot->selectedObject({1.0, 2.0, 3.0, true});
    QTest::qWait(1300);
    // A value has no time of its own.
    QCOMPARE(bar.currentMessage(), QString("Value: 1; 2; 3"));
    plot->setLighting(true);
    QTest::qWait(700);
    QCOMPARE(bar.currentMessage(), QString("Lighting on"));
    QTRY_VERIFY_WITH_TIMEOUT(bar.currentMessage().isEmpty(), 600);
}

void TestPlotStatusBar::missClearsTheMessage()
{
    const auto plot = makePlot();
    PlotStatusBar bar(plot.get());
    const QSignalSpy changed(&bar, &QStatusBar::messageChanged);
    emit plot->selectedObject({});
    QCOMPARE(changed.count(), 0);
    emit plot->selectedObject({1.0, 2.0, 3.0, true});
    emit plot->selectedObject({});
    QVERIFY(bar.currentMessage().isEmpty());
}

void TestPlotStatusBar::selectingIsNotTold()
{
    const auto plot = makePlot();
    PlotStatusBar bar(plot.get());
    plot->setSelecting(true);
    QVERIFY(bar.currentMessage().isEmpty());
    plot->setSelecting(false);
    QVERIFY(bar.currentMessage().isEmpty());
    // A host may ask for it.
    connect(plot.get(), &BasePlot::selectingChanged, &bar, &PlotStatusBar::slotSelectingChanged);
    plot->setSelecting(true);
    QCOMPARE(bar.currentMessage(), QString("Selecting on"));
    plot->setSelecting(false);
    plot->disconnect(&bar);
    bar.slotSelectingChanged(false);
    QCOMPARE(bar.currentMessage(), QString("Selecting off"));
}

void TestPlotStatusBar::labelsAreReadOut()
{
    const auto plot = makePlot();
    const PlotStatusBar bar(plot.get());
    plot->setRotation({30.0, 0.0, 45.0});
    QStringList tips;
    for (const QLabel* label : labelsOf(bar)) {
        tips.append(label->toolTip());
        QCOMPARE(label->accessibleName(), label->toolTip());
        QCOMPARE(label->accessibleDescription(), label->text());
    }
    QCOMPARE(tips, (QStringList{"Rotation: [X;Y;Z]", "Viewport shift: [X;Y]", "Scale: [X;Y;Z]", "Zoom"}));
}

void TestPlotStatusBar::livesWithoutPlotAndLabels()
{
    PlotStatusBar empty(nullptr);
    QCOMPARE(textsOf(empty), (QStringList{"", "", "", ""}));
    auto plot = makePlot();
    PlotStatusBar bar(plot.get());
    plot.reset();
    QVERIFY(!bar.getPlot());
    QCOMPARE(labelsOf(bar).size(), 4);
    qDeleteAll(labelsOf(bar));
    bar.slotRotationChanged(1.0, 2.0, 3.0);
    bar.slotViewportShiftChanged(1.0, 2.0);
    bar.slotScaleChanged(1.0, 2.0, 3.0);
    bar.slotZoomChanged(1.0);
    bar.slotLightingChanged(true);
    QCOMPARE(bar.currentMessage(), QString("Lighting on"));
    // And the other way round.
    plot = makePlot();
    std::make_unique<PlotStatusBar>(plot.get()).reset();
    plot->setZoom(3.0);
    plot->setLighting(true);
}

int main(int argc, char* argv[])
{
    return harness::run<TestPlotStatusBar>(argc, argv);
}

#include "tst_plotstatusbar.moc"
