#include "scene/label.h"

#include "view/glmode.h"
#include "view/opengl.h"

#include <QFontMetrics>
#include <QGLWidget>
#include <QPainter>
#include <QSettings>

#include <cmath>

namespace Zel3D {

namespace {

/// Of a text, at a pixel ratio of 1: more than a window has.
constexpr double mostPixels = 8.0 * 1024.0 * 1024.0;

/// Whether a text is of a size to draw. One of a damaged font would take gigabytes.
bool isDrawable(const QSize& size)
{
    return size.isValid() && double(size.width()) * double(size.height()) <= mostPixels;
}

/// Lets only the opaque and half-opaque pixels of an image through and blends them; puts back what it
/// changed.
class PixelTestScope
{
public:
    PixelTestScope()
    {
        alphaTest = glIsEnabled(GL_ALPHA_TEST) == GL_TRUE;
        glGetIntegerv(GL_ALPHA_TEST_FUNC, &function);
        glGetFloatv(GL_ALPHA_TEST_REF, &reference);
        glGetIntegerv(GL_BLEND_SRC, &blendSource);
        glGetIntegerv(GL_BLEND_DST, &blendDestination);
        glEnable(GL_ALPHA_TEST);
        glAlphaFunc(GL_GREATER, 0.0F);
        // Qt's conversion for OpenGL multiplies the colours by their alpha.
        glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    }
    ~PixelTestScope()
    {
        glBlendFunc(GLenum(blendSource), GLenum(blendDestination));
        glAlphaFunc(GLenum(function), reference);
        BaseDraw::setGLEnable(GL_ALPHA_TEST, alphaTest);
    }
    PixelTestScope(const PixelTestScope&) = delete;
    PixelTestScope& operator=(const PixelTestScope&) = delete;

private:
    bool alphaTest = false;
    int function = 0;
    float reference = 0.0F;
    int blendSource = 0;
    int blendDestination = 0;
    GLMode blend{GL_BLEND, true, false};
};

} // namespace

template <class T>
bool Label::Settings::storeShown(T& field, const T& value)
{
    if (!store(field, value))
        return false;
    needUpdate = true;
    ++revision;
    return true;
}

bool Label::Settings::setText(const QString& value)
{
    return storeShown(text, value);
}

bool Label::Settings::setFont(const QFont& value)
{
    return storeShown(font, value);
}

bool Label::Settings::setColor(const QColor& value)
{
    return storeShown(color, value);
}

bool Label::Settings::setAngle(int value)
{
    return storeShown(angle, value);
}

bool Label::Settings::setPosition(const QVector3D& value)
{
    // Exact: QVector3D compares exactly, and a text follows the smallest movement.
    return store(position, value);
}

void Label::Settings::replaceEmptyText()
{
    if (text.isEmpty())
        text = " ";
}

bool Label::Settings::isBlank() const
{
    return text == QLatin1String(" ");
}

void Label::Settings::loadSettings(const QString& group, const QString& organization,
                                   const QString& application)
{
    const QSettings values(organization, application);
    setText(values.value(QString("%0/text").arg(group), text).toString());
    setFont(values.value(QString("%0/font").arg(group), font).value<QFont>());
    setColor(values.value(QString("%0/color").arg(group), color).value<QColor>());
    setAngle(values.value(QString("%0/angle").arg(group), angle).toInt());
    setAdjust(values.value(QString("%0/adjust").arg(group), adjust).toInt());
    setAlignment(Alignment(values.value(QString("%0/alignment").arg(group), int(alignment)).toInt()));
    setPosition(values.value(QString("%0/position").arg(group), position).value<QVector3D>());
}

void Label::Settings::saveSettings(const QString& group, const QString& organization,
                                   const QString& application) const
{
    if (!needSave)
        return;
    QSettings values(organization, application);
    values.setValue(QString("%0/text").arg(group), text);
    values.setValue(QString("%0/font").arg(group), font);
    values.setValue(QString("%0/color").arg(group), color);
    values.setValue(QString("%0/angle").arg(group), angle);
    values.setValue(QString("%0/adjust").arg(group), adjust);
    values.setValue(QString("%0/alignment").arg(group), int(alignment));
    values.setValue(QString("%0/position").arg(group), position);
}

Label::Label()
{
    name = "label";
}

void Label::draw()
{
    if (!visible)
        return;
    if (settings.isUpdateNeeded())
        update();
    if (image.isNull())
        return;
    const PixelTestScope scope;
    calculate();
    // Sending the transparent picture of a blank costs a tenth of a millisecond and shows nothing.
    if (settings.isBlank())
        return;
    const QRect window(viewport[0], viewport[1], viewport[2], viewport[3]);
    if (!placement.visible || !window.intersects(QRect(placement.corner, image.size())))
        return;
    setRasterPosition();
    glDrawPixels(image.width(), image.height(), GL_RGBA, GL_UNSIGNED_BYTE, image.constBits());
}

void Label::loadSettings(const QString& prefix, const QString& organization, const QString& application)
{
    const QString group = QString("%0/%1").arg(prefix, name);
    settings.loadSettings(group, organization, application);
    BaseDraw::loadSettings(group, organization, application);
}

void Label::saveSettings(const QString& prefix, const QString& organization, const QString& application)
{
    const QString group = QString("%0/%1").arg(prefix, name);
    settings.saveSettings(group, organization, application);
    BaseDraw::saveSettings(group, organization, application);
}

void Label::resetNeedSave()
{
    settings.resetNeedSave();
    BaseDraw::resetNeedSave();
}

void Label::update()
{
    const QRect rectangle = getBoundRect();
    settings.setNeedUpdate(false);
    image = isDrawable(rectangle.size()) ? QImage(getImageSize(), QImage::Format_ARGB32) : QImage();
    if (image.isNull())
        return;
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::transparent);
    if (!settings.isBlank()) {
        QPainter painter(&image);
        // The centre about which the rectangle covers the image to the pixel.
        drawTextInRect(painter, -rectangle.topLeft());
    }
    image = QGLWidget::convertToGLFormat(image);
}

void Label::calculate()
{
    fetchMatrices();
    placement = getPlacement({modelview, projection, viewport});
}

bool Label::setPixelRatio(double ratio)
{
    if (!(ratio > 0.0) || !std::isfinite(ratio) || isZero(ratio, pixelRatio))
        return false;
    pixelRatio = ratio;
    measuredSize = QSize();
    settings.setNeedUpdate(true);
    return true;
}

void Label::setOutward(const QVector2D& direction, double gap)
{
    outward = direction;
    outwardGap = gap;
}

QSize Label::getImageSize()
{
    if (!measuredSize.isValid() || measuredRevision != settings.getRevision()) {
        const QSize size = getBoundRect().size();
        measuredSize =
            QSize(int(std::ceil(size.width() * pixelRatio)), int(std::ceil(size.height() * pixelRatio)));
        measuredRevision = settings.getRevision();
    }
    return measuredSize;
}

LabelPlacement Label::getPlacement(const ViewFrame& frame)
{
    return placeLabel(frame, settings.getPosition(), getBox());
}

QRectF Label::getRectangle() const
{
    const bool shown = visible && placement.visible && !settings.getText().isEmpty() && !settings.isBlank();
    return shown ? QRectF(placement.corner, image.size()) : QRectF();
}

LabelBox Label::getBox()
{
    LabelBox box;
    box.size = getImageSize();
    box.alignment = settings.getAlignment();
    box.adjust = settings.getAdjust() * pixelRatio;
    box.outward = outward;
    box.gap = outwardGap * pixelRatio;
    return box;
}

QRect Label::getBoundRect()
{
    const QFontMetrics metrics(settings.getFont());
    settings.replaceEmptyText();
    if (settings.isBlank())
        return QRect(QPoint(0, 0), metrics.size(Qt::TextSingleLine, settings.getText()));
    QRect rectangle = metrics.boundingRect(settings.getText());
    rectangle.moveTo(-qRound(rectangle.width() / 2.0), -qRound(rectangle.height() / 2.0));
    return QTransform().rotate(settings.getAngle(), Qt::ZAxis).mapRect(rectangle);
}

void Label::drawTextInRect(QPainter& painter, const QPoint& centre) const
{
    QRect rectangle = QFontMetrics(settings.getFont()).boundingRect(settings.getText());
    rectangle.moveTo(-qRound(rectangle.width() / 2.0), -qRound(rectangle.height() / 2.0));
    QTransform transform;
    transform.translate(centre.x(), centre.y());
    transform.rotate(settings.getAngle(), Qt::ZAxis);
    painter.save();
    painter.setTransform(transform);
    painter.setFont(settings.getFont());
    painter.setPen(settings.getColor());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.drawText(rectangle, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, settings.getText());
    painter.restore();
}

void Label::setRasterPosition()
{
    // A raster position outside the view is invalid and drops the whole text. The position is therefore set
    // in the middle of the view, under matrices of its own, and moved from there by an empty bitmap, which
    // may leave the view. The matrices are loaded back and not popped: the projection stack may be only two
    // deep.
    // They are those of the tile, where a tile of a picture is drawn, and not the picture's.
    std::array<int, 4> view{};
    std::array<double, 16> drawn{};
    glGetIntegerv(GL_VIEWPORT, view.data());
    glGetDoublev(GL_PROJECTION_MATRIX, drawn.data());
    const QPoint half(view[2] / 2, view[3] / 2);
    const QPoint middle = QPoint(view[0], view[1]) + half;
    rasterPosition.setX(float(2.0 * half.x() / view[2] - 1.0));
    rasterPosition.setY(float(2.0 * half.y() / view[3] - 1.0));
    rasterPosition.setZ(float(2.0 * placement.depth - 1.0));
    int mode = 0;
    glGetIntegerv(GL_MATRIX_MODE, &mode);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glRasterPos3d(double(rasterPosition.x()), double(rasterPosition.y()), double(rasterPosition.z()));
    glLoadMatrixd(modelview.data());
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(drawn.data());
    glMatrixMode(GLenum(mode));
    const QPoint move = placement.corner - middle;
    glBitmap(0, 0, 0.0F, 0.0F, float(move.x()), float(move.y()), nullptr);
}

} // namespace Zel3D
