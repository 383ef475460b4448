#pragma once

#include "core/colortable.h"
#include "core/types.h"

#include <vector>

namespace Zel3D {

class DataColor;

/// Colours of many points in a row: what a DataColor gives, as long as neither it nor the range of its plot
/// changes. The range is asked for once; a subclass of DataColor is asked for every colour.
class ColorLookup
{
public:
    /// \a coloring must outlive the object.
    explicit ColorLookup(const DataColor& coloring);

    /// The colour of a point; opaque black where it is invalid.
    ColorChannels operator()(const QVector3D& p) const
    {
        return table ? table->channelsAt(double(p.z()), range.first, range.second) : ask(p);
    }
    /// The colours of many heights in a row, where isByHeight().
    void ofHeights(const std::vector<double>& heights, ColorChannels* colors) const
    {
        table->channelsAt(heights.data(), heights.size(), range.first, range.second, colors);
    }
    /// Whether all points of one height have one colour.
    bool isByHeight() const { return table != nullptr; }
    /// Whether it is known that no colour lets anything through.
    bool isOpaque() const { return table && table->isOpaque(); }

private:
    ColorChannels ask(const QVector3D& p) const;

    const DataColor& color;
    const ColorTable* table = nullptr; ///< null for a subclass
    Pair<double> range{};
};

} // namespace Zel3D
