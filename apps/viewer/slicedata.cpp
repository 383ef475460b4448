#include "slicedata.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(SliceData)
};

/// As CSV holds a text that may have commas.
QByteArray field(const QString& text)
{
    if (!text.contains(',') && !text.contains('"') && !text.contains('\n'))
        return text.toUtf8();
    QString quoted = text;
    quoted.replace('"', "\"\"");
    return ('"' + quoted + '"').toUtf8();
}

SliceData along(const PlotValues& values, const ValuePlace& place, bool row)
{
    SliceData slice;
    slice.alongRow = row;
    const Zel3D::BaseAxisType moving = row ? Zel3D::XAxis : Zel3D::YAxis;
    const Zel3D::BaseAxisType fixed = row ? Zel3D::YAxis : Zel3D::XAxis;
    slice.atName = values.name(moving);
    slice.valueName = values.name(Zel3D::ZAxis);
    slice.otherName = values.name(fixed);
    slice.other = row ? values.y(place.column, place.row) : values.x(place.column, place.row);
    slice.atLogarithmic = values.isLogarithmic(moving);
    slice.valueLogarithmic = values.isLogarithmic(Zel3D::ZAxis);
    const int count = row ? values.columns() : values.rows();
    slice.at.reserve(std::size_t(count));
    slice.value.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        const ValuePlace now = row ? ValuePlace{i, place.row} : ValuePlace{place.column, i};
        if (!values.exists(now.column, now.row))
            continue;
        if (now == place)
            slice.picked = int(slice.at.size());
        slice.at.push_back(row ? values.x(now.column, now.row) : values.y(now.column, now.row));
        slice.value.push_back(values.value(now.column, now.row));
    }
    return slice;
}

} // namespace

SliceData SliceData::row(const PlotValues& values, const ValuePlace& place)
{
    return along(values, place, true);
}

SliceData SliceData::column(const PlotValues& values, const ValuePlace& place)
{
    return along(values, place, false);
}

QByteArray SliceData::csv(const PlotValues& values, const QVector<SliceData>& slices)
{
    QByteArray text;
    std::size_t length = 0;
    for (const SliceData& slice : slices) {
        const QString head = values.isRectangular() ? Words::tr("%1 at %2 = %3")
                                                          .arg(slice.valueName, slice.otherName,
                                                               QString::fromLatin1(values.exact(slice.other)))
                                                    : slice.valueName;
        text += (text.isEmpty() ? "" : ",") + field(slice.atName) + ',' + field(head);
        length = std::max(length, slice.at.size());
    }
    text += '\n';
    for (std::size_t i = 0; i < length; ++i) {
        QByteArray line;
        for (const SliceData& slice : slices) {
            const bool there = i < slice.at.size();
            line += (&slice == &slices.first() ? "" : ",");
            line += there ? values.exact(slice.at[i]) : QByteArray();
            line += ',';
            line += there ? values.exact(slice.value[i]) : QByteArray();
        }
        text += line + '\n';
    }
    return text;
}
