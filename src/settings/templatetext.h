#pragma once

#include <QGradient>
#include <QString>
#include <QVariant>

#include <optional>

namespace Zel3D {

class BasePlot;
struct Field;

/// The values of settings as people read and type them in a file, in no language's own words: "true",
/// "0.25", "#ff336699", "DejaVu Sans, 10 pt, bold", "perspective".
namespace TemplateText {

/// \a plot says what the plot styles are called.
QString write(const BasePlot& plot, const Field& field, const QVariant& value);
/// Nothing when the text is no value of the field; \a reason is then a sentence. The range of a number is not
/// looked at.
std::optional<QVariant> read(const BasePlot& plot, const Field& field, const QString& text, QString& reason);
/// The name of a value that a choice offers, the same in every language.
QString offerName(const BasePlot& plot, const Field& field, const QVariant& value);

/// "0 #ff000000, 1 #ffffffff"; empty for a gradient without stops.
QString writeStops(const QGradient& gradient);
/// A linear gradient from such a text. Every stop must be valid, positions must not fall, and there are at
/// most mostStops.
std::optional<QLinearGradient> readStops(const QString& text, QString& reason);

constexpr int mostStops = 1000;

} // namespace TemplateText

} // namespace Zel3D
