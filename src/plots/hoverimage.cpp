#include "plots/hoverimage.h"

#include "view/opengl.h"

#include <QGLFramebufferObject>

namespace Zel3D {

HoverImage::HoverImage() = default;

HoverImage::~HoverImage() = default;

bool HoverImage::take(const QSize& size, int samples)
{
    if (!QGLFramebufferObject::hasOpenGLFramebufferBlit())
        return false;
    if (!buffer || buffer->size() != size || buffer->format().samples() != samples) {
        QGLFramebufferObjectFormat format;
        format.setSamples(samples);
        buffer = std::make_unique<QGLFramebufferObject>(size, format);
        // Of samples in another number the driver makes no copy.
        if (!buffer->isValid() || buffer->format().samples() != samples) {
            buffer.reset();
            return false;
        }
    }
    while (glGetError() != GL_NO_ERROR) {
    }
    const QRect all(QPoint(0, 0), size);
    QGLFramebufferObject::blitFramebuffer(buffer.get(), all, nullptr, all, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    if (glGetError() != GL_NO_ERROR)
        buffer.reset();
    return !isEmpty();
}

bool HoverImage::put(const QSize& size) const
{
    if (!buffer || buffer->size() != size)
        return false;
    const QRect all(QPoint(0, 0), size);
    QGLFramebufferObject::blitFramebuffer(nullptr, all, buffer.get(), all, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    glClear(GL_DEPTH_BUFFER_BIT);
    return true;
}

void HoverImage::clear()
{
    buffer.reset();
}

} // namespace Zel3D
