#include "settings/recordfields.h"

#include <QCoreApplication>

namespace Zel3D {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(RecordFields)
};

/// In the order of their values.
QStringList alignments()
{
    return {Words::tr("TopLeft"),    Words::tr("TopCenter"),    Words::tr("TopRight"),
            Words::tr("CenterLeft"), Words::tr("Automatic"),    Words::tr("CenterRight"),
            Words::tr("BottomLeft"), Words::tr("BottomCenter"), Words::tr("BottomRight")};
}

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

QVector<Field> RecordFields::place(const QString& id, Label& label)
{
    Label::Settings& record = label.getSettings();
    return {
        Field::integer(id + "/angle", Words::tr("Angle"), Words::tr("The turn of the text, clockwise."))
            .within(-360, 360, 5)
            .in(QStringLiteral("°"))
            .bind([&record] { return record.getAngle(); },
                  [&record](int degrees) { return record.setAngle(degrees); }),
        Field::choice(id + "/alignment", Words::tr("Alignment"),
                      Words::tr("The corner or edge of the text that lies at its place."))
            .offering(alignments())
            .bind([&record] { return record.getAlignment(); },
                  [&record](Alignment alignment) { return record.setAlignment(alignment); }),
        Field::integer(id + "/adjust", Words::tr("Offset"),
                       Words::tr("How far the text stands off its place, to the side of its alignment."))
            .within(-500, 500, 1)
            .in(Words::tr("px"))
            .when([&record] { return record.getAlignment() != Center; })
            .bind([&record] { return record.getAdjust(); },
                  [&record](int pixels) { return record.setAdjust(pixels); }),
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
        Field::choice(id + "/alignment", Words::tr("Alignment"),
                      Words::tr("The corner or edge of a number that lies at its tick."))
            .offering(alignments())
            .bind([&record] { return record.getAlignment(); },
                  [&record](Alignment alignment) { return record.setAlignment(alignment); }),
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
        Field::choice(id + "/style", Words::tr("Style"), Words::tr("How the arrow is drawn."))
            .offering(QStringList{Words::tr("Filled"), Words::tr("Outline"), Words::tr("Points"),
                                  Words::tr("Lines")})
            .bind([&record] { return record.getStyle(); },
                  [&record](int style) { return record.setStyle(style); }),
        Field::integer(id + "/quality", Words::tr("Quality"), Words::tr("The sides of the arrow."))
            .within(3, 50, 1)
            .bind([&record] { return int(record.getQuality()); },
                  [&record](int sides) { return record.setQuality(unsigned(sides)); }),
        Field::number(
            id + "/distance", Words::tr("Distance"),
            Words::tr("How far the arrow stands beyond the end of its axis, in lengths of the axis."))
            .within(0.001, 10.0, 0.01, 3)
            .bind([&record] { return record.getLineLength(); },
                  [&record](double lengths) { return record.setLineLength(lengths); }),
    };
}

} // namespace Zel3D
