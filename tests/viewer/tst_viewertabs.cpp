// Several plots in the viewer's window: tabs, panes, and what belongs to the current one.

#include "formulasource.h"
#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "plotstyles.h"
#include "plottabs.h"
#include "scene/legend.h"
#include "settings/plotsettingsdialog.h"
#include "startpage.h"
#include "toroidsource.h"
#include "viewerwindow.h"

#include <QAction>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>
#include <QtTest>

namespace {

const QString examples = QString(VORAN_SOURCE_DIR) + "/examples/data/";

/// Hears of new sizes.
class Sizes : public QObject
{
public:
    int count = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == QEvent::Resize ? 1 : 0;
        return false;
    }
};

} // namespace

class TestViewerTabs : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void droppedFilesOpenInTabs();
    void startPageStandsInATab();
    void plotsCloseInAnyOrder_data();
    void plotsCloseInAnyOrder();
    void settingsOfSeveralPlotsAtOnce();
    void panesKeepThePlots();
    void panesShareTheRoom();
    void panesGoWithTheirLastPlot();
    void menusBelongToTheActivePlot();
    void hiddenPlotsRest();
    void newPlotsJoinTheLink();

private:
    QAction& action(const QString& text) const;
    void openThree();
    PlotPage& page(int number) const { return *m_window->tabs().pages().at(number); }
    QStringList titles() const;

    std::unique_ptr<ViewerWindow> m_window;
};

void TestViewerTabs::init()
{
    m_window = std::make_unique<ViewerWindow>();
    QVERIFY(harness::show(*m_window, 700, 500));
}

void TestViewerTabs::cleanup()
{
    m_window.reset();
    harness::clearStore();
}

QAction& TestViewerTabs::action(const QString& text) const
{
    const QList<QMenu*> menus = m_window->menuBar()->findChildren<QMenu*>();
    for (const QMenu* menu : menus) {
        const QList<QAction*> actions = menu->actions();
        for (QAction* found : actions) {
            if (found->text().remove('&') == text)
                return *found;
        }
    }
    qFatal("There is no action %s.", qPrintable(text));
}

void TestViewerTabs::openThree()
{
    QString error;
    QVERIFY(m_window->present(std::make_unique<FormulaSource>("x*y", FormulaArea()), error));
    m_window->openFile(examples + "gasoline_nir.csv");
    QVERIFY(m_window->present(std::make_unique<ToroidSource>(), error));
    QCoreApplication::processEvents();
    QCOMPARE(m_window->tabs().pages().size(), 3);
}

QStringList TestViewerTabs::titles() const
{
    QStringList found;
    const QList<QTabBar*> bars = m_window->findChildren<QTabBar*>();
    for (const QTabBar* bar : bars) {
        for (int i = 0; i < bar->count(); ++i)
            found.append(bar->tabText(i));
    }
    return found;
}

void TestViewerTabs::droppedFilesOpenInTabs()
{
    m_window->openFile(examples + "bunny.off");
    const PlotPage* const first = m_window->page();
    // Alone, a plot has the window for itself.
    QVERIFY(!m_window->findChild<QTabBar*>()->isVisible());
    QMimeData data;
    QList<QUrl> urls;
    for (const char* name : {"gasoline_nir.csv", "missing.asc", "bunny.off"})
        urls.append(QUrl::fromLocalFile(examples + name));
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    const QString words = harness::boxText([&] { QCoreApplication::sendEvent(m_window.get(), &drop); });
    QVERIFY2(words.contains("missing.asc") && !words.contains("bunny"), qPrintable(words));
    // A file that is open opens anew.
    QCOMPARE(titles(), (QStringList{"bunny.off", "gasoline_nir.csv", "bunny.off (2)"}));
    QCOMPARE(m_window->findChild<QTabBar*>()->tabToolTip(1), examples + "gasoline_nir.csv");
    QVERIFY(m_window->page() != first && m_window->page() == &page(2));
    for (int i = 0; i < 3; ++i) {
        action("Next plot").trigger();
        QCOMPARE(m_window->page(), &page(i));
        QVERIFY(page(i).plot().isVisible() && m_window->windowTitle().startsWith(page(i).source().name()));
    }
    action("Previous plot").trigger();
    QCOMPARE(m_window->page(), &page(1));
}

void TestViewerTabs::startPageStandsInATab()
{
    openThree();
    action("Start page").trigger();
    auto* start = m_window->findChild<StartPage*>();
    QVERIFY(start->isVisible() && m_window->page() == nullptr);
    QVERIFY(!action("Save picture...").isEnabled() && !action("Undo").isEnabled());
    action("Close plot").trigger();
    QVERIFY(!start->isVisible() && m_window->page() == &page(2));
    action("Start page").trigger();
    m_window->openFile(examples + "bunny.off");
    QVERIFY(!start->isVisible());
    QCOMPARE(m_window->tabs().pages().size(), 4);
    action("Close others").trigger();
    QCOMPARE(m_window->tabs().pages().size(), 1);
    QVERIFY(m_window->windowTitle().startsWith("bunny.off"));
    action("Close plot").trigger();
    QVERIFY(start->isVisible());
}

void TestViewerTabs::plotsCloseInAnyOrder_data()
{
    QTest::addColumn<QList<int>>("order"); // numbers among those that are left
    QTest::addColumn<bool>("panes");
    for (const bool panes : {false, true}) {
        const QString words = panes ? "panes" : "tabs";
        QTest::newRow(qPrintable(words + " from the first")) << QList<int>{0, 0, 0} << panes;
        QTest::newRow(qPrintable(words + " from the last")) << QList<int>{2, 1, 0} << panes;
        QTest::newRow(qPrintable(words + " from the middle")) << QList<int>{1, 0, 0} << panes;
    }
}

void TestViewerTabs::plotsCloseInAnyOrder()
{
    QFETCH(QList<int>, order);
    QFETCH(bool, panes);
    openThree();
    if (panes) {
        action("Show beside").trigger();
        m_window->tabs().activate(page(0));
        action("Show below").trigger();
        QCOMPARE(m_window->tabs().paneCount(), 3);
    }
    action("Link views").trigger();
    std::vector<std::unique_ptr<Zel3D::PlotSettingsDialog>> dialogs;
    for (int i = 0; i < 3; ++i) {
        Zel3D::BasePlot& plot = page(i).plot();
        dialogs.push_back(std::make_unique<Zel3D::PlotSettingsDialog>(nullptr, plot.getOrganization(),
                                                                      plot.getApplication(), &plot));
        dialogs.back()->show();
        plot.setRotation({10.0 * i, 0.0, 0.0});
        QCoreApplication::processEvents();
    }
    for (const int number : order) {
        m_window->tabs().close(page(number));
        QCoreApplication::processEvents();
        if (m_window->page() == nullptr)
            break;
        QVERIFY(m_window->page()->plot().isVisible());
        const Zel3D::ValueXYZ<double> before = m_window->page()->plot().getRotation();
        m_window->page()->plot().slotSetRotation({0.0, 7.0, double(number)});
        for (PlotPage* left : m_window->tabs().pages())
            QCOMPARE(left->plot().getRotation().y, 7.0);
        action("Undo rotate").trigger();
        for (PlotPage* left : m_window->tabs().pages())
            QCOMPARE(left->plot().getRotation().x, before.x);
        QCoreApplication::processEvents();
    }
    QVERIFY(m_window->tabs().pages().isEmpty() && m_window->findChild<StartPage*>()->isVisible());
    QCOMPARE(m_window->tabs().paneCount(), 1);
    for (const auto& dialog : dialogs)
        QVERIFY(!dialog->isVisible());
    // Under the link still.
    openThree();
    QVERIFY(!(page(0).plot().getRotation() != page(2).plot().getRotation()));
}

void TestViewerTabs::settingsOfSeveralPlotsAtOnce()
{
    openThree();
    const auto isOpen = [](PlotPage& page) { return Zel3D::PlotSettingsDialog::of(page.plot()) != nullptr; };
    bool both = false;
    bool none = true;
    // Each entry of the menu returns when its dialog closes, the later one first.
    QTimer::singleShot(0, this, [&] {
        m_window->tabs().activate(page(0));
        QTimer::singleShot(0, this, [&] {
            both = isOpen(page(0)) && isOpen(page(2)) && !isOpen(page(1));
            m_window->tabs().close(page(2));
            m_window->tabs().close(page(0));
            none = !isOpen(page(0));
        });
        action("Settings...").trigger();
    });
    action("Settings...").trigger();
    QVERIFY(both && none);
    QCOMPARE(m_window->tabs().pages().size(), 1);
    QVERIFY(m_window->page()->plot().isVisible());
    QVERIFY(m_window->windowTitle().startsWith("gasoline_nir.csv"));
}

void TestViewerTabs::panesKeepThePlots()
{
    openThree();
    Zel3D::BasePlot& plot = m_window->page()->plot();
    plot.slotSetPlotStyle(PlotStyles::Wireframe);
    plot.slotSetRotation({20.0, 30.0, 40.0});
    plot.slotSetZoom(1.2 * plot.getZoom());
    plot.getLegend().setVisible(false);
    const QSize size = plot.size();
    const QImage before = harness::grab(plot);
    action("Show beside").trigger();
    QCoreApplication::processEvents();
    QCOMPARE(m_window->page(), &page(2));
    QVERIFY(page(1).plot().isVisible() && plot.isVisible() && plot.width() < size.width());
    QVERIFY(plot.mapToGlobal(QPoint()).x() > page(1).plot().mapToGlobal(QPoint()).x());
    action("Show below").trigger();
    QCoreApplication::processEvents();
    QCOMPARE(m_window->tabs().paneCount(), 2);
    QVERIFY(plot.mapToGlobal(QPoint()).y() > page(1).plot().mapToGlobal(QPoint()).y());
    action("All in one place").trigger();
    QCoreApplication::processEvents();
    QVERIFY(m_window->page() == &page(2) && !page(1).plot().isVisible());
    QCOMPARE(plot.size(), size);
    QCOMPARE(harness::grab(plot), before);
}

void TestViewerTabs::panesShareTheRoom()
{
    openThree();
    QString error;
    QVERIFY(m_window->present(std::make_unique<ToroidSource>(), error));
    const auto splitOff = [this](int number) {
        m_window->tabs().activate(page(number));
        action("Show beside").trigger();
        QCoreApplication::processEvents();
    };
    splitOff(3);
    splitOff(0);
    // As wide as each other, but for what the window's width leaves over.
    for (int i = 0; i < 2; ++i)
        QVERIFY(std::abs(page(i).width() - page(3).width()) <= 4);
    // Where the person has chosen the widths, only the shared place is divided.
    auto* splitter = m_window->findChild<QSplitter*>();
    splitter->setSizes({400, 150, 150});
    QCoreApplication::processEvents();
    const int kept = page(3).width();
    splitOff(1);
    QCOMPARE(m_window->tabs().paneCount(), 4);
    QVERIFY(std::abs(page(3).width() - kept) <= 10);
}

void TestViewerTabs::panesGoWithTheirLastPlot()
{
    openThree();
    QString error;
    for (int i = 0; i < 2; ++i)
        QVERIFY(m_window->present(std::make_unique<ToroidSource>(), error));
    // Four places are the most.
    for (const char* text : {"Show beside", "Show below", "Show beside"}) {
        m_window->tabs().activate(page(0));
        action(text).trigger();
        QCoreApplication::processEvents();
    }
    QCOMPARE(m_window->tabs().paneCount(), 4);
    PlotTabs& tabs = m_window->tabs();
    for (PlotPage* shared : tabs.pages()) {
        tabs.activate(*shared);
        if (tabs.canSplit())
            continue;
        QVERIFY(!action("Show beside").isEnabled());
        action("Move to the next place").trigger();
        QCOMPARE(tabs.current(), shared);
        break;
    }
    QCOMPARE(tabs.pages().size(), 5);
    while (!tabs.pages().isEmpty()) {
        const int panes = tabs.paneCount();
        tabs.close(*tabs.pages().last());
        QCoreApplication::processEvents();
        QVERIFY(tabs.paneCount() <= panes);
        // Nothing is left of a place without plots.
        for (const PlotPane* pane : m_window->findChildren<PlotPane*>())
            QVERIFY(!pane->pages().isEmpty());
    }
    QCOMPARE(tabs.paneCount(), 1);
}

void TestViewerTabs::menusBelongToTheActivePlot()
{
    openThree();
    action("Show beside").trigger();
    QCoreApplication::processEvents();
    Zel3D::BasePlot& surface = page(2).plot();
    Zel3D::BasePlot& spectra = page(1).plot();
    const auto description = [this] {
        return m_window->statusBar()->findChild<QLabel*>("description")->text();
    };
    Sizes sizes;
    surface.installEventFilter(&sizes);
    spectra.installEventFilter(&sizes);
    QTest::mouseClick(&spectra, Qt::LeftButton);
    QCOMPARE(m_window->page(), &page(1));
    QVERIFY2(description().startsWith("60 spectra"), qPrintable(description()));
    QVERIFY(spectra.getToolBar(Zel3D::ViewsToolBar)->isVisible());
    QVERIFY(!surface.getToolBar(Zel3D::ViewsToolBar)->isVisible());
    const double angle = surface.getRotation().x;
    action("Top view").trigger();
    QCOMPARE(spectra.getRotation().x, 90.0);
    QCOMPARE(surface.getRotation().x, angle);
    QCoreApplication::processEvents();
    QApplication::setActiveWindow(m_window.get());
    QTest::keyClick(m_window.get(), Qt::Key_2, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(spectra.getRotation().x, -90.0);
    QCOMPARE(surface.getRotation().x, angle);
    QTest::keyClick(&spectra, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(spectra.getRotation().x, 90.0);
    surface.setFocus();
    QCOMPARE(m_window->page(), &page(2));
    action("Wireframe").trigger();
    QCOMPARE(page(2).view().plotStyle(), int(PlotStyles::Wireframe));
    QCOMPARE(page(1).view().plotStyle(), int(PlotStyles::Lines));
    QVERIFY(!action("Undo").isEnabled());
    QCoreApplication::processEvents();
    // Going from one to the other moves nothing in the window.
    QCOMPARE(sizes.count, 0);
}

void TestViewerTabs::hiddenPlotsRest()
{
    openThree();
    action("Link views").trigger();
    QCoreApplication::processEvents();
    {
        const GLRecorder recorder;
        m_window->page()->plot().slotSetRotation({5.0, 6.0, 7.0});
        QCoreApplication::processEvents();
        QCOMPARE(recorder.count("glClear"), 1);
    }
    // Brought back, they show what they have.
    const GLRecorder recorder;
    action("Next plot").trigger();
    QCoreApplication::processEvents();
    QVERIFY(recorder.count("glClear") > 0);
    QCOMPARE(recorder.count("glNewList"), 0);
    QCOMPARE(m_window->page()->plot().getRotation().y, 6.0);
}

void TestViewerTabs::newPlotsJoinTheLink()
{
    openThree();
    action("Link views").trigger();
    Zel3D::BasePlot& plot = m_window->page()->plot();
    plot.slotSetRotation({5.0, 6.0, 7.0});
    plot.slotSetZoom(2.0 * plot.getZoom());
    m_window->openFile(examples + "bunny.off");
    QCoreApplication::processEvents();
    PlotPage& joined = *m_window->page();
    QCOMPARE(joined.plot().getRotation().y, 6.0);
    QCOMPARE(joined.plot().getZoom() / joined.view().fittedZoom(), 2.0);
    QVERIFY(!action("Undo").isEnabled());
}

int main(int argc, char* argv[])
{
    return harness::run<TestViewerTabs>(argc, argv);
}

#include "tst_viewertabs.moc"
