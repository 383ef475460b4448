#pragma once

#include <QGradient>
#include <QMap>
#include <QVariant>

namespace Zel3D {

/// The gradients of a plot as one value of a field: "current", the name of the one in use, and "gradients",
/// by name their stops as lists of position and colour.
struct GradientValue
{
    QString current;
    QMap<QString, QGradient> gradients;

    QVariantMap toMap() const;
    static GradientValue from(const QVariantMap& map);
};

} // namespace Zel3D
