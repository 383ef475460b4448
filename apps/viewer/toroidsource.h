#pragma once

#include "plotsource.h"

#include <QCoreApplication>

/// A ring, as it comes with the library.
class ToroidSource : public PlotSource
{
    Q_DECLARE_TR_FUNCTIONS(ToroidSource)

public:
    ToroidSource();

    QString identity() const override;

protected:
    std::unique_ptr<PlotView> read(const LoadProgress& progress) override;
};
