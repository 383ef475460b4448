#pragma once

#include "scene/axis.h"
#include "settings/field.h"

namespace Zel3D {

class Label;

/// The fields of records that more than one page edits. \a id is the start of their ids, such as
/// "title/text"; the record must outlive the fields.
namespace RecordFields {

/// Whether a text is shown, its words, font and colour.
QVector<Field> text(const QString& id, Label& label);
/// The angle of a text and how it lies at its place.
QVector<Field> place(const QString& id, Label& label);
/// The numbers at the ticks.
QVector<Field> numbers(const QString& id, Axis::NumbersSettings& record);
/// The axis line.
QVector<Field> line(const QString& id, Axis::LineSettings& record);
/// The tick marks.
QVector<Field> tics(const QString& id, Axis::TicsSettings& record);
/// The arrow at the end of an axis.
QVector<Field> arrow(const QString& id, Arrow& drawn);

} // namespace RecordFields

} // namespace Zel3D
