#include "plotpane.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int frameWidth = 2;
constexpr QSize tabIcons(16, 16);
constexpr int longestTitle = 32; // letters

} // namespace

PlotPane::PlotPane(QWidget* parent) : QWidget(parent), m_tabs(new QTabWidget)
{
    setObjectName("plotPane");
    m_tabs->setDocumentMode(true);
    m_tabs->setMovable(true);
    m_tabs->setTabsClosable(true);
    // With more tabs than there is room for, names stay whole and the bar scrolls.
    m_tabs->setElideMode(Qt::ElideNone);
    // The frame is seen around it only.
    m_tabs->setAutoFillBackground(true);
    m_tabs->setUsesScrollButtons(true);
    m_tabs->setIconSize(tabIcons);
    m_tabs->tabBar()->setSelectionBehaviorOnRemove(QTabBar::SelectPreviousTab);
    // The keys are for the plot.
    m_tabs->tabBar()->setFocusPolicy(Qt::NoFocus);
    m_tabs->setFocusPolicy(Qt::NoFocus);
    auto* home = new QToolButton;
    home->setObjectName("homeButton");
    home->setText(tr("+"));
    QFont font = home->font();
    font.setPointSizeF(1.4 * font.pointSizeF());
    home->setFont(font);
    home->setAutoRaise(true);
    home->setFocusPolicy(Qt::NoFocus);
    home->setToolTip(tr("Open another plot from the start page"));
    home->setAccessibleName(home->toolTip());
    connect(home, &QToolButton::clicked, this, &PlotPane::homeAsked);
    m_tabs->setCornerWidget(home);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);
    connectBar();
}

void PlotPane::connectBar()
{
    QTabBar* bar = m_tabs->tabBar();
    bar->installEventFilter(this);
    bar->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(bar, &QWidget::customContextMenuRequested, this, [this, bar](const QPoint& position) {
        const int index = bar->tabAt(position);
        if (index >= 0)
            emit menuAsked(m_tabs->widget(index), bar->mapToGlobal(position));
    });
    connect(m_tabs, &QTabWidget::currentChanged, this, &PlotPane::shownChanged);
    connect(m_tabs, &QTabWidget::tabBarClicked, this, &PlotPane::pressed);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this,
            [this](int index) { emit closeAsked(m_tabs->widget(index)); });
}

void PlotPane::add(QWidget& page, const Tab& tab)
{
    // An ampersand is no key in the name of a file.
    const int room = longestTitle * fontMetrics().averageCharWidth();
    const QString title = fontMetrics().elidedText(tab.title, Qt::ElideMiddle, room);
    const int index =
        m_tabs->insertTab(m_tabs->currentIndex() + 1, &page, tab.icon, QString(title).replace('&', "&&"));
    m_tabs->setTabToolTip(index, tab.toolTip);
    m_tabs->setCurrentIndex(index);
}

void PlotPane::take(QWidget& page)
{
    const int index = m_tabs->indexOf(&page);
    if (index >= 0)
        m_tabs->removeTab(index);
}

void PlotPane::showPage(QWidget& page)
{
    m_tabs->setCurrentWidget(&page);
}

QWidget* PlotPane::shown() const
{
    return m_tabs->currentWidget();
}

QList<QWidget*> PlotPane::pages() const
{
    QList<QWidget*> found;
    for (int i = 0; i < m_tabs->count(); ++i)
        found.append(m_tabs->widget(i));
    return found;
}

void PlotPane::setTabsVisible(bool on)
{
    m_tabs->tabBar()->setVisible(on);
    m_tabs->cornerWidget()->setVisible(on);
}

void PlotPane::setMarked(bool among, bool active)
{
    const int margin = among ? frameWidth : 0;
    layout()->setContentsMargins(margin, margin, margin, margin);
    m_active = active;
    update();
}

void PlotPane::paintEvent(QPaintEvent* /*event*/)
{
    if (m_active)
        QPainter(this).fillRect(rect(), palette().highlight());
}

void PlotPane::mousePressEvent(QMouseEvent* event)
{
    emit pressed();
    QWidget::mousePressEvent(event);
}

bool PlotPane::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto& release = static_cast<const QMouseEvent&>(*event);
        const int index = m_tabs->tabBar()->tabAt(release.pos());
        if (release.button() == Qt::MiddleButton && index >= 0) {
            emit closeAsked(m_tabs->widget(index));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
