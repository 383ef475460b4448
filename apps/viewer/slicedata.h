#pragma once

#include "plotvalues.h"

#include <QByteArray>
#include <QVector>

#include <vector>

/// One curve through a picked point: the values of its row or of its column.
struct SliceData
{
    /// z over x along the row of a place: the picked spectrum, too.
    static SliceData row(const PlotValues& values, const ValuePlace& place);
    /// z over y along the column of a place.
    static SliceData column(const PlotValues& values, const ValuePlace& place);
    /// Columns side by side, a head line first, in CSV: commas, decimal points, nothing for a missing value.
    static QByteArray csv(const PlotValues& values, const QVector<SliceData>& slices);

    std::vector<double> at;    ///< x or y of the points
    std::vector<double> value; ///< z of the points; NaN is missing
    int picked = -1;           ///< the index of the picked point
    QString atName;
    QString valueName;
    QString otherName;  ///< what stays the same along the curve
    double other = 0.0; ///< its value
    bool atLogarithmic = false;
    bool valueLogarithmic = false;
    bool alongRow = true;
};
