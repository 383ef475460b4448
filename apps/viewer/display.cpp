#include "display.h"

#include <QCoreApplication>
#include <QOpenGLContext>

#include <cstdio>
#include <cstdlib>

namespace {

QString unopenable()
{
    return QCoreApplication::translate(
        "Display",
        "The display cannot be opened: set DISPLAY to a running X server, or run this under xvfb-run.");
}

void duringOpening(QtMsgType type, const QMessageLogContext&, const QString&)
{
    // Qt tells at length, and then aborts.
    if (type != QtFatalMsg)
        return;
    std::fprintf(stderr, "voranview: %s\n", qPrintable(unopenable()));
    std::_Exit(EXIT_FAILURE);
}

} // namespace

QString Display::problem()
{
    const bool named = !qEnvironmentVariableIsEmpty("DISPLAY") ||
                       !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
                       !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    return named ? QString()
                 : QCoreApplication::translate(
                       "Display",
                       "There is no display: set DISPLAY to a running X server, or run this under xvfb-run.");
}

void Display::guardOpening()
{
    qInstallMessageHandler(duringOpening);
}

QString Display::openingDone()
{
    QOpenGLContext context;
    const bool drawable = context.create();
    qInstallMessageHandler(nullptr);
    return drawable ? QString()
                    : QCoreApplication::translate("Display",
                                                  "The display offers no OpenGL, which the plot needs.");
}
