#include "plottabs.h"

#include "plotpage.h"

#include <QApplication>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace {

void collect(const QSplitter& splitter, QList<PlotPane*>& found)
{
    for (int i = 0; i < splitter.count(); ++i) {
        if (auto* pane = qobject_cast<PlotPane*>(splitter.widget(i)))
            found.append(pane);
        else if (const auto* inner = qobject_cast<QSplitter*>(splitter.widget(i)))
            collect(*inner, found);
    }
}

QSplitter* makeSplitter(Qt::Orientation orientation)
{
    auto* splitter = new QSplitter(orientation);
    splitter->setChildrenCollapsible(false);
    return splitter;
}

/// Sizes with one more after that at the index: all the same where they were, otherwise half of that one.
QList<int> withRoomAfter(QList<int> sizes, int index)
{
    const auto [least, most] = std::minmax_element(sizes.begin(), sizes.end());
    const bool same = *most - *least < sizes.size();
    sizes[index] /= 2;
    sizes.insert(index + 1, sizes[index]);
    if (same)
        std::fill(sizes.begin(), sizes.end(), std::accumulate(sizes.begin(), sizes.end(), 0) / sizes.size());
    return sizes;
}

QSplitter& splitterOf(const PlotPane& pane)
{
    return *qobject_cast<QSplitter*>(pane.parentWidget());
}

} // namespace

/// While it lives, tabs and panes change without a word; then all is told at once.
class PlotTabs::Change
{
public:
    explicit Change(PlotTabs& tabs) : m_tabs(tabs) { ++m_tabs.m_changes; }
    ~Change()
    {
        if (--m_tabs.m_changes == 0)
            m_tabs.refresh();
    }
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;

private:
    PlotTabs& m_tabs;
};

PlotTabs::PlotTabs(QWidget& home, QWidget* parent)
    : QWidget(parent), m_home(home), m_root(makeSplitter(Qt::Horizontal))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_root);
    const Change change(*this);
    m_looks[&home] = {tr("Start page"), tr("Files, examples and formulas"), QIcon(":/plot/images/open.svg")};
    m_active = makePane();
    m_root->addWidget(m_active);
    showHome();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*before*/, QWidget* now) { followFocus(now); });
}

PlotTabs::~PlotTabs()
{
    // Nobody is to hear of the pages that go now.
    ++m_changes;
    disconnect(qApp, nullptr, this, nullptr);
    delete m_root;
}

PlotPane* PlotTabs::makePane()
{
    auto* pane = new PlotPane;
    connect(pane, &PlotPane::shownChanged, this, &PlotTabs::refresh);
    connect(pane, &PlotPane::pressed, this, [this, pane] { setActive(pane); });
    connect(pane, &PlotPane::closeAsked, this, [this](QWidget* page) { closeTab(*page); });
    connect(pane, &PlotPane::homeAsked, this, [this, pane] {
        setActive(pane);
        showHome();
    });
    connect(pane, &PlotPane::menuAsked, this, [this, pane](QWidget* page, const QPoint& position) {
        {
            const Change change(*this);
            setActive(pane);
            pane->showPage(*page);
        }
        emit menuAsked(position);
    });
    return pane;
}

QList<PlotPane*> PlotTabs::panes() const
{
    QList<PlotPane*> found;
    collect(*m_root, found);
    return found;
}

QList<PlotPage*> PlotTabs::pages() const
{
    QList<PlotPage*> found;
    for (const PlotPane* pane : panes()) {
        for (QWidget* page : pane->pages()) {
            if (auto* plotPage = qobject_cast<PlotPage*>(page))
                found.append(plotPage);
        }
    }
    return found;
}

PlotPane* PlotTabs::paneOf(const QWidget* inside) const
{
    for (const QWidget* widget = inside; widget != nullptr; widget = widget->parentWidget()) {
        for (PlotPane* pane : panes()) {
            if (widget == pane)
                return pane;
        }
    }
    return nullptr;
}

PlotPane* PlotTabs::neighbourOf(PlotPane& pane) const
{
    const QList<PlotPane*> all = panes();
    const int index = all.indexOf(&pane);
    return all.value(index > 0 ? index - 1 : index + 1);
}

void PlotTabs::nameTab(PlotPage& page)
{
    const QString file = page.source().filePath();
    const QString name = page.source().name();
    const auto isTaken = [this](const QString& title) {
        return std::any_of(m_looks.begin(), m_looks.end(),
                           [&title](const PlotPane::Tab& tab) { return tab.title == title; });
    };
    QString title = name;
    for (int number = 2; isTaken(title); ++number)
        title = tr("%1 (%2)").arg(name).arg(number);
    const bool surface = page.view().kind() == PlotKind::Surface;
    m_looks[&page] = {title, file.isEmpty() ? name : file,
                      QIcon(surface ? ":/plot/images/filled.svg" : ":/plot/images/spectrum.svg")};
}

void PlotTabs::place(QWidget& page, PlotPane& pane)
{
    if (PlotPane* before = paneOf(&page))
        before->take(page);
    pane.add(page, m_looks.value(&page));
}

void PlotTabs::add(std::unique_ptr<PlotPage> page)
{
    const Change change(*this);
    nameTab(*page);
    place(*page.release(), *m_active);
    removeHome();
}

void PlotTabs::activate(PlotPage& page)
{
    const Change change(*this);
    m_active = paneOf(&page);
    m_active->showPage(page);
}

void PlotTabs::setActive(PlotPane* pane)
{
    const Change change(*this);
    m_active = pane;
}

void PlotTabs::followFocus(QWidget* focused)
{
    PlotPane* pane = paneOf(focused);
    if (pane != nullptr && pane != m_active && m_changes == 0)
        setActive(pane);
}

void PlotTabs::removeHome()
{
    PlotPane* pane = paneOf(&m_home);
    if (pane == nullptr)
        return;
    pane->take(m_home);
    m_home.setParent(this);
    removeIfEmpty(*pane);
}

void PlotTabs::showHome()
{
    const Change change(*this);
    if (paneOf(&m_home) != m_active) {
        removeHome();
        place(m_home, *m_active);
    }
    m_active->showPage(m_home);
}

void PlotTabs::closeTab(QWidget& page)
{
    if (auto* plotPage = qobject_cast<PlotPage*>(&page)) {
        close(*plotPage);
    } else if (!pages().isEmpty()) {
        const Change change(*this);
        removeHome();
    }
}

void PlotTabs::closeShown()
{
    closeTab(*m_active->shown());
}

void PlotTabs::close(PlotPage& page)
{
    PlotPane* pane = paneOf(&page);
    {
        const Change change(*this);
        pane->take(page);
        if (pages().isEmpty())
            showHome();
        if (pane == m_active && pane->pages().isEmpty())
            m_active = neighbourOf(*pane);
    }
    emit closing(&page);
    m_looks.remove(&page);
    delete &page;
    const Change change(*this);
    removeIfEmpty(*pane);
}

void PlotTabs::closeOthers(PlotPage& page)
{
    activate(page);
    {
        const Change change(*this);
        removeHome();
    }
    for (PlotPage* other : pages()) {
        if (other != &page)
            close(*other);
    }
}

void PlotTabs::cycle(int step)
{
    const QList<PlotPage*> all = pages();
    if (all.isEmpty())
        return;
    const int count = all.size();
    const int from = m_current != nullptr ? all.indexOf(m_current) : step > 0 ? -1 : 0;
    PlotPage& page = *all.at(((from + step) % count + count) % count);
    activate(page);
    page.setFocus();
}

bool PlotTabs::canSplit() const
{
    if (m_current == nullptr || pages().size() < 2)
        return false;
    return m_active->pages().size() == 1 || paneCount() < mostPanes;
}

void PlotTabs::insertBeside(PlotPane& anchor, PlotPane& pane, Qt::Orientation orientation)
{
    QSplitter* splitter = &splitterOf(anchor);
    QList<int> sizes = splitter->sizes();
    int index = splitter->indexOf(&anchor);
    if (splitter->count() == 1) {
        splitter->setOrientation(orientation);
    } else if (splitter->orientation() != orientation) {
        QSplitter* inner = makeSplitter(orientation);
        splitter->replaceWidget(index, inner);
        inner->addWidget(&anchor);
        anchor.setVisible(true);
        splitter->setSizes(sizes);
        splitter = inner;
        index = 0;
    }
    sizes = splitter->sizes();
    // A new splitter does not know it yet.
    sizes[index] = orientation == Qt::Horizontal ? anchor.width() : anchor.height();
    splitter->insertWidget(index + 1, &pane);
    splitter->setSizes(withRoomAfter(sizes, index));
}

void PlotTabs::removeIfEmpty(PlotPane& pane)
{
    if (!pane.pages().isEmpty() || paneCount() == 1)
        return;
    if (m_active == &pane)
        m_active = neighbourOf(pane);
    QSplitter* splitter = &splitterOf(pane);
    // The pane may be what sends the signal that ends here.
    pane.setParent(nullptr);
    pane.deleteLater();
    if (splitter == m_root || splitter->count() > 1)
        return;
    auto* outer = qobject_cast<QSplitter*>(splitter->parentWidget());
    const QList<int> sizes = outer->sizes();
    QWidget* rest = splitter->widget(0);
    outer->replaceWidget(outer->indexOf(splitter), rest);
    rest->setVisible(true);
    outer->setSizes(sizes);
    splitter->setParent(nullptr);
    splitter->deleteLater();
}

void PlotTabs::split(Qt::Orientation orientation)
{
    if (!canSplit())
        return;
    const Change change(*this);
    PlotPane* from = m_active;
    PlotPane* anchor = from->pages().size() > 1 ? from : neighbourOf(*from);
    PlotPane* pane = makePane();
    insertBeside(*anchor, *pane, orientation);
    place(*m_current, *pane);
    m_active = pane;
    removeIfEmpty(*from);
}

void PlotTabs::moveOn()
{
    const QList<PlotPane*> all = panes();
    if (m_current == nullptr || all.size() < 2)
        return;
    const Change change(*this);
    PlotPane* from = m_active;
    m_active = all.at((all.indexOf(from) + 1) % all.size());
    place(*m_current, *m_active);
    removeIfEmpty(*from);
}

void PlotTabs::unite()
{
    const Change change(*this);
    const QList<PlotPane*> all = panes();
    QWidget* const shown = m_active->shown();
    m_active = all.first();
    for (PlotPane* pane : all.mid(1)) {
        for (QWidget* page : pane->pages()) {
            m_active->showPage(*m_active->pages().last());
            place(*page, *m_active);
        }
        removeIfEmpty(*pane);
    }
    m_active->showPage(*shown);
}

void PlotTabs::refresh()
{
    if (m_changes > 0)
        return;
    const QList<PlotPane*> all = panes();
    const bool several = all.size() > 1;
    int tabs = 0;
    for (const PlotPane* pane : all)
        tabs += pane->pages().size();
    for (PlotPane* pane : all) {
        pane->setTabsVisible(tabs > 1);
        pane->setMarked(several, several && pane == m_active);
    }
    auto* page = qobject_cast<PlotPage*>(m_active->shown());
    if (page != m_current) {
        m_current = page;
        emit currentChanged(page);
    }
    emit arranged();
}
