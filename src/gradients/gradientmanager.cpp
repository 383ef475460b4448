#include "gradients/gradientmanager.h"

namespace {

// QGradient invents black and white for a gradient without stops and finds it equal to one that has them. A
// stop added to both drops what is invented and tells them apart.
bool isSame(const QGradient& a, const QGradient& b)
{
    QGradient probeA = a;
    QGradient probeB = b;
    probeA.setColorAt(0.5, Qt::black);
    probeB.setColorAt(0.5, Qt::black);
    return a == b && probeA == probeB;
}

} // namespace

GradientManager::GradientManager(QObject* parent, const QGradient& defaultGradient) : QObject(parent)
{
    addGradient(tr("Default"), defaultGradient);
}

QGradient GradientManager::getDefaultGradient() const
{
    QGradient empty;
    empty.setSpread(QGradient::PadSpread); // which the constructor leaves undefined
    return store.value(tr("Default"), empty);
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
    QString id = uniqueId(name);
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
    if (found == store.constEnd() || isSame(*found, gradient))
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
