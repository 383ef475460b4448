#pragma once

#include "clipboardtable.h"
#include "plotvalues.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class DataInspector;
class DragHandle;
class PlotPage;
class PlotSource;
class QAction;
class QDockWidget;
class QMainWindow;
class QMenu;
class QMimeData;
class QTimer;
class SlicePanel;

/// What the window does with data beside drawing them: tables are pasted, values inspected and sliced, and
/// the picture is dragged out.
class DataActions : public QObject
{
    Q_OBJECT
public:
    /// How the window shows what was pasted or dropped.
    struct Opener
    {
        std::function<void(std::unique_ptr<PlotSource>)> source;
        std::function<void(const QStringList& paths)> files;
    };

    /// Adds entries to two menus of the window, and its docks, which are hidden at first.
    DataActions(QMainWindow& window, QMenu& editMenu, QMenu& viewMenu, Opener opener);

    /// Null without a plot. After the status bar of the page was placed.
    void setPage(PlotPage* page);

    /// Whether there is something that take() opens.
    static bool canTake(const QMimeData& data);
    /// Opens a file by its address or path, or a table, about which it may ask; says in a box why it cannot.
    void take(const QMimeData& data);

protected:
    /// A click in the plot holds the point under the mouse; in a smaller window the docks give way.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createDocks(QMenu& viewMenu);
    QDockWidget* createDock(const QString& title, const char* name, QWidget* content,
                            Qt::DockWidgetArea area);
    /// Lets an entry of a menu show and hide a dock.
    void showWith(QAction& action, const QDockWidget& dock);
    void paste(bool ask);
    void takeTable(const QString& text, bool ask);
    void followPlot();
    void placeHandle();
    void picked(const Zel3D::SelectedObjectsInfo& info);
    void choose(const ValuePlace& place);
    void clicked();
    void setHeld(bool held);
    void mark();
    void refresh();
    void dragPicture();
    void tell(const QString& sentence);
    QString hint() const;
    /// Where the window is small, docks are narrower than usual rather than the plot hardly seen.
    void leaveRoom();

    QMainWindow& m_window;
    Opener m_opener;
    DataInspector* m_inspector = nullptr;
    SlicePanel* m_slice = nullptr;
    QDockWidget* m_dataDock = nullptr;
    QDockWidget* m_sliceDock = nullptr;
    QList<QAction*> m_showActions; ///< of the docks
    QTimer* m_refresh = nullptr;
    QTimer* m_room = nullptr;
    PlotPage* m_page = nullptr;
    std::unique_ptr<PlotValues> m_values;
    std::unique_ptr<QObject> m_following; ///< of the connections to the page
    QPointer<DragHandle> m_handle;
    std::optional<ValuePlace> m_place; ///< shown in table and slice
    std::optional<ValuePlace> m_under; ///< under the mouse
    QPoint m_press;
    bool m_held = false;
    bool m_dataShown = false;
    bool m_sliceShown = false;
};
