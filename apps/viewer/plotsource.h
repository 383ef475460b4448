#pragma once

#include "loadprogress.h"
#include "plotview.h"

#include <QString>
#include <QStringList>

#include <array>
#include <memory>

class WaterSimulation;

/// Where the contents of a plot come from: a file, a formula, a surface that is computed.
class PlotSource
{
public:
    PlotSource() = default;
    virtual ~PlotSource() = default;
    PlotSource(const PlotSource&) = delete;
    PlotSource& operator=(const PlotSource&) = delete;

    /// Reads what is to be shown into a new plot, which must not outlive the source. Null when that fails:
    /// error() says why, unless the progress was cancelled, which isCancelled() tells.
    std::unique_ptr<PlotView> open(const LoadProgress& progress = {});
    bool isCancelled() const { return m_cancelled; }
    /// Which of x, y and z are logarithmic; before open(). Meshes and computed surfaces leave it out.
    void setLogarithmic(const std::array<bool, 3>& directions) { m_logarithmic = directions; }
    const std::array<bool, 3>& logarithmic() const { return m_logarithmic; }
    /// Whether open() left out nodes, so that a part of the source shows more.
    virtual bool isThinned() const { return false; }
    /// The file, for a source that is one.
    virtual QString filePath() const { return QString(); }
    /// What is said of a picked place, or empty to say its coordinates.
    virtual QString describe(const Zel3D::SelectedObjectsInfo& place) const;
    /// What moves the plot, where something does; null before open().
    virtual WaterSimulation* simulation() { return nullptr; }

    /// A short name for titles.
    const QString& name() const { return m_name; }
    /// The same in every language, for a source without a file.
    virtual QString identity() const { return m_name; }
    /// What was read, in numbers.
    const QString& description() const { return m_description; }
    /// Sentences on what was changed or left out while reading.
    const QStringList& notes() const { return m_notes; }
    /// One sentence; empty after a success and when the progress was cancelled.
    const QString& error() const { return m_error; }

protected:
    /// Does the work of open().
    virtual std::unique_ptr<PlotView> read(const LoadProgress& progress) = 0;
    /// What a plot must know before it takes data.
    void prepare(Zel3D::BasePlot& plot) const;
    void setName(const QString& name) { m_name = name; }
    void setDescription(const QString& text) { m_description = text; }
    void setNotes(const QStringList& sentences) { m_notes = sentences; }
    /// Keeps the sentence and returns null, as read() does.
    std::unique_ptr<PlotView> fail(const QString& sentence);
    /// The sentence for what the plot refused.
    std::unique_ptr<PlotView> failToDraw();

private:
    std::array<bool, 3> m_logarithmic{};
    QString m_name;
    QString m_description;
    QStringList m_notes;
    QString m_error;
    bool m_cancelled = false;
};
