#pragma once

#include "clipboardtable.h"
#include "plotsource.h"

#include <QCoreApplication>

/// A table from the clipboard, in one of its meanings.
class TableSource : public PlotSource
{
    Q_DECLARE_TR_FUNCTIONS(TableSource)

public:
    /// The table must have been read.
    TableSource(ClipboardTable table, TableMeaning meaning);

    QString identity() const override;
    /// Says which spectrum it is.
    QString describe(const Zel3D::SelectedObjectsInfo& place) const override;

protected:
    std::unique_ptr<PlotView> read(const LoadProgress& progress) override;

private:
    std::unique_ptr<PlotView> readSurface();
    std::unique_ptr<PlotView> readSpectra();

    ClipboardTable m_table;
    TableMeaning m_meaning;
    QStringList m_names; ///< of the spectra
};
