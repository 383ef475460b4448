#include "settings/tabbedgroupbox.h"

#include "settings/fieldform.h"

#include <QTabWidget>
#include <QVBoxLayout>

namespace Zel3D {

TabbedGroupBox::TabbedGroupBox(const QVector<FieldGroup>& groups, FieldBinder& binder, QWidget* parent)
    : AbstractSettingsGroupBox(groups.first().title, parent), tabs(new QTabWidget(this))
{
    for (const FieldGroup& group : groups) {
        forms.append(new FieldForm(group.fields, binder));
        tabs->addTab(forms.last(), group.tab);
    }
    tabs->setDocumentMode(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
}

void TabbedGroupBox::bringToFront(FieldForm* form)
{
    tabs->setCurrentWidget(form);
}

} // namespace Zel3D
