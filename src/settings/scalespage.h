#pragma once

#include "settings/abstractsettingspage.h"

namespace Zel3D {

/// Settings of the scales and the divisions of the axes.
class VORANPLOT_EXPORT ScalesPage : public AbstractSettingsPage
{
    Q_OBJECT
public:
    QVector<FieldGroup> describe(BasePlot& plot) const override;
};

} // namespace Zel3D
