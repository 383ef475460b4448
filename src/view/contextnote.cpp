#include "view/contextnote.h"

#include <QEvent>
#include <QWindow>

namespace Zel3D {

namespace {
constexpr int noteMargin = 12; // pixels
}

ContextNote::ContextNote(const QString& text, QWidget* view) : QLabel(text, view)
{
    // A window of its own: the view's belongs to OpenGL.
    setAttribute(Qt::WA_NativeWindow);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAutoFillBackground(true);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setMargin(noteMargin);
    setGeometry(view->rect());
    view->installEventFilter(this);
    if (view->isWindow())
        setRaster(true);
}

ContextNote::~ContextNote()
{
    if (raster)
        setRaster(false);
}

/// A window of OpenGL's shows nothing that Qt paints, not even by the widgets in it.
void ContextNote::setRaster(bool on)
{
    raster = on;
    parentWidget()->setAttribute(Qt::WA_PaintOnScreen, !on);
    if (QWindow* window = parentWidget()->windowHandle())
        window->setSurfaceType(on ? QSurface::RasterSurface : QSurface::OpenGLSurface);
}

bool ContextNote::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QLabel::eventFilter(watched, event);
}

} // namespace Zel3D
