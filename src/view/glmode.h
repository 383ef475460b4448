#pragma once

#include "core/export.h"

namespace Zel3D {

/// Switches one OpenGL capability on or off for the duration of a scope.
///
/// Needs a current context from construction to destruction. While a display list compiles, the capability's
/// state is read from the context and both switches are compiled into the list.
class VORANPLOT_EXPORT GLMode
{
public:
    /// Enables or disables \a capability (for example GL_LIGHTING). With \a keep false the destructor puts
    /// back what was there before; with \a keep true it applies the new state again, so that the change
    /// outlives the scope.
    GLMode(unsigned int capability, bool enable, bool keep);
    ~GLMode();

    GLMode(const GLMode&) = delete;
    GLMode& operator=(const GLMode&) = delete;

private:
    unsigned int capability;
    bool restoreState;
};

} // namespace Zel3D
