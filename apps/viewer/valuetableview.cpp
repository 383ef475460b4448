#include "valuetableview.h"

#include "plotvalues.h"
#include "valuetablemodel.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

namespace {

constexpr int columnPadding = 12;
constexpr int rowPadding = 5;
constexpr qint64 mostCopied = 4000000;

QRect boundsOf(const QItemSelection& selection)
{
    QRect bounds;
    for (const QItemSelectionRange& range : selection)
        bounds |= QRect(QPoint(range.left(), range.top()), QPoint(range.right(), range.bottom()));
    return bounds;
}

} // namespace

ValueTableView::ValueTableView(QWidget* parent) : QTableView(parent)
{
    setWordWrap(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setDefaultSectionSize(fontMetrics().horizontalAdvance("-0.0123456") + columnPadding);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowPadding);
    horizontalHeader()->setHighlightSections(true);
    setToolTip(tr("The plot shows the point of the chosen cell."));
}

QString ValueTableView::selectedText() const
{
    const auto* shown = qobject_cast<const ValueTableModel*>(model());
    const QItemSelection selection = selectionModel()->selection();
    const QRect bounds = boundsOf(selection);
    if (!shown || !shown->values() || bounds.isEmpty())
        return QString();
    const PlotValues& values = *shown->values();
    const char point = locale().decimalPoint().toLatin1();
    QByteArray text;
    for (int row = bounds.top(); row <= bounds.bottom(); ++row) {
        for (int column = bounds.left(); column <= bounds.right(); ++column) {
            if (column > bounds.left())
                text += '\t';
            if (selection.contains(shown->index(row, column)))
                text += values.exact(values.value(column, row)).replace('.', point);
        }
        text += '\n';
    }
    return QString::fromLatin1(text);
}

void ValueTableView::copy()
{
    const QRect bounds = boundsOf(selectionModel()->selection());
    const qint64 cells = qint64(bounds.width()) * bounds.height();
    if (cells == 0)
        return;
    if (cells > mostCopied) {
        emit told(tr("Choose at most %1 cells to copy.").arg(locale().toString(mostCopied)));
        return;
    }
    QGuiApplication::clipboard()->setText(selectedText());
    emit told(tr("The chosen cells are on the clipboard: %1.").arg(locale().toString(cells)));
}

bool ValueTableView::event(QEvent* event)
{
    // Before the window's own copying of the picture.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void ValueTableView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else
        QTableView::keyPressEvent(event);
}

void ValueTableView::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu;
    menu.addAction(tr("&Copy cells"), this, &ValueTableView::copy)
        ->setEnabled(selectionModel() && selectionModel()->hasSelection());
    menu.exec(event->globalPos());
}
