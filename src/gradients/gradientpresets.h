#pragma once

#include <QGradient>
#include <QString>
#include <QVector>

namespace Zel3D {

/// A gradient from a published table.
struct GradientPreset
{
    enum class Kind { Sequential, Diverging };
    QString name;
    Kind kind;
    /// Who made it and where it was published.
    QString source;
    /// The terms under which the table may be used.
    QString terms;
    QGradientStops stops;
};

/// All presets: sequential ones first, each kind in the order in which lists show them. docs/gradients.md
/// tells more about their sources.
Q_DECL_EXPORT const QVector<GradientPreset>& gradientPresets();

/// What people read for the name of a gradient. Names of presets and of looks are the same in every language
/// where gradients are kept; here they are translated, as are names that a program translates in the context
/// "GradientName". Any other name stays as it is.
Q_DECL_EXPORT QString gradientTitle(const QString& name);

} // namespace Zel3D
