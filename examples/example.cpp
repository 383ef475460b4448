#include "example.h"

#include "plots/baseplot.h"
#include "view/light.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QGLFramebufferObject>
#include <QGLWidget>
#include <QPainter>
#include <QRegularExpression>
#include <QTimer>
#include <QWindow>

#include <cstdio>

namespace {

constexpr int longestWait = 5000; // ms, until the window is on the screen
constexpr int samples = 4;

bool waitForScreen(QWidget& window)
{
    QElapsedTimer clock;
    clock.start();
    const auto shown = [&window] { return window.windowHandle() && window.windowHandle()->isExposed(); };
    while (!shown() && clock.elapsed() < longestWait)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    QCoreApplication::processEvents();
    return shown();
}

/// What a plot shows, with the smoothed edges that reading the screen would not give.
QImage frame(QGLWidget& plot)
{
    plot.makeCurrent();
    QGLFramebufferObjectFormat format;
    format.setAttachment(QGLFramebufferObject::Depth);
    format.setSamples(samples);
    QGLFramebufferObject buffer(plot.size() * plot.devicePixelRatioF(), format);
    buffer.bind();
    plot.updateGL();
    const QImage image = buffer.toImage();
    buffer.release();
    return image;
}

/// The window with what its plots show: a widget's own grab() leaves OpenGL out.
QImage grab(QWidget& window)
{
    QImage image = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QPainter painter(&image);
    QList<QGLWidget*> plots = window.findChildren<QGLWidget*>();
    if (auto* plot = qobject_cast<QGLWidget*>(&window))
        plots.append(plot);
    for (QGLWidget* plot : qAsConst(plots)) {
        painter.drawImage(QRect(plot->mapTo(&window, QPoint()), plot->size()), frame(*plot));
    }
    return image;
}

} // namespace

Example::Example(int& argc, char* argv[]) : application(argc, argv)
{
    QCommandLineParser parser;
    const QCommandLineOption pictureOption("picture", "Write a PNG file and end.", "file");
    const QCommandLineOption sizeOption("size", "The size of the window in pixels.", "WxH");
    parser.addOptions({pictureOption, sizeOption});
    parser.addPositionalArgument("file", "The data to show, where the example reads a file.", "[file]");
    parser.addHelpOption();
    parser.process(application);
    picture = parser.value(pictureOption);
    size = parser.value(sizeOption);
    wantedFile = parser.positionalArguments().value(0);
    // Pictures look alike whatever the desktop is.
    if (!picture.isEmpty())
        QApplication::setStyle("fusion");
}

QString Example::file(const QString& usual) const
{
    return wantedFile.isEmpty() ? QStringLiteral(VORAN_EXAMPLE_DATA "/") + usual : wantedFile;
}

int Example::run(QWidget& window, const QSize& usualSize)
{
    QSize wanted = usualSize;
    if (!size.isEmpty()) {
        const auto match = QRegularExpression("^([1-9][0-9]{1,3})x([1-9][0-9]{1,3})$").match(size);
        if (!match.hasMatch())
            return refuse(QString("\"%1\" is not a size such as 800x600.").arg(size));
        wanted = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    }
    window.resize(wanted);
    if (window.windowTitle().isEmpty())
        window.setWindowTitle(QCoreApplication::applicationName());
    window.show();
    if (picture.isEmpty())
        return QApplication::exec();
    // In a picture nothing moves.
    for (QTimer* timer : window.findChildren<QTimer*>())
        timer->stop();
    if (!waitForScreen(window))
        return refuse("The window did not come up.");
    if (!grab(window).save(picture, "PNG", 0))
        return refuse(QString("The picture \"%1\" cannot be written.").arg(picture));
    return EXIT_SUCCESS;
}

void Example::light(Zel3D::BasePlot& plot)
{
    Zel3D::Light& sun = *plot.getLights().first();
    sun.setPhi(135.0);
    sun.setTheta(50.0);
    sun.setAmbient(QColor(100, 100, 100));
    sun.setDiffuse(QColor(120, 120, 120));
    sun.setOn(true);
    plot.setLighting(true);
}

int Example::refuse(const QString& sentence)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(QCoreApplication::applicationName()), qPrintable(sentence));
    return EXIT_FAILURE;
}
