#include "tabledialog.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int mostPreviewed = 8;
constexpr int cellWidth = 74;
constexpr int previewHeight = 170;
constexpr int usualWidth = 460;

} // namespace

TableDialog::TableDialog(const ClipboardTable& table, QWidget* parent) : QDialog(parent), m_table(table)
{
    setWindowTitle(tr("Paste data"));
    auto* layout = new QVBoxLayout(this);
    auto* size = new QLabel(tr("The table has %1 rows and %2 columns. What do its cells mean?")
                                .arg(locale().toString(table.rows()), locale().toString(table.columns())));
    size->setWordWrap(true);
    layout->addWidget(size);
    layout->addWidget(makePreview(), 1);
    layout->addWidget(makeChoices());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Show"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    setMinimumWidth(usualWidth);
    colorPreview();
}

QTableWidget* TableDialog::makePreview()
{
    const int columns = std::min(m_table.columns(), mostPreviewed);
    const int rows = std::min(m_table.rows(), mostPreviewed);
    m_preview = new QTableWidget(rows, columns);
    m_preview->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_preview->setSelectionMode(QAbstractItemView::NoSelection);
    m_preview->setFocusPolicy(Qt::NoFocus);
    m_preview->horizontalHeader()->setDefaultSectionSize(cellWidth);
    m_preview->verticalHeader()->setDefaultSectionSize(m_preview->fontMetrics().height() + 6);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            auto* item = new QTableWidgetItem(m_table.text(column, row));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_preview->setItem(row, column, item);
        }
    }
    m_preview->setMinimumHeight(previewHeight);
    return m_preview;
}

QWidget* TableDialog::makeChoices()
{
    auto* box = new QGroupBox(tr("The cells are"));
    auto* layout = new QVBoxLayout(box);
    m_choices = new QButtonGroup(this);
    const QPair<TableMeaning, QString> choices[] = {
        {TableMeaning::Heights, tr("Surface: &heights")},
        {TableMeaning::HeightsWithAxes, tr("Surface: first row is x, first &column is y")},
        {TableMeaning::HeightsWithX, tr("Surface: first &row is x")},
        {TableMeaning::HeightsWithY, tr("Surface: first column is &y")},
        {TableMeaning::Points, tr("x, y, &z columns")},
        {TableMeaning::Spectra, tr("&Spectra: first column is x")}};
    for (const auto& choice : choices) {
        auto* button = new QRadioButton(choice.second);
        button->setEnabled(m_table.mayBe(choice.first));
        if (!button->isEnabled())
            button->setToolTip(tr("The table does not have this form."));
        m_choices->addButton(button, int(choice.first));
        layout->addWidget(button);
    }
    m_choices->button(int(m_table.guess()))->setChecked(true);
    m_choices->button(int(m_table.guess()))->setFocus();
    connect(m_choices, QOverload<int>::of(&QButtonGroup::buttonClicked), this, &TableDialog::colorPreview);
    return box;
}

TableMeaning TableDialog::meaning() const
{
    return TableMeaning(m_choices->checkedId());
}

void TableDialog::colorPreview()
{
    const TableMeaning now = meaning();
    const bool xRow = now == TableMeaning::HeightsWithX || now == TableMeaning::HeightsWithAxes;
    const int places = now == TableMeaning::Points                                         ? 2
                       : now == TableMeaning::HeightsWithX || now == TableMeaning::Heights ? 0
                                                                                           : 1;
    for (int row = 0; row < m_preview->rowCount(); ++row) {
        for (int column = 0; column < m_preview->columnCount(); ++column) {
            const bool place = column < places || (row == 0 && xRow);
            QTableWidgetItem* item = m_preview->item(row, column);
            item->setBackground(place ? palette().brush(QPalette::AlternateBase) : QBrush());
            QFont font = m_preview->font();
            font.setBold(place);
            item->setFont(font);
        }
    }
}
