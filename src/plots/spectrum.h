#pragma once

#include "core/spectrumdata.h"
#include "plots/baseplot.h"

#include <QList>

#include <cmath>

namespace Zel3D {

class SheetPolygons;

/// The plot widget for families of spectra: curves that stand side by side like the pages of an open book.
///
/// Plot styles: 0 no plot, 1 points, 2 lines, 3 filled, 4 filled and frame; -1 is the style addition alone. A
/// value that is not finite is a hole: the curve is interrupted there. Filled sheets stand on the base line,
/// the height 0 of what is drawn; where z is logarithmic, that is the value 1. The resolution thins the
/// points of a spectrum, never the spectra.
///
/// \code
/// Zel3D::Spectrum plot("plot", "My company", "My program");
/// plot.setGradient("Blue to red", gradient);
/// plot.setPlotStyle(3);
/// plot.loadFromData({{1.0, {{900.0, 0.1}, {902.0, 0.3}}}}, Zel3D::YAxis);
/// plot.show();
/// \endcode
class VORANPLOT_EXPORT Spectrum : public BasePlot
{
    Q_OBJECT
    Q_PROPERTY(Style plotStyle READ getStyle WRITE writeStyle)
public:
    /// What plotStyle shows of the data.
    enum Style : int { NoPlot, Points, Lines, Filled, FilledFrame };
    Q_ENUM(Style)

    /// For forms: takes the names of the application for its settings; the object name may follow.
    explicit Spectrum(QWidget* parent = nullptr);
    /// In which order the spectra are drawn, by their position.
    enum SpectrumOrder { Ascending = 0, Descending = 1 };
    using Entry = SpectrumData::Map::const_iterator;

    Spectrum(const QString& name, const QString& organization, const QString& application,
             QWidget* parent = nullptr, const QGLWidget* shareWidget = nullptr, Qt::WindowFlags flags = {});
    ~Spectrum() override;

    /// Loads spectra: the outer key is the position of a spectrum along \a axis, XAxis or YAxis, the inner
    /// key the position along the other horizontal axis, the inner value the height z. The map is copied. An
    /// empty map empties the plot.
    ///
    /// False, with a warning that says what is wrong, and the plot unchanged: for another axis, a key that is
    /// not finite, or a map too large for memory. Points at or below zero in a logarithmic direction are
    /// missing.
    bool loadFromData(const std::map<double, std::map<double, double>>& spectra, BaseAxisType axis);

    /// The spectra as drawn: exponents in logarithmic directions.
    const SpectrumData* getSpectrumData() const { return spectrumData.get(); }

    /// Any other kind than spectra, 2, empties the plot.
    void updateDataType(int type) override;
    void clearData() override;

public slots:
    /// Opens the settings dialog, or raises the one that is open already. Returns when it is closed; the plot
    /// may have been deleted then.
    void slotSettingsDialog() override;

protected:
    void changeEvent(QEvent* event) override;
    void createPlotStyleActions() override;
    void calculateHull() override;
    void createData() override;
    bool isGeometryInput(GeometryInput input) const override;
    void createNormals() override; ///< spectra have none
    void createAddition(Addition& addition) override;
    /// What is picked: the markers of the style, or the points of lines and sheets.
    void selectData() override;
    void selectAddition(Addition& addition) override;
    int getNumberSelectedData() override;
    int getNumberSelectedAddition(Addition& addition) override;
    std::unique_ptr<PickPoints> createPickPoints() const override;

    /// Calls \a visit(const QVector3D&) for every point that a marker stands at, in ascending order: each
    /// spectrum's first point and every one a resolution step further, where it is drawn, without holes.
    template <class Visit>
    void visitPoints(const Visit& visit) const;

    /// What the operations below draw, by the plot style.
    void createSpectrumData();
    /// Both sides of the sheets come from both orders, drawn with opposite front faces.
    void drawSpectrum(SpectrumOrder order);
    void drawGradientSpectrum(SpectrumOrder order);
    /// The area between a curve and the base line, each piece in one polygon.
    void drawOneSpectrum(Entry spectrum);
    /// The same area cut at the stops of the gradient.
    void drawOneGradientSpectrum(Entry spectrum);
    /// The curve as black lines.
    void drawSpectrumFrame(Entry spectrum);
    /// A convex polygon of placed points, each in its data colour.
    void drawPolygon(const QList<QVector3D>& points);

private:
    Style getStyle() const { return static_cast<Style>(getPlotStyle()); }
    void writeStyle(Style style) { writePlotStyle(style); }

    using Values = std::map<double, double>;

    SpectrumData::Map toExponents(const SpectrumData::Map& spectra, BaseAxisType axis, int& lost) const;
    /// Moves the positions where that keeps their detail; see setDataCentred(). Returns what was subtracted.
    ValueXYZ<double> moveOrigin(SpectrumData::Map& spectra, BaseAxisType axis) const;
    /// The step of the markers; below 1 there are none.
    int markerStep() const;
    /// The step of curves and sheets; a stored resolution below 1 counts as 1.
    int pointStep() const;
    static void advance(Values::const_iterator& point, const Values& values, int step);
    QVector3D place(double outer, double position, double height) const;
    template <class Draw>
    void drawSheets(SpectrumOrder order, bool clockwise, const Draw& drawOne);
    template <class Visit>
    void visitPairs(const Values& values, const Visit& visit) const;
    void drawMarkers(Addition* addition);
    /// Calls \a use with the marker by which the data are picked, if there is one.
    template <class Use>
    void withPickMarker(const Use& use);
    int countPickPoints() const;
    void drawLine(Entry spectrum);
    std::vector<double> stopLevels() const;
    /// The area under a curve, cut at the stops and coloured.
    SheetPolygons cutSheet(Entry spectrum) const;

    std::unique_ptr<SpectrumData> spectrumData;
    /// Of the spectra that were cut, while the sheets are drawn in both orders; otherwise null.
    std::unique_ptr<std::map<const Values*, SheetPolygons>> sheets;
};

template <class Visit>
void Spectrum::visitPoints(const Visit& visit) const
{
    const int step = markerStep();
    if (step < 1 || !getData() || getData() != spectrumData.get())
        return;
    for (const auto& [outer, values] : spectrumData->getSpectrum()) {
        for (auto point = values.begin(); point != values.end(); advance(point, values, step)) {
            if (std::isfinite(point->second))
                visit(place(outer, point->first, point->second));
        }
    }
}

} // namespace Zel3D
