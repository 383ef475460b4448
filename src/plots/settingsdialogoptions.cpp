#include "plots/settingsdialogoptions.h"

namespace Zel3D {

void SettingsDialogOptions::setPageVisible(const QString& id, bool on)
{
    if (on)
        hidden.remove(id);
    else
        hidden.insert(id);
}

void SettingsDialogOptions::addPage(const SettingsPageEntry& page)
{
    pages.append(page);
}

} // namespace Zel3D
