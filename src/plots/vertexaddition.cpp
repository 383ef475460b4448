#include "plots/vertexaddition.h"

namespace Zel3D {

int VertexAddition::type() const
{
    return 0;
}

} // namespace Zel3D
