#include "gradients/colorvision.h"

#include "gradients/gradientcolors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Zel3D {

namespace {

constexpr int samples = 257;
constexpr double smallestTurn = 1.0;
constexpr double flatRange = 5.0;

double linearized(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

int encoded(double linear)
{
    const double value = qBound(0.0, linear, 1.0);
    const double channel = value <= 0.0031308 ? value * 12.92 : 1.055 * std::pow(value, 1.0 / 2.4) - 0.055;
    return qRound(channel * 255.0);
}

using Matrix = std::array<std::array<double, 3>, 3>;

const Matrix& matrixOf(ColorVision::Kind kind)
{
    static const Matrix protanopia = {
        {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}};
    static const Matrix deuteranopia = {
        {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};
    static const Matrix tritanopia = {
        {{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}};
    if (kind == ColorVision::Kind::Protanopia)
        return protanopia;
    return kind == ColorVision::Kind::Deuteranopia ? deuteranopia : tritanopia;
}

using Curve = std::array<double, samples>;

Curve lightnessOf(const QGradientStops& stops)
{
    Curve curve{};
    for (int i = 0; i < samples; ++i)
        curve[static_cast<std::size_t>(i)] =
            ColorVision::lightness(stopsColor(stops, static_cast<double>(i) / (samples - 1)));
    return curve;
}

/// The samples at which the curve turns.
QVector<int> turningPoints(const Curve& curve)
{
    QVector<int> turns;
    int extreme = 0; // the highest sample so far of a rising stretch, the lowest of a falling one
    int direction = 0;
    for (int i = 1; i < samples; ++i) {
        const double step = curve[static_cast<std::size_t>(i)] - curve[static_cast<std::size_t>(extreme)];
        if (direction == 0 ? std::abs(step) > smallestTurn : step * direction < -smallestTurn) {
            if (direction != 0)
                turns.append(extreme);
            direction = step > 0.0 ? 1 : -1;
            extreme = i;
        } else if (direction != 0 && step * direction > 0.0) {
            extreme = i;
        }
    }
    return turns;
}

void measureAgainstLine(const Curve& curve, int from, int to, double range, ColorVision::Course& course)
{
    const double start = curve[static_cast<std::size_t>(from)];
    const double end = curve[static_cast<std::size_t>(to)];
    for (int i = from; i <= to; ++i) {
        const double line = start + (end - start) * (i - from) / (to - from);
        const double distance = std::abs(curve[static_cast<std::size_t>(i)] - line) / range;
        if (distance > course.unevenness) {
            course.unevenness = distance;
            course.unevenAt = static_cast<double>(i) / (samples - 1);
        }
    }
}

QString percent(double position)
{
    // With a no-break space, so that the sign stays with its number.
    return QString::number(qRound(position * 100.0)) + QChar(QChar::Nbsp) + '%';
}

} // namespace

QColor ColorVision::simulate(const QColor& color, Kind kind)
{
    if (kind == Kind::Normal || !color.isValid())
        return color;
    const std::array<double, 3> rgb = {linearized(color.redF()), linearized(color.greenF()),
                                       linearized(color.blueF())};
    const auto row = [&rgb](const std::array<double, 3>& r) {
        return encoded(r[0] * rgb[0] + r[1] * rgb[1] + r[2] * rgb[2]);
    };
    const Matrix& matrix = matrixOf(kind);
    return {row(matrix[0]), row(matrix[1]), row(matrix[2]), color.alpha()};
}

QString ColorVision::name(Kind kind)
{
    switch (kind) {
    case Kind::Protanopia:
        return tr("Protanopia");
    case Kind::Deuteranopia:
        return tr("Deuteranopia");
    case Kind::Tritanopia:
        return tr("Tritanopia");
    case Kind::Normal:
        break;
    }
    return tr("Normal vision");
}

double ColorVision::lightness(const QColor& color)
{
    const double luminance = 0.2126 * linearized(color.redF()) + 0.7152 * linearized(color.greenF()) +
                             0.0722 * linearized(color.blueF());
    // The two branches of CIE 15: they meet at (6/29)^3.
    return luminance > 216.0 / 24389.0 ? 116.0 * std::cbrt(luminance) - 16.0 : luminance * 24389.0 / 27.0;
}

bool ColorVision::Course::isEven() const
{
    const bool hasOneTurn = shape == Shape::Peak || shape == Shape::Valley;
    return (isMonotone() && unevenness <= 0.12) || (hasOneTurn && unevenness <= 0.25);
}

ColorVision::Course ColorVision::lightnessCourse(const QGradientStops& stops)
{
    Course course;
    if (stops.isEmpty())
        return course;
    const Curve curve = lightnessOf(stops);
    const auto [lowest, highest] = std::minmax_element(curve.begin(), curve.end());
    const double range = *highest - *lowest;
    const QVector<int> turns = turningPoints(curve);
    course.turns = turns.size();
    if (!turns.isEmpty())
        course.turn = static_cast<double>(turns.first()) / (samples - 1);
    if (range < flatRange) {
        course.shape = Course::Shape::Flat;
        return course;
    }
    if (course.turns > 1) {
        course.shape = Course::Shape::Wavy;
        return course;
    }
    const int turn = turns.isEmpty() ? samples - 1 : turns.first();
    const bool rises = curve[static_cast<std::size_t>(turn)] > curve.front();
    measureAgainstLine(curve, 0, turn, range, course);
    if (turns.isEmpty()) {
        course.shape = rises ? Course::Shape::Rising : Course::Shape::Falling;
    } else {
        measureAgainstLine(curve, turn, samples - 1, range, course);
        course.shape = rises ? Course::Shape::Peak : Course::Shape::Valley;
    }
    return course;
}

QString ColorVision::note(const Course& course)
{
    switch (course.shape) {
    case Course::Shape::None:
        return {};
    case Course::Shape::Flat:
        return tr("Lightness hardly changes: the gradient cannot be read in grey.");
    case Course::Shape::Wavy:
        return tr("Lightness changes its direction %1 times, first at %2: different values look equally "
                  "light.")
            .arg(course.turns)
            .arg(percent(course.turn));
    case Course::Shape::Rising:
    case Course::Shape::Falling: {
        const bool rises = course.shape == Course::Shape::Rising;
        if (course.isEven())
            return rises ? tr("Lightness rises evenly.") : tr("Lightness falls evenly.");
        const QString text =
            rises ? tr("Lightness rises unevenly, most of all at %1: equal steps look unequal.")
                  : tr("Lightness falls unevenly, most of all at %1: equal steps look unequal.");
        return text.arg(percent(course.unevenAt));
    }
    case Course::Shape::Peak:
    case Course::Shape::Valley:
        break;
    }
    const bool rises = course.shape == Course::Shape::Peak;
    const QString text = rises ? tr("Lightness rises up to %1 and then falls: for values around a middle.")
                               : tr("Lightness falls up to %1 and then rises: for values around a middle.");
    const QString start = text.arg(percent(course.turn));
    return course.isEven()
               ? start
               : start + ' ' + tr("It does so unevenly, most of all at %1.").arg(percent(course.unevenAt));
}

} // namespace Zel3D
