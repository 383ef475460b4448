#pragma once

#include "settings/valueeditor.h"

class QGridLayout;
class QListWidget;
class QPushButton;

namespace Zel3D {

/// Edits the markers of a plot, as BasePlot::getMarkers() gives them: a list with buttons to add and remove,
/// and below it the values of the chosen marker. Markers of a host's own class are listed and stay as they
/// are.
class MarkersEditor : public ValueEditor
{
    Q_OBJECT
public:
    explicit MarkersEditor(QWidget* parent = nullptr);

    void show(const QVariant& value) override;
    QWidget* focusTarget() override;

    /// Adds a marker of a kind with its usual values and chooses it.
    void add(const QString& kind);
    void removeChosen();
    /// -1 for none.
    int getChosen() const;
    void choose(int row);

private:
    QWidget* makeButtons();
    void fillList();
    void showValues();
    void makeValues(const QString& kind);
    void change(const QString& name, const QVariant& value, int gesture);
    void send(int gesture);

    QVariantList markers;
    QListWidget* list;
    QGridLayout* layout;
    QPushButton* removeButton = nullptr;
    QWidget* values = nullptr;
    QString shownKind;
};

} // namespace Zel3D
