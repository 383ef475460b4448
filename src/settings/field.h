#pragma once

#include "core/export.h"

#include <QObject>
#include <QString>
#include <QVariant>
#include <QVector>

#include <functional>
#include <type_traits>

namespace Zel3D {

class ValueEditor;

/// One setting as a person edits it: what it is called, which values it takes, how it is read and written and
/// how others' changes are heard. From this alone come its editor, undo, the reset to the default and the
/// entry in the search.
///
/// \code
/// Field::number("common/zoom", tr("Zoom"), tr("How large the scene is drawn."))
///     .within(0.01, 100.0, 0.1, 2)
///     .bind([&plot] { return plot.getZoom(); }, [&plot](double v) { return plot.setZoom(v); })
///     .heardFrom(plot, &BasePlot::zoomChanged);
/// \endcode
struct VORANPLOT_EXPORT Field
{
    enum Kind { Switch, Integer, Number, Color, Font, Choice, Text, Custom };

    /// A value that a choice offers and the text shown for it.
    struct Offer
    {
        QString text;
        QVariant value;
    };

    using Reader = std::function<QVariant()>;
    using Writer = std::function<bool(const QVariant&)>;
    using Listener = std::function<void(QObject* receiver, const std::function<void()>& refresh)>;

    /// \a key is unique in a dialog and stays the same over versions and languages; \a about is the tool tip,
    /// to which the range is added.
    static Field toggle(const QString& key, const QString& name, const QString& about);
    static Field integer(const QString& key, const QString& name, const QString& about);
    static Field number(const QString& key, const QString& name, const QString& about);
    static Field color(const QString& key, const QString& name, const QString& about);
    static Field font(const QString& key, const QString& name, const QString& about);
    static Field choice(const QString& key, const QString& name, const QString& about);
    static Field text(const QString& key, const QString& name, const QString& about);
    /// A value that only editedBy() can edit. It consists of the types that QVariant compares and stores.
    static Field custom(const QString& key, const QString& name, const QString& about);

    /// The values that can be typed, both ends included.
    Field& within(double least, double most, double stepSize, int digits = 0);
    /// Shown behind the number, such as "°" or "px".
    Field& in(const QString& unitName);
    /// A slider beside the number.
    Field& withSlider();
    /// Offers the texts for the values 0, 1, 2 and so on.
    Field& offering(const QStringList& texts);
    Field& offering(const QVector<Offer>& values);
    /// The field can be edited only while \a condition holds.
    Field& when(const std::function<bool()>& condition);
    /// Fields that follow each other in one row share the row's name, such as "Rotation" for "X", "Y", "Z".
    Field& inRow(const QString& name);
    /// Fields of the same kind that a person can choose to edit together with this one; see
    /// FieldBinder::setAlike().
    Field& alongWith(const QStringList& others);
    /// A plot as constructed holds nothing useful: a reset leads to what was there at the opening.
    Field& withoutDefault();
    /// An editor of its own in place of that of the kind. The editor's parent takes ownership.
    Field& editedBy(const std::function<ValueEditor*(const Field&)>& factory);

    /// How the value is read and written. \a set returns whether the value changed, or nothing.
    template <class Get, class Set>
    Field& bind(const Get& get, const Set& set);
    /// A signal that tells of changes. Values without one are read again from time to time.
    template <class Sender, class Owner, class... Arguments>
    Field& heardFrom(Sender& sender, void (Owner::*signal)(Arguments...));

    /// The row's name and the label, as a screen reader speaks them.
    QString accessibleName() const;
    /// What the setting does and the values that it takes.
    QString toolTip() const;

    QString id;
    QString label;
    QString row;
    QString description;
    Kind kind = Switch;
    double minimum = 0.0;
    double maximum = 0.0;
    double step = 1.0;
    int decimals = 0;
    QString unit;
    bool slider = false;
    bool resets = true;
    QStringList alike;
    QVector<Offer> offers;
    std::function<bool()> enabled;
    std::function<ValueEditor*(const Field&)> editor;
    Reader read;
    Writer write;
    QVector<Listener> listeners;
};

/// The fields of one record, shown in one box. Groups with a tab that follow each other on a page stand on
/// tabs, those of one tab below each other.
struct FieldGroup
{
    QString title;
    QVector<Field> fields;
    QString tab;
};

template <class Get, class Set>
Field& Field::bind(const Get& get, const Set& set)
{
    using Value = std::decay_t<decltype(get())>;
    read = [get] {
        if constexpr (std::is_enum_v<Value>)
            return QVariant(int(get()));
        else
            return QVariant::fromValue(Value(get()));
    };
    write = [set](const QVariant& value) {
        const auto call = [&set](const Value& argument) {
            if constexpr (std::is_void_v<decltype(set(argument))>) {
                set(argument);
                return true;
            } else {
                return bool(set(argument));
            }
        };
        if constexpr (std::is_enum_v<Value>)
            return call(Value(value.toInt()));
        else
            return call(value.value<Value>());
    };
    return *this;
}

template <class Sender, class Owner, class... Arguments>
Field& Field::heardFrom(Sender& sender, void (Owner::*signal)(Arguments...))
{
    listeners.append([&sender, signal](QObject* receiver, const std::function<void()>& refresh) {
        QObject::connect(&sender, signal, receiver, [refresh] { refresh(); });
    });
    return *this;
}

} // namespace Zel3D
