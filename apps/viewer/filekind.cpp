#include "filekind.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

constexpr int fewThousand = 4096;
constexpr int fewLines = 20;

const QHash<QString, FileKind>& endings()
{
    static const QHash<QString, FileKind> kinds = [] {
        QHash<QString, FileKind> made;
        for (const char* ending : {"csv", "tsv"})
            made.insert(ending, FileKind::Spectra);
        for (const char* ending : {"ply", "off", "obj", "stl", "3ds", "dae", "gltf", "glb", "fbx", "x3d"})
            made.insert(ending, FileKind::Mesh);
        for (const char* ending : {"asc", "xyz", "tif", "tiff", "vrt", "nc", "grd", "img", "dem", "hgt",
                                   "png", "jpg", "jp2", "h5", "gpkg", "bil", "flt"})
            made.insert(ending, FileKind::Grid);
        return made;
    }();
    return kinds;
}

bool beginsLikeMesh(const QByteArray& start)
{
    static const QRegularExpression firstWord("^(ply|solid|(ST)?C?N?4?OFF( BINARY)?)\\b");
    return firstWord.match(QString::fromLatin1(start.left(64))).hasMatch();
}

/// The first whole lines that hold something and are no comment.
QStringList firstLines(const QByteArray& start)
{
    static const QRegularExpression lineEnd("[\r\n]+");
    QByteArray whole = start;
    if (start.size() >= fewThousand)
        whole.truncate(std::max(start.lastIndexOf('\n'), start.lastIndexOf('\r')));
    QStringList lines;
    for (const QString& line : QString::fromUtf8(whole).split(lineEnd)) {
        if (!line.trimmed().isEmpty() && !line.startsWith('#') && lines.size() < fewLines)
            lines.append(line.trimmed());
    }
    return lines;
}

int countNumbers(const QStringList& cells)
{
    return static_cast<int>(std::count_if(cells.begin(), cells.end(), [](const QString& cell) {
        bool valid = false;
        cell.trimmed().replace(',', '.').toDouble(&valid);
        return valid;
    }));
}

/// Whether every line but a header holds three numbers, as the rows of a grid of points do.
bool isPoints(const QStringList& lines)
{
    static const QRegularExpression part("[\\s,;]+");
    return lines.size() > 1 && std::all_of(lines.begin() + 1, lines.end(), [](const QString& line) {
               const QStringList cells = line.split(part);
               return cells.size() == 3 && countNumbers(cells) == 3;
           });
}

/// Whether a delimiter parts most lines into cells of which some are numbers.
bool isTable(const QStringList& lines)
{
    const auto isRow = [](const QString& line) {
        const auto parted = [&line](char delimiter) {
            const QStringList cells = line.split(delimiter);
            return cells.size() > 1 && countNumbers(cells) > 0;
        };
        return parted('\t') || parted(';') || parted(',');
    };
    return lines.size() > 1 && 2 * std::count_if(lines.begin(), lines.end(), isRow) > lines.size();
}

} // namespace

FileKind fileKind(const QString& path, const QByteArray& start)
{
    const auto plain = endings().constFind(QFileInfo(path).suffix().toLower());
    if (plain != endings().constEnd())
        return *plain;
    if (beginsLikeMesh(start))
        return FileKind::Mesh;
    if (start.contains('\0') || start.left(5).toLower() == "ncols")
        return FileKind::Grid;
    const QStringList lines = firstLines(start);
    return !isPoints(lines) && isTable(lines) ? FileKind::Spectra : FileKind::Grid;
}

FileKind fileKind(const QString& path)
{
    QFile file(path);
    const bool readable = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
    return fileKind(path, readable ? file.read(fewThousand) : QByteArray());
}
