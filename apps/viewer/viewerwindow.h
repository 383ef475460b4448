#pragma once

#include "plotpreferences.h"
#include "viewhistory.h"
#include "viewlink.h"

#include <QMainWindow>

#include <memory>

class DataActions;
class PartAction;
class PictureActions;
class PlotHost;
class PlotPage;
class PlotSource;
class PlotTabs;
class ProgressBox;
class RecentMenu;
class StartPage;
class TabActions;
class ViewerBindings;

/// The viewer's window: a start page or plots in tabs and side by side, opened from the menu or by dropping
/// files, with the tool bars, the status bar and the menus of the current one. The window comes back as it
/// was left.
class ViewerWindow : public QMainWindow
{
    Q_OBJECT
public:
    ViewerWindow();
    ~ViewerWindow() override;

    /// Shows a file of any kind in a new tab; the band is for grids. False when it cannot be shown: all stays
    /// as it was and \a error says why, or is empty when the person cancelled it.
    bool open(const QString& path, int band, QString& error);
    /// The same with any source.
    bool present(std::unique_ptr<PlotSource> source, QString& error);
    /// Resizes the shown window so that the plot gets this size, as far as the screen has room.
    void fitPlot(const QSize& size);
    /// The current plot with its source; null on the start page.
    PlotPage* page() const { return m_page; }
    PlotTabs& tabs() const { return *m_tabs; }
    /// What the next plot takes from the person's choices.
    PlotPreferences& preferences() { return m_preferences; }

public slots:
    /// Shows the first band of a grid file or another file, or says in a box why it cannot be shown.
    void openFile(const QString& path);
    /// The same with each of several files, and one box for all that cannot be shown.
    void openFiles(const QStringList& paths);
    /// Closes the current plot; after the last one, the start page shows.
    void closePlot();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createFileMenu();
    QMenu* createNewMenu();
    void createEditMenu();
    void createViewMenu();
    void createHelpMenu();
    void createTabs();
    void addPage(std::unique_ptr<PlotPage> page);
    void showPage(PlotPage* page);
    void letGo(PlotPage& page);
    void takeFromPage();
    void linkViews(bool on);
    void showPlot(std::unique_ptr<PlotSource> source);
    void showFullScreen(bool on);
    void restore();
    void remember();
    void chooseFile();
    void askFormula();
    void editPreferences();

    PlotPreferences m_preferences;
    ViewerBindings* m_bindings;
    ViewLink m_link;
    ViewHistory m_history;
    PlotTabs* m_tabs = nullptr;
    TabActions* m_tabActions = nullptr;
    PlotPage* m_page = nullptr;
    std::unique_ptr<PlotHost> m_host;
    QByteArray m_barState;
    QMenu* m_plotMenu = nullptr;
    QMenu* m_fileMenu = nullptr;
    QMenu* m_editMenu = nullptr;
    QMenu* m_viewMenu = nullptr;
    RecentMenu* m_recentMenu = nullptr;
    QList<QAction*> m_newActions;
    QAction* m_openAction = nullptr;
    PictureActions* m_pictures = nullptr;
    PartAction* m_partAction = nullptr;
    DataActions* m_data = nullptr;
    ProgressBox* m_loading = nullptr;
    QAction* m_linkAction = nullptr;
    QAction* m_statusAction = nullptr;
    QAction* m_fullScreenAction = nullptr;
};
