#pragma once

#include "export/feedbackpass.h"

namespace Zel3D {

/// The parts of lines that an image of the depths of other things does not hide.
class VisibleLines
{
public:
    /// \a depths: of each pixel, 0 to 1, rows upwards; \a scale: pixels of the image to one of the lines.
    VisibleLines(const QVector<float>& depths, const QSize& imageSize, double imageScale);

    /// Lines are cut where they go behind; points and triangles stay or go by their middle.
    QVector<WindowPrimitive> of(const QVector<WindowPrimitive>& primitives) const;

private:
    bool isVisible(double x, double y, double z) const;
    void addParts(const WindowPrimitive& line, QVector<WindowPrimitive>& parts) const;

    const QVector<float>& depth;
    QSize size;
    double scale;
};

} // namespace Zel3D
