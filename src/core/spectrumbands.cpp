#include "core/spectrumbands.h"

namespace Zel3D {

namespace {

void sortOnce(std::vector<double>& distances)
{
    std::sort(distances.begin(), distances.end());
    distances.erase(std::unique(distances.begin(), distances.end()), distances.end());
}

} // namespace

SpectrumBands::SpectrumBands(const std::vector<double>& levels)
{
    for (double level : levels) {
        if (!std::isfinite(level) || level == 0.0)
            continue;
        (level > 0.0 ? above : below).push_back(std::abs(level));
    }
    sortOnce(above);
    sortOnce(below);
}

} // namespace Zel3D
