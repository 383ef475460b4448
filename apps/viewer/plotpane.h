#pragma once

#include <QIcon>
#include <QList>
#include <QWidget>

class QTabWidget;

/// One place of the window with tabs, and a frame that tells which of several places is the active one.
class PlotPane : public QWidget
{
    Q_OBJECT
public:
    /// How the tab of a page looks.
    struct Tab
    {
        QString title;
        QString toolTip;
        QIcon icon;
    };

    explicit PlotPane(QWidget* parent = nullptr);

    /// Adds a page behind the shown one and shows it. The pane's widgets become its parents.
    void add(QWidget& page, const Tab& tab);
    /// Takes a page out; it is hidden and stays a child until it gets another place.
    void take(QWidget& page);
    void showPage(QWidget& page);
    QWidget* shown() const;
    QList<QWidget*> pages() const; ///< in the order of the tabs

    void setTabsVisible(bool on);
    /// Whether there are others, and whether this is the one that menus and tool bars belong to.
    void setMarked(bool among, bool active);

signals:
    void shownChanged();
    void closeAsked(QWidget* page);
    void homeAsked();
    /// A press anywhere but on the plot, which takes the focus.
    void pressed();
    void menuAsked(QWidget* page, const QPoint& globalPosition);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void connectBar();

    QTabWidget* m_tabs;
    bool m_active = false;
};
