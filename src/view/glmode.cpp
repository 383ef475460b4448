#include "view/glmode.h"

#include "view/opengl.h"

namespace Zel3D {

namespace {
void switchCapability(unsigned int capability, bool on)
{
    if (on)
        glEnable(capability);
    else
        glDisable(capability);
}
} // namespace

GLMode::GLMode(unsigned int glCapability, bool enable, bool keep)
    : capability(glCapability), restoreState(glIsEnabled(glCapability) == GL_TRUE)
{
    switchCapability(capability, enable);
    if (keep)
        restoreState = enable;
}

GLMode::~GLMode()
{
    switchCapability(capability, restoreState);
}

} // namespace Zel3D
