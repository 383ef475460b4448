#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

class PlotPage;
class PlotSource;
class QAction;
class QMainWindow;
class QMenu;

/// The entry of a menu that opens a part of a thinned grid as a plot of its own.
class PartAction : public QObject
{
    Q_OBJECT
public:
    /// Shows a source; false with the reason when that fails, without one when it was cancelled.
    using Present = std::function<bool(std::unique_ptr<PlotSource> source, QString& error)>;

    /// Adds the entry to a menu of the window.
    PartAction(QMainWindow& window, QMenu& menu, Present present);

    /// The page whose grid is meant; null without one. The entry is for thinned grids.
    void setPage(PlotPage* page);

private:
    void openPart();

    QMainWindow& m_window;
    Present m_present;
    QPointer<PlotPage> m_page;
    std::optional<QPointF> m_picked; ///< on the page
    QList<QMetaObject::Connection> m_connections;
    QAction* m_action;
};
