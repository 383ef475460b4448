// Long loads and parts of large grids in the window.

#include "gridsource.h"
#include "harness/harness.h"
#include "notebar.h"
#include "partdialog.h"
#include "partmap.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "progressbox.h"
#include "recentfiles.h"
#include "toroidsource.h"
#include "viewerpreferences.h"
#include "viewerwindow.h"
#include "watersimulation.h"
#include "watersource.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMouseEvent>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include <functional>

namespace {

const QString example = QString(VORAN_SOURCE_DIR) + "/examples/data/jacksboro_dem.asc";

constexpr int longest = 5000;

/// A source that takes long, until it is cancelled.
class SlowSource : public ToroidSource
{
public:
    explicit SlowSource(int time = longest) : m_duration(time) {}
    QString filePath() const override { return example; }

protected:
    std::unique_ptr<PlotView> read(const LoadProgress& progress) override
    {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < m_duration) {
            QTest::qSleep(2);
            if (!progress(double(time.elapsed()) / m_duration))
                return fail("Cancelled, which is no error.");
        }
        return progress.busy(LoadProgress::Drawing, 1.0) ? ToroidSource::read(progress) : nullptr;
    }

private:
    int m_duration;
};

QProgressDialog* shownProgress()
{
    return qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
}

/// A mouse event on a place of a map, in fractions of it from the upper left corner.
void mouse(PartMap& map, QEvent::Type type, double x, double y)
{
    QMouseEvent event(type, QPointF(x * map.width(), y * map.height()), Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&map, &event);
}

} // namespace

class TestViewerLoad : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void cancelLeavesEverything();
    void slowLoadEndsInItsPlot();
    void closingEndsTheLoad();
    void partOpensInFull();
    void partFollowsMapAndFields();

private:
    bool present(std::unique_ptr<PlotSource> source);
    /// The thinned example as a source that was opened.
    std::unique_ptr<GridSource> thinned();

    std::unique_ptr<ViewerWindow> m_window;
    QString m_error;
};

void TestViewerLoad::init()
{
    m_window = std::make_unique<ViewerWindow>();
    QVERIFY(harness::show(*m_window, 600, 450));
}

void TestViewerLoad::cleanup()
{
    m_window.reset();
    harness::clearStore();
}

bool TestViewerLoad::present(std::unique_ptr<PlotSource> source)
{
    m_error.clear();
    return m_window->present(std::move(source), m_error);
}

void TestViewerLoad::cancelLeavesEverything()
{
    QVERIFY(present(std::make_unique<WaterSource>()));
    const PlotPage* const before = m_window->page();
    QElapsedTimer sinceCancel;
    bool refused = false;
    bool still = false;
    QTimer::singleShot(ProgressBox::patience + 300, m_window.get(), [&] {
        QString error;
        // Neither drops nor calls open anything meanwhile, and nothing moves.
        refused = !m_window->open(example, 1, error) && error.isEmpty() && !m_window->acceptDrops();
        still = !m_window->page()->source().simulation()->isStarted();
        sinceCancel.start();
        QTest::mouseClick(shownProgress()->findChild<QPushButton*>(), Qt::LeftButton);
    });
    QVERIFY(!present(std::make_unique<SlowSource>()));
    QVERIFY2(sinceCancel.isValid() && sinceCancel.elapsed() < 150,
             qPrintable(QString::number(sinceCancel.elapsed())));
    QVERIFY(refused && still);
    QCOMPARE(m_error, QString());
    QCOMPARE(m_window->page(), before);
    QCOMPARE(RecentFiles::all(), QStringList());
    QVERIFY(m_window->acceptDrops() && m_window->page()->source().simulation()->isStarted());
    QVERIFY(m_window->isEnabled() && shownProgress() == nullptr);
    // The next load is not cancelled.
    QVERIFY(present(std::make_unique<ToroidSource>()));
}

void TestViewerLoad::slowLoadEndsInItsPlot()
{
    QVector<int> values;
    QString drawing;
    QTimer watch;
    connect(&watch, &QTimer::timeout, [&] {
        const QProgressDialog* const box = shownProgress();
        if (box == nullptr)
            return;
        if (box->maximum() > 0)
            values.append(box->value());
        else
            drawing = box->labelText();
    });
    watch.start(10);
    // As when the program starts with a file: what takes long shows the window at once.
    m_window->hide();
    QVERIFY(present(std::make_unique<SlowSource>(1500)));
    QVERIFY2(values.size() > 5 && values.last() > 2 * values.first(),
             qPrintable(QString::number(values.size())));
    QVERIFY(std::is_sorted(values.begin(), values.end()));
    QCOMPARE(drawing, QString("Drawing Toroid..."));
    QVERIFY(m_window->windowTitle().startsWith("Toroid"));
    QVERIFY(shownProgress() == nullptr && m_window->isVisible());
    // A short load shows no box.
    values.clear();
    QVERIFY(present(std::make_unique<SlowSource>(300)));
    QVERIFY(values.isEmpty());
}

void TestViewerLoad::closingEndsTheLoad()
{
    QTimer::singleShot(ProgressBox::patience + 200, m_window.get(), [this] { m_window->close(); });
    QElapsedTimer time;
    time.start();
    QVERIFY(!present(std::make_unique<SlowSource>()));
    QVERIFY(time.elapsed() < longest / 2);
    QVERIFY(m_window->isVisible());
    QTRY_VERIFY(!m_window->isVisible());
}

std::unique_ptr<GridSource> TestViewerLoad::thinned()
{
    ViewerPreferences::setNodeBudget(ViewerPreferences::leastNodes);
    return std::make_unique<GridSource>(example);
}

void TestViewerLoad::partOpensInFull()
{
    QAction* action = nullptr;
    for (QAction* found : m_window->findChildren<QAction*>()) {
        if (found->text().remove('&') == "Open part...")
            action = found;
    }
    QVERIFY(action != nullptr && !action->isEnabled());
    m_window->openFile(example);
    QVERIFY(!action->isEnabled());
    QVERIFY(present(thinned()));
    QVERIFY(action->isEnabled());
    auto* notes = m_window->page()->findChild<NoteBar*>();
    QVERIFY2(notes->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly) != nullptr,
             "the bar has a sign");
    QVERIFY(
        m_window->page()->source().notes().first().startsWith("Shown thinned: 100 x 86 of 403 x 344 nodes"));
    GridRange range;
    QTimer::singleShot(0, m_window.get(), [&range] {
        QTimer::singleShot(0, [&range] {
            auto* dialog = qobject_cast<PartDialog*>(QApplication::activeModalWidget());
            range = dialog->range();
            dialog->accept();
        });
    });
    notes->findChild<QToolButton*>("openPart")->click();
    QTRY_VERIFY(m_window->windowTitle().startsWith("jacksboro_dem.asc, part"));
    QVERIFY(!action->isEnabled() && m_window->page()->source().notes().isEmpty());
    const Zel3D::Parallelepiped hull = m_window->page()->plot().getHull();
    QCOMPARE(hull.minimum.x(), float(range.xMin));
    QCOMPARE(hull.maximum.y(), float(range.yMax));
    QVERIFY2(m_window->page()->source().description().startsWith("108 x 92 nodes"),
             qPrintable(m_window->page()->source().description()));
}

void TestViewerLoad::partFollowsMapAndFields()
{
    const std::unique_ptr<GridSource> source = thinned();
    QVERIFY(source->open());
    PartDialog dialog(*source, QPointF(-84.1, 36.7));
    QVERIFY(harness::show(dialog, 400, 420));
    auto& map = *dialog.findChild<PartMap*>();
    const auto field = [&dialog](const char* name) { return dialog.findChild<QDoubleSpinBox*>(name); };
    const auto verdict = [&dialog] { return dialog.findChild<QLabel*>("verdict")->text(); };
    QPushButton& open = *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    // At the edge that is nearest to the picked place.
    QCOMPARE(dialog.part().column + dialog.part().columns, 403);
    QVERIFY2(verdict().startsWith("108 x 92 nodes, in full"), qPrintable(verdict()));
    // A new rectangle over the left half, its ends beyond the map.
    mouse(map, QEvent::MouseButtonPress, 0.5, 0.999);
    mouse(map, QEvent::MouseMove, -0.3, -0.2);
    mouse(map, QEvent::MouseButtonRelease, -0.3, -0.2);
    QCOMPARE(dialog.part().column, 0);
    QVERIFY(std::abs(dialog.part().columns - 201) <= 1);
    QCOMPARE(dialog.part().rows, 344);
    QVERIFY(std::abs(field("yTo")->value() - source->layout().range.yMax) < 1e-5);
    QVERIFY2(verdict().contains("more than the budget of 10000 nodes. Shown thinned to "),
             qPrintable(verdict()));
    // Inside it moves, as far as there is room.
    const int columns = dialog.part().columns;
    mouse(map, QEvent::MouseButtonPress, 0.3, 0.5);
    mouse(map, QEvent::MouseMove, 0.4, 0.9);
    QVERIFY(std::abs(dialog.part().column - 0.1 * map.width() / map.height() * 344) < 10);
    mouse(map, QEvent::MouseMove, 3.0, 0.9);
    mouse(map, QEvent::MouseButtonRelease, 3.0, 0.9);
    QCOMPARE(dialog.part().columns, columns);
    QCOMPARE(dialog.part().column + columns, 403);
    // Fields that leave too little ask for more.
    QVERIFY(open.isEnabled());
    field("xFrom")->setValue(field("xTo")->value());
    QVERIFY2(verdict().startsWith("1 x 344 nodes: too few"), qPrintable(verdict()));
    QVERIFY(!open.isEnabled());
    field("xFrom")->setValue(-84.2);
    QVERIFY(open.isEnabled() && std::abs(dialog.range().xMin - -84.2) < 0.001);
}

int main(int argc, char* argv[])
{
    return harness::run<TestViewerLoad>(argc, argv);
}

#include "tst_viewerload.moc"
