#include "viewchange.h"

#include <QCoreApplication>

namespace {

constexpr int mergeable = 1;

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(ViewChange)
};

QString nameOf(int parts)
{
    switch (parts) {
    case ViewState::Rotation:
        return Words::tr("rotate");
    case ViewState::Shift:
        return Words::tr("shift");
    case ViewState::Zoom:
        return Words::tr("zoom");
    case ViewState::Projection:
        return Words::tr("projection");
    case ViewState::Stretch:
        return Words::tr("stretch");
    default:
        return Words::tr("change of view");
    }
}

} // namespace

ViewChange::ViewChange(PlotView& view, const ViewState& before, const ViewState& after, int run,
                       const QString& name)
    : QUndoCommand(name), m_view(view), m_before(before), m_after(after), m_run(run), m_named(!name.isEmpty())
{
    nameParts();
}

void ViewChange::nameParts()
{
    if (!m_named)
        setText(nameOf(m_after.differingFrom(m_before)));
}

int ViewChange::id() const
{
    return mergeable;
}

bool ViewChange::mergeWith(const QUndoCommand* later)
{
    const auto* change = dynamic_cast<const ViewChange*>(later);
    if (change == nullptr || change->m_run != m_run)
        return false;
    m_after = change->m_after;
    if (change->m_named) {
        m_named = true;
        setText(change->text());
    }
    nameParts();
    setObsolete(m_after.differingFrom(m_before) == 0);
    return true;
}

void ViewChange::undo()
{
    m_before.applyTo(m_view);
    m_undone = true;
}

void ViewChange::redo()
{
    // Whoever pushes the entry has made the change.
    if (m_undone)
        m_after.applyTo(m_view);
}
