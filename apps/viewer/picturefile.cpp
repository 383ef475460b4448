#include "picturefile.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

PictureFile::PictureFile(const QString& path) : m_path(path) {}

bool PictureFile::fail(const QString& reason)
{
    m_error = tr("The picture \"%1\" cannot be written: %2.").arg(m_path, reason);
    return false;
}

bool PictureFile::write(const QImage& image)
{
    m_error.clear();
    const QFileInfo info(m_path);
    if (info.isDir())
        return fail(tr("it is a folder"));
    if (!info.absoluteDir().exists())
        return fail(tr("the folder \"%1\" does not exist").arg(info.path()));
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return fail(file.errorString());
    if (!image.save(&file, "PNG") || !file.commit())
        return fail(file.error() == QFileDevice::NoError ? tr("it cannot be made") : file.errorString());
    return true;
}
