#pragma once

#include "plotsource.h"

#include <QCoreApplication>

/// A band of a grid file, coloured as terrain.
class GridSource : public PlotSource
{
    Q_DECLARE_TR_FUNCTIONS(GridSource)

public:
    explicit GridSource(const QString& path, int band = 1);

    QString filePath() const override { return m_path; }

protected:
    std::unique_ptr<PlotView> read() override;

private:
    QString m_path;
    int m_band;
};
