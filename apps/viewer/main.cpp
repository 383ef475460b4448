#include "commandline.h"
#include "display.h"
#include "export/picturewriter.h"
#include "filesource.h"
#include "formulasource.h"
#include "gradients/gradientpresets.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "progressline.h"
#include "templateoption.h"
#include "viewerlanguage.h"
#include "viewerwindow.h"

#include <QApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <optional>
#include <vector>

namespace {

constexpr QSize usualPicture(1000, 750);
constexpr int interruptedStatus = 128 + SIGINT;

volatile std::sig_atomic_t interruptions = 0;

/// The first interruption ends the work at its next step, so that no unfinished file stays behind. The second
/// ends the program.
void interrupt(int signal)
{
    interruptions = 1;
    std::signal(signal, SIG_DFL);
}

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

void tell(const QString& sentence)
{
    std::fprintf(stderr, "voranview: %s\n", qPrintable(sentence));
}

int refuse(const QString& sentence)
{
    tell(sentence);
    return EXIT_FAILURE;
}

/// What is to be shown: the formula or each of the files.
std::vector<std::unique_ptr<PlotSource>> sourcesOf(const CommandLine& wanted)
{
    std::vector<std::unique_ptr<PlotSource>> sources;
    for (const QString& file : wanted.files())
        sources.push_back(sourceOfFile(file, wanted.band(), wanted.choice()));
    if (!wanted.formula().isEmpty())
        sources.push_back(std::make_unique<FormulaSource>(wanted.formula(), wanted.area()));
    for (const std::unique_ptr<PlotSource>& source : sources)
        source->setLogarithmic(wanted.logarithmic());
    return sources;
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
        tell(note);
    if (source.isThinned())
        tell(QCoreApplication::translate(
            "main", "--part shows a part of it in full, --budget more nodes of all of it."));
}

int savePictures(Zel3D::BasePlot& plot, const CommandLine& wanted, const QString& file, const QSize& size,
                 ProgressLine& line)
{
    Zel3D::PictureOptions options;
    options.pixels = size;
    options.transparent = wanted.isTransparent();
    for (const WantedPicture& picture : wanted.pictures()) {
        const QString path = CommandLine::picturePath(picture, file);
        options.progress = line.pictureProgress(path);
        const Zel3D::PictureResult result = Zel3D::PictureWriter::save(plot, path, options, picture.format);
        line.clear();
        if (result.cancelled)
            return interruptedStatus;
        if (!result.done)
            return refuse(result.message);
        if (!result.message.isEmpty())
            tell(result.message);
    }
    return EXIT_SUCCESS;
}

/// The pictures of one source.
int takePictures(PlotSource& source, const CommandLine& wanted, ProgressLine& line)
{
    const std::unique_ptr<PlotView> view = source.open(line.loadProgress(source.name()));
    line.clear();
    if (source.isCancelled())
        return interruptedStatus;
    if (!view)
        return refuse(source.error());
    tellNotes(source);
    const QSize size = wanted.size().value_or(usualPicture);
    Zel3D::BasePlot& plot = view->plot();
    plot.resize(size / plot.devicePixelRatioF());
    if (const std::optional<int> style = wanted.style(view->kind()))
        plot.setPlotStyle(*style);
    if (wanted.look())
        view->setLook(*wanted.look());
    view->resetView();
    QString error;
    return dress(*view, wanted, error) ? savePictures(plot, wanted, source.filePath(), size, line)
                                       : refuse(error);
}

/// Those of all sources, as far as they can be shown.
int takePictures(const CommandLine& wanted)
{
    std::signal(SIGINT, interrupt);
    ProgressLine line(stderr, [] { return interruptions != 0; });
    int status = EXIT_SUCCESS;
    for (std::unique_ptr<PlotSource>& source : sourcesOf(wanted)) {
        const int done = takePictures(*source, wanted, line);
        // What was read is not needed any more.
        source.reset();
        if (done == interruptedStatus)
            return done;
        status = std::max(status, done);
    }
    return status;
}

/// Shows a source in the window as it was asked for. False when that fails; \a error says why.
bool show(ViewerWindow& window, std::unique_ptr<PlotSource> source, const CommandLine& wanted, QString& error)
{
    if (!window.present(std::move(source), error))
        return false;
    PlotView& view = window.page()->view();
    tellNotes(window.page()->source());
    // Over what was kept of the data.
    if (wanted.look())
        view.setLook(*wanted.look());
    if (const std::optional<int> style = wanted.style(view.kind()))
        view.plot().setPlotStyle(*style);
    return dress(view, wanted, error);
}

int showWindow(const CommandLine& wanted)
{
    ViewerWindow window;
    if (wanted.look())
        window.preferences().setLook(*wanted.look());
    for (const PlotKind kind : wanted.kinds()) {
        if (const std::optional<int> style = wanted.style(kind))
            window.preferences().setStyle(kind, *style);
    }
    std::vector<std::unique_ptr<PlotSource>> sources = sourcesOf(wanted);
    int failures = 0;
    for (std::unique_ptr<PlotSource>& source : sources) {
        QString error;
        if (show(window, std::move(source), wanted, error))
            continue;
        // Cancelled, and with it those that would follow.
        if (error.isEmpty())
            break;
        ++failures;
        tell(error);
    }
    // Some of several files are better than none.
    if (failures > 0 && failures == int(sources.size()))
        return EXIT_FAILURE;
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
