#include "settings/recordfields.h"

#include <QCoreApplication>

namespace Zel3D {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(RecordFields)
};

} // namespace

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

} // namespace Zel3D
