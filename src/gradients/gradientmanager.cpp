#include "gradients/gradientmanager.h"

GradientManager::GradientManager(QObject* parent, const QGradient& defaultGradient) : QObject(parent)
{
    addGradient(tr("Default"), defaultGradient);
}

QGradient GradientManager::getDefaultGradient() const
{
    const auto found = store.constFind(tr("Default"));
    if (found != store.constEnd())
        return *found;
    QGradient empty;
    empty.setSpread(QGradient::PadSpread); // left unset by QGradient, and read by every copy
    return empty;
}

QString GradientManager::uniqueId(const QString& name) const
{
    if (!store.contains(name))
        return name;
    int length = name.size();
    while (length > 0 && name.at(length - 1).isDigit())
        --length;
    const QString base = name.left(length);
    int number = 1;
    while (store.contains(base + QString::number(number)))
        ++number;
    return base + QString::number(number);
}

QString GradientManager::addGradient(const QString& name, const QGradient& gradient)
{
    const QString id = uniqueId(name);
    store.insert(id, gradient);
    emit gradientAdded(id, gradient);
    return id;
}

void GradientManager::removeGradient(const QString& name)
{
    if (!store.contains(name))
        return;
    emit gradientRemoved(name);
    store.remove(name);
}

void GradientManager::changeGradient(const QString& oldName, const QString& newName,
                                     const QGradient& gradient)
{
    if (oldName != newName) {
        removeGradient(oldName);
        addGradient(newName, gradient);
        emit currentChange(newName);
        return;
    }
    const auto found = store.constFind(newName);
    if (found == store.constEnd() || *found == gradient)
        return;
    emit gradientChanged(newName, gradient);
    store.insert(newName, gradient);
}

void GradientManager::clear()
{
    const QStringList names = store.keys();
    for (const QString& name : names)
        removeGradient(name);
}
