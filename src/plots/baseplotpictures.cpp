// What a plot does while pictures are made of it.

#include "core/types.h"
#include "plots/baseplot.h"
#include "plots/pictureframe.h"
#include "plots/plotlists.h"
#include "plots/plotparts.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"
#include "scene/title.h"
#include "scene/viewframe.h"
#include "view/opengl.h"

#include <QScopedValueRollback>

#include <array>
#include <memory>

namespace Zel3D {

namespace {

/// Puts back viewport and projection, which is loaded and not popped: its stack may be only two deep.
class ProjectionScope
{
public:
    ProjectionScope()
    {
        glGetIntegerv(GL_VIEWPORT, viewport.data());
        glGetDoublev(GL_PROJECTION_MATRIX, matrix.data());
    }
    ~ProjectionScope()
    {
        glViewport(viewport[0], viewport[1], viewport[2], viewport[3]);
        glMatrixMode(GL_PROJECTION);
        glLoadMatrixd(matrix.data());
        glMatrixMode(GL_MODELVIEW);
    }
    ProjectionScope(const ProjectionScope&) = delete;
    ProjectionScope& operator=(const ProjectionScope&) = delete;

private:
    std::array<int, 4> viewport{};
    std::array<double, 16> matrix{};
};

} // namespace

bool BasePlot::beginPicture(double strokeScale, bool tellStrokes, bool kept)
{
    if (parts->pictureTarget || isBusy())
        return false;
    // A new context, as setFormat() makes, has none of the state and the lists until the window is painted.
    if (!isInitialized() || lists->context != context())
        glInit();
    if (!isValid() || !isInitialized())
        return false;
    makeCurrent();
    rebuildWhatChanged();
    parts->pictureTarget = std::make_unique<DrawTarget>();
    parts->pictureTarget->strokeScale = strokeScale;
    parts->pictureTarget->tellStrokes = tellStrokes;
    lists->pictureContext = context();
    const bool sameStrokes =
        isZero(strokeScale, 1.0) || (additions.isEmpty() && !isGeometryInput(StrokeScaleInput));
    lists->isPictureApart = kept || tellStrokes || !sameStrokes;
    if (lists->isPictureApart) {
        const DrawTargetScope target(*parts->pictureTarget);
        const ListExchange exchange(*lists, lists->picture);
        updateData();
        updateNormals();
    }
    return true;
}

void BasePlot::endPicture()
{
    if (!parts->pictureTarget)
        return;
    makeCurrent();
    if (lists->pictureContext == context())
        lists->picture.remove();
    else
        lists->picture.forget();
    parts->pictureTarget.reset();
}

void BasePlot::paintPicture(const PictureFrame& frame)
{
    if (!parts->pictureTarget || lists->pictureContext != context() || frame.tile.isEmpty() ||
        frame.size.isEmpty())
        return;
    DrawTarget target = *parts->pictureTarget;
    target.whole = frame.size;
    target.tile = frame.tile;
    const ProjectionScope projection;
    const DrawTargetScope scope(target);
    const QScopedValueRollback<const PictureFrame*> drawn(parts->picture, &frame);
    // The edges of the window's next frame go by those of its last one.
    const EdgeChoice windowEdges = parts->edges;
    std::unique_ptr<ListExchange> exchange;
    if (lists->isPictureApart)
        exchange = std::make_unique<ListExchange>(*lists, lists->picture);
    setFrameAspect(double(frame.size.width()) / frame.size.height());
    glViewport(0, 0, frame.tile.width(), frame.tile.height());
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(tileMatrix(target).data());
    paintFrame(frame.background, isShowLights() && frame.parts.testFlag(PictureFrame::Data));
    setFrameAspect(0.0);
    parts->edges = windowEdges;
}

/// The data through the camera of the tile; around them, what is laid out goes by the camera of the whole.
void BasePlot::drawTile()
{
    if (parts->picture->parts.testFlag(PictureFrame::Data))
        drawData();
    if (!parts->picture->parts.testFlag(PictureFrame::Box))
        return;
    DrawTarget target = DrawTargetScope::current();
    std::array<double, 16> tileProjection{};
    glGetDoublev(GL_PROJECTION_MATRIX, tileProjection.data());
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    orthoGL();
    glGetDoublev(GL_PROJECTION_MATRIX, target.projection.data());
    glLoadMatrixd(tileProjection.data());
    glMatrixMode(GL_MODELVIEW);
    const DrawTargetScope scope(target);
    drawCoordinateSystem();
}

double BasePlot::textRatio() const
{
    return parts->picture ? parts->picture->textRatio : devicePixelRatioF();
}

QVector<const Label*> BasePlot::getShownTexts() const
{
    QVector<const Label*> texts;
    const auto addShown = [&texts](const Label& label) {
        if (!label.getRectangle().isNull())
            texts.append(&label);
    };
    const auto addAxis = [&addShown](const Axis& axis) {
        if (axis.getSettings().getTics().isVisible() && axis.getSettings().getNumbers().isVisible()) {
            for (const Axis::Major& major : axis.getMajors())
                addShown(major.label);
        }
        if (axis.isLabelShown())
            addShown(axis.getLabel());
    };
    for (int i = 0; i < 12; ++i) {
        if (coordinateSystem->isAxisVisible(AxisType(i)))
            addAxis(coordinateSystem->getAxis(AxisType(i)));
    }
    if (!legend->getRectangle().isNull())
        addAxis(legend->getAxis());
    addShown(*title);
    return texts;
}

} // namespace Zel3D
