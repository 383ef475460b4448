#include "core/colorlookup.h"

#include "core/datacolor.h"

#include <typeinfo>

namespace Zel3D {

ColorLookup::ColorLookup(const DataColor& coloring) : color(coloring)
{
    if (typeid(coloring) != typeid(DataColor))
        return;
    table = &coloring.getTable();
    range = coloring.getRange();
}

ColorChannels ColorLookup::ask(const QVector3D& p) const
{
    return channelsOf(color(p));
}

} // namespace Zel3D
