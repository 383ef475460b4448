#pragma once

#include "slicedata.h"

#include <QWidget>

class QBoxLayout;
class QButtonGroup;
class QLabel;
class QStackedWidget;
class QToolButton;
class SliceCurve;

/// The curves through the picked point: along its row, along its column or both.
class SlicePanel : public QWidget
{
    Q_OBJECT
public:
    enum Shown { Row = 1, Column = 2, Both = 3 };

    explicit SlicePanel(QWidget* parent = nullptr);

    /// Not owned; null without a plot. What was picked before is forgotten.
    void setValues(const PlotValues* values);
    /// Shows the curves through a point.
    void showPlace(const ValuePlace& place);
    /// The numbers of the plot have changed.
    void refresh();
    void setHeld(bool held);
    /// Why there is nothing to see, as long as no point was picked.
    void setHint(const QString& sentence);

    /// The shown curves as CSV; empty without any.
    QByteArray csv() const;
    /// Writes them to a file, whole or not at all. False when that fails; \a error says why.
    bool save(const QString& path, QString& error) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// Whether the point is to stay while the mouse moves on.
    void heldChanged(bool held);
    /// A sentence for the status bar.
    void told(const QString& sentence);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QBoxLayout* makeHead();
    void copy();
    void chooseFile();
    void choose(int shown);
    void draw();
    void nameChoices();
    void nameButtons();
    void showWhere();
    void updateButtons();

    const PlotValues* m_values = nullptr;
    QVector<SliceData> m_slices;
    ValuePlace m_place;
    bool m_placed = false;
    Shown m_shown = Both;
    QStackedWidget* m_stack = nullptr;
    QLabel* m_hint = nullptr;
    QLabel* m_where = nullptr;
    QButtonGroup* m_choices = nullptr;
    QToolButton* m_hold = nullptr;
    QToolButton* m_copy = nullptr;
    QToolButton* m_save = nullptr;
    QBoxLayout* m_curves = nullptr;
    SliceCurve* m_row = nullptr;
    SliceCurve* m_column = nullptr;
};
