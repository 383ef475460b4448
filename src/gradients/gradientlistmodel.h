#pragma once

#include "gradients/gradientfile.h"

#include <QAbstractListModel>
#include <QGradient>
#include <QPair>
#include <QSize>
#include <QVector>

class GradientManager;
class QIODevice;
class QWidget;

namespace Zel3D {

/// The gradients of a store as a list of names with swatches, and what people do with them.
///
/// It follows the signals of the store. Gradients are renamed through setData(). The built-in gradient under
/// the translated name "Default" can neither be renamed nor removed nor edited, because a store always begins
/// with it anew; it can be duplicated.
class Q_DECL_EXPORT GradientListModel : public QAbstractListModel
{
    Q_OBJECT
public:
    /// The store must outlive the model. The swatches have the palette and pixel ratio of the widget.
    GradientListModel(GradientManager* gradientManager, QWidget* swatchWidget);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    /// -1 when there is none of that name.
    int rowOf(const QString& name) const;
    QString getName(int row) const;
    QGradient getGradient(int row) const;
    /// The built-in gradient.
    bool isProtected(int row) const;
    static QString protectedName();
    /// Whether a store has a gradient of this name that may be changed.
    static bool isChangeable(const GradientManager& manager, const QString& name);
    QSize getSwatchSize() const;

    // Each returns the name that is to become current; empty when nothing was done.
    QString add(const QString& name, const QGradient& gradient);
    QString duplicate(int row);
    /// False for the built-in gradient. What was removed can be put back in turn with restore().
    bool remove(int row);
    bool canRestore() const { return !removed.isEmpty(); }
    QString restore();
    /// Adds the gradient of a file, under the given name if the file names none.
    QString import(QIODevice& device, const QString& fallbackName);
    QByteArray exported(int row) const;

signals:
    /// What a person should know: a name was taken, a file was damaged.
    void noted(const QString& text);

private:
    using Entry = QPair<QString, QGradient>;

    QString rename(const QString& name, const QString& wanted);
    void insertEntry(const QString& name, const QGradient& gradient);
    void removeEntry(const QString& name);
    void changeEntry(const QString& name, const QGradient& gradient);

    GradientManager* manager;
    QWidget* widget;
    QVector<Entry> entries;
    QVector<Entry> removed;
};

} // namespace Zel3D
