#pragma once

#include "plotmenu.h"

#include <QObject>

#include <memory>

class QMainWindow;
class QToolBar;

namespace Zel3D {
class PlotStatusBar;
}

/// Gives a window the tool bars, the status bar and the menus of a page's plot, and takes them away again
/// when it goes. Neither is owned.
class PlotHost : public QObject
{
    Q_OBJECT
public:
    /// The view menu's own entries begin with \a statusAction, which tells whether the status bar is shown;
    /// those of the plot stand before it.
    PlotHost(QMainWindow& window, PlotPage& page, QMenu& plotMenu, QMenu& viewMenu, QAction* statusAction);
    ~PlotHost() override;

private:
    void placeStatusBar(bool visible);
    void placeToolBars();
    void fillViewMenu(QAction* end);
    QMenu* addSubmenu(const QString& text, QAction* end);
    void sayPicked(Zel3D::PlotStatusBar& bar);

    QMainWindow& m_window;
    PlotPage& m_page;
    QMenu& m_viewMenu;
    PlotMenu m_plotMenu;
    QList<QToolBar*> m_bars;
    std::unique_ptr<QToolBar> m_simulationBar;
    QList<QAction*> m_viewActions;
    QList<QMenu*> m_submenus;
};
