#pragma once

#include "settings/abstractsettingspage.h"

namespace Zel3D {

/// Settings of the lighting and the eight lights.
class VORANPLOT_EXPORT LightingPage : public AbstractSettingsPage
{
    Q_OBJECT
public:
    QVector<FieldGroup> describe(BasePlot& plot) const override;
};

} // namespace Zel3D
