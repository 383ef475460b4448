#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

#include <functional>

namespace Zel3D {

class BasePlot;

/// The properties of a plot that none of its records stores: switches of view and plot, what the records of
/// the lights leave out, the place of the legend and the types of the scales.
///
/// Saving writes what has been stored before and what differs from the time before loading, when a plot is as
/// its host made it; a plot that nobody changed writes none of it. Loading applies what is stored through the
/// plot's setters.
class PlotProperties
{
public:
    /// Takes the values of now as those that need no saving. The plot must outlive the object.
    explicit PlotProperties(BasePlot& owner);

    void saveSettings(const QString& prefix, const QString& organization, const QString& application) const;
    void loadSettings(const QString& prefix, const QString& organization, const QString& application);

private:
    struct Property
    {
        QString key;
        std::function<QVariant()> read;
        std::function<void(const QVariant&)> write;
        QVariant standard;
    };

    template <class Get, class Set>
    void add(const QString& key, const Get& get, const Set& set);
    void addView();
    void addLights();
    void addPlot();

    BasePlot& plot;
    QVector<Property> properties;
};

} // namespace Zel3D
