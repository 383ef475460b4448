#pragma once

#include "export/picturewriter.h"

namespace Zel3D {

/// Turns a plot once about its vertical axis and writes what is seen: numbered pictures, or an animated file.
///
/// Animated files are made by the program ffmpeg where it is installed; canAnimate() tells. The plot's view
/// is the same afterwards.
class VORANPLOT_EXPORT Turntable
{
    Q_DECLARE_TR_FUNCTIONS(Zel3D::Turntable)

public:
    /// Size, background and progress of the options hold for every frame.
    explicit Turntable(BasePlot& turnedPlot, const PictureOptions& pictureOptions = {});

    /// Frames of one turn; at least 2. 72 by default.
    void setFrames(int count);
    /// Frames per second of an animated file; at least 1. 24 by default.
    void setFrameRate(int framesPerSecond);

    /// Writes "name0001.png", "name0002.png" and so on for the path "name.png", as many digits as the number
    /// of frames has and four at least. A failure or a cancellation leaves the frames that are complete.
    PictureResult saveFrames(const QString& path);
    /// Writes an animated file, whole or not at all: MP4, WebM, GIF or WebP by the suffix of the path.
    PictureResult saveAnimation(const QString& path);
    static bool canAnimate() { return !encoder().isEmpty(); }
    /// The file of frame \a number, from 1 on.
    QString framePath(const QString& path, int number) const;

private:
    static QString encoder();
    PictureResult encode(const QString& frames, const QString& path);
    QStringList encoderArguments(const QString& frames, const QString& suffix, const QString& file) const;
    PictureResult failure(const QString& path, const QString& reason) const;

    BasePlot& plot;
    PictureOptions options;
    int frames = 72;
    int frameRate = 24;
};

} // namespace Zel3D
