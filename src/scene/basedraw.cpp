#include "scene/basedraw.h"

#include "scene/drawtarget.h"
#include "scene/viewframe.h"
#include "view/opengl.h"

#include <QSettings>

#include <algorithm>

namespace Zel3D {

namespace {

bool queryFlag(unsigned int name)
{
    GLboolean value = GL_FALSE;
    glGetBooleanv(name, &value);
    return value == GL_TRUE;
}

float queryFloat(unsigned int name)
{
    float value = 0.0F;
    glGetFloatv(name, &value);
    return value;
}

int queryInt(unsigned int name)
{
    int value = 0;
    glGetIntegerv(name, &value);
    return value;
}

/// Not std::clamp: the order of the comparisons sends a value that is not a number to the minimum.
float clampToRange(unsigned int rangeName, float value)
{
    std::array<float, 2> range{};
    glGetFloatv(rangeName, range.data());
    const float floor = value > 0.0F ? value : 0.0F;
    return range[0] > floor ? range[0] : std::min(floor, range[1]);
}

float strokeScale()
{
    return float(DrawTargetScope::current().strokeScale);
}

void tell(StrokeToken token, std::initializer_list<float> values)
{
    if (!DrawTargetScope::current().tellStrokes)
        return;
    glPassThrough(float(token));
    for (float value : values)
        glPassThrough(value);
}

} // namespace

void BaseDraw::draw()
{
    saveGLState();
    for (BaseDraw* child : qAsConst(children)) {
        if (child)
            child->draw();
    }
    restoreGLState();
}

void BaseDraw::drawHighlight()
{
    saveGLState();
    for (BaseDraw* child : qAsConst(children)) {
        if (child)
            child->drawHighlight();
    }
    restoreGLState();
}

void BaseDraw::loadSettings(const QString& prefix, const QString& organization, const QString& application)
{
    const QSettings settings(organization, application);
    visible = settings.value(QString("%0/visible").arg(prefix), visible).toBool();
    needSave = true;
}

void BaseDraw::saveSettings(const QString& prefix, const QString& organization, const QString& application)
{
    if (!needSave)
        return;
    QSettings settings(organization, application);
    settings.setValue(QString("%0/visible").arg(prefix), visible);
}

void BaseDraw::resetNeedSave()
{
    needSave = false;
}

void BaseDraw::saveGLState()
{
    state.lineSmooth = queryFlag(GL_LINE_SMOOTH);
    state.polygonSmooth = queryFlag(GL_POLYGON_SMOOTH);
    state.lineWidth = queryFloat(GL_LINE_WIDTH);
    state.blendSource = queryInt(GL_BLEND_SRC);
    state.blendDestination = queryInt(GL_BLEND_DST);
    glGetDoublev(GL_CURRENT_COLOR, state.color.data());
    state.stipplePattern = queryInt(GL_LINE_STIPPLE_PATTERN);
    state.stippleRepeat = queryInt(GL_LINE_STIPPLE_REPEAT);
    state.stipple = queryFlag(GL_LINE_STIPPLE);
    state.texture = queryFlag(GL_TEXTURE_2D);
    glGetIntegerv(GL_POLYGON_MODE, state.polygonMode.data());
    state.matrixMode = queryInt(GL_MATRIX_MODE);
    state.offsetFactor = queryFloat(GL_POLYGON_OFFSET_FACTOR);
    state.offsetUnits = queryFloat(GL_POLYGON_OFFSET_UNITS);
    state.offsetFill = queryFlag(GL_POLYGON_OFFSET_FILL);
}

void BaseDraw::restoreGLState()
{
    setGLEnable(GL_LINE_SMOOTH, state.lineSmooth);
    setGLEnable(GL_POLYGON_SMOOTH, state.polygonSmooth);
    restoreGLLineWidth(state.lineWidth);
    glBlendFunc(GLenum(state.blendSource), GLenum(state.blendDestination));
    glColor4dv(state.color.data());
    glLineStipple(state.stippleRepeat, GLushort(state.stipplePattern & 0xFFFF));
    setGLEnable(GL_LINE_STIPPLE, state.stipple);
    tell(LineStippleToken, {float(state.stipplePattern), state.stipple ? float(state.stippleRepeat) : 0.0F});
    setGLEnable(GL_TEXTURE_2D, state.texture);
    // The stored front mode goes where the face belongs. OpenGL rejects the call and keeps the polygon mode;
    // the call is part of the drawing order and stays.
    glPolygonMode(GLenum(state.polygonMode[0]), GLenum(state.polygonMode[1]));
    glMatrixMode(GLenum(state.matrixMode));
    glPolygonOffset(state.offsetFactor, state.offsetUnits);
    setGLEnable(GL_POLYGON_OFFSET_FILL, state.offsetFill);
}

void BaseDraw::append(BaseDraw* child)
{
    if (!children.contains(child))
        children.append(child);
}

void BaseDraw::remove(BaseDraw* child)
{
    children.removeOne(child);
}

bool BaseDraw::setVisible(bool on)
{
    if (visible == on)
        return false;
    visible = on;
    needSave = true;
    return true;
}

void BaseDraw::setGLEnable(unsigned int capability, unsigned char on)
{
    if (on)
        glEnable(capability);
    else
        glDisable(capability);
}

void BaseDraw::setGLLineWidth(float width)
{
    const float scaled = width * strokeScale();
    glLineWidth(clampToRange(GL_LINE_WIDTH_RANGE, scaled));
    tell(LineWidthToken, {scaled});
}

void BaseDraw::setGLUnclampedLineWidth(float width)
{
    const float scaled = width * strokeScale();
    glLineWidth(scaled);
    if (scaled > 0.0F)
        tell(LineWidthToken, {scaled});
}

void BaseDraw::setGLLineStipple(int repeat, int pattern)
{
    const int scaled = std::clamp(qRound(double(repeat) * double(strokeScale())), 1, 256);
    glLineStipple(scaled, GLushort(pattern & 0xFFFF));
    tell(LineStippleToken, {float(pattern & 0xFFFF), float(scaled)});
}

void BaseDraw::restoreGLLineWidth(float width)
{
    glLineWidth(width);
    tell(LineWidthToken, {width});
}

void BaseDraw::restoreGLPointSize(float size)
{
    glPointSize(size);
    tell(PointSizeToken, {size});
}

void BaseDraw::setGLPointSize(float size)
{
    const float scaled = size * strokeScale();
    glPointSize(clampToRange(GL_POINT_SIZE_RANGE, scaled));
    tell(PointSizeToken, {scaled});
}

void BaseDraw::setGLPolygonOffset(float factor, float units)
{
    glPolygonOffset(factor, units);
}

void BaseDraw::fetchMatrices()
{
    const ViewFrame frame = currentViewFrame();
    viewport = frame.viewport;
    modelview = frame.modelview;
    projection = frame.projection;
}

QVector3D BaseDraw::World2ViewPort(QVector3D world, bool* failed)
{
    fetchMatrices();
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    const int done = gluProject(double(world.x()), double(world.y()), double(world.z()), modelview.data(),
                                projection.data(), viewport.data(), &x, &y, &z);
    if (failed)
        *failed = done == GL_FALSE;
    return QVector3D(float(x), float(y), float(z));
}

QVector3D BaseDraw::ViewPort2World(QVector3D window, bool* failed)
{
    fetchMatrices();
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    const int done = gluUnProject(double(window.x()), double(window.y()), double(window.z()),
                                  modelview.data(), projection.data(), viewport.data(), &x, &y, &z);
    if (failed)
        *failed = done == GL_FALSE;
    return QVector3D(float(x), float(y), float(z));
}

QVector3D BaseDraw::relativePosition(QVector3D p)
{
    const float x = (p.x() - float(viewport[0])) * float(viewport[2]);
    const float y = (p.y() - float(viewport[1])) * float(viewport[3]);
    return ViewPort2World(QVector3D(x, y, p.z()), nullptr);
}

} // namespace Zel3D
