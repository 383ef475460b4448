#pragma once

#include "settings/abstractsettingspage.h"

namespace Zel3D {

/// Settings of the title of a plot.
class VORANPLOT_EXPORT TitlePage : public AbstractSettingsPage
{
    Q_OBJECT
public:
    QVector<FieldGroup> describe(BasePlot& plot) const override;
};

} // namespace Zel3D
