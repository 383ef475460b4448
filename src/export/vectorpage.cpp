#include "export/vectorpage.h"

#include "export/pdffile.h"
#include "export/vectorfont.h"

#include <QBuffer>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include <gl2ps.h>

namespace Zel3D {

namespace {

constexpr float hardlyDifferent = 0.1F; // of the range of a channel
constexpr float hardlySeen = 3.0F;      // square points

int gl2psFormat(VectorPage::Format format)
{
    return format == VectorPage::Pdf ? GL2PS_PDF : format == VectorPage::Svg ? GL2PS_SVG : GL2PS_EPS;
}

/// What stands in a file as the title: in PDF any text, else what each reader understands.
QByteArray titleCode(VectorPage::Format format, const QString& title)
{
    if (format == VectorPage::Svg)
        return title.toHtmlEscaped().toUtf8();
    if (format == VectorPage::Eps)
        return VectorFont::escaped(title.toLatin1().simplified());
    QByteArray code = "\\376\\377";
    for (const QChar letter : title) {
        for (int byte : {letter.unicode() >> 8, letter.unicode() & 0xFF})
            code += '\\' + QByteArray::number(byte, 8).rightJustified(3, '0');
    }
    return code;
}

/// Makes a triangle whose corners hardly differ one colour. gl2ps would cut it into as many as sixteen, and
/// in SVG and PostScript a large scene into files that no viewer takes; PDF has shaded triangles.
void flatten(std::array<GL2PSvertex, 3>& corners)
{
    std::array<float, 4> mean{};
    float spread = 0.0F;
    for (std::size_t channel = 0; channel < 4; ++channel) {
        const auto [low, high] =
            std::minmax({corners[0].rgba[channel], corners[1].rgba[channel], corners[2].rgba[channel]});
        spread = std::max(spread, high - low);
        mean[channel] =
            (corners[0].rgba[channel] + corners[1].rgba[channel] + corners[2].rgba[channel]) / 3.0F;
    }
    const auto& [a, b, c] = corners;
    const float area = std::abs((b.xyz[0] - a.xyz[0]) * (c.xyz[1] - a.xyz[1]) -
                                (c.xyz[0] - a.xyz[0]) * (b.xyz[1] - a.xyz[1])) /
                       2.0F;
    if (spread > hardlyDifferent && area > hardlySeen)
        return;
    for (GL2PSvertex& corner : corners)
        std::copy(mean.begin(), mean.end(), corner.rgba);
}

/// gl2ps clips each layer to the page, where all lies anyway, by elements of one name, which some viewers
/// paint.
QByteArray withoutClips(QByteArray file)
{
    for (int start = file.indexOf("<clipPath"); start >= 0; start = file.indexOf("<clipPath", start)) {
        const QByteArray end = "</clipPath>\n";
        const int found = file.indexOf(end, start);
        if (found < 0)
            break;
        file.remove(start, found + end.size() - start);
        const QByteArray use = "<g clip-path=";
        if (file.mid(start, use.size()) == use)
            file.replace(start, file.indexOf('>', start) - start, "<g");
    }
    return file;
}

GL2PSvertex toVertex(const WindowPrimitive::Vertex& vertex, double scale)
{
    GL2PSvertex result{};
    result.xyz[0] = float(double(vertex.place[0]) * scale);
    result.xyz[1] = float(double(vertex.place[1]) * scale);
    result.xyz[2] = vertex.place[2];
    std::copy(vertex.color.begin(), vertex.color.end(), result.rgba);
    return result;
}

QByteArray number(double value)
{
    return QByteArray::number(value, 'f', 4);
}

} // namespace

VectorPage::VectorPage(Format pageFormat, const QSize& pageSize, const QString& title, bool cull)
    : format(pageFormat), size(pageSize), stream(open_memstream(&written, &writtenSize))
{
    std::array<int, 4> viewport{0, 0, size.width(), size.height()};
    const int options = GL2PS_NO_OPENGL_CONTEXT | GL2PS_SILENT | GL2PS_NO_BLENDING |
                        GL2PS_SIMPLE_LINE_OFFSET | GL2PS_BEST_ROOT | (cull ? GL2PS_OCCLUSION_CULL : 0);
    failed = !stream || gl2psBeginPage(titleCode(format, title).constData(), "VORANPlot5", viewport.data(),
                                       gl2psFormat(format), GL2PS_NO_SORT, options, GL_RGBA, 0, nullptr, 0, 0,
                                       0, 0, stream, "") != GL2PS_SUCCESS;
}

VectorPage::~VectorPage()
{
    if (stream)
        finish();
    std::free(written);
}

void VectorPage::beginLayer(bool sorted)
{
    std::array<int, 4> viewport{0, 0, size.width(), size.height()};
    gl2psBeginViewport(viewport.data());
    gl2psSorting(sorted ? GL2PS_BSP_SORT : GL2PS_NO_SORT);
}

void VectorPage::endLayer()
{
    const int result = gl2psEndViewport();
    failed = failed || (result != GL2PS_SUCCESS && result != GL2PS_NO_FEEDBACK);
}

void VectorPage::add(const WindowPrimitive& primitive, double scale)
{
    std::array<GL2PSvertex, 3> vertices{};
    for (int i = 0; i < primitive.count; ++i)
        vertices[std::size_t(i)] = toVertex(primitive.vertices[std::size_t(i)], scale);
    if (primitive.count == 3 && format != Pdf)
        flatten(vertices);
    const bool dashed = primitive.stippleRepeat > 0 && primitive.stipple != 0xFFFF;
    const int repeat = dashed ? std::max(1, qRound(primitive.stippleRepeat * scale)) : 0;
    const short type = primitive.count == 1   ? GL2PS_POINT
                       : primitive.count == 2 ? GL2PS_LINE
                                              : GL2PS_TRIANGLE;
    // gl2ps draws lines opaque: one that is thinner by its transparency looks as light.
    const double opacity = primitive.count == 2 ? double(primitive.vertices[0].color[3]) : 1.0;
    gl2psAddPolyPrimitive(type, short(primitive.count), vertices.data(), 0, 0.0F, 0.0F,
                          dashed ? GLushort(primitive.stipple) : GLushort(0), repeat,
                          float(double(primitive.width) * scale * opacity), GL2PS_LINE_CAP_BUTT,
                          GL2PS_LINE_JOIN_MITER, 0);
}

void VectorPage::addRectangle(const QRectF& rectangle, const QColor& color)
{
    const std::array<float, 4> rgba{float(color.redF()), float(color.greenF()), float(color.blueF()),
                                    float(color.alphaF())};
    const auto corner = [&rgba](const QPointF& p) {
        return WindowPrimitive::Vertex{{float(p.x()), float(p.y()), 1.0F}, rgba};
    };
    WindowPrimitive triangle;
    triangle.count = 3;
    triangle.vertices = {corner(rectangle.topLeft()), corner(rectangle.topRight()),
                         corner(rectangle.bottomRight())};
    add(triangle, 1.0);
    triangle.vertices[1] = corner(rectangle.bottomLeft());
    add(triangle, 1.0);
}

void VectorPage::addImage(const QImage& spread)
{
    image = spread;
    const QByteArray width = QByteArray::number(size.width());
    const QByteArray height = QByteArray::number(size.height());
    if (format == Svg) {
        QBuffer png;
        png.open(QIODevice::WriteOnly);
        image.save(&png, "PNG");
        addCode("<image width=\"" + width + "\" height=\"" + height +
                "\" preserveAspectRatio=\"none\" xlink:href=\"data:image/png;base64," +
                png.data().toBase64() + "\"/>");
        return;
    }
    if (format == Pdf) {
        GL2PSvertex corner{};
        gl2psForceRasterPos(&corner);
        const std::array<float, 3> pixel{};
        gl2psDrawPixels(1, 1, 0, 0, GL_RGB, GL_FLOAT, pixel.data());
        return;
    }
    const QImage pixels = image.convertToFormat(QImage::Format_RGB888);
    QByteArray bytes;
    for (int y = 0; y < pixels.height(); ++y)
        bytes.append(reinterpret_cast<const char*>(pixels.constScanLine(y)), 3 * pixels.width());
    const QByteArray columns = QByteArray::number(pixels.width());
    const QByteArray rows = QByteArray::number(pixels.height());
    QByteArray hex = qCompress(bytes).mid(4).toHex();
    for (int i = 254; i < hex.size(); i += 255)
        hex.insert(i, '\n');
    addCode("gsave " + width + ' ' + height + " scale /DeviceRGB setcolorspace << /ImageType 1 /Width " +
            columns + " /Height " + rows + " /BitsPerComponent 8 /Decode [0 1 0 1 0 1] /ImageMatrix [" +
            columns + " 0 0 -" + rows + " 0 " + rows +
            "] /DataSource currentfile /ASCIIHexDecode filter /FlateDecode filter >> image\n" + hex +
            ">\ngrestore");
}

void VectorPage::addText(const QString& text, const QFont& font, double scale, const QColor& color,
                         const QPointF& centre, double angle)
{
    const QFontMetricsF metrics(font);
    const double fontSize = QFontInfo(font).pixelSize() * scale;
    QTransform toPage;
    toPage.translate(centre.x(), centre.y());
    toPage.rotate(-angle);
    // The middle of the line lies at the centre: half of what reaches above the baseline, less what reaches
    // below.
    const double baseline = (metrics.descent() - metrics.ascent()) / 2.0 * scale;
    const VectorFont standard(font);
    if (format == Svg) {
        const QPointF at = toPage.map(QPointF(0.0, baseline));
        addSvgText(text, font, fontSize, color, at, angle);
        return;
    }
    const QByteArray letters = format == Pdf ? VectorFont::macRoman(text) : VectorFont::ascii(text);
    if (letters.isEmpty()) {
        QPainterPath path;
        path.addText(-metrics.horizontalAdvance(text) / 2.0, 0.0, font, text);
        toPage.translate(0.0, baseline);
        toPage.scale(scale, -scale);
        addCode(pathCode(toPage.map(path), color));
        return;
    }
    const QPointF at = toPage.map(QPointF(-standard.width(letters) * fontSize / 2.0, baseline));
    const QByteArray shown = '(' + VectorFont::escaped(letters) + ')';
    if (format == Eps) {
        addCode("gsave " + colorCode(color) + number(at.x()) + ' ' + number(at.y()) + " translate " +
                number(-angle) + " rotate /" + standard.getName() + " findfont " + number(fontSize) +
                " scalefont setfont 0 0 moveto " + shown + " show grestore");
        return;
    }
    const QByteArray matrix = number(toPage.m11()) + ' ' + number(toPage.m12()) + ' ' + number(toPage.m21()) +
                              ' ' + number(toPage.m22()) + ' ' + number(at.x()) + ' ' + number(at.y());
    addCode("q " + colorCode(color) + "BT\n%F " + number(fontSize) + " Tf\n" + matrix + " Tm\n" + shown +
                " Tj\nET\nQ\n",
            standard.getName());
}

void VectorPage::addSvgText(const QString& text, const QFont& font, double fontSize, const QColor& color,
                            const QPointF& place, double angle)
{
    // gl2ps puts text and font into its element as they are. Sizes that are not whole numbers, weight and
    // slant go the same way.
    QString family =
        font.family().toHtmlEscaped() + "\" style=\"font-size:" + QString::number(fontSize, 'f', 3) + "px";
    if (font.weight() >= QFont::DemiBold)
        family += ";font-weight:bold";
    if (font.italic())
        family += ";font-style:italic";
    GL2PSvertex at{};
    at.xyz[0] = float(place.x());
    at.xyz[1] = float(place.y());
    gl2psForceRasterPos(&at);
    std::array<float, 4> rgba{float(color.redF()), float(color.greenF()), float(color.blueF()),
                              float(color.alphaF())};
    gl2psTextOptColor(text.toHtmlEscaped().toUtf8().constData(), family.toUtf8().constData(),
                      GLshort(std::max(1, qRound(fontSize))), GL2PS_TEXT_B, float(-angle), rgba.data());
}

QByteArray VectorPage::colorCode(const QColor& color) const
{
    return number(color.redF()) + ' ' + number(color.greenF()) + ' ' + number(color.blueF()) +
           (format == Pdf ? " rg " : " setrgbcolor ");
}

QByteArray VectorPage::pathCode(const QPainterPath& path, const QColor& color) const
{
    const bool pdf = format == Pdf;
    QByteArray code = (pdf ? "q " : "gsave newpath ") + colorCode(color);
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        code += number(element.x) + ' ' + number(element.y);
        if (element.isMoveTo())
            code += pdf ? " m\n" : " moveto\n";
        else if (element.isLineTo())
            code += pdf ? " l\n" : " lineto\n";
        else if (element.type == QPainterPath::CurveToDataElement &&
                 path.elementAt(i - 1).type == QPainterPath::CurveToDataElement)
            code += pdf ? " c\n" : " curveto\n";
        else
            code += ' ';
    }
    return code + (pdf ? "f Q\n" : "fill grestore");
}

void VectorPage::addCode(const QByteArray& code, const QByteArray& fontName)
{
    GL2PSvertex at{};
    gl2psForceRasterPos(&at);
    if (format == Pdf) {
        // gl2ps writes code of one's own twice into PDF files, and a name that it does not explain.
        gl2psTextOpt(PdfFile::mark(pieces.size()).constData(), fontName.constData(), 1, GL2PS_TEXT_BL, 0.0F);
        pieces.append(code);
        return;
    }
    gl2psSpecial(gl2psFormat(format), code.constData());
}

QByteArray VectorPage::completedPdf() const
{
    PdfFile pdf(QByteArray(written, int(writtenSize)));
    if (!pdf.isValid())
        return QByteArray();
    pdf.replaceMarks(pieces);
    if (!image.isNull())
        pdf.replaceImage(image, size);
    return pdf.file();
}

QByteArray VectorPage::finish()
{
    if (!stream)
        return QByteArray();
    const int result = gl2psEndPage();
    std::fclose(stream);
    stream = nullptr;
    if (failed || (result != GL2PS_SUCCESS && result != GL2PS_NO_FEEDBACK))
        return QByteArray();
    if (format == Pdf)
        return completedPdf();
    const QByteArray file(written, int(writtenSize));
    return format == Svg ? withoutClips(file) : file;
}

} // namespace Zel3D
