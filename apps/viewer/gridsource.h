#pragma once

#include "gridfile.h"
#include "plotsource.h"

#include <QCoreApplication>
#include <QImage>

/// A band of a grid file, coloured as terrain. What has more nodes than the person's budget is shown thinned.
class GridSource : public PlotSource
{
    Q_DECLARE_TR_FUNCTIONS(GridSource)

public:
    /// A choice without a budget gets that of the ViewerPreferences.
    explicit GridSource(const QString& path, int band = 1, const GridChoice& choice = {});

    QString filePath() const override { return m_path; }
    bool isThinned() const override { return !m_map.isNull(); }
    /// The nodes of the file in the shown range, whether or not they are shown.
    const GridLayout& layout() const { return m_layout; }
    /// The most nodes that are shown.
    double budget() const;
    /// What x and y are.
    const QString& xName() const { return m_xName; }
    const QString& yName() const { return m_yName; }
    /// A source of the nodes in a range, with the same band, directions and budget.
    std::unique_ptr<PlotSource> part(const GridRange& range) const;
    /// A small picture of a thinned grid from above.
    const QImage& map() const { return m_map; }

protected:
    std::unique_ptr<PlotView> read(const LoadProgress& progress) override;

private:
    void noteThinning(Grid& grid);

    QString m_path;
    int m_band;
    GridChoice m_choice;
    GridLayout m_layout;
    QString m_xName;
    QString m_yName;
    QImage m_map;
};
