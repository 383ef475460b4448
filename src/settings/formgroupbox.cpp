#include "settings/formgroupbox.h"

#include "settings/fieldform.h"

#include <QVBoxLayout>

namespace Zel3D {

FormGroupBox::FormGroupBox(const FieldGroup& group, FieldBinder& binder, QWidget* parent)
    : AbstractSettingsGroupBox(group.title, parent), form(new FieldForm(group.fields, binder, this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form);
}

void FormGroupBox::bringToFront(FieldForm* /*shown*/) {}

} // namespace Zel3D
