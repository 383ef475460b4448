#include "view/displaylist.h"

#include "view/opengl.h"

namespace Zel3D {

void DisplayList::compile(const std::function<void()>& record)
{
    // Freed before and not by what replaces it: both need not fit into memory.
    if (exists())
        glDeleteLists(id, 1);
    else
        id = glGenLists(1);
    glNewList(id, GL_COMPILE);
    record();
    glEndList();
}

void DisplayList::reserve()
{
    if (!exists())
        id = glGenLists(1);
}

void DisplayList::call() const
{
    if (id != 0)
        glCallList(id);
}

void DisplayList::remove()
{
    if (exists())
        glDeleteLists(id, 1);
    id = 0;
}

bool DisplayList::exists() const
{
    return id != 0 && glIsList(id) == GL_TRUE;
}

} // namespace Zel3D
