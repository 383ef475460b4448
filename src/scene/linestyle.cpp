#include "scene/linestyle.h"

#include <array>

namespace Zel3D {

namespace {

struct LineStyle
{
    const char* name;
    int pattern;
};

constexpr std::array<LineStyle, 5> styles{{{"SolidLine", 0xFFFF},
                                           {"DashLine", 0x00FF},
                                           {"DotLine", 0x0303},
                                           {"DashDotLine", 0xF18F},
                                           {"DashDotDotLine", 0xF330}}};

} // namespace

int lineStylePattern(const QString& name)
{
    for (const LineStyle& style : styles) {
        if (name == QLatin1String(style.name))
            return style.pattern;
    }
    return styles.front().pattern;
}

int lineStylePattern(int index)
{
    const bool known = index >= 0 && index < int(styles.size());
    return styles[known ? std::size_t(index) : 0].pattern;
}

int lineStyleIndex(int pattern)
{
    for (std::size_t i = 0; i < styles.size(); ++i) {
        if (styles[i].pattern == pattern)
            return int(i);
    }
    return 0;
}

} // namespace Zel3D
