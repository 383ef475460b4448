// The context of the view: what it asks for, what it does without, and frames that the context draws.

#include "view/contextcheck.h"
#include "view/contextnote.h"
#include "view/zelglwidget.h"

#include <QOpenGLContext>
#include <QTimer>

#include <utility>

namespace Zel3D {

namespace {
constexpr int recoveryInterval = 1000; // ms
}

bool ZelGLWidget::isValid() const
{
    return getContextProblem().isEmpty();
}

QString ZelGLWidget::getContextProblem() const
{
    if (context() && context() == lostContext)
        return ContextCheck::lostContext();
    if (context() && context() == uselessContext)
        return ContextCheck::missingFunctions(context());
    return ContextCheck::problemOf(context());
}

QString ZelGLWidget::getContextDescription() const
{
    return ContextCheck::description(context());
}

void ZelGLWidget::glInit()
{
    if (reviewContext())
        QGLWidget::glInit();
}

void ZelGLWidget::glDraw()
{
    if (!reviewContext() || !isContextAlive())
        return;
    followScreen();
    // With the exchange of the buffers, at which a driver waits that lags behind.
    restartFrameTime();
    QGLWidget::glDraw();
    if (initialized && !busy)
        frameDrawn(double(frameTime.nsecsElapsed()) / 1e6);
}

/// On the way to a screen of another pixel ratio the size stays the same, and no event tells.
void ZelGLWidget::followScreen()
{
    const double ratio = devicePixelRatioF();
    if (ratio == drawnRatio)
        return;
    drawnRatio = ratio;
    if (!initialized)
        return;
    makeCurrent();
    resizeGL(qRound(width() * ratio), qRound(height() * ratio));
}

void ZelGLWidget::frameDrawn(double /*milliseconds*/) {}

/// Without a context that can be drawn with, none is made current.
void ZelGLWidget::resizeEvent(QResizeEvent* event)
{
    if (isValid())
        QGLWidget::resizeEvent(event);
    else
        QWidget::resizeEvent(event); // NOLINT(bugprone-parent-virtual-call): QGLWidget makes it current
}

/// Tells a problem once, in the view's place and to the host.
bool ZelGLWidget::reviewContext()
{
    const QString problem = getContextProblem();
    if (!problem.isEmpty())
        initialized = false;
    if (contextNote && contextNote->text() != problem)
        delete std::exchange(contextNote, nullptr);
    if (!contextNote && !problem.isEmpty()) {
        contextNote = new ContextNote(problem, this);
        contextNote->show();
    }
    if (problem == toldProblem)
        return problem.isEmpty();
    toldProblem = problem;
    if (!problem.isEmpty())
        qWarning("Plot \"%s\": %s", qPrintable(objectName()), qPrintable(problem));
    emit contextProblemChanged(problem);
    return toldProblem.isEmpty();
}

bool ZelGLWidget::isContextAlive()
{
    makeCurrent();
    // A surface that is not shown may not be made current on some platforms; the context is well then.
    const QOpenGLContext* handle = context()->contextHandle();
    const bool current = QOpenGLContext::currentContext() == handle;
    if (current ? !ContextCheck::isReportedLost() : handle->isValid())
        return true;
    lostContext = context();
    reviewContext();
    QTimer::singleShot(0, this, &ZelGLWidget::recoverContext);
    return false;
}

/// Another context in the place of the lost one; whatever lived there is made again when it is set up.
void ZelGLWidget::recoverContext()
{
    if (context() != lostContext)
        return;
    // The old one is freed first, and the new one may be where it was.
    lostContext = nullptr;
    delete contextNote;
    const bool shown = isVisible();
    setFormat(context()->requestedFormat());
    initialized = false;
    // Another format hides the widget.
    setVisible(shown);
    update();
    if (context()->isValid())
        return;
    lostContext = context();
    QTimer::singleShot(recoveryInterval, this, &ZelGLWidget::recoverContext);
}

} // namespace Zel3D
