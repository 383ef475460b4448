#include "settings/recordfields.h"

#include <QCoreApplication>

namespace Zel3D {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(RecordFields)
};

} // namespace

QVector<Field> RecordFields::together(const QVector<QVector<Field>>& alike)
{
    QVector<Field> fields = alike.first();
    for (int i = 0; i < fields.size(); ++i) {
        QVector<Field::Writer> writers;
        for (const QVector<Field>& record : alike)
            writers.append(record.at(i).write);
        fields[i].write = [writers](const QVariant& value) {
            bool changed = false;
            for (const Field::Writer& write : writers)
                changed = write(value) || changed;
            return changed;
        };
    }
    return fields;
}

QVector<Field> RecordFields::text(const QString& id, Label& label)
{
    Label::Settings& record = label.getSettings();
    return {
        Field::toggle(id + "/visible", Words::tr("Visible"), Words::tr("Whether the text is shown."))
            .bind([&label] { return label.isVisible(); }, [&label](bool on) { return label.setVisible(on); }),
        Field::text(id + "/text", Words::tr("Text"), Words::tr("The words that are shown."))
            // A single blank stands for no text.
            .bind([&record] { return record.isBlank() ? QString() : record.getText(); },
                  [&record](const QString& words) { return record.setText(words); }),
        Field::font(id + "/font", Words::tr("Font"), Words::tr("The font of the text."))
            .bind([&record] { return record.getFont(); },
                  [&record](const QFont& font) { return record.setFont(font); }),
        Field::color(id + "/color", Words::tr("Color"), Words::tr("The color of the text."))
            .bind([&record] { return record.getColor(); },
                  [&record](const QColor& color) { return record.setColor(color); }),
    };
}

QVector<Field> RecordFields::numbers(const QString& id, Axis::NumbersSettings& record)
{
    return {
        Field::toggle(id + "/visible", Words::tr("Visible"), Words::tr("Whether the numbers are shown."))
            .bind([&record] { return record.isVisible(); },
                  [&record](bool on) { return record.setVisible(on); }),
        Field::font(id + "/font", Words::tr("Font"), Words::tr("The font of the numbers."))
            .bind([&record] { return record.getFont(); },
                  [&record](const QFont& font) { return record.setFont(font); }),
        Field::color(id + "/color", Words::tr("Color"), Words::tr("The color of the numbers."))
            .bind([&record] { return record.getColor(); },
                  [&record](const QColor& color) { return record.setColor(color); }),
    };
}

QVector<Field> RecordFields::line(const QString& id, Axis::LineSettings& record)
{
    return {
        Field::toggle(id + "/visible", Words::tr("Visible"), Words::tr("Whether the axis line is shown."))
            .bind([&record] { return record.isVisible(); },
                  [&record](bool on) { return record.setVisible(on); }),
        Field::color(id + "/color", Words::tr("Color"),
                     Words::tr("The color of the axis line and its ticks."))
            .bind([&record] { return record.getColor(); },
                  [&record](const QColor& color) { return record.setColor(color); }),
        Field::number(id + "/width", Words::tr("Width"), Words::tr("The width of the axis line."))
            .within(0.1, 20.0, 0.5, 2)
            .in(Words::tr("px"))
            .bind([&record] { return record.getWidth(); },
                  [&record](double px) { return record.setWidth(px); }),
    };
}

QVector<Field> RecordFields::tics(const QString& id, Axis::TicsSettings& record)
{
    return {
        Field::toggle(id + "/visible", Words::tr("Visible"), Words::tr("Whether the ticks are shown."))
            .bind([&record] { return record.isVisible(); },
                  [&record](bool on) { return record.setVisible(on); }),
        Field::choice(id + "/style", Words::tr("Direction"), Words::tr("Where the ticks lie on their axis."))
            .offering(QStringList{Words::tr("Out"), Words::tr("Both")})
            .bind([&record] { return record.getStyle(); },
                  [&record](TicStyle style) { return record.setStyle(style); }),
    };
}

QVector<Field> RecordFields::arrow(const QString& id, Arrow& drawn)
{
    Arrow::Settings& record = drawn.getSettings();
    return {
        Field::toggle(id + "/visible", Words::tr("Visible"), Words::tr("Whether the arrow is shown."))
            .bind([&drawn] { return drawn.isVisible(); }, [&drawn](bool on) { return drawn.setVisible(on); }),
        Field::choice(id + "/size", Words::tr("Size"), Words::tr("How large the arrow is."))
            .offering(QStringList{Words::tr("Small"), Words::tr("Normal"), Words::tr("Large")})
            .bind([&record] { return record.getSizeStyle(); },
                  [&drawn](ArrowSizeStyle size) { return drawn.setSizeStyle(size); }),
        Field::color(id + "/color", Words::tr("Color"), Words::tr("The color of the arrow."))
            .bind([&record] { return record.getColor(); },
                  [&record](const QColor& color) { return record.setColor(color); }),
    };
}

} // namespace Zel3D
