#pragma once

#include <QLocale>
#include <QPair>
#include <QString>
#include <QVector>

class PlotValues;
class ValueStatistics;

/// What there is to say about the values of a plot, as lines of a name and a text.
class DataSummary
{
public:
    using Line = QPair<QString, QString>;

    /// The numbers as the locale writes them.
    static QVector<Line> lines(const PlotValues& values, const ValueStatistics& statistics,
                               const QLocale& locale);
    /// A number with as many digits as a person reads.
    static QString number(double value, const QLocale& locale);
};
