#pragma once

#include <QMainWindow>

class QAction;
class QActionGroup;
class QLabel;
class ViewerPlot;
struct Grid;

/// The viewer's window: one plot, opened from the menu or by dropping a file, with its tool bars and status
/// bar and the menus that change it. The window comes back as it was left.
class ViewerWindow : public QMainWindow
{
    Q_OBJECT
public:
    ViewerWindow();

    /// Shows a grid file. False when it cannot be shown: the plot stays as it was and \a error says why.
    bool open(const QString& path, int band, QString& error);
    /// Resizes the shown window so that the plot gets this size, as far as the screen has room.
    void fitPlot(const QSize& size);
    ViewerPlot& plot() { return *m_plot; }

public slots:
    /// Shows the first band of a grid file, or says in a box why it cannot be shown.
    void openFile(const QString& path);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void createFileMenu();
    void createPlotMenu();
    void createViewMenu();
    void dockToolBars();
    void showFullScreen(bool on);
    void restore();
    void remember() const;
    void addStyleActions(QMenu& menu);
    void addScalingActions(QMenu& menu);
    void addLookActions(QMenu& menu);
    QAction* addSwitch(QMenu& menu, const QString& text, const QKeySequence& shortcut);
    void chooseFile();
    void savePicture();
    void resetView();
    void showStyle(int style);
    void describe(const QString& path, const Grid& grid);

    ViewerPlot* m_plot;
    QLabel* m_description;
    QActionGroup* m_styles;
    QActionGroup* m_looks;
    QAction* m_saveAction = nullptr;
    QAction* m_pickingAction = nullptr;
    QAction* m_fullScreenAction = nullptr;
    QAction* m_meshAction = nullptr;
    QAction* m_lightingAction = nullptr;
    QAction* m_perspectiveAction = nullptr;
    QString m_fileName;
};
