#include "samples.h"

#include "core/translations.h"
#include "plots/shplot.h"
#include "plots/styleaction.h"

#include <QCoreApplication>

namespace samples {

QString inFrench()
{
    const Zel3D::SHPlot plot("plot", "My company", "My program");
    //! [language]
    Zel3D::Translations::install();              // the language of the person
    Zel3D::Translations::install(QLocale("fr")); // another one, at any time
    //! [language]
    QCoreApplication::sendPostedEvents();
    return plot.getStyleActions().at(2)->text();
}

} // namespace samples
