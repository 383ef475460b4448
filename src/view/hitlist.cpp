#include "view/hitlist.h"

#include <QtDebug>

namespace Zel3D {

namespace {
/// Half of the buffer's unsigned range, so depths run from 0 to about 2.
constexpr double depthUnit = 2147483647.0;
} // namespace

QList<SelectionInfo> selectedList(int hits, const unsigned int* buffer, bool debug)
{
    QList<SelectionInfo> list;
    if (debug && hits > 0)
        qDebug("\nNumber selected objects = %d", hits);
    double best = 1.0;
    const unsigned int* word = buffer;
    for (int hit = 0; hit < hits; ++hit) {
        const auto names = int(*word++);
        SelectionInfo info;
        info.stackPosition = names;
        info.minimumDepth = double(*word++) / depthUnit;
        info.maximumDepth = double(*word++) / depthUnit;
        if (debug) {
            qDebug("Stacks position = %d", names);
            qDebug("Min depth = %g", info.minimumDepth);
            qDebug("Max depth = %g", info.maximumDepth);
            qDebug("Ids in stack:");
        }
        for (int k = 0; k < names; ++k) {
            info.id = int(*word++);
            if (debug)
                qDebug("\tk=%i; id=%d", k, info.id);
        }
        if (info.id <= 0)
            continue;
        if (info.minimumDepth < best) {
            best = info.minimumDepth;
            list.prepend(info);
        } else {
            list.append(info);
        }
    }
    if (debug) {
        for (const SelectionInfo& info : qAsConst(list))
            qDebug("id=%i: [%f;%f], stack position %i", info.id, info.minimumDepth, info.maximumDepth,
                   info.stackPosition);
    }
    return list;
}

} // namespace Zel3D
