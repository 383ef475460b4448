#include "core/functionof.h"

#include <limits>
#include <utility>

namespace Zel3D {

FunctionOf::FunctionOf(Definition heights) : definition(std::move(heights)) {}

FunctionOf::FunctionOf(SHPlot& target, Definition heights) : Function(target), definition(std::move(heights))
{
}

double FunctionOf::operator()(double x, double y)
{
    return definition ? definition(x, y) : std::numeric_limits<double>::quiet_NaN();
}

} // namespace Zel3D
