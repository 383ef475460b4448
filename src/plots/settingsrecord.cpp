#include "plots/settingsrecord.h"

namespace Zel3D {

SettingsRecord::~SettingsRecord() = default;

} // namespace Zel3D
