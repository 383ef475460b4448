#pragma once

#include "plotvalues.h"

#include <QWidget>

class HistogramView;
class QFormLayout;
class QLabel;
class QSplitter;
class QTimer;
class ValueTableModel;
class ValueTableView;

/// What is known of the data of a plot, and the data themselves as a table.
class DataInspector : public QWidget
{
    Q_OBJECT
public:
    explicit DataInspector(QWidget* parent = nullptr);

    /// Not owned; null without a plot. The source is where they come from, the tip its full path.
    void setValues(const PlotValues* values, const QString& source = QString(),
                   const QString& tip = QString());
    /// The numbers of the plot have changed.
    void refresh();
    /// Chooses a cell and scrolls to it.
    void showPlace(const ValuePlace& place);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The person has chosen a cell.
    void placeChosen(const ValuePlace& place);
    /// A sentence for the status bar.
    void told(const QString& sentence);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// Watches the facts, whose height is known after they were laid out.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeFacts();
    void makeTable();
    /// The facts as high as they are, as far as the table keeps its part; until the person divides anew.
    void divide();
    /// When it is seen, and not in the middle of what changes the plot.
    void summarize();
    void setFact(int line, const QString& name, const QString& text, const QString& tip = QString());
    void keepFacts(int count);

    const PlotValues* m_values = nullptr;
    QString m_source;
    QString m_sourceTip;
    QWidget* m_facts = nullptr;
    QFormLayout* m_lines = nullptr;
    HistogramView* m_histogram = nullptr;
    QLabel* m_nothing = nullptr;
    ValueTableModel* m_model = nullptr;
    ValueTableView* m_table = nullptr;
    QTimer* m_summary = nullptr;
    QSplitter* m_split = nullptr;
    bool m_following = false;
    bool m_divided = false;
};
