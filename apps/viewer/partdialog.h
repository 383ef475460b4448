#pragma once

#include "gridpart.h"

#include <QDialog>
#include <QPointF>

#include <array>
#include <optional>

class GridSource;
class PartMap;
class QDoubleSpinBox;
class QLabel;
class QPushButton;

/// Asks for the part of a thinned grid that is to be opened, on a map and by its coordinates. At first it is
/// what just fits the budget, in the middle or around a place.
class PartDialog : public QDialog
{
    Q_OBJECT
public:
    /// The source must be open and thinned; the place is one of its coordinates.
    PartDialog(const GridSource& source, const std::optional<QPointF>& place, QWidget* parent = nullptr);

    /// The chosen nodes of the source's layout().
    const GridPart& part() const { return m_part; }
    /// Their coordinates.
    GridRange range() const { return m_layout.rangeOf(m_part); }

private:
    QLayout* makeFields(const GridSource& source);
    QDoubleSpinBox* makeField(const char* name, double lower, double upper, double step, int nodes);
    void takeFields();
    void takeMap(const GridRange& fractions);
    /// Shows the part on the map and in words.
    void showPart();
    void fillFields();
    QString verdict() const;

    GridLayout m_layout;
    double m_budget;
    GridPart m_part;
    PartMap* m_map;
    std::array<QDoubleSpinBox*, 4> m_fields{}; ///< x from and to, y from and to
    QLabel* m_verdict;
    QPushButton* m_open = nullptr;
};
