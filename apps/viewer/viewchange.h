#pragma once

#include "viewstate.h"

#include <QUndoCommand>

class PlotView;

/// One gesture or choice that changed from where a plot is seen.
class ViewChange : public QUndoCommand
{
public:
    /// A plot was brought from one state to another; changes of one run are one entry. An empty name is made
    /// from what the states differ in.
    ViewChange(PlotView& view, const ViewState& before, const ViewState& after, int run, const QString& name);

    /// What links the entries of several plots that came from one gesture.
    int run() const { return m_run; }
    int id() const override;
    bool mergeWith(const QUndoCommand* later) override;
    void undo() override;
    void redo() override;

private:
    void nameParts();

    PlotView& m_view;
    ViewState m_before;
    ViewState m_after;
    int m_run;
    bool m_named;
    bool m_undone = false;
};
