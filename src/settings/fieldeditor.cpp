#include "settings/fieldeditor.h"

#include "settings/fieldbinder.h"
#include "settings/valueeditor.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLabel>

namespace Zel3D {

FieldEditor::FieldEditor(const QString& field, FieldBinder& fields, QWidget* parent)
    : QObject(parent),
      id(field),
      binder(fields),
      label(new QLabel(fields.getField(field).label, parent)),
      editor(ValueEditor::make(fields.getField(field)))
{
    editor->setParent(parent);
    editor->setObjectName(id);
    label->setBuddy(editor->focusTarget());
    describe(*label);
    describe(*editor);
    describe(*editor->focusTarget());
    label->installEventFilter(this);
    editor->guard(*editor);
    const QList<QWidget*> parts = editor->findChildren<QWidget*>();
    for (QWidget* part : parts) {
        if (part->toolTip().isEmpty())
            describe(*part);
    }
    connect(editor, &ValueEditor::edited, this,
            [this](const QVariant& value, int gesture) { binder.edit(id, value, gesture); });
    connect(&binder, &FieldBinder::changed, this, [this] {
        // Others are brought up to date when they are shown.
        if (editor->isVisible())
            refresh();
    });
    refresh();
}

void FieldEditor::describe(QWidget& widget) const
{
    const Field& field = binder.getField(id);
    widget.setToolTip(field.toolTip());
    widget.setAccessibleName(field.accessibleName());
    widget.setAccessibleDescription(field.description);
}

void FieldEditor::refresh()
{
    const QVariant value = binder.value(id);
    if (value.isValid())
        editor->show(value);
    const bool enabled = binder.isEnabled(id);
    editor->setEnabled(enabled);
    label->setEnabled(enabled);
}

bool FieldEditor::eventFilter(QObject* watched, QEvent* event)
{
    auto* button = qobject_cast<QAbstractButton*>(editor->focusTarget());
    if (watched == label && event->type() == QEvent::MouseButtonRelease && button && button->isCheckable())
        button->click();
    return QObject::eventFilter(watched, event);
}

} // namespace Zel3D
