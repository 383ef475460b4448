#include "settings/templatefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>

namespace Zel3D {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(PlotTemplate)
};

constexpr int longestQuote = 60;

/// Why a line is no entry, a section or a comment; empty when it is one.
QString fault(const QByteArray& line)
{
    if (line.isEmpty() || line.startsWith(';') || line.startsWith('['))
        return {};
    const int sign = line.indexOf('=');
    if (sign < 1)
        return Words::tr("The line is not of the form KEY=VALUE.");
    // Past a lone quotation mark the reader would take the lines behind for the value.
    if (line.count('"') % 2 != 0)
        return Words::tr("A quotation mark is missing.");
    // Escapes stand for objects of any kind and size, of which a template needs none.
    const QByteArray value = line.mid(sign + 1);
    const bool control = std::any_of(line.cbegin(), line.cend(), [](char c) { return c >= 0 && c < ' '; });
    if (control || value.contains('\\') || value.contains('@'))
        return Words::tr("The value holds a sign that no template needs.");
    return {};
}

} // namespace

bool TemplateFile::fail(const QString& sentence)
{
    error = sentence;
    return false;
}

bool TemplateFile::read()
{
    entries.clear();
    skipped.clear();
    const QString name = QDir::toNativeSeparators(path);
    if (!QFileInfo(path).isFile())
        return fail(Words::tr("There is no file \"%1\".").arg(name));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(Words::tr("\"%1\" cannot be read: %2.").arg(name, file.errorString()));
    // A file that grows meanwhile is cut off, too.
    const QByteArray bytes = file.read(mostBytes + 1);
    if (bytes.size() > mostBytes)
        return fail(Words::tr("\"%1\" is larger than a template can be.").arg(name));
    return parse(wholeLines(bytes));
}

QByteArray TemplateFile::wholeLines(const QByteArray& bytes)
{
    QByteArray kept;
    const QList<QByteArray> lines = bytes.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        QString reason = fault(line);
        if (reason.isEmpty() && i + 1 == lines.size() && !line.isEmpty())
            reason = Words::tr("The line has no end: the file may have been cut off.");
        if (reason.isEmpty())
            kept += line + '\n';
        else
            skipped.append({Words::tr("line %1").arg(i + 1),
                            QString::fromUtf8(line.left(longestQuote)).simplified(), reason});
    }
    return kept;
}

bool TemplateFile::parse(const QByteArray& lines)
{
    // A copy under a name of its own: settings files are cached by name, size and time.
    const QTemporaryDir folder;
    QFile copy(folder.filePath("template.ini"));
    if (!copy.open(QIODevice::WriteOnly) || copy.write(lines) != lines.size() || !copy.flush())
        return fail(Words::tr("There is no room for temporary files: %1.").arg(copy.errorString()));
    QSettings values(copy.fileName(), QSettings::IniFormat);
    values.setIniCodec("UTF-8");
    for (const QString& key : values.allKeys()) {
        const QVariant value = values.value(key);
        // A text with commas outside quotation marks comes as a list.
        entries.insert(key, value.toStringList().join(", "));
    }
    return true;
}

bool TemplateFile::write(const QMap<QString, QString>& texts)
{
    const QTemporaryDir folder;
    const QString draft = folder.filePath("template.ini");
    {
        QSettings values(draft, QSettings::IniFormat);
        values.setIniCodec("UTF-8");
        for (auto text = texts.cbegin(); text != texts.cend(); ++text)
            values.setValue(text.key(), text.value());
        values.sync();
    }
    // A full disk shows late and not in the status.
    TemplateFile check(draft);
    if (!check.read() || check.getEntries() != texts)
        return fail(Words::tr("There is no room for temporary files."));
    QFile source(draft);
    QSaveFile target(path);
    if (!source.open(QIODevice::ReadOnly))
        return fail(Words::tr("There is no room for temporary files: %1.").arg(source.errorString()));
    const QByteArray bytes = source.readAll();
    const bool written = target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size() &&
                         target.flush(); // which commit() does not look at
    if (!written || !target.commit())
        return fail(Words::tr("\"%1\" cannot be written: %2. What was there before stays.")
                        .arg(QDir::toNativeSeparators(path), target.errorString()));
    return true;
}

} // namespace Zel3D
