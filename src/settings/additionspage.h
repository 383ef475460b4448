#pragma once

#include "settings/abstractsettingspage.h"

namespace Zel3D {

/// Settings of the markers of a plot: the dots and bars of its styles and the list of added ones.
class VORANPLOT_EXPORT AdditionsPage : public AbstractSettingsPage
{
    Q_OBJECT
public:
    QVector<FieldGroup> describe(BasePlot& plot) const override;
};

} // namespace Zel3D
