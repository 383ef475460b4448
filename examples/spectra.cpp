// A family of spectra from a CSV file: a row of wavelengths, then a row a sample. Usage: spectra [FILE]

#include "example.h"
#include "plots/look.h"
#include "plots/spectrum.h"
#include "scene/coordinatesystem.h"

#include <QFile>

namespace {

using Spectra = std::map<double, std::map<double, double>>;

/// Empty, or what is wrong with the file.
QString readSpectra(QFile& file, Spectra& spectra)
{
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return file.errorString();
    const QList<QByteArray> wavelengths = file.readLine().trimmed().split(',');
    for (int line = 2; !file.atEnd(); ++line) {
        const QList<QByteArray> values = file.readLine().trimmed().split(',');
        if (values.size() != wavelengths.size())
            return QString("line %1 has not one value a wavelength").arg(line);
        std::map<double, double>& spectrum = spectra[values.first().toDouble()];
        bool fine = true;
        for (int i = 1; i < values.size() && fine; ++i)
            spectrum[wavelengths[i].toDouble()] = values[i].toDouble(&fine);
        if (!fine)
            return QString("line %1 has something that is not a number").arg(line);
    }
    return spectra.empty() ? QString("there are no spectra") : QString();
}

} // namespace

int main(int argc, char* argv[])
{
    Example example(argc, argv);

    Spectra spectra;
    QFile file(example.file("gasoline_nir.csv"));
    if (const QString fault = readSpectra(file, spectra); !fault.isEmpty())
        return Example::refuse(QString("%1: %2.").arg(file.fileName(), fault));

    Zel3D::Spectrum plot("spectra", "My company", "My program");
    Zel3D::Look::light().applyTo(plot);
    plot.setKeepProportions(true);
    plot.setPlotStyle(3); // filled
    plot.slotSetTitle("Near-infrared spectra of gasoline");
    plot.getCoordinateSystem().setAxisNames("Wavelength (nm)", "Sample", "log 1/R");
    plot.loadFromData(spectra, Zel3D::YAxis);                           // samples stand along y
    plot.setFixedHull({{900.0F, 0.0F, -0.2F}, {1700.0F, 60.0F, 1.4F}}); // round numbers on the axes
    plot.setMajorInterval(Zel3D::XAxis, Zel3D::Linear, 4);
    plot.setMajorInterval(Zel3D::YAxis, Zel3D::Linear, 6);
    plot.setMajorInterval(Zel3D::ZAxis, Zel3D::Linear, 8);
    plot.fitView(0.8);
    return example.run(plot);
}
