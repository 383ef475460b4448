#include "export/turntable.h"

#include "export/rasterpicture.h"
#include "plots/baseplot.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>

namespace Zel3D {

namespace {

constexpr int fewestDigits = 4;
constexpr int poll = 100; // ms between looks at the encoder

const QStringList animated{"mp4", "webm", "gif", "webp"};

/// Turns the view for a scope. Nobody is told: to people the view stays as it is.
class RotationScope
{
public:
    explicit RotationScope(BasePlot& turnedPlot) : plot(turnedPlot), before(turnedPlot.getRotation()) {}
    ~RotationScope() { turn(0.0); }
    RotationScope(const RotationScope&) = delete;
    RotationScope& operator=(const RotationScope&) = delete;

    void turn(double degrees)
    {
        const QSignalBlocker quiet(plot);
        plot.setRotation({before.x, before.y, before.z + degrees});
    }

private:
    BasePlot& plot;
    ValueXYZ<double> before;
};

} // namespace

Turntable::Turntable(BasePlot& turnedPlot, const PictureOptions& pictureOptions)
    : plot(turnedPlot), options(pictureOptions)
{
}

void Turntable::setFrames(int count)
{
    frames = std::max(2, count);
}

void Turntable::setFrameRate(int framesPerSecond)
{
    frameRate = std::max(1, framesPerSecond);
}

QString Turntable::encoder()
{
    return QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
}

PictureResult Turntable::failure(const QString& path, const QString& reason) const
{
    PictureResult result;
    result.message = tr("The animation \"%1\" cannot be written: %2.").arg(path, reason);
    return result;
}

QString Turntable::framePath(const QString& path, int number) const
{
    const QFileInfo info(path);
    const int digits = std::max(fewestDigits, QString::number(frames).size());
    const QString name = info.completeBaseName() + QString::number(number).rightJustified(digits, '0');
    return QDir(info.path()).filePath(info.suffix().isEmpty() ? name : name + '.' + info.suffix());
}

PictureResult Turntable::saveFrames(const QString& path)
{
    PictureResult result;
    PictureOptions frame = options;
    frame.progress = nullptr;
    for (int i = 0; i < frames; ++i) {
        if (!options.report(i, frames)) {
            result = PictureResult();
            result.cancelled = true;
            return result;
        }
        // Turned only while it is drawn: the progress may paint the window.
        RotationScope rotation(plot);
        rotation.turn(360.0 * i / frames);
        result = PictureWriter::save(plot, framePath(path, i + 1), frame);
        if (!result.done)
            return result;
    }
    options.report(frames, frames);
    return result;
}

PictureResult Turntable::saveAnimation(const QString& path)
{
    const QFileInfo info(path);
    if (!animated.contains(info.suffix().toLower()))
        return failure(path, tr("\"%1\" is no animated format").arg(info.suffix()));
    if (!canAnimate())
        return failure(path, tr("the program ffmpeg is not installed"));
    if (!info.absoluteDir().exists())
        return failure(path, tr("the folder \"%1\" does not exist").arg(info.path()));
    const QTemporaryDir folder;
    if (!folder.isValid())
        return failure(path, folder.errorString());
    const PictureResult drawn = saveFrames(folder.filePath("frame.png"));
    return drawn.done ? encode(folder.path(), path) : drawn;
}

PictureResult Turntable::encode(const QString& folder, const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    const QString made = QDir(folder).filePath("animation." + suffix);
    QProcess process;
    process.start(encoder(), encoderArguments(folder, suffix, made));
    while (!process.waitForFinished(poll)) {
        if (process.state() == QProcess::NotRunning)
            break;
        if (!options.report(frames, frames)) {
            process.kill();
            process.waitForFinished();
            PictureResult result;
            result.cancelled = true;
            return result;
        }
    }
    QFile file(made);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 ||
        !file.open(QIODevice::ReadOnly)) {
        const QString said =
            QString::fromLocal8Bit(process.readAllStandardError()).trimmed().section('\n', -1);
        return failure(path, said.isEmpty() ? tr("ffmpeg failed") : tr("ffmpeg says \"%1\"").arg(said));
    }
    return PictureWriter::write(file.readAll(), path);
}

QStringList Turntable::encoderArguments(const QString& folder, const QString& suffix,
                                        const QString& file) const
{
    const int digits = std::max(fewestDigits, QString::number(frames).size());
    const QString input = QDir(folder).filePath("frame%0" + QString::number(digits) + "d.png");
    QStringList arguments{"-v", "error", "-nostdin", "-y", "-framerate", QString::number(frameRate),
                          "-i", input};
    // The colours of video are kept for two pixels by two, and even sizes with them.
    if (suffix == QLatin1String("mp4"))
        arguments +=
            {"-vf", "pad=ceil(iw/2)*2:ceil(ih/2)*2", "-pix_fmt", "yuv420p", "-movflags", "+faststart"};
    else if (suffix == QLatin1String("webm"))
        arguments += {"-pix_fmt", "yuv420p"};
    else if (suffix == QLatin1String("gif"))
        arguments += {"-vf", "split[a][b];[a]palettegen[p];[b][p]paletteuse", "-loop", "0"};
    else
        arguments += {"-c:v", "libwebp_anim", "-lossless", "1", "-loop", "0"};
    return arguments + QStringList{file};
}

} // namespace Zel3D
