#include "settings/fieldedit.h"

#include "settings/fieldbinder.h"

namespace Zel3D {

FieldEdit::FieldEdit(FieldBinder& fields, const QString& field, const QVariant& newValue, int gestureNumber)
    : QUndoCommand(fields.getField(field).accessibleName()),
      binder(fields),
      fieldId(field),
      before(fields.value(field)),
      after(newValue),
      gesture(gestureNumber)
{
}

void FieldEdit::undo()
{
    binder.write(fieldId, before);
}

void FieldEdit::redo()
{
    binder.write(fieldId, after);
    after = binder.value(fieldId);
    setObsolete(sameValue(before, after));
}

bool FieldEdit::mergeWith(const QUndoCommand* next)
{
    const auto* other = static_cast<const FieldEdit*>(next);
    if (other->fieldId != fieldId || other->gesture != gesture)
        return false;
    after = other->after;
    setObsolete(sameValue(before, after));
    return true;
}

} // namespace Zel3D
