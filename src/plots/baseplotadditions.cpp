// The markers that a plot holds.

#include "plots/addition.h"
#include "plots/baseplot.h"
#include "plots/markers.h"
#include "plots/plotlists.h"
#include "plots/plotparts.h"

#include <QSettings>

#include <algorithm>

namespace Zel3D {

Addition* BasePlot::addAddition(Addition& addition)
{
    if (!additions.contains(&addition)) {
        additions.append(addition.clone());
        lists->markAdditions();
    }
    return additions.last();
}

bool BasePlot::removeAddition(Addition* addition)
{
    if (!additions.removeOne(addition))
        return false;
    parts->addedMarkers.remove(addition);
    delete addition;
    lists->markAdditions();
    return true;
}

QVariantList BasePlot::getMarkers() const
{
    QVariantList markers;
    for (const Addition* addition : additions)
        markers.append(describeMarker(*addition));
    return markers;
}

bool BasePlot::setMarkers(const QVariantList& markers)
{
    const QVariantList before = getMarkers();
    if (markers == before)
        return false;
    QList<Addition*> spare = additions;
    QList<Addition*> wanted;
    const auto take = [&spare](const auto& fits) -> Addition* {
        const auto found = std::find_if(spare.begin(), spare.end(), fits);
        return found == spare.end() ? nullptr : spare.takeAt(int(found - spare.begin()));
    };
    // First what stays as it is, so that a pointer of the host's goes on to mean the same marker.
    for (const QVariant& marker : markers)
        wanted.append(take([&marker](const Addition* held) { return describeMarker(*held) == marker; }));
    for (int i = 0; i < wanted.size(); ++i) {
        const QVariantMap marker = markers.at(i).toMap();
        if (wanted.at(i))
            continue;
        wanted[i] = take([&](const Addition* held) {
            return describeMarker(*held).value("kind") == marker.value("kind");
        });
        if (wanted.at(i)) {
            changeMarker(*wanted.at(i), marker);
        } else {
            wanted[i] = makeMarker(marker);
            parts->addedMarkers.insert(wanted.at(i));
        }
    }
    wanted.removeAll(nullptr);
    parts->addedMarkers.remove(nullptr);
    for (Addition* rest : qAsConst(spare)) {
        if (describeMarker(*rest).value("kind") == ownMarkerKind()) {
            wanted.append(rest);
        } else {
            parts->addedMarkers.remove(rest);
            delete rest;
        }
    }
    additions = wanted;
    if (getMarkers() == before)
        return false;
    lists->markAdditions();
    emit additionsChanged();
    return true;
}

void BasePlot::saveMarkers() const
{
    QSettings store(getOrganization(), getApplication());
    const QString group = QString("%0/additions").arg(objectName());
    if (parts->addedMarkers.isEmpty() && !store.contains(group + "/size"))
        return;
    store.remove(group);
    int count = 0;
    for (const Addition* addition : additions) {
        // A host adds its own again.
        if (!parts->addedMarkers.contains(addition))
            continue;
        const QVariantMap values = describeMarker(*addition);
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            store.setValue(QString("%0/%1/%2").arg(group).arg(count).arg(value.key()), value.value());
        ++count;
    }
    store.setValue(group + "/size", count);
}

void BasePlot::loadMarkers()
{
    QSettings store(getOrganization(), getApplication());
    const QString group = QString("%0/additions").arg(objectName());
    const QVariant size = store.value(group + "/size");
    if (!size.isValid())
        return;
    QVariantList markers;
    for (const Addition* addition : qAsConst(additions)) {
        if (!parts->addedMarkers.contains(addition))
            markers.append(describeMarker(*addition));
    }
    // As many as there are, whatever the number claims.
    store.beginGroup(group);
    const int count = std::min(size.toInt(), store.childGroups().size());
    store.endGroup();
    for (int i = 0; i < count; ++i) {
        store.beginGroup(QString("%0/%1").arg(group).arg(i));
        QVariantMap values;
        for (const QString& name : store.childKeys())
            values.insert(name, store.value(name));
        store.endGroup();
        markers.append(values);
    }
    setMarkers(markers);
}

} // namespace Zel3D
