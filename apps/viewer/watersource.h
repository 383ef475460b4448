#pragma once

#include "plotsource.h"

#include <QCoreApplication>

/// A sheet of water with a stone in it.
class WaterSource : public PlotSource
{
    Q_DECLARE_TR_FUNCTIONS(WaterSource)

public:
    WaterSource();
    ~WaterSource() override;

    QString identity() const override;
    WaterSimulation* simulation() override;

protected:
    std::unique_ptr<PlotView> read(const LoadProgress& progress) override;

private:
    std::unique_ptr<WaterSimulation> m_simulation;
};
