#pragma once

#include <QList>
#include <QObject>

class PlotTabs;
class QAction;
class QMenu;

/// The entries of the menus that open, close and arrange the tabs of the plots.
class TabActions : public QObject
{
    Q_OBJECT
public:
    explicit TabActions(PlotTabs& tabs);

    /// The start page and what closes plots.
    void fillFileMenu(QMenu& menu);
    /// Panes and the way from tab to tab.
    void fillViewMenu(QMenu& menu);

private:
    void enable();
    void showMenu(const QPoint& globalPosition);
    QAction* make(const QString& text, const QList<QKeySequence>& shortcuts, const QString& tip);

    PlotTabs& m_tabs;
    QAction* m_home;
    QAction* m_close;
    QAction* m_closeOthers;
    QAction* m_beside;
    QAction* m_below;
    QAction* m_moveOn;
    QAction* m_unite;
    QAction* m_next;
    QAction* m_previous;
};
