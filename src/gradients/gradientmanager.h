#pragma once

#include <QGradient>
#include <QMap>
#include <QObject>
#include <QString>

/// The store of named colour gradients.
///
/// Names are unique and in the order in which lists show them. A store starts with one gradient, under the
/// translated name "Default". Every change is reported by a signal.
class Q_DECL_EXPORT GradientManager : public QObject
{
    Q_OBJECT
public:
    /// A store that holds the default gradient.
    GradientManager(QObject* parent, const QGradient& defaultGradient);

    /// All gradients by name.
    QMap<QString, QGradient> gradients() const { return store; }
    /// The gradient under the translated name "Default"; an empty one when it was removed.
    QGradient getDefaultGradient() const;
    /// The name itself when it is free, else the name without its trailing digits and with the first number
    /// from 1 on that makes it free.
    QString uniqueId(const QString& name) const;

    /// Stores a gradient under uniqueId(name), emits gradientAdded() and returns the name used.
    QString addGradient(const QString& name, const QGradient& gradient);
    /// Emits gradientRemoved() while the gradient is still stored, then removes it. Does nothing when there
    /// is none of that name.
    void removeGradient(const QString& name);
    /// With equal names: emits gradientChanged() and stores the gradient if it differs from the stored one.
    /// With different names: removes the old gradient, adds the new one under uniqueId(newName) and emits
    /// currentChange() with newName as given.
    void changeGradient(const QString& oldName, const QString& newName, const QGradient& gradient);
    /// Removes every gradient, the default included.
    void clear();

signals:
    void gradientAdded(const QString& name, const QGradient& gradient);
    void gradientRemoved(const QString& name);
    void gradientChanged(const QString& name, const QGradient& gradient);
    /// The gradient of this name is to become the current one.
    void currentChange(const QString& name);

private:
    QMap<QString, QGradient> store;
};
