#pragma once

#include <QApplication>
#include <QString>

namespace Zel3D {
class BasePlot;
}

/// What the examples share: the application and its command line.
///
/// `surface` shows a window; `surface --picture FILE [--size WIDTHxHEIGHT]` draws the window once, writes it
/// as a PNG file and ends.
class Example
{
public:
    Example(int& argc, char* argv[]);

    /// The file that the command line names, otherwise one of examples/data.
    QString file(const QString& usual) const;
    /// Shows the window until it is closed, or takes its picture. Returns the exit status.
    int run(QWidget& window, const QSize& usualSize = QSize(800, 600));
    /// Lights a plot from the upper left, no more than the colours of the legend bear.
    static void light(Zel3D::BasePlot& plot);
    /// Writes why the example cannot go on. Returns the exit status.
    static int refuse(const QString& sentence);

private:
    QApplication application;
    QString wantedFile;
    QString picture;
    QString size;
};
