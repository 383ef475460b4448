#pragma once

#include "plots/baseplot.h"

namespace Zel3D {

/// A plot as it is constructed, without data and never shown: the source of the defaults.
class UntouchedPlot : public BasePlot
{
    Q_OBJECT
public:
    UntouchedPlot();

    void updateDataType(int type) override;
    void clearData() override;

protected:
    void createNormals() override;
    void createPlotStyleActions() override {}
};

} // namespace Zel3D
