#pragma once

#include "plotsource.h"

#include <QCoreApplication>

/// A mesh file, coloured by height and standing upright.
class MeshSource : public PlotSource
{
    Q_DECLARE_TR_FUNCTIONS(MeshSource)

public:
    explicit MeshSource(const QString& path);

    QString filePath() const override { return m_path; }

protected:
    std::unique_ptr<PlotView> read(const LoadProgress& progress) override;

private:
    QString m_path;
};
