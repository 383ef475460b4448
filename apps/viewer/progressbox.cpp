#include "progressbox.h"

#include <QMainWindow>
#include <QPushButton>
#include <QWindow>

#include <limits>

namespace {

constexpr int steps = 10000;
constexpr int boxWidth = 380;
constexpr int nameWidth = 240;
constexpr int longestAppearance = 200;

} // namespace

ProgressBox::ProgressBox(const QString& title, QMainWindow& window, PlotPage* page)
    : m_still(window, page), m_window(window), m_box(&window), m_cancel(new QPushButton(tr("Cancel")))
{
    m_box.setObjectName("progress");
    m_box.setWindowTitle(title);
    m_box.setLabelText(title);
    m_box.setCancelButton(m_cancel);
    m_box.setMinimumWidth(boxWidth);
    m_box.setWindowModality(Qt::WindowModal);
    // It stays for what follows the last step, and appears when it is told to.
    m_box.setAutoReset(false);
    m_box.setAutoClose(false);
    m_box.setMinimumDuration(std::numeric_limits<int>::max());
    m_time.start();
}

ProgressBox::~ProgressBox()
{
    if (m_closing)
        QMetaObject::invokeMethod(&m_window, "close", Qt::QueuedConnection);
}

void ProgressBox::appear()
{
    // At the start of the program the window may wait for its first plot: not so long.
    m_window.show();
    m_box.show();
    // What follows may take no events for long: until then the box must be on the screen.
    QElapsedTimer waiting;
    waiting.start();
    while (!m_box.windowHandle()->isExposed() && waiting.elapsed() < longestAppearance)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

bool ProgressBox::goesOn(double comingTime)
{
    if (!m_box.isVisible() && !m_box.wasCanceled()) {
        if (double(m_time.elapsed()) + comingTime < patience)
            return true;
        appear();
    }
    QCoreApplication::processEvents();
    return !m_box.wasCanceled();
}

Zel3D::PictureOptions::Progress ProgressBox::progress()
{
    return [this](int done, int total) {
        m_box.setMaximum(total);
        m_box.setValue(done);
        return goesOn(0.0);
    };
}

bool ProgressBox::showLoad(const QString& name, const LoadProgress::Report& report)
{
    const QString text = report.step == LoadProgress::Drawing ? tr("Drawing %1...") : tr("Reading %1...");
    m_box.setLabelText(
        text.arg(m_box.fontMetrics().elidedText(name.simplified(), Qt::ElideMiddle, nameWidth)));
    m_box.setMaximum(report.busy ? 0 : steps);
    m_box.setValue(report.busy ? 0 : int(report.part * steps));
    return goesOn(1000.0 * report.seconds);
}

LoadProgress ProgressBox::loadProgress(const QString& name)
{
    return LoadProgress([this, name](const LoadProgress::Report& report) { return showLoad(name, report); });
}

void ProgressBox::paintWindow()
{
    if (!m_box.isVisible())
        return;
    // The plot is there already.
    m_cancel->setEnabled(false);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void ProgressBox::closeWindowAfterwards()
{
    m_closing = true;
    m_box.cancel();
}
