#pragma once

#include "settings/abstractsettingspage.h"

namespace Zel3D {

/// Settings of the names, lines, ticks, numbers and arrows of the axes.
class VORANPLOT_EXPORT AxesPage : public AbstractSettingsPage
{
    Q_OBJECT
public:
    QVector<FieldGroup> describe(BasePlot& plot) const override;
};

} // namespace Zel3D
