#include "scene/arrow.h"

#include "core/types.h"
#include "view/opengl.h"

#include <QSettings>

#include <memory>

namespace Zel3D {

namespace {

struct QuadricDeleter
{
    void operator()(GLUquadric* quadric) const { gluDeleteQuadric(quadric); }
};

/// Switches to the modelview matrix and pushes it; pops it and restores the matrix mode at the end.
class ModelviewScope
{
public:
    ModelviewScope()
    {
        glGetIntegerv(GL_MATRIX_MODE, &mode);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
    }
    ~ModelviewScope()
    {
        glPopMatrix();
        glMatrixMode(GLenum(mode));
    }
    ModelviewScope(const ModelviewScope&) = delete;
    ModelviewScope& operator=(const ModelviewScope&) = delete;

private:
    int mode = 0;
};

} // namespace

bool Arrow::Settings::setLineLength(double value)
{
    return value >= 0.001 && store(lineLength, value);
}

void Arrow::Settings::loadSettings(const QString& group, const QString& organization,
                                   const QString& application)
{
    const QSettings values(organization, application);
    setColor(values.value(QString("%0/color").arg(group), color).value<QColor>());
    setQuality(values.value(QString("%0/quality").arg(group), quality).toUInt());
    setLineLength(values.value(QString("%0/lineLength").arg(group), lineLength).toDouble());
    setStyle(values.value(QString("%0/style").arg(group), style).toInt());
    setSizeStyle(ArrowSizeStyle(values.value(QString("%0/sizeStyle").arg(group), int(sizeStyle)).toInt()));
}

void Arrow::Settings::saveSettings(const QString& group, const QString& organization,
                                   const QString& application) const
{
    if (!needSave)
        return;
    QSettings values(organization, application);
    values.setValue(QString("%0/color").arg(group), color);
    values.setValue(QString("%0/quality").arg(group), quality);
    values.setValue(QString("%0/lineLength").arg(group), lineLength);
    values.setValue(QString("%0/style").arg(group), style);
    values.setValue(QString("%0/sizeStyle").arg(group), int(sizeStyle));
}

Arrow::Arrow()
{
    name = "arrow";
}

void Arrow::draw()
{
    if (!visible)
        return;
    const QVector3D base = position + direction * float(settings.getLineLength());
    const QColor& color = settings.getColor();
    glColor4d(color.redF(), color.greenF(), color.blueF(), color.alphaF());
    const ModelviewScope scope;
    const std::unique_ptr<GLUquadric, QuadricDeleter> quadric(gluNewQuadric());
    setQuadricDrawStyle(quadric.get());
    gluQuadricNormals(quadric.get(), GLU_SMOOTH);
    gluQuadricOrientation(quadric.get(), GLU_OUTSIDE);
    QVector3D axis;
    // The angle from the position to the base, without the digits that far off positions would cost.
    const double angle = getRotationAngle(axis, QVector3D(), direction);
    // A direction along Z has no axis of its own: any axis across it serves.
    if (axis.isNull())
        axis = QVector3D(1.0F, 0.0F, 0.0F);
    glTranslatef(base.x(), base.y(), base.z());
    glRotatef(float(angle), axis.x(), axis.y(), axis.z());
    const int quality = int(settings.getQuality());
    gluCylinder(quadric.get(), radius, 0.0, length, quality, quality);
    gluDisk(quadric.get(), 0.0, radius, quality, quality);
}

void Arrow::loadSettings(const QString& prefix, const QString& organization, const QString& application)
{
    const QString group = QString("%0/%1").arg(prefix, name);
    settings.loadSettings(group, organization, application);
    BaseDraw::loadSettings(group, organization, application);
    update();
}

void Arrow::saveSettings(const QString& prefix, const QString& organization, const QString& application)
{
    const QString group = QString("%0/%1").arg(prefix, name);
    settings.saveSettings(group, organization, application);
    BaseDraw::saveSettings(group, organization, application);
}

void Arrow::resetNeedSave()
{
    settings.resetNeedSave();
    BaseDraw::resetNeedSave();
}

void Arrow::update()
{
    double factor = 1.0;
    if (settings.getSizeStyle() == ArrowSmall)
        factor = 0.6;
    else if (settings.getSizeStyle() == ArrowLarge)
        factor = 1.4;
    radius = baseRadius * factor;
    length = baseLength * factor;
}

void Arrow::setParameters(double coneRadius, double coneLength)
{
    baseRadius = coneRadius;
    baseLength = coneLength;
    update();
}

bool Arrow::setSizeStyle(ArrowSizeStyle style)
{
    if (!settings.setSizeStyle(style))
        return false;
    update();
    return true;
}

void Arrow::setQuadricDrawStyle(GLUquadric* quadric) const
{
    if (!quadric)
        return;
    GLenum style = GLU_FILL;
    if (settings.getStyle() == 1)
        style = GLU_SILHOUETTE;
    else if (settings.getStyle() == 2)
        style = GLU_POINT;
    else if (settings.getStyle() == 3)
        style = GLU_LINE;
    gluQuadricDrawStyle(quadric, style);
}

double Arrow::getRotationAngle(QVector3D& axis, const QVector3D& from, const QVector3D& to)
{
    return Zel3D::getRotationAngle(axis, from, to);
}

} // namespace Zel3D
