#include "examples.h"

#include <QCoreApplication>
#include <QDir>

namespace Examples {

namespace {

// build/PRESET/apps/viewer
constexpr int depthOfBuilds = 5;

struct Entry
{
    const char* file;
    const char* title;
    const char* description;
    const char* icon;
};

constexpr Entry entries[] = {
    {"jacksboro_dem.asc", QT_TRANSLATE_NOOP("Examples", "Jacksboro fault"),
     QT_TRANSLATE_NOOP("Examples", "A mountain ridge in Tennessee: a grid"), "filled"},
    {"gasoline_nir.csv", QT_TRANSLATE_NOOP("Examples", "Gasoline"),
     QT_TRANSLATE_NOOP("Examples", "Infrared spectra of 60 samples"), "spectrumfilled"},
    {"bunny.off", QT_TRANSLATE_NOOP("Examples", "Rabbit"),
     QT_TRANSLATE_NOOP("Examples", "A scanned figure: a mesh"), "filledmesh"},
};

QString tr(const char* text)
{
    return QCoreApplication::translate("Examples", text);
}

} // namespace

QString folder(const QString& programFolder)
{
    const QDir installed(programFolder + "/../share/voranview/examples");
    if (installed.exists())
        return installed.absolutePath();
    QDir above(programFolder);
    for (int i = 0; i < depthOfBuilds; ++i) {
        if (above.exists("examples/data"))
            return above.absoluteFilePath("examples/data");
        if (!above.cdUp())
            break;
    }
    return QString();
}

QList<Example> all(const QString& folder)
{
    QList<Example> found;
    for (const Entry& entry : entries) {
        const QString path = QDir(folder).absoluteFilePath(entry.file);
        if (!folder.isEmpty() && QFileInfo::exists(path))
            found.append({path, tr(entry.title), tr(entry.description),
                          QStringLiteral(":/plot/images/%1.svg").arg(QLatin1String(entry.icon))});
    }
    return found;
}

} // namespace Examples
