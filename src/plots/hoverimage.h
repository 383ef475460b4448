#pragma once

#include <QSize>

#include <memory>

class QGLFramebufferObject;

namespace Zel3D {

/// The finished frame without what follows the mouse, so that a mark can move over it without drawing the
/// scene again. The colour of every sample is kept, so that what is drawn in front of the scene looks as in a
/// full frame. Depths are not, which would cost as much again: what is drawn over the image is in front of
/// it.
class HoverImage
{
public:
    HoverImage();
    ~HoverImage();
    HoverImage(const HoverImage&) = delete;
    HoverImage& operator=(const HoverImage&) = delete;

    /// Copies the window's framebuffer, of a size in pixels and with so many samples a pixel; false where the
    /// driver cannot. Needs a current context, as do the following.
    bool take(const QSize& size, int samples);
    /// Copies it back; false, with nothing done, when there is none of that size.
    bool put(const QSize& size) const;
    /// Frees it.
    void clear();
    bool isEmpty() const { return !buffer; }

private:
    std::unique_ptr<QGLFramebufferObject> buffer;
};

} // namespace Zel3D
