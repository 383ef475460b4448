#pragma once

#include "settings/abstractsettingspage.h"

namespace Zel3D {

/// How the data are drawn.
class VORANPLOT_EXPORT PlotStylePage : public AbstractSettingsPage
{
    Q_OBJECT
public:
    QVector<FieldGroup> describe(BasePlot& plot) const override;
};

} // namespace Zel3D
