#include "settings/numbereditor.h"

#include "settings/field.h"

#include <QSignalBlocker>
#include <QSlider>
#include <QStyleOptionSpinBox>

#include <algorithm>

namespace Zel3D {

namespace {

constexpr int sliderSteps = 1000;
/// Steps of the box that follow each other as quickly are one gesture.
constexpr int gestureMilliseconds = 700;
/// Room for common numbers; larger ones scroll in the box.
constexpr int widestDigits = 9;

} // namespace

NumberBox::NumberBox(QWidget* parent) : QDoubleSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    // A number takes effect when it is complete, not digit by digit.
    setKeyboardTracking(false);
    setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
}

QString NumberBox::textFromValue(double number) const
{
    QString text = locale().toString(number, 'f', decimals());
    const QString point(locale().decimalPoint());
    while (text.contains(point) && (text.endsWith('0') || text.endsWith(point)))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

QSize NumberBox::sizeHint() const
{
    ensurePolished();
    int digits = 0;
    for (double end : {minimum(), maximum()})
        digits = std::max(digits, int(textFromValue(end).size()));
    digits = std::min(digits + (decimals() > 0 ? 1 + decimals() : 0), widestDigits);
    const QString widest = QString(digits, '0') + suffix() + ' ';
    const QSize contents(fontMetrics().horizontalAdvance(widest) + 4, fontMetrics().height());
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const QSize whole = style()->sizeFromContents(QStyle::CT_SpinBox, &option, contents, this);
    return {whole.width(), QDoubleSpinBox::sizeHint().height()};
}

NumberEditor::NumberEditor(const Field& field, QWidget* parent)
    : ValueEditor(parent),
      whole(field.kind == Field::Integer),
      minimum(field.minimum),
      maximum(field.maximum),
      box(new NumberBox(this))
{
    box->setDecimals(whole ? 0 : field.decimals);
    box->setRange(minimum, maximum);
    box->setSingleStep(field.step);
    box->setAccelerated(true);
    shown = inTheBox = box->value();
    if (!field.unit.isEmpty())
        box->setSuffix(field.unit == QStringLiteral("°") ? field.unit : ' ' + field.unit);
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &NumberEditor::stepBox);
    if (!field.slider) {
        arrange({box});
        return;
    }
    slider = new QSlider(Qt::Horizontal, this);
    slider->setRange(0, sliderSteps);
    slider->setPageStep(sliderSteps / 20);
    slider->setFocusPolicy(Qt::StrongFocus);
    slider->setMinimumWidth(slider->fontMetrics().averageCharWidth() * 14);
    connect(slider, &QSlider::sliderPressed, this, [this] { gesture = nextGesture(); });
    connect(slider, &QSlider::valueChanged, this, &NumberEditor::dragSlider);
    arrange({box, slider});
}

void NumberEditor::show(const QVariant& value)
{
    const double number = value.toDouble();
    // What is being typed stays.
    if (number != shown || box->value() != inTheBox) {
        const QSignalBlocker quietBox(box);
        // A value from elsewhere may lie beyond what can be typed; it is shown as it is.
        box->setRange(std::min(minimum, number), std::max(maximum, number));
        box->setValue(number);
        shown = number;
        inTheBox = box->value();
    }
    if (!slider || slider->isSliderDown())
        return;
    const QSignalBlocker quietSlider(slider);
    slider->setValue(positionOf(number));
}

int NumberEditor::positionOf(double number) const
{
    const double part = (std::clamp(number, minimum, maximum) - minimum) / (maximum - minimum);
    return qRound(part * sliderSteps);
}

void NumberEditor::stepBox(double number)
{
    if (!sinceStep.isValid() || sinceStep.elapsed() > gestureMilliseconds)
        gesture = nextGesture();
    sinceStep.start();
    send(number);
}

void NumberEditor::dragSlider(int position)
{
    if (!slider->isSliderDown()) {
        if (!sinceStep.isValid() || sinceStep.elapsed() > gestureMilliseconds)
            gesture = nextGesture();
        sinceStep.start();
    }
    send(box->valueFromText(box->textFromValue(minimum + (maximum - minimum) * position / sliderSteps)));
}

void NumberEditor::send(double number)
{
    emit edited(whole ? QVariant(qRound(number)) : QVariant(number), gesture);
}

} // namespace Zel3D
