#include "view/contextcheck.h"

#include "view/opengl.h"

#include <QCoreApplication>
#include <QGLContext>
#include <QGLFormat>
#include <QOpenGLContext>
#include <QStringList>

namespace Zel3D {

namespace {

// Newer than the OpenGL that is drawn with.
constexpr unsigned int contextLost = 0x0507;

QString text(const char* words)
{
    return QCoreApplication::translate("ContextCheck", words);
}

QString versionOf(bool embedded, const QSurfaceFormat& format)
{
    const QString name = embedded ? QStringLiteral("OpenGL ES") : QStringLiteral("OpenGL");
    return QString("%1 %2.%3").arg(name).arg(format.majorVersion()).arg(format.minorVersion());
}

QString needed(const QString& offer)
{
    return text("This plot needs OpenGL with the fixed-function pipeline; %1.").arg(offer);
}

} // namespace

QGLFormat ContextCheck::wantedFormat()
{
    QGLFormat format(QGL::DoubleBuffer | QGL::DepthBuffer | QGL::Rgba | QGL::SampleBuffers |
                     QGL::DirectRendering | QGL::DeprecatedFunctions | QGL::NoStereoBuffers | QGL::NoOverlay);
    format.setVersion(2, 0);
    format.setProfile(QGLFormat::NoProfile);
    return format;
}

QString ContextCheck::problemOf(bool created, bool embedded, const QSurfaceFormat& format)
{
    if (!created)
        return needed(text("the driver offers no OpenGL"));
    if (embedded)
        return needed(text("the driver offers %1").arg(versionOf(true, format)));
    if (format.profile() == QSurfaceFormat::CoreProfile)
        return needed(text("the driver offers the core profile of %1").arg(versionOf(false, format)));
    return QString();
}

QString ContextCheck::problemOf(const QGLContext* context)
{
    const QOpenGLContext* handle = context && context->isValid() ? context->contextHandle() : nullptr;
    if (!handle)
        return problemOf(false, false, QSurfaceFormat());
    return problemOf(true, handle->isOpenGLES(), handle->format());
}

QString ContextCheck::missingFunctions(const QGLContext* context)
{
    return needed(
        text("the driver offers %1 without it").arg(versionOf(false, context->contextHandle()->format())));
}

QString ContextCheck::lostContext()
{
    return text("This plot has lost its OpenGL context: the driver was reset or taken away.");
}

QString ContextCheck::description(const QGLContext* context)
{
    const QOpenGLContext* handle = context && context->isValid() ? context->contextHandle() : nullptr;
    if (!handle)
        return QString();
    const QSurfaceFormat format = handle->format();
    QStringList parts{versionOf(handle->isOpenGLES(), format)};
    if (format.profile() == QSurfaceFormat::CoreProfile)
        parts.append(text("core profile"));
    if (format.profile() == QSurfaceFormat::CompatibilityProfile)
        parts.append(text("compatibility profile"));
    parts.append(format.samples() > 1 ? text("%1 samples").arg(format.samples()) : text("no multisampling"));
    parts.append(text("depth %1").arg(format.depthBufferSize()));
    return parts.join(", ");
}

bool ContextCheck::hasFixedFunction()
{
    const unsigned int list = glGenLists(1);
    if (list != 0)
        glDeleteLists(list, 1);
    return list != 0;
}

bool ContextCheck::isReportedLost()
{
    return glGetError() == contextLost;
}

} // namespace Zel3D
