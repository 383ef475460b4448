#pragma once

#include "plotpane.h"

#include <QHash>
#include <QList>
#include <QWidget>

#include <memory>

class PlotPage;
class QSplitter;

/// The open plots: in the tabs of one pane, or of several panes beside and below each other, one of which is
/// active. The start page stands alone while no plot is open; otherwise it can be called into a tab, which
/// the next plot takes.
class PlotTabs : public QWidget
{
    Q_OBJECT
public:
    static constexpr int mostPanes = 4;

    /// Becomes the owner of the start page.
    explicit PlotTabs(QWidget& home, QWidget* parent = nullptr);
    ~PlotTabs() override;

    /// The shown page of the active pane; null on the start page.
    PlotPage* current() const { return m_current; }
    /// Pane by pane from the top left, each in the order of its tabs.
    QList<PlotPage*> pages() const;
    int paneCount() const { return panes().size(); }

    /// Shows a page in a new tab of the active pane.
    void add(std::unique_ptr<PlotPage> page);
    /// Shows a page and makes its pane the active one.
    void activate(PlotPage& page);
    void close(PlotPage& page);
    void closeOthers(PlotPage& page);
    /// Closes the shown tab of the active pane, be it the start page.
    void closeShown();
    void showHome();
    /// Goes on by so many tabs, past the end to the first.
    void cycle(int step);

    /// Whether there is another plot than the current one and room for a pane.
    bool canSplit() const;
    /// Moves the current plot to a pane of its own: right of the plot it stood with, or below.
    void split(Qt::Orientation orientation);
    /// Moves the current plot to the next pane.
    void moveOn();
    /// Brings all plots into the tabs of one pane.
    void unite();

signals:
    /// Another page is the current one, or none. The one before still exists.
    void currentChanged(PlotPage* page);
    /// The page goes when the call returns; it is not the current one any more.
    void closing(PlotPage* page);
    /// Tabs or panes came or went.
    void arranged();
    /// For the menu of a tab, which was made the current one.
    void menuAsked(const QPoint& globalPosition);

private:
    class Change;

    PlotPane* makePane();
    QList<PlotPane*> panes() const;
    PlotPane* paneOf(const QWidget* inside) const;
    PlotPane* neighbourOf(PlotPane& pane) const;
    void nameTab(PlotPage& page);
    void insertBeside(PlotPane& anchor, PlotPane& pane, Qt::Orientation orientation);
    void removeIfEmpty(PlotPane& pane);
    void removeHome();
    void place(QWidget& page, PlotPane& pane);
    void closeTab(QWidget& page);
    void setActive(PlotPane* pane);
    void refresh();
    void followFocus(QWidget* focused);

    QWidget& m_home;
    QSplitter* m_root;
    PlotPane* m_active = nullptr;
    PlotPage* m_current = nullptr;
    QHash<const QWidget*, PlotPane::Tab> m_looks; ///< of the plots' tabs
    int m_changes = 0;
};
