#include "recentfiles.h"

#include <QFileInfo>
#include <QSettings>

namespace {

constexpr char filesKey[] = "recent/files";

} // namespace

QStringList RecentFiles::all()
{
    return QSettings().value(filesKey).toStringList();
}

void RecentFiles::add(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList files = all();
    files.removeAll(absolute);
    files.prepend(absolute);
    QSettings().setValue(filesKey, QStringList(files.mid(0, most)));
}

void RecentFiles::remove(const QString& path)
{
    QStringList files = all();
    files.removeAll(path);
    QSettings().setValue(filesKey, files);
}

void RecentFiles::clear()
{
    QSettings().remove(filesKey);
}
