#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QString>

/// Writes PNG files whole or not at all.
class PictureFile
{
    Q_DECLARE_TR_FUNCTIONS(PictureFile)

public:
    explicit PictureFile(const QString& path);

    /// Replaces the file. False when that fails: what was there stays and error() says why.
    bool write(const QImage& image);
    /// One sentence that names the file and the reason; empty after a success.
    const QString& error() const { return m_error; }

private:
    bool fail(const QString& reason);

    QString m_path;
    QString m_error;
};
