#include "filecheck.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(FileCheck)
};

} // namespace

QString fileProblem(const QString& path, const QString& wanted)
{
    const QFileInfo file(path);
    if (path.isEmpty())
        return Words::tr("No file is named.");
    if (file.isDir())
        return Words::tr("\"%1\" is a folder, not %2.").arg(path, wanted);
    if (!file.exists())
        return Words::tr("\"%1\" does not exist.").arg(path);
    if (!file.isReadable())
        return Words::tr("\"%1\" cannot be read: permission denied.").arg(path);
    if (!file.isFile())
        return Words::tr("\"%1\" is no regular file.").arg(path);
    if (file.size() == 0)
        return Words::tr("\"%1\" is empty.").arg(path);
    return QString();
}
