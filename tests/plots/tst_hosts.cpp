// What host programs do with plots: places, order of life and death, calls from inside signals.

#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/look.h"
#include "plots/spectrum.h"

#include <QDockWidget>
#include <QFile>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMetaMethod>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QTabWidget>
#include <QtTest>

#include <limits>
#include <numeric>
#include <random>

using namespace Zel3D;
using namespace fixture;

namespace {

const QColor red(255, 0, 0);

double sheetHeight(int column, int)
{
    return column == 1 ? 0.1 : 0.0;
}

/// What the tests look for: a flat sheet seen from above, or areas of spectra seen from the front.
void load(BasePlot& plot, int size = 3)
{
    if (auto* surface = qobject_cast<SHPlot*>(&plot)) {
        Heights(size, size, sheetHeight).into(*surface);
        return;
    }
    std::map<double, double> heights;
    for (int i = 0; i < size; ++i)
        heights[i] = 1.0;
    qobject_cast<Spectrum*>(&plot)->loadFromData({{0.0, heights}, {1.0, heights}}, YAxis);
}

int filledStyle(const BasePlot& plot)
{
    return qobject_cast<const SHPlot*>(&plot) ? 4 : 3;
}

void faceThePerson(BasePlot& plot)
{
    plot.setPlotStyle(filledStyle(plot));
    plot.setRotation({qobject_cast<SHPlot*>(&plot) ? 90.0 : 0.0, 0.0, 0.0});
    plot.setLighting(false);
}

template <class AnyPlot>
std::unique_ptr<AnyPlot> prepared(std::unique_ptr<AnyPlot> plot, const QColor& color)
{
    plot->setGradient("plain", plain(color));
    faceThePerson(*plot);
    load(*plot);
    return plot;
}

/// A plot in one colour that fills the middle of the window.
std::unique_ptr<Plot> sheet(const QColor& color, const QGLWidget* share = nullptr)
{
    return prepared(std::make_unique<Plot>("plot", share), color);
}

std::unique_ptr<BasePlot> redPlot(bool ofSpectra)
{
    if (!ofSpectra)
        return sheet(red);
    auto plot = prepared(std::make_unique<Spectrum>("plot", organization, application), red);
    plot->getLegend().setVisible(false);
    return plot;
}

bool shows(BasePlot& plot, const QColor& color)
{
    return pixels(harness::grab(plot), color) > 200;
}

bool settle(QWidget& window)
{
    window.resize(500, 400);
    window.show();
    return QTest::qWaitForWindowExposed(&window);
}

double residentMemory()
{
    QFile file("/proc/self/statm");
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toDouble() * 4096.0 / 1e6
                                          : 0.0;
}

const double numbers[] = {
    0.0, 1.0, -1.0, 1e300, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()};

/// An ordinary or an absurd value of a slot's parameter; not valid for types that are left out.
QVariant argument(int type, int which)
{
    static const int integers[] = {0, 1, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min(),
                                   7};
    switch (type) {
    case QMetaType::Bool:
        return which % 2 == 0;
    case QMetaType::Int:
        return integers[which];
    case QMetaType::Double:
        return numbers[which];
    case QMetaType::QString:
        return which % 2 == 0 ? QString() : QString(20000, QChar(0x3b1));
    case QMetaType::QColor:
        return which % 2 == 0 ? QColor() : QColor(1, 2, 3, 4);
    default:
        break;
    }
    if (QMetaType::typeFlags(type) & QMetaType::IsEnumeration)
        return QVariant(type, &integers[which]);
    return {};
}

/// Calls the slots of the plot that take one argument or none. Returns how many.
int callEverySlot(BasePlot& plot, int which)
{
    const QMetaObject& meta = *plot.metaObject();
    const double number = numbers[which];
    plot.slotSetRotation({number, numbers[5 - which], 1.0});
    plot.slotSetScale({number, 1.0, numbers[5 - which]});
    plot.slotSetShift({number, 0.0, 0.0});
    plot.slotSetViewportShift({0.0, number});
    int count = 4;
    for (int i = QGLWidget::staticMetaObject.methodCount(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        // The dialog would wait for a person.
        if (method.methodType() != QMetaMethod::Slot || method.name() == "slotSettingsDialog" ||
            method.name() == "slotSaveSettings" || method.parameterCount() > 1)
            continue;
        if (method.parameterCount() == 0) {
            count += method.invoke(&plot, Qt::DirectConnection) ? 1 : 0;
            continue;
        }
        const QVariant value = argument(method.parameterType(0), which);
        if (value.isValid())
            count += method.invoke(&plot, Qt::DirectConnection,
                                   QGenericArgument(value.typeName(), value.constData()))
                         ? 1
                         : 0;
    }
    return count;
}

/// Takes back what the slots may have set. Setters, because slots wait for the first show.
void calm(BasePlot& plot)
{
    plot.slotDefault();
    plot.setAutoScaling(true);
    plot.setResolution(1);
    faceThePerson(plot);
    plot.setShadingStyle(SmoothShading);
    plot.setProjectionType(Orthogonal);
    plot.setBackgroundColor(Qt::white);
    plot.slotSetTitle(QString());
}

/// What a person does to a plot.
QVector<std::function<void(BasePlot&)>> handlings()
{
    const auto drag = [](BasePlot& plot) {
        QTest::mousePress(&plot, Qt::LeftButton, Qt::NoModifier, QPoint(40, 40));
        for (int i = 1; i < 4; ++i) {
            const QPointF at(40.0 + 9.0 * i, 40.0 + 7.0 * i);
            QMouseEvent move(QEvent::MouseMove, at, plot.mapToGlobal(at.toPoint()), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&plot, &move);
        }
        QTest::mouseRelease(&plot, Qt::LeftButton, Qt::NoModifier, QPoint(67, 61));
    };
    return {drag,
            [](BasePlot& plot) {
                QWheelEvent turn(QPointF(40, 40), plot.mapToGlobal(QPoint(40, 40)), QPoint(), QPoint(0, 120),
                                 Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                QCoreApplication::sendEvent(&plot, &turn);
            },
            [](BasePlot& plot) { QTest::keyClick(&plot, Qt::Key_A); },
            [](BasePlot& plot) {
                plot.setSelecting(true);
                QMouseEvent move(QEvent::MouseMove, QPointF(70, 60), plot.mapToGlobal(QPoint(70, 60)),
                                 Qt::NoButton, Qt::NoButton, Qt::NoModifier);
                QCoreApplication::sendEvent(&plot, &move);
            },
            [drag](BasePlot& plot) {
                plot.setAutoRotate(true);
                plot.setDeltaVelocity(0.0);
                drag(plot);
                QTest::qWait(120);
            }};
}

using Move = std::function<void(Plot&, QMainWindow&)>;
using Answer = std::function<void(BasePlot&)>;

} // namespace

Q_DECLARE_METATYPE(Move)
Q_DECLARE_METATYPE(Answer)

class TestHosts : public QObject
{
    Q_OBJECT

private slots:
    void init() { harness::clearStore(); }
    void placesInWindows_data();
    void placesInWindows();
    void manyAtOnce_data();
    void manyAtOnce();
    void createdAndDeletedInALoop();
    void callsFromInsideSignals_data();
    void callsFromInsideSignals();
    void everySlotAtEveryTime_data();
    void everySlotAtEveryTime();

public slots:
    void answerOnce();

private:
    QPointer<BasePlot> answering;
    Answer answer;
    int answers = 0;
    bool answeringNow = false;
};

void TestHosts::placesInWindows_data()
{
    QTest::addColumn<Move>("move");
    QTest::newRow("hidden and shown") << Move([](Plot& plot, QMainWindow&) {
        plot.hide();
        QCoreApplication::processEvents();
        plot.show();
    });
    QTest::newRow("minimised and back") << Move([](Plot&, QMainWindow& window) {
        window.showMinimized();
        QCoreApplication::processEvents();
        window.showNormal();
    });
    QTest::newRow("docked, floated, docked") << Move([](Plot& plot, QMainWindow& window) {
        auto* dock = new QDockWidget(&window);
        dock->setWidget(&plot);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        for (const bool floating : {true, false}) {
            dock->setFloating(floating);
            QTest::qWait(30);
        }
    });
    QTest::newRow("out of the window and into a tab") << Move([](Plot& plot, QMainWindow& window) {
        plot.setParent(nullptr);
        plot.show();
        QTest::qWait(30);
        auto* tabs = new QTabWidget;
        tabs->addTab(new QWidget, "first");
        tabs->addTab(&plot, "plot");
        window.setCentralWidget(tabs);
        QCoreApplication::processEvents();
        tabs->setCurrentIndex(1);
    });
    QTest::newRow("splitter squeezed to nothing") << Move([](Plot& plot, QMainWindow& window) {
        auto* splitter = new QSplitter;
        splitter->addWidget(&plot);
        splitter->addWidget(new QWidget);
        window.setCentralWidget(splitter);
        plot.show();
        for (const QList<int>& sizes : {QList<int>{0, 500}, QList<int>{400, 100}}) {
            splitter->setSizes(sizes);
            QTest::qWait(30);
        }
    });
    QTest::newRow("area of subwindows") << Move([](Plot& plot, QMainWindow& window) {
        auto* area = new QMdiArea;
        QMdiSubWindow* inner = area->addSubWindow(&plot);
        window.setCentralWidget(area);
        inner->show();
        inner->showMaximized();
        QTest::qWait(30);
        inner->showNormal();
        inner->resize(300, 300);
    });
}

void TestHosts::placesInWindows()
{
    QFETCH(Move, move);
    const std::unique_ptr<QMainWindow> window = std::make_unique<QMainWindow>();
    Plot* const plot = sheet(red).release();
    window->setCentralWidget(plot);
    QVERIFY(settle(*window));
    QVERIFY(shows(*plot, red));
    move(*plot, *window);
    QTest::qWait(50);
    QVERIFY(plot->isVisible());
    QVERIFY(shows(*plot, red));
}

void TestHosts::manyAtOnce_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("sharing");
    QTest::newRow("two") << 2 << false;
    QTest::newRow("two that share") << 2 << true;
    QTest::newRow("ten") << 10 << false;
    QTest::newRow("ten that share") << 10 << true;
}

void TestHosts::manyAtOnce()
{
    QFETCH(int, count);
    QFETCH(bool, sharing);
    const auto color = [](int i) { return QColor(20 * i + 30, 255 - 20 * i, 100); };
    std::vector<std::unique_ptr<Plot>> plots;
    for (int i = 0; i < count; ++i) {
        plots.push_back(sheet(color(i), sharing && i > 0 ? plots.front().get() : nullptr));
        QVERIFY(harness::show(*plots.back(), 120, 100));
    }
    // The first goes first: the lists of the others must outlive the one whose context they share.
    std::vector<std::size_t> order(plots.size());
    std::iota(order.begin(), order.end(), 0);
    std::shuffle(order.begin() + 1, order.end(), std::mt19937(1));
    for (const std::size_t gone : order) {
        for (std::size_t i = 0; i < plots.size(); ++i) {
            if (plots[i])
                QVERIFY2(shows(*plots[i], color(int(i))), qPrintable(QString("plot %1").arg(i)));
        }
        plots[gone].reset();
    }
}

void TestHosts::createdAndDeletedInALoop()
{
    double settled = 0.0;
    for (int i = 0; i < 60; ++i) {
        const std::unique_ptr<Plot> plot = sheet(red);
        Look::light().applyTo(*plot);
        // Some are deleted before they were seen, and some with their bars in a window that outlives them.
        if (i % 3 == 0)
            continue;
        QVERIFY(harness::show(*plot, 200, 150));
        if (i == 20)
            settled = residentMemory();
    }
    QVERIFY2(residentMemory() - settled < 30.0, qPrintable(QString::number(residentMemory() - settled)));
}

void TestHosts::callsFromInsideSignals_data()
{
    QTest::addColumn<Answer>("reply");
    QTest::addColumn<bool>("stays");
    QTest::addColumn<bool>("ofSpectra");
    const auto row = [](const char* name, bool stays, const Answer& reply) {
        QTest::newRow(qPrintable(QString("surface: %1").arg(name))) << reply << stays << false;
        QTest::newRow(qPrintable(QString("spectra: %1").arg(name))) << reply << stays << true;
    };
    row("load", true, [](BasePlot& plot) { load(plot, 4); });
    row("set", true, [](BasePlot& plot) {
        const int filled = filledStyle(plot);
        plot.slotSetPlotStyle(plot.getSettings().getStyle() == filled ? filled + 1 : filled);
        plot.slotSetZoom(plot.getZoom() * 1.01);
    });
    row("clear and load", true, [](BasePlot& plot) {
        plot.clearData();
        load(plot);
    });
    row("hide and show", true, [](BasePlot& plot) {
        plot.hide();
        plot.show();
    });
    row("load the settings", true, [](BasePlot& plot) { plot.slotLoadSettings(); });
    row("close and delete", false, [](BasePlot& plot) {
        plot.setAttribute(Qt::WA_DeleteOnClose);
        plot.close();
    });
    row("delete later", false, [](BasePlot& plot) { plot.deleteLater(); });
}

// Whatever is being told, the plot goes on, or goes when the event loop comes round.
void TestHosts::callsFromInsideSignals()
{
    QFETCH(Answer, reply);
    QFETCH(bool, stays);
    QFETCH(bool, ofSpectra);
    const QPointer<BasePlot> plot = redPlot(ofSpectra).release();
    plot->slotSaveSettings();
    QVERIFY(harness::show(*plot, 150, 120));
    answering = plot;
    answer = reply;
    answers = 0;
    const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("answerOnce()"));
    const QMetaObject* const meta = plot->metaObject();
    for (int i = QGLWidget::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            QVERIFY(connect(plot, meta->method(i), this, slot));
    }
    const harness::Messages quiet;
    for (int which = 0; which < 6; ++which)
        callEverySlot(*plot, which);
    QVERIFY2(answers > 40, qPrintable(QString::number(answers)));
    // Every kind of handling tells of something, unless the plot waits for its end.
    calm(*plot);
    for (const Answer& handling : handlings()) {
        answers = 0;
        handling(*plot);
        QVERIFY(answers > 0 || !stays);
    }
    answering = nullptr;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(!plot.isNull(), stays);
    if (plot) {
        plot->setAutoRotate(false);
        calm(*plot);
        load(*plot);
        QVERIFY(shows(*plot, red));
        delete plot;
    }
}

void TestHosts::answerOnce()
{
    if (!answering || answeringNow)
        return;
    const QScopedValueRollback<bool> guard(answeringNow, true);
    ++answers;
    answer(*answering);
}

void TestHosts::everySlotAtEveryTime_data()
{
    QTest::addColumn<Answer>("prepare");
    QTest::addColumn<bool>("ofSpectra");
    const auto row = [](const char* name, const Answer& prepare) {
        QTest::newRow(qPrintable(QString("surface: %1").arg(name))) << prepare << false;
        QTest::newRow(qPrintable(QString("spectra: %1").arg(name))) << prepare << true;
    };
    row("before the first show", [](BasePlot&) {});
    row("shown", [](BasePlot& plot) { harness::show(plot, 100, 80); });
    row("hidden again", [](BasePlot& plot) {
        harness::show(plot, 100, 80);
        plot.hide();
    });
    row("without data", [](BasePlot& plot) {
        harness::show(plot, 100, 80);
        plot.clearData();
    });
}

// With ordinary and with absurd arguments; afterwards the plot can be used as before.
void TestHosts::everySlotAtEveryTime()
{
    QFETCH(Answer, prepare);
    QFETCH(bool, ofSpectra);
    const std::unique_ptr<BasePlot> plot = redPlot(ofSpectra);
    plot->slotSaveSettings();
    prepare(*plot);
    const harness::Messages quiet;
    int calls = 0;
    for (int which = 0; which < 6; ++which) {
        calls += callEverySlot(*plot, which);
        if (plot->isVisible())
            harness::grab(*plot);
    }
    QVERIFY2(calls > 150, qPrintable(QString::number(calls)));
    calm(*plot);
    load(*plot);
    QVERIFY(harness::show(*plot, 150, 120));
    QVERIFY(shows(*plot, red));
}

int main(int argc, char* argv[])
{
    return harness::run<TestHosts>(argc, argv);
}

#include "tst_hosts.moc"
