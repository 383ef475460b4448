#include "settings/abstractsettingsgroupbox.h"

#include "settings/fieldeditor.h"
#include "settings/fieldform.h"

namespace Zel3D {

AbstractSettingsGroupBox::AbstractSettingsGroupBox(const QString& title, QWidget* parent)
    : QGroupBox(title, parent)
{
}

QVector<FieldEditor*> AbstractSettingsGroupBox::getEditors() const
{
    QVector<FieldEditor*> editors;
    for (const FieldForm* form : getForms())
        editors += form->getEditors();
    return editors;
}

FieldEditor* AbstractSettingsGroupBox::reveal(const QString& id)
{
    prepare(id);
    for (FieldForm* form : getForms()) {
        for (FieldEditor* editor : form->getEditors()) {
            if (editor->getId() == id) {
                bringToFront(form);
                return editor;
            }
        }
    }
    return nullptr;
}

} // namespace Zel3D
