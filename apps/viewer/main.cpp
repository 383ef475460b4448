#include "commandline.h"
#include "display.h"
#include "gridfile.h"
#include "picturefile.h"
#include "templateoption.h"
#include "viewerplot.h"
#include "viewerwindow.h"

#include <QApplication>
#include <QFileInfo>

#include <cstdio>

namespace {

constexpr QSize usualPicture(1000, 750);

void describeApplication()
{
    QCoreApplication::setOrganizationName("VORAN");
    QCoreApplication::setApplicationName("voranview");
    QCoreApplication::setApplicationVersion(VORANVIEW_VERSION);
}

int refuse(const QString& sentence)
{
    std::fprintf(stderr, "voranview: %s\n", qPrintable(sentence));
    return EXIT_FAILURE;
}

int takePicture(const CommandLine& wanted)
{
    Grid grid;
    GridFile reader(wanted.file());
    if (!reader.read(grid, wanted.band()))
        return refuse(reader.error());
    const QSize size = wanted.size().value_or(usualPicture);
    ViewerPlot plot;
    plot.resize(size / plot.devicePixelRatioF());
    if (wanted.style())
        plot.setPlotStyle(*wanted.style());
    if (wanted.look())
        plot.setLook(*wanted.look());
    if (!plot.load(grid, QFileInfo(wanted.file()).fileName()))
        return refuse(CommandLine::tr("\"%1\" cannot be drawn.").arg(wanted.file()));
    QString error;
    if (!wanted.templateFile().isEmpty() && !TemplateOption::apply(plot, wanted.templateFile(), error))
        return refuse(error);
    const QImage picture = plot.picture(size);
    if (picture.isNull())
        return refuse(CommandLine::tr("A picture of %1 x %2 pixels cannot be drawn here.")
                          .arg(size.width())
                          .arg(size.height()));
    PictureFile file(wanted.picture());
    return file.write(picture) ? EXIT_SUCCESS : refuse(file.error());
}

int showWindow(const CommandLine& wanted)
{
    ViewerWindow window;
    if (wanted.look())
        window.plot().setLook(*wanted.look());
    if (wanted.style())
        window.plot().setPlotStyle(*wanted.style());
    QString error;
    if (!wanted.file().isEmpty() && !window.open(wanted.file(), wanted.band(), error))
        return refuse(error);
    if (!wanted.templateFile().isEmpty() &&
        !TemplateOption::apply(window.plot(), wanted.templateFile(), error))
        return refuse(error);
    window.show();
    if (wanted.size())
        window.fitPlot(*wanted.size());
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    describeApplication();
    CommandLine wanted;
    {
        const QCoreApplication application(argc, argv);
        const CommandLine::Outcome outcome = wanted.parse(QCoreApplication::arguments());
        if (outcome == CommandLine::Refuse)
            return refuse(wanted.text());
        if (outcome == CommandLine::Inform) {
            std::printf("%s\n", qPrintable(wanted.text()));
            return EXIT_SUCCESS;
        }
    }
    const QString problem = Display::problem();
    if (!problem.isEmpty())
        return refuse(problem);
    // The arguments are read; Qt would take its own --style from them.
    int count = 1;
    Display::guardOpening();
    const QApplication application(count, argv);
    const QString lacking = Display::openingDone();
    if (!lacking.isEmpty())
        return refuse(lacking);
    return wanted.picture().isEmpty() ? showWindow(wanted) : takePicture(wanted);
}
