#include "settings/field.h"

#include <QCoreApplication>
#include <QLocale>

namespace Zel3D {

namespace {

Field make(Field::Kind kind, const QString& key, const QString& name, const QString& about)
{
    Field field;
    field.kind = kind;
    field.id = key;
    field.label = name;
    field.description = about;
    return field;
}

QString withUnit(const Field& field, double value)
{
    QString text = QLocale().toString(value, 'f', field.decimals);
    const QString point(QLocale().decimalPoint());
    while (text.contains(point) && (text.endsWith('0') || text.endsWith(point)))
        text.chop(1);
    if (field.unit == QStringLiteral("°"))
        return text + field.unit;
    return field.unit.isEmpty() ? text : text + ' ' + field.unit;
}

} // namespace

Field Field::toggle(const QString& key, const QString& name, const QString& about)
{
    return make(Switch, key, name, about);
}

Field Field::integer(const QString& key, const QString& name, const QString& about)
{
    return make(Integer, key, name, about);
}

Field Field::number(const QString& key, const QString& name, const QString& about)
{
    return make(Number, key, name, about);
}

Field Field::color(const QString& key, const QString& name, const QString& about)
{
    return make(Color, key, name, about);
}

Field Field::font(const QString& key, const QString& name, const QString& about)
{
    return make(Font, key, name, about);
}

Field Field::choice(const QString& key, const QString& name, const QString& about)
{
    return make(Choice, key, name, about);
}

Field Field::text(const QString& key, const QString& name, const QString& about)
{
    return make(Text, key, name, about);
}

Field Field::custom(const QString& key, const QString& name, const QString& about)
{
    return make(Custom, key, name, about);
}

Field& Field::within(double least, double most, double stepSize, int digits)
{
    minimum = least;
    maximum = most;
    step = stepSize;
    decimals = digits;
    return *this;
}

Field& Field::in(const QString& unitName)
{
    unit = unitName;
    return *this;
}

Field& Field::withSlider()
{
    slider = true;
    return *this;
}

Field& Field::offering(const QStringList& texts)
{
    for (int i = 0; i < texts.size(); ++i)
        offers.append({texts.at(i), i});
    return *this;
}

Field& Field::offering(const QVector<Offer>& values)
{
    offers += values;
    return *this;
}

Field& Field::when(const std::function<bool()>& condition)
{
    enabled = condition;
    return *this;
}

Field& Field::inRow(const QString& name)
{
    row = name;
    return *this;
}

Field& Field::alongWith(const QStringList& others)
{
    alike = others;
    return *this;
}

Field& Field::withoutDefault()
{
    resets = false;
    return *this;
}

Field& Field::editedBy(const std::function<ValueEditor*(const Field&)>& factory)
{
    editor = factory;
    return *this;
}

QString Field::accessibleName() const
{
    return row.isEmpty() ? label : row + ' ' + label;
}

QString Field::toolTip() const
{
    if (kind != Integer && kind != Number)
        return description;
    const QString range = QCoreApplication::translate("Field", "%1 to %2")
                              .arg(withUnit(*this, minimum), withUnit(*this, maximum));
    return description + '\n' + range;
}

} // namespace Zel3D
