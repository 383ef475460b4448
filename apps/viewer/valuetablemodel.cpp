#include "valuetablemodel.h"

#include "datasummary.h"

#include <QGuiApplication>
#include <QPalette>

#include <cmath>

void ValueTableModel::setValues(const PlotValues* values)
{
    beginResetModel();
    m_values = values;
    m_locale = QLocale();
    endResetModel();
}

void ValueTableModel::refresh()
{
    if (rowCount() > 0 && columnCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), {Qt::DisplayRole});
}

int ValueTableModel::rowCount(const QModelIndex& parent) const
{
    return m_values && !parent.isValid() ? m_values->rows() : 0;
}

int ValueTableModel::columnCount(const QModelIndex& parent) const
{
    return m_values && !parent.isValid() ? m_values->columns() : 0;
}

QVariant ValueTableModel::data(const QModelIndex& index, int role) const
{
    // The data may have shrunk since the last reset.
    if (!m_values || index.row() >= m_values->rows() || index.column() >= m_values->columns())
        return QVariant();
    const auto value = [&] { return m_values->value(index.column(), index.row()); };
    switch (role) {
    case Qt::DisplayRole:
        return m_values->exists(index.column(), index.row()) ? DataSummary::number(value(), m_locale)
                                                             : QString();
    case Qt::TextAlignmentRole:
        return int(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return std::isnan(value()) ? QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text)
                                   : QVariant();
    case Qt::ToolTipRole:
        return m_values->exists(index.column(), index.row()) && std::isnan(value()) ? tr("Missing")
                                                                                    : QVariant();
    default:
        return QVariant();
    }
}

QVariant ValueTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (!m_values)
        return QVariant();
    if (role == Qt::DisplayRole)
        return headerText(section, orientation);
    const bool across = orientation == Qt::Horizontal;
    if (role == Qt::ToolTipRole && m_values->isRectangular())
        return m_values->name(across ? Zel3D::XAxis : Zel3D::YAxis);
    return QVariant();
}

QString ValueTableModel::headerText(int section, Qt::Orientation orientation) const
{
    const bool across = orientation == Qt::Horizontal;
    if (section >= (across ? m_values->columns() : m_values->rows()))
        return QString();
    if (m_values->isRectangular())
        return DataSummary::number(across ? m_values->x(section, 0) : m_values->y(0, section), m_locale);
    if (across && m_values->kind() == PlotValues::Kind::Mesh)
        return m_values->name(Zel3D::BaseAxisType(section));
    return m_locale.toString(section + 1);
}
