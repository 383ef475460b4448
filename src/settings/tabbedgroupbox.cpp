#include "settings/tabbedgroupbox.h"

#include "settings/field.h"
#include "settings/fieldform.h"
#include "settings/groupcolumn.h"

#include <QTabWidget>
#include <QVBoxLayout>

namespace Zel3D {

QVector<QVector<FieldGroup>> groupsByTab(const QVector<FieldGroup>& groups)
{
    QVector<QVector<FieldGroup>> all;
    for (const FieldGroup& group : groups) {
        if (all.isEmpty() || all.constLast().constLast().tab != group.tab)
            all.append(QVector<FieldGroup>());
        all.last().append(group);
    }
    return all;
}

TabbedGroupBox::TabbedGroupBox(const QVector<FieldGroup>& groups, FieldBinder& binder, QWidget* parent)
    : AbstractSettingsGroupBox(QString(), parent), tabs(new QTabWidget(this))
{
    for (const QVector<FieldGroup>& together : groupsByTab(groups)) {
        auto* column = new GroupColumn(together, binder);
        connect(column, &GroupColumn::built, this, &AbstractSettingsGroupBox::formsAdded);
        columns.append(column);
        tabs->addTab(column, together.first().tab);
    }
    // The others need as much room.
    columns.first()->build();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tabs);
}

void TabbedGroupBox::paintEvent(QPaintEvent* /*event*/)
{
    // The tabs have a frame of their own.
}

QVector<FieldForm*> TabbedGroupBox::getForms() const
{
    QVector<FieldForm*> forms;
    for (const GroupColumn* column : columns)
        forms += column->getForms();
    return forms;
}

void TabbedGroupBox::prepare(const QString& id)
{
    for (GroupColumn* column : qAsConst(columns)) {
        if (column->contains(id))
            column->build();
    }
}

void TabbedGroupBox::bringToFront(FieldForm* form)
{
    for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->widget(i)->isAncestorOf(form))
            tabs->setCurrentIndex(i);
    }
}

} // namespace Zel3D
