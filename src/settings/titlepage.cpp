#include "settings/titlepage.h"

#include "plots/baseplot.h"
#include "scene/title.h"
#include "settings/recordfields.h"

namespace Zel3D {

namespace {

/// One coordinate of the title's place, in percent.
Field place(Title& title, const QString& id, const QString& name, bool across)
{
    return Field::number(id, name, TitlePage::tr("The place of the title, from the lower left corner."))
        .within(0.0, 100.0, 1.0, 1)
        .in(QStringLiteral("%"))
        .withSlider()
        .bind(
            [&title, across] {
                const QPointF fraction = title.getRelativePosition();
                return 100.0 * (across ? fraction.x() : fraction.y());
            },
            [&title, across](double percent) {
                QPointF fraction = title.getRelativePosition();
                (across ? fraction.rx() : fraction.ry()) = percent / 100.0;
                return title.setRelativePosition(fraction);
            });
}

} // namespace

QVector<FieldGroup> TitlePage::describe(BasePlot& plot) const
{
    Title& title = plot.getTitle();
    QVector<Field> position{place(title, "title/positionX", tr("Across"), true),
                            place(title, "title/positionY", tr("Up"), false)};
    position += RecordFields::place("title", title);
    return {{tr("Text"), RecordFields::text("title", title), {}}, {tr("Position"), position, {}}};
}

} // namespace Zel3D
