#pragma once

#include "viewstate.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QUndoGroup>

#include <memory>
#include <vector>

class PlotView;
class QAction;
class QEvent;
class ViewLink;

/// Takes back what changed from where plots are seen: an undo stack for each plot, of which the shown one's
/// is in the menu.
///
/// A drag is one entry, and so are turns of the wheel or presses of keys with short pauses between them, the
/// turning that a released drag starts, and what happens between two events otherwise. A change that a link
/// passed on is an entry of every plot that it reached; while they are linked these are taken back together.
/// What happens to a plot before it is first painted is no change.
class ViewHistory : public QObject
{
    Q_OBJECT
public:
    explicit ViewHistory(ViewLink& link, QObject* parent = nullptr);
    ~ViewHistory() override;

    /// Follows a plot, which is not owned, from now on.
    void add(PlotView& view);
    /// To be called before a plot goes.
    void remove(PlotView& view);
    /// Whose changes the actions take back; null for none.
    void setCurrent(PlotView* view);
    /// "Undo" and "Redo" with the name of the entry, for a menu.
    QAction* undoAction() const { return m_undo; }
    QAction* redoAction() const { return m_redo; }

public slots:
    void undo();
    void redo();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum Cause { Choice, Drag, Wheel, Keys, Turning };
    /// The changes that make one entry.
    struct Run
    {
        int number = 0;
        Cause cause = Choice;
        int parts = 0;
        bool open = false;
        QElapsedTimer pause;
    };
    struct Tracked;

    Tracked* find(const PlotView* view) const;
    void hear(Tracked& tracked, const QEvent& event);
    void heardAgain(Tracked& tracked, Cause input);
    void endTurn();
    void record(Tracked& tracked);
    int runOf(Tracked& tracked, int parts);
    QString nameFor(Tracked& tracked, const Tracked& origin, int parts) const;
    void step(bool back);

    ViewLink& m_link;
    QUndoGroup m_group;
    std::vector<std::unique_ptr<Tracked>> m_tracked;
    Tracked* m_current = nullptr;
    QAction* m_undo;
    QAction* m_redo;
    QTimer m_turn; ///< ends when the control is back at the event loop
    int m_lastRun = 0;
    bool m_stepping = false;
};
