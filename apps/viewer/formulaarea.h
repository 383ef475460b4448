#pragma once

#include <QString>

/// Where a formula is evaluated: nodes at equal steps over a range of x and y, its ends included.
struct FormulaArea
{
    double xMin = -1.0;
    double xMax = 1.0;
    double yMin = -1.0;
    double yMax = 1.0;
    int columns = 100;
    int rows = 100;

    /// Sets the range from "-3:3,-2:2", from "x=-3..3,y=-2..2" or a part of it, or from "-3:3" for both axes.
    /// The ends are numbers or formulas of constants, such as 2*pi. False when that fails: the range is as it
    /// was and \a error says why, in one sentence.
    bool setRange(const QString& text, QString& error);
    /// Sets columns and rows from "200x100", or from "200" for both. False as with setRange().
    bool setMesh(const QString& text, QString& error);
};
