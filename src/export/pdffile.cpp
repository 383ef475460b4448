#include "export/pdffile.h"

#include <QRegularExpression>
#include <QSize>

#include <algorithm>

namespace Zel3D {

namespace {

/// What stands between two words, after a position.
QByteArray between(const QByteArray& text, const QByteArray& from, const QByteArray& to)
{
    const int start = text.indexOf(from);
    const int end = start < 0 ? -1 : text.indexOf(to, start + from.size());
    return end < 0 ? QByteArray() : text.mid(start + from.size(), end - start - from.size());
}

QByteArray object(int number, const QByteArray& entries, const QByteArray& data)
{
    return QByteArray::number(number) + " 0 obj\n<< " + entries + " /Filter /FlateDecode /Length " +
           QByteArray::number(data.size()) + " >>\nstream\n" + data + "\nendstream\nendobj\n";
}

/// As the filter FlateDecode takes it.
QByteArray deflated(const QByteArray& bytes)
{
    return qCompress(bytes).mid(4);
}

QByteArray imageEntries(const QImage& image, const char* colors)
{
    return "/Type /XObject /Subtype /Image /BitsPerComponent 8 /ColorSpace " + QByteArray(colors) +
           " /Width " + QByteArray::number(image.width()) + " /Height " + QByteArray::number(image.height());
}

QByteArray channels(const QImage& image, bool alpha)
{
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    QByteArray bytes;
    bytes.reserve(pixels.width() * pixels.height() * (alpha ? 1 : 3));
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* line = reinterpret_cast<const char*>(pixels.constScanLine(y));
        for (int x = 0; x < pixels.width(); ++x)
            bytes.append(alpha ? line + 4 * x + 3 : line + 4 * x, alpha ? 1 : 3);
    }
    return bytes;
}

} // namespace

PdfFile::PdfFile(const QByteArray& file)
{
    const int table = between(file, "startxref\n", "\n").toInt();
    if (file.mid(table, 5) != "xref\n")
        return;
    QVector<int> offsets;
    const QList<QByteArray> lines = between(file.mid(table), "xref\n", "trailer").split('\n');
    for (const QByteArray& line : lines) {
        if (line.contains(" n"))
            offsets.append(line.left(10).toInt());
    }
    QVector<int> ends = offsets;
    ends.append(table);
    std::sort(ends.begin(), ends.end());
    for (int offset : qAsConst(offsets)) {
        const int end = *std::upper_bound(ends.begin(), ends.end(), offset);
        objects.append(file.mid(offset, end - offset));
    }
    header = file.left(ends.first());
    trailer = between(file.mid(table), "trailer\n", "startxref");
    contentObject = between(file, "/Contents ", " 0 R").toInt() - 1;
    if (contentObject < 0 || contentObject >= objects.size())
        return;
    code = between(objects.at(contentObject), "stream\n", "\nendstream");
    valid = !code.isEmpty();
}

QByteArray PdfFile::mark(int index)
{
    return "@@" + QByteArray::number(index) + "@@";
}

void PdfFile::replaceMarks(const QVector<QByteArray>& pieces)
{
    // BT /F1 12 Tf ... Td (@@3@@) Tj ET
    static const QRegularExpression drawing(
        "BT\\n(/F\\d+) \\d+ Tf\\n[^\\n]* T[md]\\n\\(@@(\\d+)@@\\) Tj\\nET\\n?");
    const QString text = QString::fromLatin1(code);
    QByteArray result;
    int done = 0;
    QRegularExpressionMatchIterator found = drawing.globalMatch(text);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        const int index = match.captured(2).toInt();
        result += code.mid(done, match.capturedStart() - done);
        result += pieces.value(index).replace("%F", match.captured(1).toLatin1());
        done = match.capturedEnd();
    }
    code = result + code.mid(done);
}

void PdfFile::replaceImage(const QImage& image, const QSize& size)
{
    code.replace("q\n1 0 0 1 0.000000 0.000000 cm\n", "q\n" + QByteArray::number(size.width()) + " 0 0 " +
                                                          QByteArray::number(size.height()) + " 0 0 cm\n");
    const auto isImage = [](const QByteArray& candidate) { return candidate.contains("/Subtype /Image"); };
    const auto found = std::find_if(objects.begin(), objects.end(), isImage);
    if (found == objects.end())
        return;
    QByteArray entries = imageEntries(image, "/DeviceRGB");
    const int number = int(found - objects.begin()) + 1;
    if (image.hasAlphaChannel()) {
        const int mask = objects.size() + 1;
        entries += " /SMask " + QByteArray::number(mask) + " 0 R";
        objects[number - 1] = object(number, entries, deflated(channels(image, false)));
        objects.append(object(mask, imageEntries(image, "/DeviceGray"), deflated(channels(image, true))));
        return;
    }
    objects[number - 1] = object(number, entries, deflated(channels(image, false)));
}

QByteArray PdfFile::file()
{
    objects[contentObject] = object(contentObject + 1, QByteArray(), deflated(code));
    QByteArray result = header;
    QByteArray table = "xref\n0 " + QByteArray::number(objects.size() + 1) + "\n0000000000 65535 f \n";
    for (const QByteArray& part : qAsConst(objects)) {
        table += QByteArray::number(result.size()).rightJustified(10, '0') + " 00000 n \n";
        result += part;
    }
    static const QRegularExpression size("/Size \\d+");
    const QString entries =
        QString::fromLatin1(trailer).replace(size, QString("/Size %1").arg(objects.size() + 1));
    return result + table + "trailer\n" + entries.toLatin1() + "startxref\n" +
           QByteArray::number(result.size()) + "\n%%EOF\n";
}

} // namespace Zel3D
