#include "settings/fieldbinder.h"

#include "plots/baseplot.h"
#include "settings/fieldedit.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

/// How often values are written back until all hold: one may limit another.
constexpr int restorePasses = 3;

} // namespace

bool sameValue(const QVariant& a, const QVariant& b)
{
    if (a.userType() != QMetaType::Double || b.userType() != QMetaType::Double)
        return a == b;
    const double x = a.toDouble();
    const double y = b.toDouble();
    return x == y || std::abs(x - y) <= 1e-12 * std::max(std::abs(x), std::abs(y));
}

FieldBinder::FieldBinder(BasePlot* editedPlot, QObject* parent) : QObject(parent), plot(editedPlot)
{
    // The fields' functions refer to the plot.
    if (plot)
        connect(plot, &QObject::destroyed, this, &FieldBinder::forget);
}

FieldBinder::~FieldBinder() = default;

void FieldBinder::forget()
{
    plot = nullptr;
    undoStack.clear();
    entries.clear();
    ids.clear();
}

void FieldBinder::add(const Field& field, const QVariant& standard)
{
    Q_ASSERT(!entries.contains(field.id));
    ids.append(field.id);
    entries.insert(field.id, {field, standard, field.read()});
    for (const Field::Listener& listen : field.listeners)
        listen(this, [this] { emit changed(); });
}

const Field& FieldBinder::getField(const QString& id) const
{
    static const Field none;
    const auto found = entries.constFind(id);
    return found == entries.constEnd() ? none : found->field;
}

QVariant FieldBinder::value(const QString& id) const
{
    const Field& field = getField(id);
    return plot && field.read ? field.read() : QVariant();
}

QVariant FieldBinder::standard(const QString& id) const
{
    const auto found = entries.constFind(id);
    return found == entries.constEnd() ? QVariant() : found->standard;
}

bool FieldBinder::isStandard(const QString& id) const
{
    return sameValue(value(id), standard(id));
}

bool FieldBinder::isEnabled(const QString& id) const
{
    const Field& field = getField(id);
    return plot && (!field.enabled || field.enabled());
}

QStringList FieldBinder::withAlike(const QString& id) const
{
    QStringList all{id};
    if (alike)
        all += getField(id).alike;
    return all;
}

void FieldBinder::edit(const QString& id, const QVariant& value, int gesture)
{
    if (plot && entries.contains(id))
        undoStack.push(new FieldEdit(*this, withAlike(id), value, gesture));
    // Also what was refused: editors go back to what holds.
    emit changed();
}

void FieldBinder::reset(const QStringList& which)
{
    QStringList differing;
    for (const QString& field : which) {
        for (const QString& id : withAlike(field)) {
            if (!isStandard(id) && !differing.contains(id))
                differing.append(id);
        }
    }
    if (!plot || differing.isEmpty())
        return;
    undoStack.beginMacro(tr("Restore defaults"));
    for (const QString& id : qAsConst(differing))
        undoStack.push(new FieldEdit(*this, {id}, standard(id), 0));
    undoStack.endMacro();
    emit changed();
}

bool FieldBinder::write(const QString& id, const QVariant& value)
{
    const Field& field = getField(id);
    if (!plot || !field.write || !field.write(value))
        return false;
    plot->update();
    emit changed();
    return true;
}

void FieldBinder::keep()
{
    for (Entry& entry : entries)
        entry.kept = entry.field.read();
    undoStack.setClean();
}

void FieldBinder::restore()
{
    // A step may have changed more than the fields.
    if (plot && undoStack.cleanIndex() >= 0)
        undoStack.setIndex(undoStack.cleanIndex());
    for (int pass = 0; pass < restorePasses && isModified(); ++pass) {
        for (const QString& id : qAsConst(ids)) {
            const QVariant kept = entries.constFind(id)->kept;
            if (!sameValue(value(id), kept))
                write(id, kept);
        }
    }
}

bool FieldBinder::isModified() const
{
    if (!plot)
        return false;
    return std::any_of(entries.cbegin(), entries.cend(),
                       [](const Entry& entry) { return !sameValue(entry.field.read(), entry.kept); });
}

} // namespace Zel3D
