#pragma once

#include "core/export.h"
#include "settings/templatefile.h"

#include <QCoreApplication>
#include <QMap>
#include <QString>
#include <QVector>

namespace Zel3D {

class BasePlot;
struct Field;

/// The appearance of a plot, kept in a file and applied to other plots through their setters.
///
/// Holds every setting of the settings dialog by its key, but for what belongs to the data (texts, positions
/// in units of the data, the resolution, the kind of scales) and to the way of working (tool tips, automatic
/// rotation), and the gradient with its stops. The view (rotation, shifts, scale, zoom) is kept on demand.
///
/// \code
/// QString error;
/// if (!PlotTemplate::of(plot).save("report.plottemplate", &error))
///     qWarning() << error;
/// PlotTemplate look;
/// if (look.load("report.plottemplate", &error)) {
///     const PlotTemplate::Report report = look.applyTo(otherPlot);
///     if (!report.skipped.isEmpty())
///         qInfo().noquote() << report.text();
/// }
/// \endcode
class VORANPLOT_EXPORT PlotTemplate
{
    Q_DECLARE_TR_FUNCTIONS(PlotTemplate)
public:
    enum Part {
        Appearance = 1, ///< colours, fonts, lines, styles, lights, gradient
        View = 2        ///< rotation, shifts, scale and zoom
    };

    /// What became of a template on a plot.
    struct VORANPLOT_EXPORT Report
    {
        int applied = 0;               ///< settings that the plot now holds as stated
        QVector<SkippedEntry> skipped; ///< what is not as stated, and why

        /// A paragraph for people: how much was applied, and each entry that was not.
        QString text() const;
    };

    /// The version of the format that is written; newer ones are not read.
    static constexpr int version = 1;
    /// "plottemplate", the suffix of the files.
    static const QString suffix;

    /// Reads a plot; \a parts is a set of Part. The plot is not changed.
    static PlotTemplate of(BasePlot& plot, int parts = Appearance);

    /// Replaces the file at once. False when it cannot be written, which leaves what was there before.
    bool save(const QString& path, QString* error = nullptr) const;
    /// False for a file that is no template, of a newer version, too large or not readable: the template is
    /// then empty. Damaged lines are left out and come back in the report of applyTo().
    bool load(const QString& path, QString* error = nullptr);

    /// Sets what the template states validly, through the setters, and repaints. Everything else keeps its
    /// value. No context needs to be current.
    Report applyTo(BasePlot& plot) const;

    bool isEmpty() const { return entries.isEmpty(); }
    /// The texts by their keys, such as "axes/x/line/width".
    const QMap<QString, QString>& getEntries() const { return entries; }

    /// The settings of a plot that a template can hold.
    static QVector<Field> fields(BasePlot& plot, int parts);

private:
    void applyFields(BasePlot& plot, Report& report) const;
    void applyGradient(BasePlot& plot, Report& report) const;

    QMap<QString, QString> entries;
    QVector<SkippedEntry> damaged;
};

} // namespace Zel3D
