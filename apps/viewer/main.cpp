#include "commandline.h"
#include "display.h"
#include "export/picturewriter.h"
#include "filesource.h"
#include "formulasource.h"
#include "gradients/gradientpresets.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "templateoption.h"
#include "viewerlanguage.h"
#include "viewerwindow.h"

#include <QApplication>
#include <QLoggingCategory>

#include <cstdio>
#include <optional>

namespace {

constexpr QSize usualPicture(1000, 750);

void describeApplication()
{
    QCoreApplication::setOrganizationName("VORAN");
    QCoreApplication::setApplicationName("voranview");
    QCoreApplication::setApplicationVersion(VORANVIEW_VERSION);
}

/// The library tells its steps as debug messages, which say nothing to a person who looks at data.
void silenceDebugMessages()
{
    if (!qEnvironmentVariableIsSet("VORAN_DEBUG"))
        QLoggingCategory::setFilterRules("default.debug=false");
}

int refuse(const QString& sentence)
{
    std::fprintf(stderr, "voranview: %s\n", qPrintable(sentence));
    return EXIT_FAILURE;
}

std::unique_ptr<PlotSource> sourceOf(const CommandLine& wanted)
{
    std::unique_ptr<PlotSource> source;
    if (wanted.formula().isEmpty())
        source = sourceOfFile(wanted.file(), wanted.band());
    else
        source = std::make_unique<FormulaSource>(wanted.formula(), wanted.area());
    source->setLogarithmic(wanted.logarithmic());
    return source;
}

/// What was asked for beside look and style. False when the template cannot be used; \a error says why.
bool dress(PlotView& view, const CommandLine& wanted, QString& error)
{
    if (!wanted.templateFile().isEmpty() && !TemplateOption::apply(view.plot(), wanted.templateFile(), error))
        return false;
    for (const Zel3D::GradientPreset& preset : Zel3D::gradientPresets()) {
        if (preset.name == wanted.gradient()) {
            QLinearGradient gradient;
            gradient.setStops(preset.stops);
            view.setDataGradient(preset.name, gradient);
        }
    }
    view.nameAxes(wanted.axes());
    if (wanted.view()) {
        view.setStartRotation(*wanted.view());
        view.resetView();
    }
    return true;
}

void tellNotes(const PlotSource& source)
{
    for (const QString& note : source.notes())
        std::fprintf(stderr, "voranview: %s\n", qPrintable(note));
}

int savePictures(Zel3D::BasePlot& plot, const CommandLine& wanted, const QSize& size)
{
    Zel3D::PictureOptions options;
    options.pixels = size;
    options.transparent = wanted.isTransparent();
    for (const WantedPicture& picture : wanted.pictures()) {
        const Zel3D::PictureResult result =
            Zel3D::PictureWriter::save(plot, picture.path, options, picture.format);
        if (!result.done)
            return refuse(result.message);
        if (!result.message.isEmpty())
            std::fprintf(stderr, "voranview: %s\n", qPrintable(result.message));
    }
    return EXIT_SUCCESS;
}

int takePictures(const CommandLine& wanted)
{
    const std::unique_ptr<PlotSource> source = sourceOf(wanted);
    const std::unique_ptr<PlotView> view = source->open();
    if (!view)
        return refuse(source->error());
    tellNotes(*source);
    const QSize size = wanted.size().value_or(usualPicture);
    Zel3D::BasePlot& plot = view->plot();
    plot.resize(size / plot.devicePixelRatioF());
    if (wanted.style())
        plot.setPlotStyle(*wanted.style());
    if (wanted.look())
        view->setLook(*wanted.look());
    view->resetView();
    QString error;
    return dress(*view, wanted, error) ? savePictures(plot, wanted, size) : refuse(error);
}

int showWindow(const CommandLine& wanted)
{
    ViewerWindow window;
    if (wanted.look())
        window.preferences().setLook(*wanted.look());
    if (wanted.style())
        window.preferences().setStyle(wanted.kind(), *wanted.style());
    QString error;
    if (!wanted.file().isEmpty() || !wanted.formula().isEmpty()) {
        if (!window.present(sourceOf(wanted), error))
            return refuse(error);
        tellNotes(window.page()->source());
        // Over what was kept of the data.
        if (wanted.look())
            window.page()->view().setLook(*wanted.look());
        if (wanted.style())
            window.page()->plot().setPlotStyle(*wanted.style());
    }
    if (window.page() && !dress(window.page()->view(), wanted, error))
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
    silenceDebugMessages();
    std::optional<CommandLine> given;
    {
        const QCoreApplication application(argc, argv);
        ViewerLanguage::showEnvironment();
        // Its texts are in the language of when it is made.
        CommandLine& line = given.emplace();
        const CommandLine::Outcome outcome = line.parse(QCoreApplication::arguments());
        if (outcome == CommandLine::Refuse)
            return refuse(line.text());
        if (outcome == CommandLine::Inform) {
            std::printf("%s\n", qPrintable(line.text()));
            return EXIT_SUCCESS;
        }
    }
    const CommandLine& wanted = *given;
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
    if (!wanted.pictures().isEmpty()) {
        ViewerLanguage::showEnvironment();
        return takePictures(wanted);
    }
    ViewerLanguage::showPreferred();
    return showWindow(wanted);
}
