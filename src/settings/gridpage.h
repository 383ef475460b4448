#pragma once

#include "settings/abstractsettingspage.h"

namespace Zel3D {

/// Settings of the planes, lines and colours of a plot's grid.
class VORANPLOT_EXPORT GridPage : public AbstractSettingsPage
{
    Q_OBJECT
public:
    QVector<FieldGroup> describe(BasePlot& plot) const override;
};

} // namespace Zel3D
