#pragma once

#include "core/export.h"

#include <QMap>
#include <QString>
#include <QVector>

namespace Zel3D {

/// Something that a template file states and that was not taken.
struct VORANPLOT_EXPORT SkippedEntry
{
    QString key;    ///< such as "axes/x/line/width"; a line's number where there is no key
    QString value;  ///< as the file states it
    QString reason; ///< a sentence
};

/// Texts by their keys in an INI file. What is damaged is left out and named, so that nothing is read that
/// the file does not state in full.
class TemplateFile
{
public:
    explicit TemplateFile(const QString& filePath) : path(filePath) {}

    /// False when the file cannot be read or is larger than a template can be; getError() says why.
    bool read();
    /// Replaces the file at once or not at all. False when it could not be written: what was there before
    /// stays, and getError() says why.
    bool write(const QMap<QString, QString>& entries);

    const QMap<QString, QString>& getEntries() const { return entries; }
    const QVector<SkippedEntry>& getSkipped() const { return skipped; }
    const QString& getError() const { return error; }

    static constexpr int mostBytes = 1024 * 1024;

private:
    QByteArray wholeLines(const QByteArray& bytes);
    bool parse(const QByteArray& lines);
    bool fail(const QString& sentence);

    QString path;
    QString error;
    QMap<QString, QString> entries;
    QVector<SkippedEntry> skipped;
};

} // namespace Zel3D
