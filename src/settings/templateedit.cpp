#include "settings/templateedit.h"

#include "core/datacolor.h"
#include "core/gradientstops.h"
#include "plots/baseplotsettings.h"
#include "settings/field.h"
#include "settings/fieldbinder.h"

namespace Zel3D {

namespace {

/// How often values are written back until all hold: one may limit another.
constexpr int passes = 3;

} // namespace

TemplateEdit::TemplateEdit(BasePlot& edited, const PlotTemplate& applied)
    : QUndoCommand(PlotTemplate::tr("Apply template")),
      plot(&edited),
      look(applied),
      gradientName(edited.getSettings().getGradients().getCurrent()),
      gradient(edited.getCurrentGradient())
{
    for (const Field& field : PlotTemplate::fields(edited, PlotTemplate::Appearance | PlotTemplate::View))
        before.insert(field.id, field.read());
}

void TemplateEdit::redo()
{
    if (plot)
        report = look.applyTo(*plot);
}

void TemplateEdit::undo()
{
    if (!plot)
        return;
    const QVector<Field> fields = PlotTemplate::fields(*plot, PlotTemplate::Appearance | PlotTemplate::View);
    for (int pass = 0; pass < passes; ++pass) {
        for (const Field& field : fields) {
            if (!sameValue(field.read(), before.value(field.id)))
                field.write(before.value(field.id));
        }
    }
    if (gradientStops(gradient).isEmpty())
        plot->setDataColor(nullptr);
    else if (!sameGradient(gradient, plot->getCurrentGradient()))
        plot->setGradient(gradientName, gradient);
    plot->update();
}

} // namespace Zel3D
