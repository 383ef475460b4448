#pragma once

#include "scene/basedraw.h"
#include "view/opengl.h"

namespace Zel3D {

/// Blends by alpha for a scope and puts back the blend function and the line width.
class BlendScope
{
public:
    BlendScope()
    {
        glGetIntegerv(GL_BLEND_DST, &destination);
        glGetIntegerv(GL_BLEND_SRC, &source);
        glGetFloatv(GL_LINE_WIDTH, &lineWidth);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    }
    ~BlendScope()
    {
        glBlendFunc(GLenum(source), GLenum(destination));
        BaseDraw::restoreGLLineWidth(lineWidth);
    }
    BlendScope(const BlendScope&) = delete;
    BlendScope& operator=(const BlendScope&) = delete;

private:
    int destination = 0;
    int source = 0;
    float lineWidth = 1.0F;
};

/// Switches blending off for a scope in which all that is drawn is filled and opaque: the picture is the
/// same, and a software renderer need not read what it writes over.
class OpaqueScope
{
public:
    explicit OpaqueScope(bool opaque) : active(opaque && glIsEnabled(GL_BLEND) == GL_TRUE)
    {
        if (active)
            glDisable(GL_BLEND);
    }
    ~OpaqueScope()
    {
        if (active)
            glEnable(GL_BLEND);
    }
    OpaqueScope(const OpaqueScope&) = delete;
    OpaqueScope& operator=(const OpaqueScope&) = delete;

private:
    bool active;
};

} // namespace Zel3D
