#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>

class QAction;
class QMenu;
class PlotPage;

/// Fills a menu with what the plot of a page offers, for as long as the object lives. Plot and menu follow
/// each other.
class PlotMenu : public QObject
{
    Q_OBJECT
public:
    PlotMenu(QMenu& menu, PlotPage& page, QObject* parent);
    ~PlotMenu() override;

    /// What starts, pauses and disturbs a simulation; empty for a plot without one.
    const QList<QAction*>& simulationActions() const { return m_simulationActions; }

private:
    QMenu* addSubmenu(const QString& text);
    QAction* addSwitch(QMenu& menu, const QString& text, const QKeySequence& shortcut = QKeySequence());
    void addStyles();
    void addMeshLines();
    void addPicking();
    void addLighting();
    void addPerspective();
    void addScaling(QMenu& menu);
    void addLooks(QMenu& menu);
    void addTemplates();
    void addSettings();
    void addSimulation();

    QMenu& m_menu;
    PlotPage& m_page;
    QList<QMenu*> m_submenus;
    QList<QAction*> m_simulationActions;
};
