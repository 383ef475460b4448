#pragma once

#include "plotview.h"

#include <QGLFramebufferObject>
#include <QSignalBlocker>

/// A plot class of the library with what the viewer adds to it.
template <class Plot>
class ViewedPlot : public Plot, public PlotView
{
public:
    explicit ViewedPlot(QWidget* parent)
        : Plot(QStringLiteral("plot"), QStringLiteral("VORAN"), QStringLiteral("voranview"), parent)
    {
    }

    Zel3D::BasePlot& plot() override { return *this; }
    QImage picture(const QSize& pixels) override;
    /// The dialog keeps its own place under the name that all plots share.
    void slotSaveSettings() override
    {
        underStoreName([this] { Plot::slotSaveSettings(); });
        keepOwn();
    }

protected:
    void loadKept() override
    {
        underStoreName([this] {
            this->slotLoadSettings();
            this->loadAxesSettings();
        });
    }
    void resizeEvent(QResizeEvent* event) override
    {
        refit();
        Plot::resizeEvent(event);
    }

private:
    template <class Action>
    void underStoreName(const Action& action)
    {
        const QString shared = this->objectName();
        this->setObjectName(storeName());
        action();
        this->setObjectName(shared);
    }
};

template <class Plot>
QImage ViewedPlot<Plot>::picture(const QSize& pixels)
{
    if (!this->isInitialized())
        this->glInit();
    this->makeCurrent();
    QGLFramebufferObjectFormat format;
    format.setAttachment(QGLFramebufferObject::Depth);
    format.setSamples(pictureSamples(pixels, this->format()));
    QGLFramebufferObject buffer(pixels, format);
    if (!buffer.isValid() || !buffer.bind())
        return QImage();
    // The mark of the mouse is no part of the picture.
    const QSignalBlocker quiet(this);
    const bool highlight = this->setPickHighlight(false);
    this->resizeGL(pixels.width(), pixels.height());
    this->setPickHighlight(highlight);
    const QImage image = buffer.toImage().convertToFormat(QImage::Format_RGB32);
    buffer.release();
    const double ratio = this->devicePixelRatioF();
    this->resizeGL(qRound(this->width() * ratio), qRound(this->height() * ratio));
    return image;
}
