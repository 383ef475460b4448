#pragma once

#include "plotvalues.h"

#include <QAbstractTableModel>
#include <QLocale>

/// The values of a plot for a table view, read from the plot when they are shown.
class ValueTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit ValueTableModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

    /// Not owned; null empties the table.
    void setValues(const PlotValues* values);
    const PlotValues* values() const { return m_values; }
    /// The numbers are others than before, their count is the same.
    void refresh();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString headerText(int section, Qt::Orientation orientation) const;

    const PlotValues* m_values = nullptr;
    QLocale m_locale;
};
