#include "settings/fieldedit.h"

#include "settings/fieldbinder.h"

#include <algorithm>

namespace Zel3D {

FieldEdit::FieldEdit(FieldBinder& fields, const QStringList& which, const QVariant& newValue,
                     int gestureNumber)
    : QUndoCommand(fields.getField(which.first()).accessibleName()), binder(fields), gesture(gestureNumber)
{
    for (const QString& id : which)
        changes.append({id, fields.value(id), newValue});
}

void FieldEdit::undo()
{
    for (const Change& change : qAsConst(changes))
        binder.write(change.id, change.before);
}

void FieldEdit::redo()
{
    for (Change& change : changes) {
        binder.write(change.id, change.after);
        change.after = binder.value(change.id);
    }
    dropWhenEmpty();
}

bool FieldEdit::mergeWith(const QUndoCommand* next)
{
    const auto* other = static_cast<const FieldEdit*>(next);
    const bool same =
        other->gesture == gesture &&
        std::equal(changes.cbegin(), changes.cend(), other->changes.cbegin(), other->changes.cend(),
                   [](const Change& a, const Change& b) { return a.id == b.id; });
    if (!same)
        return false;
    for (int i = 0; i < changes.size(); ++i)
        changes[i].after = other->changes.at(i).after;
    dropWhenEmpty();
    return true;
}

void FieldEdit::dropWhenEmpty()
{
    setObsolete(std::all_of(changes.cbegin(), changes.cend(),
                            [](const Change& change) { return sameValue(change.before, change.after); }));
}

} // namespace Zel3D
