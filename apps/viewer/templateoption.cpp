#include "templateoption.h"

#include "settings/plottemplate.h"

#include <cstdio>

bool TemplateOption::apply(Zel3D::BasePlot& plot, const QString& path, QString& error)
{
    Zel3D::PlotTemplate look;
    if (!look.load(path, &error))
        return false;
    const Zel3D::PlotTemplate::Report report = look.applyTo(plot);
    if (!report.skipped.isEmpty()) {
        for (const QString& line : report.text().split('\n'))
            std::fprintf(stderr, "voranview: %s\n", qPrintable(line));
    }
    return true;
}
