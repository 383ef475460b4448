#pragma once

namespace Zel3D {
class SHPlot;
class Spectrum;
} // namespace Zel3D

/// Data and a view to see properties on, for a plot that is being laid out.
void fillWithSample(Zel3D::SHPlot& plot);
void fillWithSample(Zel3D::Spectrum& plot);
