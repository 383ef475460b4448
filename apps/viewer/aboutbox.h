#pragma once

#include <QCoreApplication>

class QWidget;

namespace Zel3D {
class BasePlot;
}

/// Says what the program is and, for reports of faults, what it runs with. The texts can be copied.
class AboutBox
{
    Q_DECLARE_TR_FUNCTIONS(AboutBox)
public:
    /// Opens the box over a window, which owns it and waits until it is closed. \a plot tells which OpenGL
    /// draws; null leaves that out.
    static void open(QWidget& window, Zel3D::BasePlot* plot);

private:
    static QString driverOf(Zel3D::BasePlot& plot);
};
