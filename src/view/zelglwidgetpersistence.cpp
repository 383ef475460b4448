// What the view keeps in the settings store.

#include "view/light.h"
#include "view/zelglwidget.h"

#include <QSettings>

namespace Zel3D {

void ZelGLWidget::slotLoadSettings()
{
    {
        const QSettings store(organization, application);
        const auto value = [&](const char* key, const QVariant& current) {
            return store.value(QString(key).arg(objectName()), current);
        };
        const auto number = [&](const char* key, double current) { return value(key, current).toDouble(); };
        setBackgroundColor(value("%0/backgroundColor", backgroundColor).value<QColor>());
        setAutoRotate(value("%0/autoRotate", autoRotate).toBool());
        setDeltaVelocity(number("%0/deltaVelocity", deltaVelocity));
        setRotation({number("%0/rotationX", rotation.x), number("%0/rotationY", rotation.y),
                     number("%0/rotationZ", rotation.z)});
        setShift({number("%0/shiftX", shift.x), number("%0/shiftY", shift.y), number("%0/shiftZ", shift.z)});
        setViewportShift(
            {number("%0/viewportShiftX", viewportShift.x), number("%0/viewportShiftY", viewportShift.y)});
        setScale({number("%0/scaleX", scale.x), number("%0/scaleY", scale.y), number("%0/scaleZ", scale.z)});
        setZoom(number("%0/zoom", zoom));
        setProjectionType(ProjectionType(value("%0/projectionType", int(projectionType)).toInt()));
        setLighting(value("%0/lighting", lighting).toBool());
        setSelecting(value("%0/selecting", selecting).toBool());
    }
    for (Light* light : qAsConst(lights)) {
        if (light)
            light->loadSettings(organization, application, objectName());
    }
    loadSettings();
}

void ZelGLWidget::slotSaveSettings()
{
    {
        QSettings store(organization, application);
        const auto write = [&](const char* key, const QVariant& value) {
            store.setValue(QString(key).arg(objectName()), value);
        };
        write("%0/backgroundColor", backgroundColor);
        write("%0/autoRotate", autoRotate);
        write("%0/deltaVelocity", deltaVelocity);
        write("%0/rotationX", rotation.x);
        write("%0/rotationY", rotation.y);
        write("%0/rotationZ", rotation.z);
        write("%0/shiftX", shift.x);
        write("%0/shiftY", shift.y);
        write("%0/shiftZ", shift.z);
        write("%0/viewportShiftX", viewportShift.x);
        write("%0/viewportShiftY", viewportShift.y);
        write("%0/scaleX", scale.x);
        write("%0/scaleY", scale.y);
        write("%0/scaleZ", scale.z);
        write("%0/zoom", zoom);
        write("%0/projectionType", int(projectionType));
        write("%0/lighting", lighting);
        write("%0/selecting", selecting);
    }
    for (Light* light : qAsConst(lights)) {
        if (light)
            light->saveSettings(organization, application, objectName());
    }
    saveSettings();
}

} // namespace Zel3D
