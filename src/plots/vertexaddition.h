#pragma once

#include "plots/addition.h"

namespace Zel3D {

/// A marker for the vertices of the data.
class VORANPLOT_EXPORT VertexAddition : public Addition
{
public:
    int type() const override; ///< 0
};

} // namespace Zel3D
