#include "core/data.h"

#include <QTextStream>

namespace Zel3D {

Data::~Data() = default;

QTextStream& Data::saveToStream(QTextStream& stream)
{
    return stream;
}

QTextStream& Data::loadFromStream(QTextStream& stream)
{
    return stream;
}

} // namespace Zel3D
