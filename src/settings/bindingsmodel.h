#pragma once

#include "core/export.h"
#include "settings/plotbindings.h"

#include <QAbstractTableModel>
#include <QHash>

namespace Zel3D {

/// The bindings of mouse and keys as a table: what is done, by which gesture, and what is wrong with it.
class VORANPLOT_EXPORT BindingsModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { ActionColumn, GestureColumn, NoteColumn };

    explicit BindingsModel(const PlotBindings& shown, QObject* parent = nullptr);

    const PlotBindings& getBindings() const { return bindings; }
    /// A key gesture that the host uses for something else, such as a shortcut; \a use is its text.
    void reserve(int key, Qt::KeyboardModifiers modifiers, const QString& use);

    /// False when the row does not take the gesture or has it.
    bool setGesture(int row, const Gesture& gesture);
    /// Gives the other row of a clash what this row had before its last change. False when there is none, or
    /// when that would clash as well.
    bool swap(int row);
    bool canSwap(int row) const;
    void reset(int row);
    void resetAll();
    /// Why a row cannot stay as it is, as a sentence; empty when it can.
    QString clash(int row) const;
    bool hasClash() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    void tellAll();

    PlotBindings bindings;
    PlotBindings before; ///< each row's gesture before its last change
    QHash<QString, QString> reserved;
};

} // namespace Zel3D
