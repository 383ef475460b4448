#pragma once

#include "core/export.h"

#include <QVector3D>

class QTextStream;

namespace Zel3D {

/// What a plot draws: values with their bounding box and node spacing.
///
/// A container owns its values and knows nothing of drawing. Everywhere in it a column runs along x and a row
/// along y, and indices are given column first. Indices are not checked. Containers cannot be copied.
class VORANPLOT_EXPORT Data
{
public:
    virtual ~Data();
    Data(const Data&) = delete;
    Data& operator=(const Data&) = delete;

    /// Drops the values and sets the bounding box to zero; the spacing stays.
    virtual void clear() = 0;
    /// Whether there is nothing to draw.
    virtual bool isEmpty() const = 0;
    /// A hook for subclasses: writes nothing here. Returns the stream.
    virtual QTextStream& saveToStream(QTextStream& stream);
    /// A hook for subclasses: reads nothing here. Returns the stream.
    virtual QTextStream& loadFromStream(QTextStream& stream);

    /// The kind of the container: 0 GridData, 1 CellData, 2 SpectrumData.
    int getDataType() const { return dataType; }
    /// The lower corner of the bounding box of the data set last, zero before and after clear().
    QVector3D getMinimum() const { return minimum; }
    /// The upper corner of the bounding box, as getMinimum().
    QVector3D getMaximum() const { return maximum; }
    /// The distance between neighbouring columns; 0 until data give one.
    double getStepX() const { return stepX; }
    /// The distance between neighbouring rows; 0 until data give one.
    double getStepY() const { return stepY; }

protected:
    explicit Data(int type) : dataType(type) {}

    const qint32 dataType;
    QVector3D minimum;
    QVector3D maximum;
    double stepX = 0.0;
    double stepY = 0.0;
};

} // namespace Zel3D
