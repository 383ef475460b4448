#pragma once

#include <QUndoCommand>
#include <QVariant>

namespace Zel3D {

class FieldBinder;

/// The edit of one field: its value before and after. The steps of one gesture, such as the drag of a slider,
/// become one.
class FieldEdit : public QUndoCommand
{
public:
    /// \a gesture 0 never merges.
    FieldEdit(FieldBinder& fields, const QString& field, const QVariant& newValue, int gestureNumber);

    void undo() override;
    /// Obsolete when the setter refuses the value.
    void redo() override;
    int id() const override { return gesture == 0 ? -1 : 1; }
    bool mergeWith(const QUndoCommand* next) override;

private:
    FieldBinder& binder;
    QString fieldId;
    QVariant before;
    QVariant after;
    int gesture;
};

} // namespace Zel3D
