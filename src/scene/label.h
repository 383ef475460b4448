#pragma once

#include "core/settingsrecord.h"
#include "scene/basedraw.h"
#include "scene/labelplacement.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QRectF>

class QPainter;

namespace Zel3D {

/// One line of text in the scene.
///
/// The text is rendered once into an image at the window's pixel ratio and drawn each frame as pixels, so
/// that it always faces the viewer, keeps its size and stays sharp. It has the depth of its position: what
/// lies in front hides it. A text that crosses an edge of the window is cut there; a position behind the eye
/// or outside the depth range shows no text. Its name is "label"; invisible by default.
class VORANPLOT_EXPORT Label : public BaseDraw
{
public:
    /// The persisted settings. The setters return whether the value changed and then mark the record; those
    /// of text, font, colour and angle also ask for a new image.
    class VORANPLOT_EXPORT Settings : public SettingsRecord
    {
    public:
        const QString& getText() const { return text; }
        bool setText(const QString& value);
        const QFont& getFont() const { return font; }
        bool setFont(const QFont& value);
        const QColor& getColor() const { return color; }
        bool setColor(const QColor& value);
        /// Degrees, clockwise on the screen.
        int getAngle() const { return angle; }
        bool setAngle(int value);
        /// Logical pixels by which the text moves off its position, to the side on which the alignment puts
        /// it: TopLeft right and down, TopCenter down, Center not at all.
        int getAdjust() const { return adjust; }
        bool setAdjust(int value) { return store(adjust, value); }
        /// The corner, edge or centre of the text's box that lies at the position.
        Alignment getAlignment() const { return alignment; }
        bool setAlignment(Alignment value) { return store(alignment, value); }
        /// The point of the world to which the text belongs.
        const QVector3D& getPosition() const { return position; }
        bool setPosition(const QVector3D& value);

        /// Whether the image must be rendered again.
        bool isUpdateNeeded() const { return needUpdate; }
        void setNeedUpdate(bool on) { needUpdate = on; }
        /// Grows with every change that the image shows.
        unsigned int getRevision() const { return revision; }
        /// Puts a blank in the place of an empty text, as no change of the user's.
        void replaceEmptyText();
        /// Whether the text is a single blank.
        bool isBlank() const;

        virtual void loadSettings(const QString& group, const QString& organization,
                                  const QString& application);
        virtual void saveSettings(const QString& group, const QString& organization,
                                  const QString& application) const;

    private:
        template <class T>
        bool storeShown(T& field, const T& value);

        bool needUpdate = true;
        unsigned int revision = 0;
        QString text;
        QFont font = QFont("Sans Serif", 12);
        QColor color = Qt::black;
        int angle = 0;
        int adjust = 0;
        Alignment alignment = Center;
        QVector3D position;
    };

    Label();

    /// Draws the text when visible; renders the image first when it is out of date. Puts back all state that
    /// it changes but the raster position. Needs a current context.
    void draw() override;
    /// The group is "%0/%1" of the prefix and the name: the settings, then "%0/visible".
    void loadSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    void saveSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    void resetNeedSave() override;

    /// Renders the text into the image. Needs no context.
    virtual void update();
    /// Finds the place of the image in the window from the matrices that are current. Needs a current
    /// context.
    virtual void calculate();

    Settings& getSettings() { return settings; }
    const Settings& getSettings() const { return settings; }

    /// Device pixels per logical pixel of the window; 1 by default. Values that are not positive are ignored.
    /// Returns whether the ratio changed; a change asks for a new image.
    bool setPixelRatio(double ratio);
    double getPixelRatio() const { return pixelRatio; }
    /// Puts the text beside its position in a direction of the window (y upwards), a gap in logical pixels
    /// away, in place of alignment and adjust; the zero vector goes back to these. See labelOffset().
    void setOutward(const QVector2D& direction, double gap);

    /// The size of the image in pixels; 0 before the first update().
    double width() const { return image.width(); }
    double height() const { return image.height(); }
    const QImage& getImage() const { return image; }
    /// The size in pixels that the image has or, when it is out of date, will have.
    QSize getImageSize();
    /// The text's place in a window that is seen through a frame. Needs no context.
    LabelPlacement getPlacement(const ViewFrame& frame);
    /// The text's place in the window when it was drawn last.
    const LabelPlacement& getPlacement() const { return placement; }
    /// The text's box in the window when it was drawn last, y upwards; null for a label that shows nothing.
    QRectF getRectangle() const;

    /// The rectangle of the turned text about the origin, in logical pixels. An empty text becomes a single
    /// blank first; a single blank has the rectangle of one blank at the origin.
    QRect getBoundRect();
    /// Paints the turned text about a centre, in the painter's logical pixels. The painter stays as it was.
    void drawTextInRect(QPainter& painter, const QPoint& centre) const;

protected:
    /// What places the box of the image about its anchor, in pixels.
    LabelBox getBox();

    LabelPlacement placement;

private:
    void setRasterPosition();

    QVector3D rasterPosition;
    QImage image;
    Settings settings;
    double pixelRatio = 1.0;
    QVector2D outward;
    double outwardGap = 0.0;
    QSize measuredSize;
    unsigned int measuredRevision = 0;
};

} // namespace Zel3D
