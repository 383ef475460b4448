#pragma once

#include "core/gradientstops.h"
#include "gradients/colorbutton.h"
#include "gradients/gradientbutton.h"
#include "gradients/gradientmanager.h"
#include "harness/harness.h"
#include "plots/addition.h"
#include "plots/markers.h"
#include "plots/plotfixture.h"
#include "plots/spectrum.h"
#include "plots/styleaction.h"
#include "settings/abstractsettingspage.h"
#include "settings/editors.h"
#include "settings/fieldeditor.h"
#include "settings/gradientvalue.h"
#include "settings/markerseditor.h"
#include "settings/numbereditor.h"
#include "settings/plotsettingsdialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QTranslator>
#include <QtTest>

#include <cmath>
#include <memory>

namespace fixture {

/// A painted plot with data and styles to choose from.
class StyledPlot : public Plot
{
public:
    StyledPlot()
    {
        new Zel3D::StyleAction(0, QIcon(), "&No plot", this);
        new Zel3D::StyleAction(4, QIcon(), "Filled", this);
        setGradient("other", plain(Qt::red));
        setGradient("ramp", ramp());
        setPlotStyle(4);
        Heights(4, 4, plane).into(*this);
    }
};

/// Spectra with styles to choose from.
class SpectrumPlot : public Zel3D::Spectrum
{
public:
    SpectrumPlot() : Spectrum("plot", fixture::organization, fixture::application)
    {
        setGradient("other", plain(Qt::red));
        setGradient("ramp", ramp());
        loadFromData({{1.0, {{1.0, 2.0}, {2.0, 3.0}}}, {2.0, {{1.0, 1.0}, {2.0, 5.0}}}}, Zel3D::XAxis);
    }
};

/// Every text longer by 40 %, as in a language with long words.
class LongTexts : public QTranslator
{
public:
    QString translate(const char* /*context*/, const char* source, const char* /*comment*/,
                      int /*n*/) const override
    {
        const QString text = QString::fromUtf8(source);
        return text + QString(qMax(2, text.size() * 2 / 5), 'n');
    }
    bool isEmpty() const override { return false; }
};

/// A value that differs from a field's own and that can be typed or chosen.
inline QVariant otherValue(const Zel3D::Field& field, const QVariant& value)
{
    using Zel3D::Field;
    switch (field.kind) {
    case Field::Switch:
        return !value.toBool();
    case Field::Integer:
        return value.toInt() + 1 <= int(field.maximum) ? value.toInt() + 1 : value.toInt() - 1;
    case Field::Number: {
        // As it can be typed.
        const double scale = std::pow(10.0, field.decimals);
        const double here = std::round(value.toDouble() * scale) / scale;
        return here + field.step <= field.maximum ? here + field.step : here - field.step;
    }
    case Field::Color:
        return value.value<QColor>() == QColor(1, 2, 3) ? QColor(3, 2, 1) : QColor(1, 2, 3);
    case Field::Font: {
        QFont font = value.value<QFont>();
        font.setPointSize(font.pointSize() + 1);
        return font;
    }
    case Field::Choice: {
        // A neighbour, so that one key reaches it.
        int row = 0;
        while (row < field.offers.size() && field.offers.at(row).value != value)
            ++row;
        return field.offers.at(row + 1 < field.offers.size() ? row + 1 : row - 1).value;
    }
    case Field::Text:
        return value.toString() + "x";
    case Field::Custom:
        break;
    }
    if (field.id == "additions/markers") {
        const std::unique_ptr<Zel3D::Addition> sphere(Zel3D::makeMarker({{"kind", "sphere"}}));
        return value.toList() << QVariant(Zel3D::describeMarker(*sphere));
    }
    Zel3D::GradientValue gradients = Zel3D::GradientValue::from(value.toMap());
    gradients.current = gradients.current == "ramp" ? "other" : "ramp";
    // The one that is not in use, so that only the map tells.
    const bool isPlain = Zel3D::gradientStops(gradients.gradients.value("spare")).size() == 1;
    gradients.gradients.insert("spare", isPlain ? ramp() : plain(Qt::green));
    return gradients.toMap();
}

/// What an editor shows, as far as the kind of field tells.
inline QVariant shownValue(const Zel3D::Field& field, QWidget& editor)
{
    using Zel3D::Field;
    switch (field.kind) {
    case Field::Switch:
        return editor.findChild<QCheckBox*>()->isChecked();
    case Field::Integer:
    case Field::Number:
        return editor.findChild<Zel3D::NumberBox*>()->value();
    case Field::Color:
        return editor.findChild<Zel3D::ColorButton*>()->getColor();
    case Field::Font: {
        QFont font(editor.findChild<QComboBox*>()->currentText());
        font.setPointSize(editor.findChild<QSpinBox*>()->value());
        return font;
    }
    case Field::Choice:
        return editor.findChild<QComboBox*>()->currentData();
    case Field::Text:
        return editor.findChild<QLineEdit*>()->text();
    case Field::Custom:
        break;
    }
    if (field.id == "additions/markers")
        return editor.findChild<QListWidget*>()->count();
    return editor.findChild<Zel3D::GradientButton*>()->getCurrentName();
}

/// Whether an editor shows a value, to the precision of its box.
inline bool shows(const Zel3D::Field& field, QWidget& editor, const QVariant& value)
{
    const QVariant shown = shownValue(field, editor);
    if (field.kind == Zel3D::Field::Number || field.kind == Zel3D::Field::Integer)
        return qAbs(shown.toDouble() - value.toDouble()) <= 0.51 * std::pow(10.0, -field.decimals);
    if (field.kind == Zel3D::Field::Font) {
        const QFont a = shown.value<QFont>();
        const QFont b = value.value<QFont>();
        return a.family() == b.family() && a.pointSize() == b.pointSize();
    }
    if (field.id == "additions/markers")
        return shown.toInt() == value.toList().size();
    if (field.id == "style/gradient")
        return shown == value.toMap().value("current");
    return shown == value;
}

/// Changes the store behind a gradient button as its dialogs do, then chooses.
inline void editGradients(Zel3D::ValueEditor& editor, const Zel3D::GradientValue& wanted)
{
    auto* store = editor.findChild<GradientManager*>();
    for (const QString& name : wanted.gradients.keys()) {
        if (store->gradients().contains(name))
            store->changeGradient(name, name, wanted.gradients.value(name));
        else
            store->addGradient(name, wanted.gradients.value(name));
    }
    editor.findChild<Zel3D::GradientButton*>()->setCurrentName(wanted.current);
}

/// Changes a value as a person does, with mouse or keyboard.
inline void editByHand(const Zel3D::Field& field, Zel3D::ValueEditor& editor, const QVariant& wanted)
{
    using Zel3D::Field;
    QWidget* target = editor.focusTarget();
    switch (field.kind) {
    case Field::Switch:
        QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(8, target->height() / 2));
        break;
    case Field::Integer:
    case Field::Number: {
        auto* box = qobject_cast<QDoubleSpinBox*>(target);
        box->selectAll();
        QTest::keyClicks(box, box->locale().toString(wanted.toDouble(), 'f', box->decimals()).remove(','));
        QTest::keyClick(box, Qt::Key_Return);
        break;
    }
    case Field::Font:
        QTest::keyClick(editor.findChild<QSpinBox*>(), Qt::Key_Up);
        break;
    case Field::Choice: {
        auto* list = qobject_cast<QComboBox*>(target);
        const int steps = list->findData(wanted) - list->currentIndex();
        for (int i = 0; i < qAbs(steps); ++i)
            QTest::keyClick(list, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
        break;
    }
    case Field::Text:
        QTest::keyClick(target, Qt::Key_End);
        QTest::keyClicks(target, "x");
        break;
    case Field::Color:
        // As dropped on the button; the colour dialog is the toolkit's.
        editor.findChild<Zel3D::ColorButton*>()->setColor(wanted.value<QColor>());
        break;
    case Field::Custom:
        if (field.id == "additions/markers")
            static_cast<Zel3D::MarkersEditor&>(editor).add("sphere");
        else
            editGradients(editor, Zel3D::GradientValue::from(wanted.toMap()));
        break;
    }
}

} // namespace fixture
