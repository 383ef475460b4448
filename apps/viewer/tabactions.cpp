#include "tabactions.h"

#include "plotpage.h"
#include "plottabs.h"

#include <QAction>
#include <QMenu>

TabActions::TabActions(PlotTabs& tabs)
    : QObject(&tabs),
      m_tabs(tabs),
      m_home(make(tr("Star&t page"), {Qt::CTRL + Qt::Key_T}, tr("Open another plot in a new tab"))),
      m_close(make(tr("&Close plot"), {Qt::CTRL + Qt::Key_W}, tr("Close the plot that is shown"))),
      m_closeOthers(make(tr("Close ot&hers"), {}, tr("Close all plots but the one that is shown"))),
      m_beside(make(tr("S&how beside"), {Qt::CTRL + Qt::Key_B},
                    tr("Move the plot to a place of its own, right of another plot"))),
      m_below(make(tr("Sho&w below"), {Qt::CTRL + Qt::SHIFT + Qt::Key_B},
                   tr("Move the plot to a place of its own, below another plot"))),
      m_moveOn(make(tr("Move to the &next place"), {}, tr("Add the plot to the tabs of another place"))),
      m_unite(make(tr("&All in one place"), {Qt::CTRL + Qt::SHIFT + Qt::Key_A},
                   tr("Bring all plots back into the tabs of one place"))),
      m_next(make(tr("Ne&xt plot"), {Qt::CTRL + Qt::Key_Tab, Qt::CTRL + Qt::Key_PageDown}, QString())),
      m_previous(make(tr("Pre&vious plot"), {Qt::CTRL + Qt::SHIFT + Qt::Key_Tab, Qt::CTRL + Qt::Key_PageUp},
                      QString()))
{
    connect(m_home, &QAction::triggered, &tabs, &PlotTabs::showHome);
    connect(m_close, &QAction::triggered, &tabs, &PlotTabs::closeShown);
    connect(m_closeOthers, &QAction::triggered, &tabs, [&tabs] { tabs.closeOthers(*tabs.current()); });
    connect(m_beside, &QAction::triggered, &tabs, [&tabs] { tabs.split(Qt::Horizontal); });
    connect(m_below, &QAction::triggered, &tabs, [&tabs] { tabs.split(Qt::Vertical); });
    connect(m_moveOn, &QAction::triggered, &tabs, &PlotTabs::moveOn);
    connect(m_unite, &QAction::triggered, &tabs, &PlotTabs::unite);
    connect(m_next, &QAction::triggered, &tabs, [&tabs] { tabs.cycle(1); });
    connect(m_previous, &QAction::triggered, &tabs, [&tabs] { tabs.cycle(-1); });
    connect(&tabs, &PlotTabs::arranged, this, &TabActions::enable);
    connect(&tabs, &PlotTabs::menuAsked, this, &TabActions::showMenu);
    enable();
}

QAction* TabActions::make(const QString& text, const QList<QKeySequence>& shortcuts, const QString& tip)
{
    auto* action = new QAction(text, this);
    action->setShortcuts(shortcuts);
    action->setStatusTip(tip);
    return action;
}

void TabActions::fillFileMenu(QMenu& menu)
{
    menu.addActions({m_home, m_close, m_closeOthers});
}

void TabActions::fillViewMenu(QMenu& menu)
{
    menu.addActions({m_beside, m_below, m_moveOn, m_unite});
    menu.addSeparator();
    menu.addActions({m_next, m_previous});
}

void TabActions::enable()
{
    const int plots = m_tabs.pages().size();
    const bool shown = m_tabs.current() != nullptr;
    m_home->setEnabled(plots > 0 && shown);
    m_close->setEnabled(plots > 0);
    m_closeOthers->setEnabled(shown && plots > 1);
    m_beside->setEnabled(m_tabs.canSplit());
    m_below->setEnabled(m_tabs.canSplit());
    m_moveOn->setEnabled(shown && m_tabs.paneCount() > 1);
    m_unite->setEnabled(m_tabs.paneCount() > 1);
    m_next->setEnabled(plots > 1 || (plots > 0 && !shown));
    m_previous->setEnabled(m_next->isEnabled());
}

void TabActions::showMenu(const QPoint& globalPosition)
{
    QMenu menu;
    menu.addActions({m_close, m_closeOthers});
    menu.addSeparator();
    menu.addActions({m_beside, m_below, m_moveOn, m_unite});
    menu.exec(globalPosition);
}
