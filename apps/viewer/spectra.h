#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <map>

/// A family of spectra, as a spectrum plot takes it.
struct Spectra
{
    /// Position of a spectrum; within it the positions of its values. A missing value is NaN.
    std::map<double, std::map<double, double>> map;
    QStringList names;    ///< what the file calls the spectra, in the order of the map
    QVector<int> lines;   ///< the line, from 1, where the first value of a spectrum stands, in the same order
    QString spectraLabel; ///< what the positions of the spectra are
    QString positionLabel; ///< what the positions within a spectrum are, or empty
    QStringList notes;     ///< sentences on what was understood or changed while reading
};
