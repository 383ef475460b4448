#pragma once

#include "core/types.h"

#include <QColor>
#include <QFile>
#include <QFont>
#include <QMap>
#include <QPointF>
#include <QRegularExpression>
#include <QStringList>
#include <QVariant>
#include <QVector3D>
#include <QVector>

// The tables of the manual's pages and the values that are written in them.

namespace manual {

/// The cells of the rows below a heading row whose first cell is \a firstHeading; backquotes are taken off.
inline QVector<QStringList> table(const QString& page, const QString& firstHeading)
{
    QFile file(QStringLiteral(VORAN_SOURCE_DIR "/docs/manual/") + page);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<QStringList> rows;
    bool inside = false;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        if (!line.startsWith('|')) {
            inside = false;
            continue;
        }
        QStringList cells;
        for (const QString& cell : line.mid(1).split('|'))
            cells.append(cell.trimmed().remove('`'));
        if (inside && !cells.first().startsWith("---"))
            rows.append(cells);
        inside = inside || cells.first() == firstHeading;
    }
    return rows;
}

/// The keys that a template stands for: every placeholder is replaced by each of its values.
inline QStringList expanded(const QString& key)
{
    const auto numbers = [](const QString& format, int count) {
        QStringList all;
        for (int i = 0; i < count; ++i)
            all.append(format.arg(i));
        return all;
    };
    const QStringList edges = numbers("axis%1", 12);
    const QMap<QString, QStringList> placeholders = {
        {"%0", {"plot"}},
        {"AXIS", edges + QStringList{"legend/axis"}},
        {"EDGE", edges},
        {"LIGHT", numbers("light%1", 8)},
        {"DIRECTION", numbers("axis%1", 3)},
        {"SCALE", numbers("scale%1", 2)},
        {"NAME", {"warm"}},
        {"STOP", numbers("%1", 2)},
    };
    QStringList keys{key};
    for (auto it = placeholders.cbegin(); it != placeholders.cend(); ++it) {
        QStringList replaced;
        for (const QString& each : qAsConst(keys)) {
            if (!each.split('/').contains(it.key())) {
                replaced.append(each);
                continue;
            }
            for (const QString& value : it.value())
                replaced.append(QString("/%1/").arg(each).replace("/" + it.key() + "/", "/" + value + "/"));
        }
        keys.clear();
        for (const QString& each : qAsConst(replaced))
            keys.append(each.startsWith('/') ? each.mid(1, each.size() - 2) : each);
    }
    return keys;
}

/// How the pages name a type.
inline QString typeName(const QVariant& value)
{
    const QMap<int, QString> names = {
        {QMetaType::Bool, "bool"},        {QMetaType::Int, "int"},      {QMetaType::UInt, "uint"},
        {QMetaType::Double, "double"},    {QMetaType::QString, "text"}, {QMetaType::QStringList, "texts"},
        {QMetaType::QColor, "color"},     {QMetaType::QFont, "font"},   {QMetaType::QPointF, "point"},
        {QMetaType::QVector3D, "vector"},
    };
    return names.value(value.userType());
}

/// How the pages write a value.
inline QString text(const QVariant& value)
{
    const auto number = [](double d) { return QString::number(d, 'g', 6); };
    switch (value.userType()) {
    case QMetaType::Double:
        return number(value.toDouble());
    case QMetaType::QString:
        return value.toString().isEmpty() ? QString("empty") : value.toString();
    case QMetaType::QStringList:
        return value.toStringList().isEmpty() ? QString("empty") : value.toStringList().join(", ");
    case QMetaType::QColor:
        return value.value<QColor>().name(QColor::HexArgb);
    case QMetaType::QFont:
        return QString("%1 %2").arg(value.value<QFont>().family()).arg(value.value<QFont>().pointSize());
    case QMetaType::QPointF:
        return QString("(%1, %2)").arg(number(value.toPointF().x()), number(value.toPointF().y()));
    case QMetaType::QVector3D: {
        const auto v = value.value<QVector3D>();
        return QString("(%1, %2, %3)")
            .arg(number(double(v.x())), number(double(v.y())), number(double(v.z())));
    }
    default:
        return value.toString();
    }
}

} // namespace manual
