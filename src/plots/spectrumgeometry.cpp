// What the spectrum plot sends for each plot style: markers, lines, sheets and their frames.

#include "core/colorlookup.h"
#include "core/datacolor.h"
#include "core/gradientstops.h"
#include "core/spectrumbands.h"
#include "core/tofloat.h"
#include "plots/addition.h"
#include "plots/baseplotsettings.h"
#include "plots/blendscope.h"
#include "plots/markerscope.h"
#include "plots/sheetpolygons.h"
#include "plots/spectrum.h"
#include "scene/basedraw.h"
#include "view/glmode.h"
#include "view/opengl.h"

#include <algorithm>
#include <array>

namespace Zel3D {

namespace {

enum PlotStyle { CustomMarkers = -1, NoPlot = 0, Points = 1, Lines = 2, Filled = 3, FilledAndFrame = 4 };

void sendVertex(const QVector3D& p)
{
    glVertex3d(double(p.x()), double(p.y()), double(p.z()));
}

/// A point in its data colour.
void sendPoint(const ColorLookup& color, const QVector3D& p)
{
    const ColorChannels c = color(p);
    glColor4d(c[0], c[1], c[2], c[3]);
    sendVertex(p);
}

/// The colours of the heights met last: neighbouring bands share most of theirs.
class RecentColors
{
public:
    explicit RecentColors(const DataColor& coloring) : color(coloring) {}

    const ColorChannels& at(const QVector3D& p)
    {
        if (color.isByHeight()) {
            for (std::size_t i = 0; i < known; ++i) {
                if (heights[i] == p.z())
                    return colors[i];
            }
        }
        oldest = (oldest + 1) % heights.size();
        known = std::max(known, oldest + 1);
        heights[oldest] = p.z();
        colors[oldest] = color(p);
        return colors[oldest];
    }

private:
    const ColorLookup color;
    std::array<float, 4> heights{};
    std::array<ColorChannels, 4> colors{};
    std::size_t known = 0;
    std::size_t oldest = 3;
};

void sendPoint(RecentColors& colors, const QVector3D& p)
{
    const ColorChannels& c = colors.at(p);
    glColor4d(c[0], c[1], c[2], c[3]);
    sendVertex(p);
}

/// The levels at which the colour jumps, because several stops lie there: a band takes the colours of its own
/// side.
class Jumps
{
public:
    explicit Jumps(const std::vector<double>& levels)
    {
        for (std::size_t i = 1; i < levels.size(); ++i) {
            if (levels[i] == levels[i - 1])
                jumps.push_back(levels[i]);
        }
    }
    /// The height of a corner, moved into the band by the least amount where its edge is a jump.
    float inside(const SpectrumBands::Band& band, double height) const
    {
        const float plain = toFloat(height);
        if (jumps.empty() || !std::binary_search(jumps.begin(), jumps.end(), height))
            return plain;
        if (height == band.lower)
            return std::nextafter(plain, toFloat(band.upper));
        return height == band.upper ? std::nextafter(plain, toFloat(band.lower)) : plain;
    }

private:
    std::vector<double> jumps;
};

} // namespace

int Spectrum::markerStep() const
{
    return getSettings().getResolution();
}

int Spectrum::pointStep() const
{
    return std::max(getSettings().getResolution(), 1);
}

void Spectrum::advance(Values::const_iterator& point, const Values& values, int step)
{
    for (int i = 0; i < step && point != values.end(); ++i)
        ++point;
}

QVector3D Spectrum::place(double outer, double position, double height) const
{
    const float a = toFloat(outer);
    const float b = toFloat(position);
    return spectrumData->getAxis() == YAxis ? QVector3D(b, a, toFloat(height))
                                            : QVector3D(a, b, toFloat(height));
}

// Calls visit(from, to) for neighbouring points of the thinned curve; holes interrupt it.
template <class Visit>
void Spectrum::visitPairs(const Values& values, const Visit& visit) const
{
    const int step = pointStep();
    bool started = false;
    CurvePoint from;
    for (auto point = values.begin(); point != values.end(); advance(point, values, step)) {
        const CurvePoint to{point->first, point->second};
        const bool whole = std::isfinite(to.height);
        if (started && whole)
            visit(from, to);
        from = to;
        started = whole;
    }
}

void Spectrum::createData()
{
    if (getData() && getData() == spectrumData.get())
        createSpectrumData();
}

bool Spectrum::isGeometryInput(GeometryInput input) const
{
    const int style = getSettings().getStyle();
    // A marker may use anything of its plot.
    if (style == CustomMarkers)
        return true;
    if (input == StrokeScaleInput)
        return style != NoPlot;
    if (input == DotInput)
        return style == Points;
    return input == MeshWidthInput && style >= Lines;
}

void Spectrum::createNormals() {}

void Spectrum::createAddition(Addition& addition)
{
    if (!getData() || addition.type() != 0)
        return;
    const MarkerScope drawing(*this, addition);
    visitPoints([&](const QVector3D& p) { addition.draw(p); });
}

void Spectrum::createSpectrumData()
{
    const int style = getSettings().getStyle();
    if (!canDrawData() || style == NoPlot)
        return;
    if (style == CustomMarkers) {
        if (heldStyleAddition())
            createAddition(*heldStyleAddition());
        return;
    }
    if (style == Points) {
        createAddition(settingsRecord().getDot());
        return;
    }
    const GLMode offset(GL_POLYGON_OFFSET_FILL, true, false);
    glPolygonOffset(float(getSettings().getPolygonOffset()), 1.0F);
    const GLMode smooth(GL_LINE_SMOOTH, getSettings().getMesh().isSmooth(), false);
    const BlendScope blending;
    BaseDraw::setGLLineWidth(float(getSettings().getMesh().getLineWidth()));
    // Spectra have no normals; markers drawn before must not light them with theirs.
    glNormal3d(0.0, 0.0, 1.0);
    if (style == Lines) {
        const SpectrumData::Map& spectra = spectrumData->getSpectrum();
        for (Entry spectrum = spectra.begin(); spectrum != spectra.end(); ++spectrum)
            drawLine(spectrum);
    } else if (style == Filled || style == FilledAndFrame) {
        // A smooth line, as the frame and an area without height are, is blended at its edges.
        const bool linesBlend = style == FilledAndFrame || getSettings().getMesh().isSmooth();
        const OpaqueScope unblended(!linesBlend && ColorLookup(*getDataColor()).isOpaque());
        const bool oneColor = gradientStops(getDataColor()->getGradient()).size() == 1;
        sheets = std::make_unique<std::map<const Values*, SheetPolygons>>();
        for (const SpectrumOrder order : {Ascending, Descending}) {
            if (oneColor)
                drawSpectrum(order);
            else
                drawGradientSpectrum(order);
        }
        sheets.reset();
    }
}

void Spectrum::drawLine(Entry spectrum)
{
    const auto& [outer, values] = *spectrum;
    const int step = pointStep();
    const ColorLookup color(*getDataColor());
    bool drawing = false;
    const auto setDrawing = [&drawing](bool on) {
        if (on && !drawing)
            glBegin(GL_LINE_STRIP);
        if (!on && drawing)
            glEnd();
        drawing = on;
    };
    for (auto point = values.begin(); point != values.end(); advance(point, values, step)) {
        setDrawing(std::isfinite(point->second));
        if (drawing)
            sendPoint(color, place(outer, point->first, point->second));
    }
    setDrawing(false);
}

// Culling shows one side of the sheets in each order.
template <class Draw>
void Spectrum::drawSheets(SpectrumOrder order, bool clockwise, const Draw& drawOne)
{
    const bool frame = getSettings().getStyle() == FilledAndFrame;
    const SpectrumData::Map& spectra = spectrumData->getSpectrum();
    const auto draw = [&](Entry spectrum) {
        drawOne(spectrum);
        if (frame)
            drawSpectrumFrame(spectrum);
    };
    glEnable(GL_CULL_FACE);
    glFrontFace(clockwise ? GL_CW : GL_CCW);
    if (order == Ascending) {
        for (Entry spectrum = spectra.begin(); spectrum != spectra.end(); ++spectrum)
            draw(spectrum);
    } else {
        for (Entry spectrum = spectra.end(); spectrum != spectra.begin();)
            draw(--spectrum);
    }
    glDisable(GL_CULL_FACE);
}

void Spectrum::drawSpectrum(SpectrumOrder order)
{
    const bool along = spectrumData->getAxis() == YAxis;
    drawSheets(order, (order == Ascending) == along, [this](Entry spectrum) { drawOneSpectrum(spectrum); });
}

void Spectrum::drawGradientSpectrum(SpectrumOrder order)
{
    const bool along = spectrumData->getAxis() == YAxis;
    drawSheets(order, (order == Ascending) != along,
               [this](Entry spectrum) { drawOneGradientSpectrum(spectrum); });
}

void Spectrum::drawOneSpectrum(Entry spectrum)
{
    const double outer = spectrum->first;
    RecentColors color(*getDataColor());
    const auto send = [&](double position, double height) {
        sendPoint(color, place(outer, position, height));
    };
    visitPairs(spectrum->second, [&](const CurvePoint& from, const CurvePoint& to) {
        if (!SpectrumBands::crosses(from, to)) {
            glBegin(GL_POLYGON);
            send(from.position, 0.0);
            send(from.position, from.height);
            send(to.position, to.height);
            send(to.position, 0.0);
            glEnd();
        } else if (!isZero(from.height - to.height, 0.0)) {
            const double middle = SpectrumBands::crossing(from, to);
            glBegin(GL_TRIANGLES);
            send(from.position, 0.0);
            send(from.position, from.height);
            send(middle, 0.0);
            send(middle, 0.0);
            send(to.position, to.height);
            send(to.position, 0.0);
            glEnd();
        }
    });
}

// In single precision, as the box is, so that the highest point lies at the last level.
std::vector<double> Spectrum::stopLevels() const
{
    const auto bottom = double(getHull().minimum.z());
    const auto top = double(getHull().maximum.z());
    std::vector<double> levels;
    if (!(bottom < top))
        return levels;
    for (const QGradientStop& stop : gradientStops(getDataColor()->getGradient()))
        levels.push_back(double(toFloat(bottom + stop.first * (top - bottom))));
    return levels;
}

SheetPolygons Spectrum::cutSheet(Entry spectrum) const
{
    const double outer = spectrum->first;
    RecentColors color(*getDataColor());
    const std::vector<double> levels = stopLevels();
    const SpectrumBands bands(levels);
    const Jumps jumps(levels);
    SheetPolygons sheet;
    sheet.reserve(spectrum->second.size() / std::size_t(pointStep()));
    const auto add = [&](double position, double height) {
        const QVector3D p = place(outer, position, height);
        sheet.add(color.at(p), p);
    };
    const auto rounded = [](const CurvePoint& p) {
        return CurvePoint{p.position, double(toFloat(p.height))};
    };
    visitPairs(spectrum->second, [&](const CurvePoint& from, const CurvePoint& to) {
        if (from.height == 0.0 && to.height == 0.0) {
            sheet.begin(GL_LINES);
            add(from.position, 0.0);
            add(to.position, 0.0);
            return;
        }
        bands.cut(rounded(from), rounded(to), [&](const SpectrumBands::Band& band) {
            sheet.begin(GL_POLYGON);
            for (std::size_t i = 0; i < band.count; ++i) {
                const CurvePoint& corner = band.corners[i];
                add(corner.position, double(jumps.inside(band, corner.height)));
            }
        });
    });
    return sheet;
}

void Spectrum::drawOneGradientSpectrum(Entry spectrum)
{
    if (!sheets) {
        cutSheet(spectrum).send();
        return;
    }
    SheetPolygons& sheet = (*sheets)[&spectrum->second];
    if (sheet.isEmpty())
        sheet = cutSheet(spectrum);
    sheet.send();
}

void Spectrum::drawPolygon(const QList<QVector3D>& points)
{
    const ColorLookup color(*getDataColor());
    glBegin(GL_POLYGON);
    for (const QVector3D& p : points)
        sendPoint(color, p);
    glEnd();
}

void Spectrum::drawSpectrumFrame(Entry spectrum)
{
    const double outer = spectrum->first;
    const auto send = [&](const CurvePoint& point) {
        sendVertex(place(outer, point.position, point.height));
    };
    glColor4d(0.0, 0.0, 0.0, 1.0);
    glBegin(GL_LINES);
    visitPairs(spectrum->second, [&](const CurvePoint& from, const CurvePoint& to) {
        send(from);
        send(to);
    });
    glEnd();
}

} // namespace Zel3D
