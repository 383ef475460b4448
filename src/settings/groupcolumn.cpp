#include "settings/groupcolumn.h"

#include "settings/fieldform.h"
#include "settings/formgroupbox.h"

#include <QVBoxLayout>

#include <algorithm>

namespace Zel3D {

GroupColumn::GroupColumn(const QVector<FieldGroup>& fieldGroups, FieldBinder& fieldBinder, QWidget* parent)
    : QWidget(parent), groups(fieldGroups), binder(fieldBinder)
{
}

bool GroupColumn::contains(const QString& id) const
{
    return std::any_of(groups.cbegin(), groups.cend(), [&id](const FieldGroup& group) {
        return std::any_of(group.fields.cbegin(), group.fields.cend(),
                           [&id](const Field& field) { return field.id == id; });
    });
}

void GroupColumn::build()
{
    if (!forms.isEmpty())
        return;
    auto* column = new QVBoxLayout(this);
    for (const FieldGroup& group : qAsConst(groups)) {
        auto* box = new FormGroupBox(group, binder, this);
        column->addWidget(box);
        // Children of what is shown already stay hidden otherwise.
        if (isVisible())
            box->show();
        forms += box->getForms();
    }
    // A column shorter than others keeps its boxes at the top.
    column->addStretch(1);
    emit built();
}

void GroupColumn::showEvent(QShowEvent* event)
{
    build();
    QWidget::showEvent(event);
}

} // namespace Zel3D
