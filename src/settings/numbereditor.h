#pragma once

#include "settings/valueeditor.h"

#include <QDoubleSpinBox>
#include <QElapsedTimer>

class QSlider;

namespace Zel3D {

/// A box for numbers that shows no more decimals than the number needs and is no wider than common numbers.
class NumberBox : public QDoubleSpinBox
{
    Q_OBJECT
public:
    explicit NumberBox(QWidget* parent = nullptr);

    QString textFromValue(double number) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
};

/// Edits an Integer or a Number, with a slider on demand. The drag of a slider and quick steps of the box are
/// one gesture each.
class NumberEditor : public ValueEditor
{
    Q_OBJECT
public:
    explicit NumberEditor(const Field& field, QWidget* parent = nullptr);

    void show(const QVariant& value) override;
    QWidget* focusTarget() override { return box; }

private:
    void stepBox(double number);
    void dragSlider(int position);
    void send(double number);
    int positionOf(double number) const;

    bool whole;
    double minimum;
    double maximum;
    NumberBox* box;
    QSlider* slider = nullptr;
    int gesture = 0;
    double shown = 0.0;    ///< the value shown last
    double inTheBox = 0.0; ///< what the box made of it
    QElapsedTimer sinceStep;
};

} // namespace Zel3D
