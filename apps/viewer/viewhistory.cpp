#include "viewhistory.h"

#include "plots/baseplot.h"
#include "plotview.h"
#include "startview.h"
#include "viewchange.h"
#include "viewlink.h"

#include <QAction>
#include <QMouseEvent>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QUndoStack>

#include <algorithm>

using Zel3D::BasePlot;

namespace {

// Longer than keys that are held take to repeat.
constexpr int longestPause = 800; // ms
constexpr int mostEntries = 200;

/// The entry that a step would take; null without one.
const ViewChange* nextOf(const QUndoStack& stack, bool back)
{
    const int index = back ? stack.index() - 1 : stack.index();
    return index < 0 || index >= stack.count() ? nullptr
                                               : dynamic_cast<const ViewChange*>(stack.command(index));
}

void take(QUndoStack& stack, bool back)
{
    back ? stack.undo() : stack.redo();
}

bool isStandardView(const Zel3D::ValueXYZ<double>& rotation)
{
    const QStringList names = StartView::names();
    return std::any_of(names.begin(), names.end(),
                       [&rotation](const QString& name) { return !(rotation != *StartView::named(name)); });
}

} // namespace

struct ViewHistory::Tracked
{
    PlotView* view = nullptr;
    ViewState state;
    Cause input = Choice;
    Run run;
    QUndoStack stack;
};

ViewHistory::ViewHistory(ViewLink& link, QObject* parent)
    : QObject(parent), m_link(link), m_undo(new QAction(this)), m_redo(new QAction(this))
{
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo->setShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Z));
    connect(m_undo, &QAction::triggered, this, &ViewHistory::undo);
    connect(m_redo, &QAction::triggered, this, &ViewHistory::redo);
    const auto nameUndo = [this](const QString& name) {
        m_undo->setText(name.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(name));
    };
    const auto nameRedo = [this](const QString& name) {
        m_redo->setText(name.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(name));
    };
    nameUndo(QString());
    nameRedo(QString());
    m_undo->setEnabled(false);
    m_redo->setEnabled(false);
    connect(&m_group, &QUndoGroup::undoTextChanged, this, nameUndo);
    connect(&m_group, &QUndoGroup::redoTextChanged, this, nameRedo);
    connect(&m_group, &QUndoGroup::canUndoChanged, m_undo, &QAction::setEnabled);
    connect(&m_group, &QUndoGroup::canRedoChanged, m_redo, &QAction::setEnabled);
    m_turn.setSingleShot(true);
    m_turn.setInterval(0);
    connect(&m_turn, &QTimer::timeout, this, &ViewHistory::endTurn);
}

ViewHistory::~ViewHistory()
{
    disconnect(&m_group, nullptr, this, nullptr);
}

void ViewHistory::add(PlotView& view)
{
    m_tracked.push_back(std::make_unique<Tracked>());
    Tracked* tracked = m_tracked.back().get();
    tracked->view = &view;
    tracked->state = ViewState::of(view);
    tracked->stack.setUndoLimit(mostEntries);
    m_group.addStack(&tracked->stack);
    const auto changed = [this, tracked] { record(*tracked); };
    const BasePlot* plot = &view.plot();
    connect(plot, &BasePlot::rotationChanged, this, changed);
    connect(plot, &BasePlot::shiftChanged, this, changed);
    connect(plot, &BasePlot::vieportShiftChanged, this, changed);
    connect(plot, &BasePlot::zoomChanged, this, changed);
    connect(plot, &BasePlot::scaleChanged, this, changed);
    connect(plot, &BasePlot::projectionTypeChanged, this, changed);
    view.plot().installEventFilter(this);
}

void ViewHistory::remove(PlotView& view)
{
    view.plot().removeEventFilter(this);
    disconnect(&view.plot(), nullptr, this, nullptr);
    if (m_current != nullptr && m_current->view == &view)
        setCurrent(nullptr);
    m_tracked.erase(std::remove_if(m_tracked.begin(), m_tracked.end(),
                                   [&view](const auto& tracked) { return tracked->view == &view; }),
                    m_tracked.end());
}

ViewHistory::Tracked* ViewHistory::find(const PlotView* view) const
{
    const auto found = std::find_if(m_tracked.begin(), m_tracked.end(),
                                    [view](const auto& tracked) { return tracked->view == view; });
    return found == m_tracked.end() ? nullptr : found->get();
}

void ViewHistory::setCurrent(PlotView* view)
{
    m_current = find(view);
    m_group.setActiveStack(m_current != nullptr ? &m_current->stack : nullptr);
}

bool ViewHistory::eventFilter(QObject* watched, QEvent* event)
{
    for (const auto& tracked : m_tracked) {
        if (&tracked->view->plot() == watched)
            hear(*tracked, *event);
    }
    return QObject::eventFilter(watched, event);
}

void ViewHistory::hear(Tracked& tracked, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        tracked.input = Drag;
        tracked.run.open = false;
        break;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        // A release can go elsewhere; then the next move tells.
        if (tracked.input == Drag && static_cast<const QMouseEvent&>(event).buttons() == Qt::NoButton) {
            tracked.input = Choice;
            tracked.run.open = false;
        }
        break;
    case QEvent::Resize:
        tracked.state.size = static_cast<const QResizeEvent&>(event).size();
        break;
    case QEvent::Wheel:
        heardAgain(tracked, Wheel);
        break;
    case QEvent::KeyPress:
        heardAgain(tracked, Keys);
        break;
    default:
        break;
    }
}

void ViewHistory::heardAgain(Tracked& tracked, Cause input)
{
    if (tracked.input == Drag)
        return;
    Run& run = tracked.run;
    if (run.cause != input || !run.pause.isValid() || run.pause.elapsed() > longestPause)
        run.open = false;
    run.pause.start();
    tracked.input = input;
    m_turn.start();
}

void ViewHistory::endTurn()
{
    for (const auto& tracked : m_tracked) {
        if (tracked->input != Drag)
            tracked->input = Choice;
        if (tracked->run.cause == Choice)
            tracked->run.open = false;
    }
}

int ViewHistory::runOf(Tracked& tracked, int parts)
{
    Run& run = tracked.run;
    const Cause cause = tracked.view->plot().isAutoRotating() ? Turning : tracked.input;
    const bool others = (cause == Wheel || cause == Keys) && run.parts != parts;
    if (!run.open || run.cause != cause || others) {
        run.number = ++m_lastRun;
        run.cause = cause;
        run.parts = parts;
        run.open = true;
    }
    if (cause == Choice)
        m_turn.start();
    return run.number;
}

QString ViewHistory::nameFor(Tracked& tracked, const Tracked& origin, int parts) const
{
    if (m_link.isAligning())
        return tr("link of views");
    if (origin.run.cause == Turning)
        return tr("auto-rotation");
    if (origin.run.cause != Choice)
        return QString();
    constexpr int resettable = ViewState::Rotation | ViewState::Shift | ViewState::Zoom;
    if ((parts & ~resettable) == 0 && tracked.view->isAtStart())
        return tr("reset view");
    return parts == ViewState::Rotation && isStandardView(tracked.state.rotation) ? tr("standard view")
                                                                                  : QString();
}

void ViewHistory::record(Tracked& tracked)
{
    const ViewState before = tracked.state;
    tracked.state = ViewState::of(*tracked.view);
    const int parts = tracked.state.differingFrom(before);
    if (m_stepping || parts == 0 || !tracked.view->plot().isInitialized())
        return;
    Tracked* source = find(m_link.source());
    Tracked& origin = source != nullptr ? *source : tracked;
    const int run = runOf(origin, parts);
    tracked.stack.push(
        new ViewChange(*tracked.view, before, tracked.state, run, nameFor(tracked, origin, parts)));
}

void ViewHistory::undo()
{
    step(true);
}

void ViewHistory::redo()
{
    step(false);
}

void ViewHistory::step(bool back)
{
    const ViewChange* next = m_current != nullptr ? nextOf(m_current->stack, back) : nullptr;
    if (next == nullptr)
        return;
    const QScopedValueRollback<bool> stepping(m_stepping, true);
    const int number = next->run();
    for (const auto& tracked : m_tracked) {
        tracked->run.open = false;
        if (tracked.get() == m_current || !m_link.isOn())
            continue;
        tracked->view->stopTurning();
        // Those that have another entry there only follow.
        const ViewChange* same = nextOf(tracked->stack, back);
        if (same != nullptr && same->run() == number)
            take(tracked->stack, back);
    }
    m_current->view->stopTurning();
    take(m_current->stack, back);
    for (const auto& tracked : m_tracked)
        tracked->state = ViewState::of(*tracked->view);
}
