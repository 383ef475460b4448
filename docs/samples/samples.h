#pragma once

#include <QColor>
#include <QString>

class QImage;
class QMainWindow;
class QTimer;

namespace Zel3D {
class BasePlot;
class SHPlot;
class Spectrum;
} // namespace Zel3D

/// The code samples of the manual. A test runs them.
namespace samples {

// data.cpp
bool heights(Zel3D::SHPlot& plot);
bool points(Zel3D::SHPlot& plot);
bool cells(Zel3D::SHPlot& plot);
bool spectra(Zel3D::Spectrum& plot);
bool parametric(Zel3D::SHPlot& plot);
bool logarithmic(Zel3D::SHPlot& plot, double** z, unsigned int columns, unsigned int rows);
void water(Zel3D::SHPlot& plot, QTimer& timer);

// languages.cpp
QString inFrench();

// axes.cpp
void names(Zel3D::BasePlot& plot);
void divisions(Zel3D::BasePlot& plot);
void edges(Zel3D::BasePlot& plot);
void box(Zel3D::BasePlot& plot);
void legend(Zel3D::BasePlot& plot);

// colours.cpp
void gradient(Zel3D::BasePlot& plot);
bool preset(Zel3D::BasePlot& plot, const QString& name);
void range(Zel3D::BasePlot& plot);
void light(Zel3D::BasePlot& plot);
void look(Zel3D::BasePlot& plot);

// owncolouring.cpp
void colourByDistance(Zel3D::SHPlot& plot);

// picking.cpp
void picking(Zel3D::BasePlot& plot, QString& last);
void gestures(Zel3D::BasePlot& plot);

// embedding.cpp
Zel3D::SHPlot* window(QMainWindow& window);
Zel3D::SHPlot* dock(QMainWindow& window);
void closeOnPick(Zel3D::BasePlot& plot);

// saving.cpp
void keep(Zel3D::BasePlot& plot);
void bringBack(Zel3D::BasePlot& plot);

// pictures.cpp
QImage screenshot(Zel3D::SHPlot& plot, const QString& path);

// ownaddition.cpp
void crosses(Zel3D::SHPlot& plot, double size, const QColor& color);

// ownpage.cpp
void addPage(Zel3D::BasePlot& plot);

} // namespace samples
