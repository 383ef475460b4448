#include "export/vectorfont.h"

#include <QFontInfo>
#include <QTextCodec>

#include <algorithm>
#include <array>

namespace Zel3D {

namespace {

constexpr int firstLetter = 32;
constexpr int letterCount = 95;
constexpr int courierWidth = 600;

struct Widths
{
    const char* name;
    std::array<short, letterCount> widths;
};

/// In thousandths of the size, from the metrics of fonts that are made to the same measures. A slanted
/// Helvetica is as wide as an upright one.
constexpr std::array<Widths, 6> table{{
    {"Helvetica",
     {278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
      556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
      611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
      667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
      222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584}},
    {"Helvetica-Bold",
     {278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556,
      556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667,
      611, 778, 722, 278, 556, 722, 611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667,
      667, 611, 333, 278, 333, 584, 556, 333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556,
      278, 889, 611, 611, 611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584}},
    {"Times-Roman",
     {250, 333, 408, 500, 500, 833, 778, 180, 333, 333, 500, 564, 250, 333, 250, 278, 500, 500, 500,
      500, 500, 500, 500, 500, 500, 500, 278, 278, 564, 564, 564, 444, 921, 722, 667, 667, 722, 611,
      556, 722, 722, 333, 389, 722, 611, 889, 722, 722, 556, 722, 667, 556, 611, 722, 722, 944, 722,
      722, 611, 333, 278, 333, 469, 500, 333, 444, 500, 444, 500, 444, 333, 500, 500, 278, 278, 500,
      278, 778, 500, 500, 500, 500, 333, 389, 278, 500, 500, 722, 500, 500, 444, 480, 200, 480, 541}},
    {"Times-Bold",
     {250, 333, 555, 500, 500, 1000, 833, 278, 333, 333, 500, 570, 250, 333, 250, 278, 500, 500,  500,
      500, 500, 500, 500, 500, 500,  500, 333, 333, 570, 570, 570, 500, 930, 722, 667, 722, 722,  667,
      611, 778, 778, 389, 500, 778,  667, 944, 722, 778, 611, 778, 722, 556, 667, 722, 722, 1000, 722,
      722, 667, 333, 278, 333, 581,  500, 333, 500, 556, 444, 556, 444, 333, 500, 556, 278, 333,  556,
      278, 833, 556, 500, 556, 556,  444, 389, 333, 556, 500, 722, 500, 500, 444, 394, 220, 394,  520}},
    {"Times-Italic",
     {250, 333, 420, 500, 500, 833, 778, 214, 333, 333, 500, 675, 250, 333, 250, 278, 500, 500, 500,
      500, 500, 500, 500, 500, 500, 500, 333, 333, 675, 675, 675, 500, 920, 611, 611, 667, 722, 611,
      611, 722, 722, 333, 444, 667, 556, 833, 667, 722, 611, 722, 611, 500, 556, 722, 611, 833, 611,
      556, 556, 389, 278, 389, 422, 500, 333, 500, 500, 444, 500, 444, 278, 500, 500, 278, 278, 444,
      278, 722, 500, 500, 500, 500, 389, 389, 278, 500, 444, 667, 444, 444, 389, 400, 275, 400, 541}},
    {"Times-BoldItalic",
     {250, 389, 555, 500, 500, 833, 778, 278, 333, 333, 500, 570, 250, 333, 250, 278, 500, 500, 500,
      500, 500, 500, 500, 500, 500, 500, 333, 333, 570, 570, 570, 500, 832, 667, 667, 667, 722, 667,
      667, 722, 778, 389, 500, 667, 611, 889, 722, 722, 611, 722, 667, 556, 611, 722, 667, 889, 667,
      611, 611, 333, 278, 333, 570, 500, 333, 500, 500, 444, 500, 444, 333, 500, 556, 278, 278, 500,
      278, 778, 556, 500, 500, 500, 389, 389, 278, 556, 444, 667, 500, 444, 389, 348, 220, 348, 570}},
}};

bool hasSerifs(const QFont& font)
{
    const QString family = font.family().toLower();
    if (family.contains(QLatin1String("sans")))
        return false;
    const auto named = [&family](const char* part) { return family.contains(QLatin1String(part)); };
    return font.styleHint() == QFont::Serif || named("serif") || named("times") || named("roman") ||
           named("georgia") || named("garamond") || named("palatino");
}

QByteArray nameOf(const QFont& font)
{
    const bool bold = font.weight() >= QFont::DemiBold;
    const bool slanted = font.italic();
    const bool mono = font.fixedPitch() || QFontInfo(font).fixedPitch() ||
                      font.styleHint() == QFont::Monospace ||
                      font.family().startsWith(QLatin1String("Courier"));
    if (!mono && hasSerifs(font))
        return bold ? (slanted ? "Times-BoldItalic" : "Times-Bold")
                    : (slanted ? "Times-Italic" : "Times-Roman");
    QByteArray family = mono ? "Courier" : "Helvetica";
    if (!bold && !slanted)
        return family;
    return family + (bold ? (slanted ? "-BoldOblique" : "-Bold") : "-Oblique");
}

} // namespace

VectorFont::VectorFont(const QFont& font) : name(nameOf(font)) {}

double VectorFont::width(const QByteArray& text) const
{
    QByteArray upright = name;
    if (name.startsWith("Helvetica"))
        upright = name.contains("Bold") ? "Helvetica-Bold" : "Helvetica";
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&upright](const Widths& row) { return upright == row.name; });
    int sum = 0;
    for (const char letter : text) {
        const int code = uchar(letter);
        const bool plain = code >= firstLetter && code < firstLetter + letterCount;
        const std::size_t index = std::size_t(plain ? code - firstLetter : '0' - firstLetter);
        sum += found == table.end() ? courierWidth : found->widths[index];
    }
    return sum / 1000.0;
}

QByteArray VectorFont::macRoman(const QString& text)
{
    const QTextCodec* codec = QTextCodec::codecForName("Apple Roman");
    if (!codec)
        return ascii(text);
    const QByteArray bytes = codec->fromUnicode(text);
    return codec->toUnicode(bytes) == text ? bytes : QByteArray();
}

QByteArray VectorFont::ascii(const QString& text)
{
    const bool plain = std::all_of(text.begin(), text.end(), [](QChar letter) {
        return letter.unicode() >= firstLetter && letter.unicode() < firstLetter + letterCount;
    });
    return plain ? text.toLatin1() : QByteArray();
}

QByteArray VectorFont::escaped(const QByteArray& text)
{
    QByteArray result;
    for (const char letter : text) {
        if (letter == '(' || letter == ')' || letter == '\\')
            result += '\\';
        result += letter;
    }
    return result;
}

} // namespace Zel3D
