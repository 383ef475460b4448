#include "core/settingsrecord.h"

#include <cmath>

namespace Zel3D {

SettingsRecord::~SettingsRecord() = default;

void SettingsRecord::resetNeedSave()
{
    needSave = false;
}

bool SettingsRecord::store(double& field, double value)
{
    if (std::isnan(value) || isZero(field, value))
        return false;
    field = value;
    needSave = true;
    return true;
}

} // namespace Zel3D
