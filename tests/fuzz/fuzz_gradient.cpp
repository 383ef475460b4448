#include "fuzztarget.h"
#include "gradients/gradientfile.h"

#include <algorithm>

using FuzzTarget::demand;
using Zel3D::GradientFile;

namespace {

void check(const GradientFile::Result& read)
{
    if (!read.isOk()) {
        demand(!read.message().isEmpty() && read.line >= 0, "an error says what and where");
        return;
    }
    demand(!read.stops.isEmpty() && read.stops.size() <= GradientFile::maximumStops,
           "some stops, not too many");
    for (const QGradientStop& stop : read.stops)
        demand(stop.first >= 0.0 && stop.first <= 1.0 && stop.second.isValid(), "stops lie within the range");
    demand(std::is_sorted(read.stops.begin(), read.stops.end(),
                          [](const auto& left, const auto& right) { return left.first < right.first; }),
           "stops rise");
    const QByteArray own = GradientFile::write(read.name, read.stops);
    const GradientFile::Result again = GradientFile::parse(own);
    demand(again.isOk() && again.stops.size() == read.stops.size(), "what was written can be read");
    demand(GradientFile::write(again.name, again.stops) == own, "writing what was written changes nothing");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QByteArray content = FuzzTarget::content(bytes, size);
    for (const auto format : {GradientFile::Format::Text, GradientFile::Format::Css,
                              GradientFile::Format::Cpt, GradientFile::Format::Ggr})
        check(GradientFile::parse(content, format));
    check(GradientFile::parse(content));
    return 0;
}
