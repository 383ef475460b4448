#include "settings/pagelist.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>

namespace Zel3D {

namespace {

class PageDelegate : public QStyledItemDelegate
{
public:
    explicit PageDelegate(PageList& pages) : QStyledItemDelegate(&pages), pageList(pages) {}

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override
    {
        if (!pageList.isBare())
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        QToolTip::showText(event->globalPos(), index.data(Qt::DisplayRole).toString(), view);
        return true;
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // A page without an icon keeps as much of its title as there is room for.
        if (pageList.isBare() && option->features.testFlag(QStyleOptionViewItem::HasDecoration) &&
            !option->icon.isNull())
            option->text.clear();
    }

private:
    const PageList& pageList;
};

} // namespace

PageList::PageList(QWidget* parent) : QListWidget(parent)
{
    setItemDelegate(new PageDelegate(*this));
}

void PageList::setBare(bool on)
{
    if (on == bare)
        return;
    bare = on;
    viewport()->update();
}

int PageList::getIconsWidth() const
{
    return iconSize().width() + fontMetrics().height() + verticalScrollBar()->sizeHint().width();
}

int PageList::getFullWidth() const
{
    int titles = 0;
    for (int i = 0; i < count(); ++i)
        titles = std::max(titles, fontMetrics().horizontalAdvance(item(i)->text()));
    return titles + fontMetrics().height() / 2 + getIconsWidth();
}

int PageList::getWidth() const
{
    return bare ? getIconsWidth() : getFullWidth();
}

} // namespace Zel3D
