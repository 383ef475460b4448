#include "settings/markerseditor.h"

#include "plots/addition.h"
#include "plots/markers.h"
#include "settings/field.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <memory>

namespace Zel3D {

namespace {

constexpr double farAway = 1e9;
constexpr int listLines = 5;

QString kindName(const QString& kind)
{
    if (kind == "dot")
        return MarkersEditor::tr("Dot in the color of the data");
    if (kind == "coloredDot")
        return MarkersEditor::tr("Dot in one color");
    if (kind == "sphere")
        return MarkersEditor::tr("Sphere");
    if (kind == "cylinder")
        return MarkersEditor::tr("Bar");
    return kind == "arrow" ? MarkersEditor::tr("Arrow") : MarkersEditor::tr("Marker of the program");
}

Field sizeField()
{
    Field field = Field::number("size", MarkersEditor::tr("Size"), MarkersEditor::tr("The width of a dot."));
    return field.within(0.1, 100.0, 1.0, 1).in(MarkersEditor::tr("px"));
}

Field lengthField(const QString& id, const QString& name, const QString& about, double least = 0.0)
{
    return Field::number(id, name, about).within(least, farAway, 0.1, 4);
}

/// How the values of markers are edited; ids are their names.
QVector<Field> valueFields(const QString& kind)
{
    const Field color =
        Field::color("color", MarkersEditor::tr("Color"), MarkersEditor::tr("The color of the marker."));
    const Field radius = lengthField("radius", MarkersEditor::tr("Radius"),
                                     MarkersEditor::tr("The radius of the marker, in units of the data."));
    const Field smooth = Field::toggle("smooth", MarkersEditor::tr("Round"),
                                       MarkersEditor::tr("Draws round dots in place of squares."));
    if (kind == "dot")
        return {sizeField(), smooth};
    if (kind == "coloredDot")
        return {sizeField(), smooth, color};
    if (kind == "sphere")
        return {radius, color};
    if (kind == "cylinder")
        return {radius,
                Field::integer("ribNumber", MarkersEditor::tr("Sides"),
                               MarkersEditor::tr("The number of sides of a bar."))
                    .within(3, 100, 1),
                Field::number("angleZ", MarkersEditor::tr("Turn"),
                              MarkersEditor::tr("The turn of a bar around its length."))
                    .within(-360.0, 360.0, 5.0, 1)
                    .in(QStringLiteral("°")),
                Field::integer("opacity", MarkersEditor::tr("Opacity"),
                               MarkersEditor::tr("How little of what lies behind shines through."))
                    .within(0, 100, 5)
                    .in(QStringLiteral("%"))
                    .withSlider(),
                Field::toggle("frameVisible", MarkersEditor::tr("Edges"),
                              MarkersEditor::tr("Draws lines along the edges."))};
    if (kind != "arrow")
        return {};
    const QString about = MarkersEditor::tr("The point at which all arrows aim, in units of the data.");
    return {lengthField("endX", MarkersEditor::tr("End X"), about, -farAway),
            lengthField("endY", MarkersEditor::tr("End Y"), about, -farAway),
            lengthField("endZ", MarkersEditor::tr("End Z"), about, -farAway),
            Field::integer("quality", MarkersEditor::tr("Sides"), MarkersEditor::tr("The sides of the head."))
                .within(3, 50, 1),
            color};
}

} // namespace

MarkersEditor::MarkersEditor(QWidget* parent)
    : ValueEditor(parent), list(new QListWidget(this)), layout(new QGridLayout(this))
{
    list->setFixedHeight(list->fontMetrics().height() * listLines);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(list, 0, 0, Qt::AlignTop);
    layout->addWidget(makeButtons(), 0, 1, Qt::AlignTop);
    layout->setColumnStretch(0, 1);
    connect(list, &QListWidget::currentRowChanged, this, &MarkersEditor::showValues);
    setFocusProxy(list);
    showValues();
}

QWidget* MarkersEditor::makeButtons()
{
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    auto* addButton = new QPushButton(tr("Add"), side);
    addButton->setToolTip(tr("Adds a marker at every point of the data"));
    addButton->setAutoDefault(false);
    auto* menu = new QMenu(addButton);
    for (const QString& kind : markerKinds())
        menu->addAction(kindName(kind), this, [this, kind] { add(kind); });
    addButton->setMenu(menu);
    removeButton = new QPushButton(tr("Remove"), side);
    removeButton->setToolTip(tr("Removes the chosen marker"));
    removeButton->setAutoDefault(false);
    connect(removeButton, &QPushButton::clicked, this, &MarkersEditor::removeChosen);
    for (QPushButton* button : {addButton, removeButton}) {
        button->setAccessibleName(button->text());
        column->addWidget(button);
    }
    return side;
}

QWidget* MarkersEditor::focusTarget()
{
    return list;
}

int MarkersEditor::getChosen() const
{
    return list->currentRow();
}

void MarkersEditor::choose(int row)
{
    list->setCurrentRow(row);
}

void MarkersEditor::show(const QVariant& value)
{
    if (value.toList() == markers)
        return;
    markers = value.toList();
    fillList();
}

void MarkersEditor::fillList()
{
    const int row = list->currentRow();
    {
        const QSignalBlocker quiet(list);
        list->clear();
        for (int i = 0; i < markers.size(); ++i)
            list->addItem(kindName(markers.at(i).toMap().value("kind").toString()));
        list->setCurrentRow(std::min(std::max(row, 0), markers.size() - 1));
    }
    showValues();
}

void MarkersEditor::showValues()
{
    const QVariantMap marker = markers.value(getChosen()).toMap();
    const QString kind = marker.value("kind").toString();
    removeButton->setEnabled(!kind.isEmpty() && kind != ownMarkerKind());
    if (kind != shownKind || !values)
        makeValues(kind);
    for (ValueEditor* editor : values->findChildren<ValueEditor*>())
        editor->show(marker.value(editor->objectName()));
}

void MarkersEditor::makeValues(const QString& kind)
{
    shownKind = kind;
    delete values;
    values = new QWidget(this);
    auto* grid = new QGridLayout(values);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    for (const Field& field : valueFields(kind)) {
        ValueEditor* editor = make(field);
        editor->setParent(values);
        editor->setObjectName(field.id);
        editor->guard(*editor);
        QWidget* target = editor->focusTarget();
        for (QWidget* part : {static_cast<QWidget*>(editor), target}) {
            part->setToolTip(field.toolTip());
            part->setAccessibleName(field.accessibleName());
            part->setAccessibleDescription(field.description);
        }
        auto* label = new QLabel(field.label, values);
        label->setBuddy(target);
        label->setToolTip(field.toolTip());
        const int row = grid->rowCount();
        grid->addWidget(label, row, 0);
        grid->addWidget(editor, row, 1, field.slider ? Qt::Alignment() : Qt::AlignLeft);
        connect(editor, &ValueEditor::edited, this,
                [this, name = field.id](const QVariant& v, int gesture) { change(name, v, gesture); });
    }
    layout->addWidget(values, 1, 0, 1, 2);
    values->setVisible(grid->count() > 0);
}

void MarkersEditor::change(const QString& name, const QVariant& value, int gesture)
{
    QVariantMap marker = markers.value(getChosen()).toMap();
    marker.insert(name, value);
    markers[getChosen()] = marker;
    send(gesture);
}

void MarkersEditor::add(const QString& kind)
{
    const std::unique_ptr<Addition> usual(makeMarker({{"kind", kind}}));
    if (!usual)
        return;
    markers.append(describeMarker(*usual));
    fillList();
    choose(markers.size() - 1);
    send(0);
}

void MarkersEditor::removeChosen()
{
    if (getChosen() < 0)
        return;
    markers.removeAt(getChosen());
    fillList();
    send(0);
}

void MarkersEditor::send(int gesture)
{
    emit edited(markers, gesture);
}

} // namespace Zel3D
