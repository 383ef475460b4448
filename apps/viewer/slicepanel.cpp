#include "slicepanel.h"

#include "datasummary.h"
#include "slicecurve.h"

#include <QButtonGroup>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QSaveFile>
#include <QSettings>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr char shownKey[] = "slice/shown";
constexpr char folderKey[] = "slice/folder";
constexpr QSize usualSize(640, 200);
constexpr QSize leastSize(200, 140);
constexpr int narrowLetters = 70;

const QColor rowColor(31, 119, 180);
const QColor columnColor(214, 96, 20);

} // namespace

SlicePanel::SlicePanel(QWidget* parent)
    : QWidget(parent), m_shown(Shown(qBound(1, QSettings().value(shownKey, Both).toInt(), 3)))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 4);
    layout->setSpacing(4);
    layout->addLayout(makeHead());
    m_stack = new QStackedWidget;
    m_hint = new QLabel;
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setObjectName("hint");
    m_stack->addWidget(m_hint);
    auto* shown = new QWidget;
    auto* column = new QVBoxLayout(shown);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    m_where = new QLabel;
    m_where->setTextFormat(Qt::PlainText);
    m_where->setObjectName("where");
    m_where->setIndent(4);
    // As long as it is, the text must not keep the dock wide.
    m_where->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    column->addWidget(m_where);
    m_curves = new QBoxLayout(QBoxLayout::LeftToRight);
    m_curves->setSpacing(4);
    column->addLayout(m_curves, 1);
    m_curves->addWidget(m_row = new SliceCurve);
    m_curves->addWidget(m_column = new SliceCurve);
    m_stack->addWidget(shown);
    layout->addWidget(m_stack, 1);
    nameButtons();
    setValues(nullptr);
}

QSize SlicePanel::sizeHint() const
{
    return usualSize;
}

QSize SlicePanel::minimumSizeHint() const
{
    return leastSize;
}

QBoxLayout* SlicePanel::makeHead()
{
    auto* head = new QHBoxLayout;
    head->setSpacing(2);
    m_choices = new QButtonGroup(this);
    for (const Shown shown : {Row, Column, Both}) {
        auto* button = new QToolButton;
        button->setCheckable(true);
        button->setChecked(shown == m_shown);
        button->setAutoRaise(true);
        m_choices->addButton(button, shown);
        head->addWidget(button);
    }
    connect(m_choices, QOverload<int>::of(&QButtonGroup::buttonClicked), this, &SlicePanel::choose);
    m_hold = new QToolButton;
    m_hold->setObjectName("hold");
    m_hold->setText(tr("Hold"));
    m_hold->setCheckable(true);
    m_hold->setAutoRaise(true);
    m_hold->setToolTip(tr("Keep this point while the mouse moves on. A click on a point of the plot does the "
                          "same, a click beside the data ends it."));
    connect(m_hold, &QToolButton::clicked, this, &SlicePanel::heldChanged);
    head->addSpacing(6);
    head->addWidget(m_hold);
    head->addStretch(1);
    m_copy = new QToolButton;
    m_copy->setToolTip(tr("Copy the curves as CSV"));
    connect(m_copy, &QToolButton::clicked, this, &SlicePanel::copy);
    m_save = new QToolButton;
    m_save->setToolTip(tr("Save the curves as a CSV file"));
    connect(m_save, &QToolButton::clicked, this, &SlicePanel::chooseFile);
    head->addWidget(m_copy);
    head->addWidget(m_save);
    return head;
}

void SlicePanel::nameChoices()
{
    const bool spectra = m_values && m_values->kind() == PlotValues::Kind::Spectra;
    const QString names[] = {spectra ? tr("Spectrum") : tr("Row"), spectra ? tr("Across") : tr("Column"),
                             tr("Both")};
    const QString tips[] = {spectra ? tr("The picked spectrum") : tr("Along x through the picked point"),
                            spectra ? tr("All spectra at the picked position")
                                    : tr("Along y through the picked point"),
                            tr("Both curves")};
    for (const Shown shown : {Row, Column, Both}) {
        m_choices->button(shown)->setText(names[shown - 1]);
        m_choices->button(shown)->setToolTip(tips[shown - 1]);
    }
}

void SlicePanel::setValues(const PlotValues* values)
{
    m_values = values && values->kind() != PlotValues::Kind::Mesh ? values : nullptr;
    m_placed = false;
    m_slices.clear();
    nameChoices();
    m_stack->setCurrentWidget(m_hint);
    m_where->setToolTip(QString());
    m_where->clear();
    updateButtons();
}

void SlicePanel::setHint(const QString& sentence)
{
    m_hint->setText(sentence);
}

void SlicePanel::updateButtons()
{
    const bool curves = m_values && m_placed;
    const QList<QAbstractButton*> choices = m_choices->buttons();
    for (QAbstractButton* button : choices)
        button->setEnabled(m_values != nullptr);
    m_hold->setEnabled(curves);
    m_copy->setEnabled(curves);
    m_save->setEnabled(curves);
}

void SlicePanel::showPlace(const ValuePlace& place)
{
    if (!m_values || (m_placed && m_place == place))
        return;
    m_place = place;
    m_placed = true;
    draw();
}

void SlicePanel::refresh()
{
    if (m_placed)
        draw();
}

void SlicePanel::setHeld(bool held)
{
    m_hold->setChecked(held);
}

void SlicePanel::choose(int shown)
{
    m_shown = Shown(shown);
    QSettings().setValue(shownKey, shown);
    draw();
}

void SlicePanel::draw()
{
    if (!m_placed || !isVisible())
        return;
    m_slices.clear();
    if ((m_shown & Row) != 0) {
        m_slices.append(SliceData::row(*m_values, m_place));
        m_row->setSlice(m_slices.last(), rowColor);
    }
    if ((m_shown & Column) != 0) {
        m_slices.append(SliceData::column(*m_values, m_place));
        m_column->setSlice(m_slices.last(), columnColor);
    }
    m_row->setVisible((m_shown & Row) != 0);
    m_column->setVisible((m_shown & Column) != 0);
    const auto part = [this](Zel3D::BaseAxisType direction, double value) {
        return tr("%1: %2").arg(m_values->name(direction), DataSummary::number(value, locale()));
    };
    const QString where = part(Zel3D::XAxis, m_values->x(m_place.column, m_place.row)) + "   " +
                          part(Zel3D::YAxis, m_values->y(m_place.column, m_place.row)) + "   " +
                          part(Zel3D::ZAxis, m_values->value(m_place.column, m_place.row));
    m_where->setToolTip(where);
    showWhere();
    m_stack->setCurrentIndex(1);
    updateButtons();
}

void SlicePanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_curves->setDirection(2 * width() > 3 * height() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    nameButtons();
    showWhere();
}

void SlicePanel::showWhere()
{
    const int room = width() - layout()->contentsMargins().left() - layout()->contentsMargins().right();
    m_where->setText(
        fontMetrics().elidedText(m_where->toolTip(), Qt::ElideRight, room - 2 * m_where->indent()));
}

/// Where the dock is narrow their tool tips say the rest.
void SlicePanel::nameButtons()
{
    const bool narrow = width() < fontMetrics().averageCharWidth() * narrowLetters;
    m_copy->setText(narrow ? tr("Copy") : tr("Copy as CSV"));
    m_save->setText(narrow ? tr("Save...") : tr("Save CSV..."));
}

void SlicePanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    draw();
}

QByteArray SlicePanel::csv() const
{
    return m_values && !m_slices.isEmpty() ? SliceData::csv(*m_values, m_slices) : QByteArray();
}

void SlicePanel::copy()
{
    QGuiApplication::clipboard()->setText(QString::fromUtf8(csv()));
    emit told(tr("The curves are on the clipboard as CSV."));
}

bool SlicePanel::save(const QString& path, QString& error) const
{
    QSaveFile file(path);
    const QByteArray text = csv();
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return true;
    error = tr("\"%1\" cannot be written: %2.").arg(path, file.errorString());
    return false;
}

void SlicePanel::chooseFile()
{
    QSettings settings;
    const QString suggestion =
        QDir(settings.value(folderKey, QDir::homePath()).toString()).filePath(tr("slice.csv"));
    // The curves as they are now, wherever the mouse goes.
    QString path = QFileDialog::getSaveFileName(this, tr("Save CSV"), suggestion, tr("CSV files (*.csv)"));
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += ".csv";
    settings.setValue(folderKey, QFileInfo(path).absolutePath());
    QString error;
    if (save(path, error))
        emit told(tr("Saved %1.").arg(path));
    else
        QMessageBox::warning(this, tr("Save CSV"), error);
}
