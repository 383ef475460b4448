#pragma once

#include "core/function.h"

#include <functional>

namespace Zel3D {

/// A Function made of something that can be called.
///
/// \code
/// Zel3D::FunctionOf saddle(plot, [](double x, double y) { return x * x - y * y; });
/// \endcode
class VORANPLOT_EXPORT FunctionOf : public Function
{
public:
    using Definition = std::function<double(double x, double y)>;

    /// An empty definition has holes everywhere.
    explicit FunctionOf(Definition heights);
    FunctionOf(SHPlot& target, Definition heights);

    double operator()(double x, double y) override;

private:
    Definition definition;
};

} // namespace Zel3D
