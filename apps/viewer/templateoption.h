#pragma once

#include <QString>

namespace Zel3D {
class BasePlot;
}

/// The template named on the command line.
namespace TemplateOption {

/// Applies a file to a plot and writes what was left out to the standard error. False when the file cannot be
/// used; \a error says why.
bool apply(Zel3D::BasePlot& plot, const QString& path, QString& error);

} // namespace TemplateOption
