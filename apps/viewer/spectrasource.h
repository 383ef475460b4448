#pragma once

#include "plotsource.h"

#include <QCoreApplication>

#include <map>

/// A family of spectra from a CSV file.
class SpectraSource : public PlotSource
{
    Q_DECLARE_TR_FUNCTIONS(SpectraSource)

public:
    explicit SpectraSource(const QString& path);

    QString filePath() const override { return m_path; }
    /// Says which spectrum it is.
    QString describe(const Zel3D::SelectedObjectsInfo& place) const override;

protected:
    std::unique_ptr<PlotView> read(const LoadProgress& progress) override;

private:
    QString m_path;
    QString m_label;
    std::map<double, QString> m_names; ///< by the positions of the spectra
};
