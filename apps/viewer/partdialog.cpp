#include "partdialog.h"

#include "gridsource.h"
#include "partmap.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int mostDecimals = 12;

/// Enough to tell neighbouring nodes well apart; none where all nodes are at whole numbers.
int decimalsFor(double start, double step)
{
    if (start == std::floor(start) && step == std::floor(step))
        return 0;
    return std::clamp(int(std::ceil(-std::log10(step))) + 2, 1, mostDecimals);
}

QString number(double value)
{
    return QLocale().toString(qlonglong(value));
}

} // namespace

PartDialog::PartDialog(const GridSource& source, const std::optional<QPointF>& place, QWidget* parent)
    : QDialog(parent),
      m_layout(source.layout()),
      m_budget(source.budget()),
      m_map(new PartMap(source.map())),
      m_verdict(new QLabel)
{
    setWindowTitle(tr("Open part of %1").arg(source.name()));
    const GridRange& range = m_layout.range;
    const QPointF middle =
        place.value_or(QPointF(0.5 * (range.xMin + range.xMax), 0.5 * (range.yMin + range.yMax)));
    m_part = m_layout.around(middle.x(), middle.y(), m_budget);
    auto* layout = new QVBoxLayout(this);
    auto* advice = new QLabel(tr("Drag a rectangle on the map, or drag inside it to move it:"));
    advice->setWordWrap(true);
    layout->addWidget(advice);
    layout->addWidget(m_map, 1);
    layout->addLayout(makeFields(source));
    m_verdict->setObjectName("verdict");
    m_verdict->setWordWrap(true);
    // Room for two lines, so that the map does not jump while it is dragged on.
    m_verdict->setMinimumHeight(2 * m_verdict->fontMetrics().lineSpacing());
    m_verdict->setAlignment(Qt::AlignTop);
    layout->addWidget(m_verdict);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_open = buttons->button(QDialogButtonBox::Ok);
    m_open->setText(tr("&Open part"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    connect(m_map, &PartMap::dragged, this, &PartDialog::takeMap);
    fillFields();
    showPart();
}

QDoubleSpinBox* PartDialog::makeField(const char* name, double lower, double upper, double step, int nodes)
{
    constexpr int stepsAcross = 100;
    auto* field = new QDoubleSpinBox;
    field->setObjectName(name);
    field->setDecimals(decimalsFor(lower, step));
    field->setRange(lower, upper);
    field->setSingleStep(step * std::max(1, nodes / stepsAcross));
    field->setKeyboardTracking(true);
    connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &PartDialog::takeFields);
    return field;
}

QLayout* PartDialog::makeFields(const GridSource& source)
{
    const GridRange& range = m_layout.range;
    const auto x = [&](const char* name) {
        return makeField(name, range.xMin, range.xMax, m_layout.stepX(), m_layout.columns);
    };
    const auto y = [&](const char* name) {
        return makeField(name, range.yMin, range.yMax, m_layout.stepY(), m_layout.rows);
    };
    m_fields = {x("xFrom"), x("xTo"), y("yFrom"), y("yTo")};
    auto* layout = new QGridLayout;
    const QString names[] = {source.xName(), source.yName()};
    for (int axis = 0; axis < 2; ++axis) {
        QDoubleSpinBox* const from = m_fields[2 * std::size_t(axis)];
        QDoubleSpinBox* const to = m_fields[2 * std::size_t(axis) + 1];
        auto* label = new QLabel(tr("%1 from").arg(names[axis]));
        label->setBuddy(from);
        from->setAccessibleName(label->text());
        to->setAccessibleName(tr("%1 to").arg(names[axis]));
        layout->addWidget(label, axis, 0);
        layout->addWidget(from, axis, 1);
        layout->addWidget(new QLabel(tr("to")), axis, 2);
        layout->addWidget(to, axis, 3);
    }
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(3, 1);
    return layout;
}

void PartDialog::takeFields()
{
    m_part = m_layout.within(
        {m_fields[0]->value(), m_fields[1]->value(), m_fields[2]->value(), m_fields[3]->value()});
    showPart();
}

void PartDialog::takeMap(const GridRange& fractions)
{
    m_part = m_layout.covered(fractions);
    fillFields();
    showPart();
}

void PartDialog::fillFields()
{
    const GridRange shown = range();
    const double values[] = {shown.xMin, shown.xMax, shown.yMin, shown.yMax};
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        const QSignalBlocker blocker(m_fields[i]);
        m_fields[i]->setValue(values[i]);
    }
}

QString PartDialog::verdict() const
{
    const QString size = tr("%1 x %2 nodes").arg(number(m_part.columns), number(m_part.rows));
    if (!m_part.isSurface())
        return tr("%1: too few for a surface, which needs 2 x 2. Choose a larger part.").arg(size);
    const GridSize shown = m_part.thinned(m_budget);
    if (shown.columns == m_part.columns && shown.rows == m_part.rows)
        return tr("%1, in full: within the budget of %2 nodes.").arg(size, number(m_budget));
    return tr("%1: more than the budget of %2 nodes. Shown thinned to %3 x %4.")
        .arg(size, number(m_budget), number(shown.columns), number(shown.rows));
}

void PartDialog::showPart()
{
    m_map->setPart(m_layout.fractionsOf(m_part));
    m_verdict->setText(verdict());
    m_open->setEnabled(m_part.isSurface());
}
