#pragma once

#include "settings/abstractsettingspage.h"

namespace Zel3D {

/// Settings of the twelve axes.
class VORANPLOT_EXPORT AxesPage : public AbstractSettingsPage
{
    Q_OBJECT
public:
    QVector<FieldGroup> describe(BasePlot& plot) const override;

protected:
    AbstractSettingsGroupBox* makeTabs(const QVector<FieldGroup>& groups, FieldBinder& binder) override;
};

} // namespace Zel3D
