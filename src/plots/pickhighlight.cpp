#include "plots/pickhighlight.h"

#include "core/types.h"
#include "scene/basedraw.h"
#include "scene/viewframe.h"
#include "view/glscopes.h"

#include <cmath>

namespace Zel3D {

namespace {

// In logical pixels.
constexpr double radius = 6.0;
constexpr double tickLength = 4.0;
constexpr double lineWidth = 1.5;
constexpr double haloWidth = 4.0;
constexpr int corners = 32;

void sendRing(double x, double y, double ratio)
{
    glBegin(GL_LINE_LOOP);
    for (int i = 0; i < corners; ++i) {
        const double angle = translateToRadian(360.0 * i / corners);
        glVertex3d(x + ratio * radius * std::cos(angle), y + ratio * radius * std::sin(angle), 0.0);
    }
    glEnd();
    glBegin(GL_LINES);
    for (int i = 0; i < 4; ++i) {
        const double angle = translateToRadian(90.0 * i);
        for (const double distance : {radius, radius + tickLength})
            glVertex3d(x + ratio * distance * std::cos(angle), y + ratio * distance * std::sin(angle), 0.0);
    }
    glEnd();
}

} // namespace

bool PickHighlight::setVisible(bool on)
{
    if (visible == on)
        return false;
    visible = on;
    return true;
}

bool PickHighlight::show(const QVector3D& point)
{
    if (marking && place == point)
        return false;
    marking = true;
    place = point;
    return visible;
}

bool PickHighlight::hide()
{
    if (!marking)
        return false;
    marking = false;
    return visible;
}

void PickHighlight::draw(double pixelRatio) const
{
    if (!visible || !marking)
        return;
    const ViewFrame frame = currentViewFrame();
    const WindowPoint at = projectToWindow(frame, place);
    if (!at.valid)
        return;
    const AttributeScope attributes(GL_ENABLE_BIT | GL_LINE_BIT | GL_CURRENT_BIT | GL_COLOR_BUFFER_BIT |
                                    GL_TRANSFORM_BIT);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_LIGHTING);
    glEnable(GL_BLEND);
    glEnable(GL_LINE_SMOOTH);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glLoadIdentity();
    glOrtho(0.0, frame.viewport[2], 0.0, frame.viewport[3], -1.0, 1.0);
    {
        const ModelViewScope matrix;
        glLoadIdentity();
        glColor4d(1.0, 1.0, 1.0, 0.85);
        BaseDraw::setGLLineWidth(float(haloWidth * pixelRatio));
        sendRing(at.x, at.y, pixelRatio);
        glColor4d(0.05, 0.05, 0.05, 1.0);
        BaseDraw::setGLLineWidth(float(lineWidth * pixelRatio));
        sendRing(at.x, at.y, pixelRatio);
    }
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
}

} // namespace Zel3D
