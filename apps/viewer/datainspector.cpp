#include "datainspector.h"

#include "datasummary.h"
#include "histogramview.h"
#include "valuestatistics.h"
#include "valuetablemodel.h"
#include "valuetableview.h"

#include <QEvent>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QScrollArea>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int bars = 64;
constexpr double manyCells = 2e6; ///< a summary takes noticeable time
constexpr double mostFacts = 0.6; ///< of the height
constexpr int longestWord = 22;   ///< letters
constexpr QSize usualSize(330, 520);
constexpr QSize leastSize(180, 120);

/// A label takes less, and cuts its longest word off. A very long one is cut off all the same, rather than
/// all other values with it.
int widthOfWords(const QLabel& label)
{
    int widest = 0;
    for (const QString& word : label.text().split(' '))
        widest = std::max(widest, label.fontMetrics().horizontalAdvance(word));
    return std::min(widest + 1, longestWord * label.fontMetrics().averageCharWidth());
}

} // namespace

DataInspector::DataInspector(QWidget* parent) : QWidget(parent), m_summary(new QTimer(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_split = new QSplitter(Qt::Vertical);
    m_split->setChildrenCollapsible(false);
    m_split->addWidget(makeFacts());
    makeTable();
    m_split->addWidget(m_table);
    m_split->setStretchFactor(1, 1);
    layout->addWidget(m_split);
    connect(m_split, &QSplitter::splitterMoved, this, [this] { m_divided = true; });
    m_summary->setSingleShot(true);
    connect(m_summary, &QTimer::timeout, this, &DataInspector::summarize);
}

QSize DataInspector::sizeHint() const
{
    return usualSize;
}

QSize DataInspector::minimumSizeHint() const
{
    return leastSize;
}

QWidget* DataInspector::makeFacts()
{
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    m_facts = new QWidget;
    m_lines = new QFormLayout(m_facts);
    m_lines->setContentsMargins(0, 0, 0, 0);
    m_lines->setVerticalSpacing(3);
    m_lines->setHorizontalSpacing(10);
    m_lines->setLabelAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_lines->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_lines->setRowWrapPolicy(QFormLayout::WrapLongRows);
    layout->addWidget(m_facts);
    m_histogram = new HistogramView;
    layout->addWidget(m_histogram);
    m_nothing = new QLabel(tr("There is no plot with data."));
    m_nothing->setWordWrap(true);
    layout->addWidget(m_nothing);
    layout->addStretch(1);
    scroll->setWidget(content);
    content->installEventFilter(this);
    return scroll;
}

void DataInspector::makeTable()
{
    m_model = new ValueTableModel(this);
    m_table = new ValueTableView;
    m_table->setModel(m_model);
    m_table->setObjectName("values");
    connect(m_table, &ValueTableView::told, this, &DataInspector::told);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                if (index.isValid() && !m_following)
                    emit placeChosen({index.column(), index.row()});
            });
}

void DataInspector::setValues(const PlotValues* values, const QString& source, const QString& tip)
{
    m_values = values;
    m_source = source;
    m_sourceTip = tip;
    m_model->setValues(values);
    m_table->setVisible(values != nullptr);
    m_nothing->setVisible(values == nullptr);
    keepFacts(0);
    m_histogram->setVisible(false);
    m_summary->stop();
    if (values && isVisible())
        m_summary->start(0);
}

void DataInspector::refresh()
{
    if (!m_values || !isVisible())
        return;
    m_model->refresh();
    summarize();
}

void DataInspector::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_values)
        m_summary->start(0);
}

void DataInspector::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    divide();
}

bool DataInspector::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)
        QTimer::singleShot(0, this, &DataInspector::divide);
    return QWidget::eventFilter(watched, event);
}

void DataInspector::divide()
{
    if (m_divided || !m_values)
        return;
    QWidget* content = m_facts->parentWidget();
    const int wanted = content->hasHeightForWidth() ? content->heightForWidth(content->width())
                                                    : content->sizeHint().height();
    const int facts = std::min(wanted + 2, int(mostFacts * m_split->height()));
    m_split->setSizes({facts, m_split->height() - facts});
    if (m_table->currentIndex().isValid())
        m_table->scrollTo(m_table->currentIndex());
}

void DataInspector::showPlace(const ValuePlace& place)
{
    const QModelIndex index = m_model->index(place.row, place.column);
    if (!index.isValid())
        return;
    m_following = true;
    m_table->setCurrentIndex(index);
    m_table->scrollTo(index);
    m_following = false;
}

void DataInspector::keepFacts(int count)
{
    while (m_lines->rowCount() > count)
        m_lines->removeRow(count);
}

/// A line that is there already takes the new text, so that what changes all the time does not flicker.
void DataInspector::setFact(int line, const QString& name, const QString& text, const QString& tip)
{
    if (line == m_lines->rowCount()) {
        auto* value = new QLabel;
        value->setTextFormat(Qt::PlainText);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        value->setWordWrap(true);
        value->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        auto* label = new QLabel;
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        value->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        m_lines->addRow(label, value);
    }
    const auto label = [&](QFormLayout::ItemRole role) {
        return qobject_cast<QLabel*>(m_lines->itemAt(line, role)->widget());
    };
    label(QFormLayout::LabelRole)->setText(name);
    label(QFormLayout::FieldRole)->setText(text);
    label(QFormLayout::FieldRole)->setMinimumWidth(widthOfWords(*label(QFormLayout::FieldRole)));
    label(QFormLayout::FieldRole)->setToolTip(tip);
    label(QFormLayout::FieldRole)->setAccessibleName(name);
}

void DataInspector::summarize()
{
    if (!m_values)
        return;
    const bool slow = double(m_values->columns()) * m_values->rows() > manyCells;
    if (slow)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const ValueStatistics statistics(
        [this](const ValueStatistics::Visit& take) { m_values->visitHeights(take); });
    if (slow)
        QGuiApplication::restoreOverrideCursor();
    setFact(0, tr("Source"), m_source, m_sourceTip);
    const QVector<DataSummary::Line> lines = DataSummary::lines(*m_values, statistics, locale());
    for (int i = 0; i < lines.size(); ++i)
        setFact(i + 1, lines[i].first, lines[i].second);
    keepFacts(lines.size() + 1);
    m_histogram->setVisible(statistics.count() > 0 && m_values->kind() != PlotValues::Kind::Mesh);
    m_histogram->setBars(statistics.histogram(bars), statistics.minimum(), statistics.maximum());
}
