#include "scene/axis.h"

#include "core/linearscale.h"
#include "core/log10scale.h"
#include "core/ticprecision.h"
#include "scene/numberthinning.h"
#include "view/opengl.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace Zel3D {

namespace {

// More ticks than a window has pixels show nothing and fill the memory.
constexpr int mostMajors = 1000;
constexpr int mostMinors = 100;

// Logical pixels.
constexpr double titleGap = 4.0;  // from the numbers to the title
constexpr double besideGap = 6.0; // between numbers side by side
constexpr double aboveGap = 1.0;  // between numbers one above the other, which have room in their boxes
constexpr double otherGap = 10.0; // between texts that do not belong together

bool isFinite(const QVector3D& v)
{
    return std::isfinite(v.x()) && std::isfinite(v.y()) && std::isfinite(v.z());
}

QRectF rectangleOf(const LabelPlacement& placement, const QSize& size)
{
    return placement.visible ? QRectF(placement.corner, size) : QRectF();
}

bool overlaps(const QRectF& rectangle, double gap, const QVector<QRectF>& others)
{
    const QRectF widened = rectangle.adjusted(-gap, 0.0, gap, 0.0);
    return std::any_of(others.begin(), others.end(),
                       [&](const QRectF& other) { return other.intersects(widened); });
}

void vertex(const QVector3D& v)
{
    glVertex3d(double(v.x()), double(v.y()), double(v.z()));
}

void setColor(const QColor& color)
{
    glColor4d(color.redF(), color.greenF(), color.blueF(), color.alphaF());
}

} // namespace

Axis::ScaleOwner::ScaleOwner(const ScaleOwner& other)
{
    *this = other;
}

Axis::ScaleOwner& Axis::ScaleOwner::operator=(const ScaleOwner& other)
{
    if (this == &other)
        return *this;
    owned = other.owned ? other.owned->clone() : nullptr;
    if (!owned)
        owned = other.owned;
    return *this;
}

bool Axis::TicsInput::operator==(const TicsInput& other) const
{
    return majorInterval == other.majorInterval && minorInterval == other.minorInterval &&
           orientation == other.orientation && majorLength == other.majorLength &&
           distance == other.distance && color == other.color && font == other.font &&
           alignment == other.alignment && adjust == other.adjust;
}

Axis::Axis()
{
    label.setVisible(true);
    label.markForSaving();
    label.getSettings().markForSaving();
    arrow.markForSaving();
    arrow.getSettings().markForSaving();
    scale.reset(new LinearScale);
}

void Axis::draw()
{
    updateTics();
    if (!isFinite(start) || !isFinite(end))
        return;
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    setColor(settings.getLine().getColor());
    if (settings.getLine().isVisible())
        drawLine();
    if (settings.getTics().isVisible() && !isRecalculationNeeded())
        drawTics();
    if (label.isVisible() && labelShown)
        drawLabel();
    arrow.draw();
}

void Axis::drawHighlight()
{
    if (highlighted)
        drawHighlightBox();
}

void Axis::loadSettings(const QString& prefix, const QString& organization, const QString& application)
{
    const QString group = QString("%0/%1").arg(prefix, name);
    const double before = settings.getTics().getMajorLength();
    settings.loadSettings(organization, application, group);
    label.loadSettings(organization, application, group);
    arrow.loadSettings(organization, application, group);
    ownTicsLength = ownTicsLength || !isZero(before, settings.getTics().getMajorLength());
}

void Axis::saveSettings(const QString& prefix, const QString& organization, const QString& application)
{
    const QString group = QString("%0/%1").arg(prefix, name);
    settings.saveSettings(group, organization, application);
    label.saveSettings(group, organization, application);
    arrow.saveSettings(group, organization, application);
}

void Axis::resetNeedSave()
{
    settings.resetNeedSave();
    label.resetNeedSave();
    arrow.resetNeedSave();
    BaseDraw::resetNeedSave();
}

bool Axis::isRecalculationNeeded() const
{
    return recalculate || !(computedFor == ticsInput());
}

Axis::TicsInput Axis::ticsInput() const
{
    TicsInput input;
    input.majorInterval = settings.getMajor().getInterval();
    input.minorInterval = settings.getMinor().getInterval();
    input.orientation = settings.getTics().getOrientation();
    input.majorLength = settings.getTics().getMajorLength();
    input.distance = settings.getNumbers().getDistance();
    input.color = settings.getNumbers().getColor();
    input.font = settings.getNumbers().getFont();
    input.alignment = settings.getNumbers().getAlignment();
    input.adjust = settings.getNumbers().getAdjust();
    return input;
}

bool Axis::beforeCalculation(QVector3D& span)
{
    if (!range.isUsable())
        return false;
    majorRange = range;
    scale->setLimits(range.minimum, range.maximum);
    scale->setMajorInterval(std::min(settings.getMajor().getInterval(), mostMajors));
    scale->setMinorInterval(std::min(settings.getMinor().getInterval(), mostMinors));
    scale->setMajorLimits(majorRange.minimum, majorRange.maximum);
    scale->calculate();
    if (automaticTicFormat)
        scale->setTicFormat('g', ticPrecision(scale->getMajors()));
    const QVector3D direction = (end - start).normalized();
    const double length = range.maximum - range.minimum;
    const double low = (majorRange.minimum - range.minimum) / length;
    const double high = (range.maximum - majorRange.maximum) / length;
    span = (end - direction * float(high)) - (start + direction * float(low));
    majors.clear();
    minors.clear();
    return true;
}

void Axis::recalculateTics()
{
    // The labels of the last calculation: a number that stays keeps its rendered image.
    const QVector<Major> before = majors;
    QVector3D span;
    if (!beforeCalculation(span))
        return;
    QHash<QString, int> known;
    for (int i = 0; i < before.size(); ++i)
        known.insert(before.at(i).label.getSettings().getText(), i);
    const TicsSettings& tics = settings.getTics();
    const QVector3D offset =
        tics.getOrientation() * float(tics.getMajorLength() + settings.getNumbers().getDistance());
    const QVector<AxisTic> computed = majorTics(*scale.get(), range);
    majors.reserve(computed.size());
    for (const AxisTic& tic : computed) {
        const auto found = known.constFind(tic.text);
        Major major = found != known.constEnd() ? before.at(found.value()) : Major();
        major.position = start + span * float(tic.t);
        setUpNumber(major.label, tic, major.position + offset);
        majors.append(major);
    }
    const QVector<double>& minorValues = scale->getMinors();
    minors.reserve(minorValues.size());
    for (double value : minorValues)
        minors.append(start + span * float(range.fraction(value)));
    computedFor = ticsInput();
    recalculate = false;
}

void Axis::setUpNumber(Label& number, const AxisTic& tic, const QVector3D& position) const
{
    const NumbersSettings& numbers = settings.getNumbers();
    number.getSettings().markForSaving();
    number.setVisible(true);
    number.setPixelRatio(pixelRatio);
    number.getSettings().setFont(numbers.getFont());
    number.getSettings().setColor(numbers.getColor());
    number.getSettings().setText(tic.text);
    number.getSettings().setPosition(position);
    number.getSettings().setAlignment(numbers.getAlignment());
    number.getSettings().setAdjust(numbers.getAdjust());
}

void Axis::updateTics()
{
    if (isRecalculationNeeded())
        recalculateTics();
}

bool Axis::areNumbersShown() const
{
    return settings.getTics().isVisible() && settings.getNumbers().isVisible();
}

QVector<QSize> Axis::getNumberSizes()
{
    updateTics();
    QVector<QSize> sizes;
    for (Major& major : majors)
        sizes.append(major.label.getImageSize());
    return sizes;
}

void Axis::arrange(const ViewFrame& frame, const QVector2D& outward, bool always, QVector<QRectF>& occupied)
{
    updateTics();
    outwardDirection = outward.normalized();
    nameGap = numberGap;
    if (areNumbersShown() && !isRecalculationNeeded()) {
        const bool outside = always || settings.getNumbers().getAlignment() == Center;
        nameGap = arrangeNumbers(frame, outside, occupied);
    }
}

/// Returns how far the numbers reach along the outward direction, in logical pixels.
double Axis::arrangeNumbers(const ViewFrame& frame, bool outside, QVector<QRectF>& occupied)
{
    QVector<QRectF> rectangles;
    double reach = 0.0;
    for (Major& major : majors) {
        major.label.setOutward(outside ? outwardDirection : QVector2D(), numberGap);
        const QSize size = major.label.getImageSize();
        rectangles.append(rectangleOf(major.label.getPlacement(frame), size));
        reach = std::max(reach, std::abs(double(outwardDirection.x())) * size.width() +
                                    std::abs(double(outwardDirection.y())) * size.height());
    }
    const QVector<bool> kept = keptNumbers(rectangles, QSizeF(besideGap, aboveGap) * pixelRatio);
    const QVector<QRectF> others = occupied;
    for (int i = 0; i < majors.size(); ++i) {
        const bool shown = kept.at(i) && !overlaps(rectangles.at(i), otherGap * pixelRatio, others);
        majors[i].label.setVisible(shown);
        if (shown)
            occupied.append(rectangles.at(i));
    }
    return numberGap + reach / pixelRatio;
}

void Axis::arrangeName(const ViewFrame& frame, QVector<QRectF>& occupied)
{
    labelShown = true;
    if (!label.isVisible() || label.getSettings().getText().isEmpty() || label.getSettings().isBlank())
        return;
    label.getSettings().setPosition(labelPosition());
    if (label.getSettings().getAlignment() != Center) {
        label.setOutward(QVector2D(), 0.0);
        return;
    }
    const WindowPoint from = projectToWindow(frame, start);
    const WindowPoint to = projectToWindow(frame, end);
    const QVector2D along(float(to.x - from.x), float(to.y - from.y));
    const double length = double(along.length()) / pixelRatio;
    const double step = label.getImageSize().height() / pixelRatio;
    // The title of an axis that is seen end-on would stand among the other axes' numbers.
    labelShown = from.valid && to.valid && length >= step;
    if (!labelShown)
        return;
    // Beside the numbers, or further out where other texts are in the way. A standing axis has room above its
    // upper end; at the other ends the axes meet, and the name would seem to be that of another one.
    labelShown = tryLabelPlace(frame, outwardDirection, nameGap + titleGap, occupied) ||
                 tryLabelPlace(frame, outwardDirection, nameGap + titleGap + step, occupied);
    if (!labelShown && std::abs(along.y()) > std::abs(along.x()))
        labelShown = tryLabelPlace(frame, along.y() > 0.0F ? along : -along, length / 2.0 + step, occupied);
}

bool Axis::tryLabelPlace(const ViewFrame& frame, const QVector2D& direction, double gap,
                         QVector<QRectF>& occupied)
{
    label.setOutward(direction, gap);
    const QRectF rectangle = rectangleOf(label.getPlacement(frame), label.getImageSize());
    const QRectF window(frame.viewport[0], frame.viewport[1], frame.viewport[2], frame.viewport[3]);
    if (!window.contains(rectangle) || overlaps(rectangle, otherGap * pixelRatio, occupied))
        return false;
    occupied.append(rectangle);
    return true;
}

QVector3D Axis::labelPosition() const
{
    const TicsSettings& tics = settings.getTics();
    const NumbersSettings& numbers = settings.getNumbers();
    double distance = settings.getLabelShift();
    if (tics.isVisible()) {
        distance += tics.getMajorLength();
        if (numbers.isVisible())
            distance += numbers.getDistance();
    }
    return start + (end - start) * 0.5F + tics.getOrientation() * float(distance);
}

void Axis::drawLine()
{
    // Not through the clamping helper: a width that the driver refuses leaves the width that is set.
    setGLUnclampedLineWidth(float(settings.getLine().getWidth()));
    glBegin(GL_LINES);
    vertex(start);
    vertex(end);
    glEnd();
}

void Axis::drawTics()
{
    const TicsSettings& tics = settings.getTics();
    const bool numbersVisible = settings.getNumbers().isVisible();
    setGLUnclampedLineWidth(float(settings.getMajor().getLineWidth()));
    for (Major& major : majors) {
        drawTic(major.position, tics.getMajorLength(), tics.getOrientation(), tics.getStyle());
        if (numbersVisible)
            major.label.draw();
    }
    setGLUnclampedLineWidth(float(settings.getMinor().getLineWidth()));
    for (const QVector3D& minor : qAsConst(minors))
        drawTic(minor, tics.getMinorLength(), tics.getOrientation(), tics.getStyle());
}

void Axis::drawTic(const QVector3D& position, double length, const QVector3D& orientation, TicStyle style)
{
    const QVector3D reach = orientation * float(length);
    glBegin(GL_LINES);
    vertex(style == TicOut ? position : position - reach);
    vertex(position + reach);
    glEnd();
}

void Axis::drawLabel()
{
    label.getSettings().setPosition(labelPosition());
    label.draw();
}

void Axis::drawHighlightBox()
{
    for (std::size_t i = 0; i < 4; ++i) {
        const std::size_t next = (i + 1) % 4;
        if (highlightBox[i] == highlightBox[next] || highlightBox[i + 4] == highlightBox[next + 4])
            return;
    }
    setColor(Qt::red);
    setGLUnclampedLineWidth(1.0F);
    glBegin(GL_LINES);
    for (std::size_t i = 0; i < 4; ++i) {
        vertex(highlightBox[i]);
        vertex(highlightBox[i + 4]);
    }
    glEnd();
    drawQuad(highlightBox[0], highlightBox[1], highlightBox[2], highlightBox[3]);
    drawQuad(highlightBox[4], highlightBox[5], highlightBox[6], highlightBox[7]);
}

void Axis::drawQuad(const QVector3D& a, const QVector3D& b, const QVector3D& c, const QVector3D& d)
{
    glBegin(GL_QUADS);
    for (const QVector3D& corner : {a, b, b, c, c, d, d, a})
        vertex(corner);
    glEnd();
}

} // namespace Zel3D
