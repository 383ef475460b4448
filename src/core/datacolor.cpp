#include "core/datacolor.h"

#include "core/gradientstops.h"
#include "plots/baseplot.h"

#include <QSettings>

namespace Zel3D {

DataColor::DataColor(BasePlot* owner, const QString& name, const QGradient& stops)
    : plot(owner), id(name), gradient(stops), table(gradientStops(stops))
{
}

DataColor::~DataColor() = default;

QColor DataColor::operator()(double /*x*/, double /*y*/, double z) const
{
    const Pair<double> range = getRange();
    return table.colorAt(z, range.first, range.second);
}

Pair<double> DataColor::getRange() const
{
    return plot->getLegendRange();
}

QColor DataColor::operator()(const QVector3D& p) const
{
    return (*this)(double(p.x()), double(p.y()), double(p.z()));
}

void DataColor::setId(const QString& name)
{
    id = name;
}

QString DataColor::getId() const
{
    return id;
}

void DataColor::setGradient(const QGradient& stops)
{
    gradient = stops;
    table = ColorTable(gradientStops(stops));
}

QGradient DataColor::getGradient() const
{
    return gradient;
}

void DataColor::saveSettings(const QString& prefix, const QString& organization, const QString& application)
{
    QSettings store(organization, application);
    const QGradientStops stops = gradientStops(gradient);
    store.setValue(QString("%0/dataColor/id").arg(prefix), getId());
    store.setValue(QString("%0/dataColor/size").arg(prefix), stops.size());
    for (int i = 0; i < stops.size(); ++i) {
        store.setValue(QString("%0/dataColor/%1/pos").arg(prefix).arg(i), stops.at(i).first);
        store.setValue(QString("%0/dataColor/%1/color").arg(prefix).arg(i), stops.at(i).second);
    }
}

void DataColor::loadSettings(const QString& prefix, const QString& organization, const QString& application)
{
    const QSettings store(organization, application);
    setId(store.value(QString("%0/dataColor/id").arg(prefix), QString()).toString());
    const int size = storedStopCount(store.value(QString("%0/dataColor/size").arg(prefix), 0));
    QLinearGradient loaded;
    for (int i = 0; i < size; ++i) {
        const QVariant color = store.value(QString("%0/dataColor/%1/color").arg(prefix).arg(i), QColor());
        const QVariant position = store.value(QString("%0/dataColor/%1/pos").arg(prefix).arg(i), 0.0);
        loaded.setColorAt(position.toDouble(), color.value<QColor>());
    }
    setGradient(loaded);
}

} // namespace Zel3D
