#pragma once

#include "plotpreferences.h"

#include <QMainWindow>

#include <memory>

class PictureActions;
class PlotHost;
class PlotPage;
class PlotSource;
class QStackedWidget;
class RecentMenu;
class StartPage;
class ViewerBindings;

/// The viewer's window: a start page or one plot, opened from the menu or by dropping a file, with its tool
/// bars and status bar and the menus that change it. The window comes back as it was left.
class ViewerWindow : public QMainWindow
{
    Q_OBJECT
public:
    ViewerWindow();
    ~ViewerWindow() override;

    /// Shows a file of any kind; the band is for grids. False when it cannot be shown: the plot stays as it
    /// was and \a error says why.
    bool open(const QString& path, int band, QString& error);
    /// The same with any source.
    bool present(std::unique_ptr<PlotSource> source, QString& error);
    /// Resizes the shown window so that the plot gets this size, as far as the screen has room.
    void fitPlot(const QSize& size);
    /// The plot with its source; null on the start page.
    PlotPage* page() const { return m_page.get(); }
    /// What the next plot takes from the person's choices.
    PlotPreferences& preferences() { return m_preferences; }

public slots:
    /// Shows the first band of a grid file or another file, or says in a box why it cannot be shown.
    void openFile(const QString& path);
    /// Back to the start page.
    void closePlot();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createFileMenu();
    QMenu* createNewMenu();
    void createViewMenu();
    void createStartPage();
    void placePage(std::unique_ptr<PlotPage> page);
    void removePage();
    void takeFromPage();
    void showPlot(std::unique_ptr<PlotSource> source);
    void showFullScreen(bool on);
    void restore();
    void remember();
    void chooseFile();
    void askFormula();
    void editPreferences();

    PlotPreferences m_preferences;
    ViewerBindings* m_bindings;
    QStackedWidget* m_stack;
    StartPage* m_startPage = nullptr;
    std::unique_ptr<PlotPage> m_page;
    std::unique_ptr<PlotHost> m_host;
    QByteArray m_barState;
    QMenu* m_plotMenu = nullptr;
    QMenu* m_viewMenu = nullptr;
    RecentMenu* m_recentMenu = nullptr;
    QList<QAction*> m_newActions;
    QAction* m_openAction = nullptr;
    PictureActions* m_pictures = nullptr;
    QAction* m_closeAction = nullptr;
    QAction* m_statusAction = nullptr;
    QAction* m_fullScreenAction = nullptr;
};
