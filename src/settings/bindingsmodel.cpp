#include "settings/bindingsmodel.h"

#include <QApplication>
#include <QFont>
#include <QStyle>

namespace Zel3D {

BindingsModel::BindingsModel(const PlotBindings& shown, QObject* parent)
    : QAbstractTableModel(parent), bindings(shown), before(shown)
{
}

void BindingsModel::reserve(int key, Qt::KeyboardModifiers modifiers, const QString& use)
{
    reserved.insert(Gesture{Gesture::Key, Qt::NoButton, key, modifiers}.stored(), use);
    tellAll();
}

void BindingsModel::tellAll()
{
    emit dataChanged(index(0, 0), index(rowCount() - 1, NoteColumn));
}

bool BindingsModel::setGesture(int row, const Gesture& gesture)
{
    const Gesture held = bindings.gesture(row);
    if (!bindings.setGesture(row, gesture))
        return false;
    before.setGesture(row, held);
    tellAll();
    return true;
}

bool BindingsModel::canSwap(int row) const
{
    const int other = bindings.partner(row);
    if (other < 0)
        return false;
    PlotBindings swapped = bindings;
    swapped.setGesture(other, before.gesture(row));
    return swapped.clash(row).isEmpty() && swapped.clash(other).isEmpty();
}

bool BindingsModel::swap(int row)
{
    return canSwap(row) && setGesture(bindings.partner(row), before.gesture(row));
}

void BindingsModel::reset(int row)
{
    setGesture(row, PlotBindings::actions().at(row).standard);
}

void BindingsModel::resetAll()
{
    bindings = PlotBindings();
    before = bindings;
    tellAll();
}

QString BindingsModel::clash(int row) const
{
    const QString own = bindings.clash(row);
    const Gesture& gesture = bindings.gesture(row);
    const QString use = gesture.kind == Gesture::Key ? reserved.value(gesture.stored()) : QString();
    return own.isEmpty() && !use.isEmpty() ? tr("The key is a shortcut for \"%1\".").arg(use) : own;
}

bool BindingsModel::hasClash() const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (!clash(row).isEmpty())
            return true;
    }
    return false;
}

int BindingsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : PlotBindings::actions().size();
}

int BindingsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : NoteColumn + 1;
}

QVariant BindingsModel::data(const QModelIndex& index, int role) const
{
    const int row = index.row();
    const PlotBindings::Action& action = PlotBindings::actions().at(row);
    const QString wrong = clash(row);
    if (role == Qt::FontRole && index.column() == GestureColumn && !bindings.isStandard(row)) {
        QFont font = QApplication::font("QAbstractItemView");
        font.setBold(true);
        return font;
    }
    if (role == Qt::DecorationRole && index.column() == NoteColumn && !wrong.isEmpty())
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    switch (index.column()) {
    case ActionColumn:
        return action.title();
    case GestureColumn:
        return bindings.gesture(row).text();
    case NoteColumn:
        if (!wrong.isEmpty())
            return wrong;
        if (action.standard.kind == Gesture::Drag)
            return action.drag == Qt::Horizontal ? tr("Drag sideways") : tr("Drag up and down");
        return action.standard.kind == Gesture::Hover ? tr("Hover over the data") : tr("Press");
    default:
        return {};
    }
}

QVariant BindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString titles[] = {tr("Action"), tr("Gesture"), tr("How")};
    return section <= NoteColumn ? titles[section] : QVariant();
}

} // namespace Zel3D
