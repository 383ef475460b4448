#include "partaction.h"

#include "gridsource.h"
#include "partdialog.h"
#include "plotpage.h"
#include "plots/baseplot.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>

PartAction::PartAction(QMainWindow& window, QMenu& menu, Present present)
    : QObject(&window),
      m_window(window),
      m_present(std::move(present)),
      m_action(menu.addAction(tr("Open p&art..."), this, &PartAction::openPart))
{
    m_action->setStatusTip(tr("A part of a thinned grid with all its nodes"));
    setPage(nullptr);
}

void PartAction::setPage(PlotPage* page)
{
    for (const QMetaObject::Connection& connection : qAsConst(m_connections))
        disconnect(connection);
    m_connections.clear();
    m_picked.reset();
    m_page = page;
    const bool thinned = page && page->source().isThinned();
    m_action->setEnabled(thinned);
    if (!thinned)
        return;
    m_connections = {connect(page, &PlotPage::partWanted, this, &PartAction::openPart, Qt::QueuedConnection),
                     connect(&page->plot(), &Zel3D::BasePlot::selectedObject, this,
                             [this](const Zel3D::SelectedObjectsInfo& place) {
                                 m_picked = place.valid ? std::optional<QPointF>(QPointF(place.x, place.y))
                                                        : std::nullopt;
                             })};
}

void PartAction::openPart()
{
    const auto* grid = m_page ? dynamic_cast<const GridSource*>(&m_page->source()) : nullptr;
    if (!grid || !grid->isThinned())
        return;
    PartDialog dialog(*grid, m_picked, &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QString error;
    if (!m_present(grid->part(dialog.range()), error) && !error.isEmpty())
        QMessageBox::warning(&m_window, tr("Open part"), error);
}
