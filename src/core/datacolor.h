#pragma once

#include "core/colortable.h"
#include "core/export.h"
#include "core/types.h"

#include <QColor>
#include <QGradient>
#include <QString>
#include <QVector3D>

namespace Zel3D {

class BasePlot;

/// Turns a data value into a colour by the stops of a gradient.
///
/// The range that the gradient spans is asked of the plot at every lookup, so the data and the legend always
/// agree. The gradient's type, spread and geometry play no part. Between two stops the channels are
/// interpolated linearly in RGBA and truncated; outside the range the end colours hold.
class VORANPLOT_EXPORT DataColor
{
public:
    /// \a plot is not owned and must outlive the object; \a id names the colouring.
    DataColor(BasePlot* plot, const QString& id, const QGradient& gradient);
    virtual ~DataColor();

    /// The colour of the point. Here z alone decides; a subclass may colour by position. Invalid when the
    /// gradient has no stops.
    virtual QColor operator()(double x, double y, double z) const;
    virtual QColor operator()(const QVector3D& p) const;
    virtual void setId(const QString& name);
    virtual QString getId() const;
    /// Replaces the whole gradient. A plot that draws with it must be told: see BasePlot::setDataColor().
    virtual void setGradient(const QGradient& stops);
    virtual QGradient getGradient() const;

    /// Whether the gradient has no stops, so that nothing is drawn.
    bool isEmpty() const { return table.isEmpty(); }
    /// The stops as they are looked up.
    const ColorTable& getTable() const { return table; }
    /// The range that the gradient spans now, asked of the plot.
    Pair<double> getRange() const;

    /// Writes the id and the stops under "%0/dataColor/..." with %0 = prefix.
    void saveSettings(const QString& prefix, const QString& organization, const QString& application);
    /// Reads what saveSettings() wrote. The gradient comes back as a linear one whatever its type was; a size
    /// of 0 or less leaves one without stops.
    void loadSettings(const QString& prefix, const QString& organization, const QString& application);

private:
    BasePlot* plot;
    QString id;
    QGradient gradient;
    ColorTable table;
};

} // namespace Zel3D
