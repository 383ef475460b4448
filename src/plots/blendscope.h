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

} // namespace Zel3D
