// Frames in which nothing but what follows the mouse has moved: the mark of the picked point and the pointer
// of the legend. They are drawn over an image of the scene.

#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "plots/plotparts.h"
#include "scene/legend.h"
#include "scene/title.h"
#include "view/glscopes.h"

#include <QTimer>

#include <array>
#include <utility>

namespace Zel3D {

namespace {

QSize viewportSize()
{
    std::array<int, 4> viewport{};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    return {viewport[2], viewport[3]};
}

} // namespace

void BasePlot::repaintMark()
{
    // A turning view repaints by itself.
    if (!isInitialized() || isAutoRotating())
        return;
    if (parts->hoverImage.isEmpty()) {
        parts->isHoverAsked = true;
        update();
        return;
    }
    // Once for the mark and the pointer.
    if (std::exchange(parts->isHoverFrameDue, true))
        return;
    QTimer::singleShot(0, this, [this] {
        parts->isHoverFrameDue = false;
        parts->isHoverFrame = true;
        updateGL();
        parts->isHoverFrame = false;
    });
}

/// What setters may have changed without a repaint since the image was taken.
HoverKey BasePlot::hoverKey() const
{
    const ValueXYZ<double>& r = getRotation();
    const ValueXYZ<double>& s = getScale();
    const ValueXYZ<double>& t = getShift();
    const ValueXY<double>& v = getViewportShift();
    const double switches = (isLighting() ? 1 : 0) + (isShowLights() ? 2 : 0) +
                            (isKeepProportions() ? 4 : 0) + (automaticEdges ? 8 : 0) +
                            (automaticFaces ? 16 : 0) + 32 * getProjectionType() +
                            64 * settings->getShadingStyle();
    return {r.x,
            r.y,
            r.z,
            s.x,
            s.y,
            s.z,
            t.x,
            t.y,
            t.z,
            v.x,
            v.y,
            getZoom(),
            double(getBackgroundColor().rgba()),
            switches};
}

/// Draws a full frame and keeps it when the mouse alone has asked for it twice in a row.
void BasePlot::drawUnhovered()
{
    const bool asked = std::exchange(parts->isHoverAsked, false);
    const bool again = std::exchange(parts->wasHoverAsked, asked);
    parts->hoverImage.clear();
    // What covers the legend covers its pointer, too.
    const bool overlap = legend->isVisible() && title->getRectangle().intersects(legend->getRectangle());
    parts->isMarkHeldBack = asked && again && !isBusy() && !isShowInfo() && !isHandled() && !overlap;
    ZelGLWidget::paintGL();
    if (!std::exchange(parts->isMarkHeldBack, false))
        return;
    if (parts->hoverImage.take(viewportSize(), format().sampleBuffers() ? format().samples() : 0))
        parts->hoverKey = hoverKey();
    drawMarks();
}

/// False, with nothing drawn, when the image does not show the scene as it is.
bool BasePlot::drawHovered()
{
    if (isBusy() || isShowInfo() || parts->hoverImage.isEmpty() || parts->hoverKey != hoverKey())
        return false;
    if (!parts->hoverImage.put(viewportSize()))
        return false;
    drawMarks();
    return true;
}

/// What follows the mouse, as the full frame draws it.
void BasePlot::drawMarks()
{
    if (legend->isVisible() && legend->isValueShown() && !legend->getRectangle().isNull()) {
        const ModelViewScope matrix;
        glRotatef(-90.0F, 1.0F, 0.0F, 0.0F);
        legend->saveGLState();
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        legend->drawValue();
        legend->restoreGLState();
    }
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    orthoGL();
    glMatrixMode(GL_MODELVIEW);
    parts->pickHighlight.draw(devicePixelRatioF());
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
}

} // namespace Zel3D
