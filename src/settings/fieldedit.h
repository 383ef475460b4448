#pragma once

#include <QUndoCommand>
#include <QVariant>
#include <QVector>

namespace Zel3D {

class FieldBinder;

/// The edit of one field, or of several to the same value: the values before and after. The steps of one
/// gesture, such as the drag of a slider, become one.
class FieldEdit : public QUndoCommand
{
public:
    /// \a gesture 0 never merges.
    FieldEdit(FieldBinder& fields, const QStringList& which, const QVariant& newValue, int gestureNumber);

    void undo() override;
    void redo() override;
    int id() const override { return gesture == 0 ? -1 : 1; }
    bool mergeWith(const QUndoCommand* next) override;

private:
    struct Change
    {
        QString id;
        QVariant before;
        QVariant after;
    };

    void dropWhenEmpty();

    FieldBinder& binder;
    QVector<Change> changes;
    int gesture;
};

} // namespace Zel3D
