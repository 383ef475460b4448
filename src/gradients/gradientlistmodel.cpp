#include "gradients/gradientlistmodel.h"

#include "gradients/gradientcolors.h"
#include "gradients/gradientmanager.h"
#include "gradients/gradientpainter.h"
#include "gradients/gradientpresets.h"

#include <QIODevice>
#include <QWidget>

#include <algorithm>

namespace Zel3D {

GradientListModel::GradientListModel(GradientManager* gradientManager, QWidget* swatchWidget)
    : QAbstractListModel(swatchWidget), manager(gradientManager), widget(swatchWidget)
{
    const QMap<QString, QGradient> all = manager->gradients();
    for (auto it = all.begin(); it != all.end(); ++it)
        entries.append({it.key(), it.value()});
    connect(manager, &GradientManager::gradientAdded, this, &GradientListModel::insertEntry);
    connect(manager, &GradientManager::gradientRemoved, this, &GradientListModel::removeEntry);
    connect(manager, &GradientManager::gradientChanged, this, &GradientListModel::changeEntry);
}

int GradientListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : entries.size();
}

QVariant GradientListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= entries.size())
        return {};
    const Entry& entry = entries[index.row()];
    if (role == Qt::EditRole)
        return entry.first;
    if (role == Qt::DisplayRole)
        return gradientTitle(entry.first);
    if (role == Qt::DecorationRole)
        return gradientSwatch(entry.second, getSwatchSize(), *widget);
    if (role == Qt::ToolTipRole && isProtected(index.row()))
        return tr("%1: built in, duplicate it to change it").arg(gradientTitle(entry.first));
    return role == Qt::ToolTipRole ? gradientTitle(entry.first) : QVariant();
}

Qt::ItemFlags GradientListModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    return index.isValid() && !isProtected(index.row()) ? flags | Qt::ItemIsEditable : flags;
}

bool GradientListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !index.isValid() || isProtected(index.row()))
        return false;
    return !rename(getName(index.row()), value.toString()).isEmpty();
}

int GradientListModel::rowOf(const QString& name) const
{
    for (int row = 0; row < entries.size(); ++row) {
        if (entries[row].first == name)
            return row;
    }
    return -1;
}

QString GradientListModel::getName(int row) const
{
    return row >= 0 && row < entries.size() ? entries[row].first : QString();
}

QGradient GradientListModel::getGradient(int row) const
{
    return row >= 0 && row < entries.size() ? entries[row].second : QLinearGradient();
}

QString GradientListModel::protectedName()
{
    return GradientManager::tr("Default");
}

bool GradientListModel::isProtected(int row) const
{
    return getName(row) == protectedName();
}

bool GradientListModel::isChangeable(const GradientManager& manager, const QString& name)
{
    return name != protectedName() && manager.gradients().contains(name);
}

QSize GradientListModel::getSwatchSize() const
{
    const int height = widget->fontMetrics().height();
    return {height * 7, height + 2};
}

QString GradientListModel::add(const QString& name, const QGradient& gradient)
{
    return manager->addGradient(name, gradient);
}

QString GradientListModel::duplicate(int row)
{
    return row >= 0 && row < entries.size() ? add(getName(row), getGradient(row)) : QString();
}

bool GradientListModel::remove(int row)
{
    if (row < 0 || row >= entries.size() || isProtected(row))
        return false;
    const Entry entry = entries[row];
    removed.append(entry);
    manager->removeGradient(entry.first);
    emit noted(tr("“%1” was removed.").arg(entry.first));
    return true;
}

QString GradientListModel::restore()
{
    if (!canRestore())
        return {};
    const Entry entry = removed.takeLast();
    emit noted(tr("“%1” was put back.").arg(entry.first));
    return add(entry.first, entry.second);
}

QString GradientListModel::import(QIODevice& device, const QString& fallbackName)
{
    const GradientFile::Result result = GradientFile::read(device);
    if (!result.isOk()) {
        emit noted(result.message());
        return {};
    }
    QString name =
        add(result.name.isEmpty() ? fallbackName : result.name, gradientOf(coveringStops(result.stops)));
    emit noted(tr("“%1” was added.").arg(name));
    return name;
}

QByteArray GradientListModel::exported(int row) const
{
    return GradientFile::write(getName(row), editableStops(getGradient(row)));
}

QString GradientListModel::rename(const QString& name, const QString& wanted)
{
    const QString trimmed = wanted.simplified();
    if (trimmed == name)
        return name;
    if (trimmed.isEmpty()) {
        emit noted(tr("A gradient needs a name."));
        return {};
    }
    // Asked for beforehand: the store would report the taken name as the one that is to become current.
    QString free = manager->uniqueId(trimmed);
    if (free != trimmed)
        emit noted(tr("There is a gradient “%1” already; this one is now called “%2”.").arg(trimmed, free));
    manager->changeGradient(name, free, getGradient(rowOf(name)));
    return free;
}

void GradientListModel::insertEntry(const QString& name, const QGradient& gradient)
{
    const auto place = std::lower_bound(entries.begin(), entries.end(), name,
                                        [](const Entry& entry, const QString& n) { return entry.first < n; });
    const int row = static_cast<int>(place - entries.begin());
    beginInsertRows({}, row, row);
    entries.insert(row, {name, gradient});
    endInsertRows();
}

void GradientListModel::removeEntry(const QString& name)
{
    const int row = rowOf(name);
    if (row < 0)
        return;
    beginRemoveRows({}, row, row);
    entries.remove(row);
    endRemoveRows();
}

void GradientListModel::changeEntry(const QString& name, const QGradient& gradient)
{
    const int row = rowOf(name);
    if (row < 0)
        return;
    entries[row].second = gradient;
    emit dataChanged(index(row), index(row));
}

} // namespace Zel3D
