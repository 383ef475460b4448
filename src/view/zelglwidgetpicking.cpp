// Picking through the OpenGL selection buffer.

#include "view/hitlist.h"
#include "view/opengl.h"
#include "view/zelglwidget.h"

#include <QToolTip>

#include <array>
#include <vector>

namespace Zel3D {

namespace {
constexpr double pickSize = 5.0; // pixels
constexpr std::size_t wordsPerHit = 4;
} // namespace

void ZelGLWidget::findObjects(const QPointF& position, Qt::KeyboardModifiers modifiers)
{
    if (!selecting)
        return;
    SelectedObjectsInfo info;
    pickedName = 0;
    if (modifiers == selectingModifiers && isValid())
        info = pick(position);
    reportSelection(position, info);
}

void ZelGLWidget::setPickCamera(const QPointF& position)
{
    glLoadIdentity();
    std::array<int, 4> viewport{};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    const double ratio = devicePixelRatioF();
    gluPickMatrix(position.x() * ratio, viewport[3] - position.y() * ratio, pickSize, pickSize,
                  viewport.data());
    orthoGL();
}

std::array<double, 16> ZelGLWidget::pickMatrix(const QPointF& position)
{
    std::array<double, 16> modelview{};
    glGetDoublev(GL_MODELVIEW_MATRIX, modelview.data());
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    setPickCamera(position);
    glMultMatrixd(modelview.data());
    std::array<double, 16> combined{};
    glGetDoublev(GL_PROJECTION_MATRIX, combined.data());
    glPopMatrix();
    return combined;
}

int ZelGLWidget::prepareSelection(const QPointF& /*position*/)
{
    return selectionCapacity;
}

SelectedObjectsInfo ZelGLWidget::pick(const QPointF& position)
{
    if (!isContextCurrent())
        makeCurrent();
    std::vector<unsigned int> buffer(wordsPerHit * std::size_t(qMax(prepareSelection(position), 0)));
    glSelectBuffer(int(buffer.size()), buffer.data());
    glRenderMode(GL_SELECT);
    glInitNames();

    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    setPickCamera(position);
    select();
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();

    const int hits = glRenderMode(GL_RENDER);
    const QList<SelectionInfo> list = getSelectedList(hits, buffer.data(), false);
    if (list.isEmpty() || !selectableObjects.contains(list.first().id))
        return {};
    pickedName = list.first().id;
    return selectableObjects.value(pickedName);
}

void ZelGLWidget::reportSelection(const QPointF& position, const SelectedObjectsInfo& info)
{
    if (!info.valid) {
        if (showToolTips)
            QToolTip::showText(QPoint(), QString());
        emit selectedObject(SelectedObjectsInfo());
        return;
    }
    if (showToolTips) {
        const QString text =
            QObject::tr("%0; %1; %2").arg(info.x, 0, 'g').arg(info.y, 0, 'g').arg(info.z, 0, 'g');
        QToolTip::showText(mapToGlobal(QPoint(qRound(position.x()), qRound(position.y()))), text, this);
    }
    emit selectedObject(info);
}

QList<SelectionInfo> ZelGLWidget::getSelectedList(int hits, unsigned int* buffer, bool debug)
{
    return selectedList(hits, buffer, debug);
}

} // namespace Zel3D
