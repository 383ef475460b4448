#include "settings/gradientvalue.h"

#include "core/gradientstops.h"

namespace Zel3D {

QVariantMap GradientValue::toMap() const
{
    QVariantMap all;
    for (auto gradient = gradients.cbegin(); gradient != gradients.cend(); ++gradient) {
        QVariantList stops;
        for (const QGradientStop& stop : gradientStops(gradient.value()))
            stops.append(QVariant(QVariantList{stop.first, stop.second}));
        all.insert(gradient.key(), stops);
    }
    return {{"current", current}, {"gradients", all}};
}

GradientValue GradientValue::from(const QVariantMap& map)
{
    GradientValue result;
    result.current = map.value("current").toString();
    const QVariantMap all = map.value("gradients").toMap();
    for (auto stored = all.cbegin(); stored != all.cend(); ++stored) {
        QLinearGradient gradient;
        for (const QVariant& entry : stored.value().toList()) {
            const QVariantList stop = entry.toList();
            gradient.setColorAt(stop.value(0).toDouble(), stop.value(1).value<QColor>());
        }
        result.gradients.insert(stored.key(), gradient);
    }
    return result;
}

} // namespace Zel3D
