#pragma once

#include <QString>
#include <QSurfaceFormat>

class QGLContext;
class QGLFormat;

namespace Zel3D {

/// What a plot needs of an OpenGL context, and whether one has it.
namespace ContextCheck {

/// What a plot asks for, whatever the host made the default: a plain context with depth, two buffers and
/// several samples a pixel. Version and profile are the least there are, so that the driver may give any
/// context that still has the fixed-function pipeline.
QGLFormat wantedFormat();

/// Why a context of a format cannot draw a plot, as a sentence; empty when it can. \a created: whether there
/// is a context at all; \a embedded: whether it is one of OpenGL ES.
QString problemOf(bool created, bool embedded, const QSurfaceFormat& format);
/// The same of a context as the driver made it. It need not be current.
QString problemOf(const QGLContext* context);
/// The sentences for a context that has the right format and does not do what it says, and for one that is
/// gone.
QString missingFunctions(const QGLContext* context);
QString lostContext();

/// The context as the driver made it, such as "OpenGL 4.5, compatibility profile, 4 samples, depth 24"; empty
/// without one.
QString description(const QGLContext* context);

/// Whether display lists, with which plots draw, can be made. Needs a current context.
bool hasFixedFunction();
/// Whether OpenGL reports that the current context was lost. Takes one error from its queue.
bool isReportedLost();

} // namespace ContextCheck

} // namespace Zel3D
