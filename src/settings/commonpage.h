#pragma once

#include "settings/abstractsettingspage.h"

namespace Zel3D {

/// Settings of view, projection, placement and scaling of a plot.
class VORANPLOT_EXPORT CommonPage : public AbstractSettingsPage
{
    Q_OBJECT
public:
    QVector<FieldGroup> describe(BasePlot& plot) const override;
};

} // namespace Zel3D
