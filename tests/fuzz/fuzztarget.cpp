#include "fuzztarget.h"

#include <QFile>
#include <QTemporaryDir>

QString FuzzTarget::file(const char* suffix, const std::uint8_t* bytes, std::size_t size)
{
    static const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("input.") + QLatin1String(suffix)));
    const QByteArray input = content(bytes, size);
    demand(file.open(QIODevice::WriteOnly) && file.write(input) == input.size(), "the input can be stored");
    return file.fileName();
}
