#pragma once

#include "settings/plottemplate.h"

#include <QGradient>
#include <QHash>
#include <QPointer>
#include <QUndoCommand>
#include <QVariant>

namespace Zel3D {

class BasePlot;

/// A template applied to a plot, as one step that can be undone.
class TemplateEdit : public QUndoCommand
{
public:
    /// Keeps the settings and the gradient of now, to which undo() returns.
    TemplateEdit(BasePlot& edited, const PlotTemplate& applied);

    void undo() override;
    void redo() override;
    const PlotTemplate::Report& getReport() const { return report; }

private:
    QPointer<BasePlot> plot;
    PlotTemplate look;
    PlotTemplate::Report report;
    QHash<QString, QVariant> before;
    QString gradientName;
    QGradient gradient;
};

} // namespace Zel3D
