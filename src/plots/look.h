#pragma once

#include "core/export.h"

#include <QColor>
#include <QFont>
#include <QGradient>
#include <QList>
#include <QString>

namespace Zel3D {

class BasePlot;

/// A named bundle of appearance that makes a plot readable with one call: axes with lines, ticks and numbers,
/// a grid on the planes behind the data, a legend with its scale, fonts, background and gradient.
///
/// A plain value: take one of the looks of the library, change what should differ, apply it. What a look
/// sets, it sets through the public setters of the plot and its parts; data, view, titles and axis names stay
/// as they are.
///
/// \code
/// Zel3D::Look::light().applyTo(plot);
/// \endcode
struct VORANPLOT_EXPORT Look
{
    /// Black on white with a blue to yellow gradient, for the screen.
    static Look light();
    /// Light grey on dark grey.
    static Look dark();
    /// Black on white with heavier lines and larger texts, and a gradient that stays ordered in shades of
    /// grey.
    static Look print();
    /// The looks of the library.
    static QList<Look> all();

    /// The name for people, in their language; a name of one's own as it is.
    QString getTitle() const;
    /// Changes the plot's appearance; the next paint shows it.
    void applyTo(BasePlot& plot) const;

    QString name; ///< the same in every language, for stores and command lines
    QColor background;
    QColor ink; ///< axis lines, ticks, arrows and texts
    QColor gridColor;
    QColor meshColor;
    double lineWidth = 1.0; ///< pixels, of the axis lines
    int gridStyle = 0;      ///< a set of Grid bits
    bool arrows = false;    ///< at the ends of the axes
    int majorInterval = 5;  ///< major intervals of every axis and of the legend
    int minorInterval = 2;  ///< minor intervals in a major one
    QFont titleFont;
    QFont nameFont;       ///< of the axis names
    QFont numberFont;     ///< of the numbers on axes and legend
    QString gradientName; ///< the name under which the plot keeps the gradient
    QLinearGradient gradient;
};

} // namespace Zel3D
