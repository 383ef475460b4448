#pragma once

#include "settings/field.h"

#include <QHash>
#include <QStringList>
#include <QUndoStack>

namespace Zel3D {

class BasePlot;

/// All fields of a dialog about one plot. Every edit goes through here: it is written to the plot, repainted
/// and can be undone. Keeps the values to which a cancelled dialog returns and the defaults.
class VORANPLOT_EXPORT FieldBinder : public QObject
{
    Q_OBJECT
public:
    /// The binder of a null plot, or of one that has been deleted, reads and writes nothing.
    explicit FieldBinder(BasePlot* editedPlot, QObject* parent = nullptr);
    ~FieldBinder() override;

    /// Null once the plot has been deleted.
    BasePlot* getPlot() const { return plot; }
    QUndoStack& getUndoStack() { return undoStack; }

    /// Takes a field on, with the value that a reset gives it.
    void add(const Field& field, const QVariant& standard);
    /// The ids in the order in which they were added.
    const QStringList& getIds() const { return ids; }
    const Field& getField(const QString& id) const;
    QVariant value(const QString& id) const;
    QVariant standard(const QString& id) const;
    bool isStandard(const QString& id) const;
    bool isEnabled(const QString& id) const;

    /// An edit of a person. Edits of one field with the same \a gesture, when it is not 0, are undone as one.
    void edit(const QString& id, const QVariant& value, int gesture = 0);
    /// On: what a person edits or resets, the fields alike follow. On from the beginning.
    void setAlike(bool on) { alike = on; }
    bool isAlike() const { return alike; }
    /// Back to the defaults, as one step that can be undone.
    void reset(const QStringList& which);
    /// Writes without an undo step and repaints. Returns whether the value changed.
    bool write(const QString& id, const QVariant& value);

    /// The values of now are those to which restore() returns.
    void keep();
    /// Writes back what differs from the values kept.
    void restore();
    /// Whether a value differs from those kept.
    bool isModified() const;

    /// Drops every field: what they refer to is gone. Done by itself when the plot is deleted.
    void forget();

signals:
    /// A value changed through the binder, or a signal told of a change: what is shown may be out of date.
    void changed();

private:
    /// The field and, where that is chosen, those alike.
    QStringList withAlike(const QString& id) const;

    struct Entry
    {
        Field field;
        QVariant standard;
        QVariant kept;
    };

    BasePlot* plot;
    QHash<QString, Entry> entries;
    QStringList ids;
    QUndoStack undoStack;
    bool alike = true;
};

/// Whether two values of a field are the same; numbers are compared as they are shown at most precisely.
VORANPLOT_EXPORT bool sameValue(const QVariant& a, const QVariant& b);

} // namespace Zel3D
