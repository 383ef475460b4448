#include "settings/plotsettingsdialogbase.h"

#include "plots/baseplot.h"
#include "settings/abstractsettingspage.h"
#include "settings/fieldeditor.h"
#include "settings/pagelist.h"
#include "settings/templateactions.h"
#include "settings/untouchedplot.h"
#include "settings/valueeditor.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFile>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QStackedWidget>
#include <QStringListModel>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

namespace Zel3D {

namespace {

/// How often values that no signal tells of are read again while their page is shown.
constexpr int refreshMilliseconds = 200;
constexpr int mostResults = 12;

// Heights of the dialog, in lines of text.
constexpr int leastLines = 12;
constexpr int usualLines = 40;
/// Width that is left to the pages at least.
constexpr int leastLetters = 40;
/// Width of the search beside the title of a page.
constexpr int searchLetters = 24;

/// An icon that the colour of a selection does not swallow: there it has the colour of the text.
QIcon pageIcon(const QString& path, const QSize& size, const QPalette& colors)
{
    if (!QFile::exists(path))
        return {};
    QIcon icon;
    const QIcon drawn(path);
    for (int ratio : {1, 2}) {
        QPixmap pixmap = drawn.pixmap(size * ratio);
        icon.addPixmap(pixmap);
        QPainter painter(&pixmap);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(pixmap.rect(), colors.color(QPalette::HighlightedText));
        painter.end();
        icon.addPixmap(pixmap, QIcon::Selected);
    }
    return icon;
}

} // namespace

PlotSettingsDialogBase::PlotSettingsDialogBase(const QVector<SettingsPageEntry>& entries,
                                               const QString& organizationName,
                                               const QString& applicationName, BasePlot* editedPlot,
                                               QWidget* parent)
    : PlotBaseDialog(organizationName, applicationName, editedPlot, parent),
      binder(editedPlot),
      searchLine(new QLineEdit(this)),
      results(new QCompleter(this)),
      list(new PageList(this)),
      title(new QLabel(this)),
      stack(new QStackedWidget(this))
{
    setWindowTitle(tr("Plot settings"));
    auto* layout = new QGridLayout(this);
    layout->addWidget(makeSide(), 0, 0, 2, 1);
    layout->addWidget(makeHead(), 0, 1);
    layout->addWidget(stack, 1, 1);
    layout->addWidget(makeButtons(), 2, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(1, 1);
    buildPages(entries);
    fitSide();
    binder.keep();
    connect(list, &QListWidget::currentRowChanged, this, [this](int row) {
        stack->setCurrentIndex(row);
        title->setText(row >= 0 ? list->item(row)->text() : QString());
    });
    // The titles are longer in another language.
    connect(list, &QListWidget::itemChanged, this, &PlotSettingsDialogBase::narrow);
    connect(&binder, &FieldBinder::changed, this, &PlotSettingsDialogBase::updateButtons);
    auto* clock = new QTimer(this);
    clock->setObjectName("refresh");
    connect(clock, &QTimer::timeout, this, [this] {
        if (isVisible() && getCurrentRow() >= 0)
            pages.at(getCurrentRow())->refresh();
        updateButtons();
    });
    clock->start(refreshMilliseconds);
    const QSettings store(organizationName, applicationName);
    setCurrentRow(
        std::clamp(store.value(storeKey("currentRow"), 0).toInt(), 0, std::max(0, list->count() - 1)));
    updateButtons();
}

PlotSettingsDialogBase::~PlotSettingsDialogBase()
{
    // A box with a number that is being typed sends it when it is hidden.
    binder.forget();
    delete stack;
}

void PlotSettingsDialogBase::completeTyping()
{
    for (QAbstractSpinBox* box : stack->findChildren<QAbstractSpinBox*>())
        box->interpretText();
}

QWidget* PlotSettingsDialogBase::makeSide()
{
    auto* side = new QWidget(this);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    searchLine->setObjectName("search");
    searchLine->setPlaceholderText(tr("Search"));
    searchLine->setAccessibleName(tr("Search settings"));
    searchLine->setToolTip(tr("Finds a setting by its words"));
    searchLine->setClearButtonEnabled(true);
    results->setModel(new QStringListModel(results));
    results->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    results->setMaxVisibleItems(mostResults);
    results->setWidget(searchLine);
    list->setObjectName("pages");
    list->setAccessibleName(tr("Pages"));
    connect(searchLine, &QLineEdit::textEdited, this, &PlotSettingsDialogBase::search);
    connect(results, QOverload<const QString&>::of(&QCompleter::activated), this,
            &PlotSettingsDialogBase::goToResult);
    connect(searchLine, &QLineEdit::returnPressed, this, [this] {
        const QVector<int> found = searchSettings(searchEntries, searchLine->text());
        if (!found.isEmpty())
            goToResult(searchEntries.at(found.first()).path);
    });
    auto* find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, searchLine, [this] { searchLine->setFocus(Qt::ShortcutFocusReason); });
    addAction(find);
    layout->addWidget(searchLine);
    layout->addWidget(list, 1);
    sideColumn = layout;
    side->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);
    return side;
}

QWidget* PlotSettingsDialogBase::makeHead()
{
    auto* head = new QWidget(this);
    auto* layout = new QHBoxLayout(head);
    headLine = layout;
    // In line with the boxes of the pages.
    layout->setContentsMargins(style()->pixelMetric(QStyle::PM_LayoutLeftMargin), 0, 0, 0);
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
    layout->addWidget(title, 1);
    const auto addButton = [this, layout](QAction* action, QKeySequence::StandardKey key,
                                          const QString& sign) {
        action->setShortcut(key);
        addAction(action);
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setFocusPolicy(Qt::StrongFocus);
        const auto describe = [action, button, sign] {
            button->setAccessibleName(action->text());
            button->setToolTip(action->text());
            button->setText(sign);
        };
        connect(action, &QAction::changed, button, describe);
        describe();
        layout->addWidget(button);
    };
    addButton(binder.getUndoStack().createUndoAction(this, tr("Undo")), QKeySequence::Undo,
              QStringLiteral("\u21B6"));
    addButton(binder.getUndoStack().createRedoAction(this, tr("Redo")), QKeySequence::Redo,
              QStringLiteral("\u21B7"));
    return head;
}

QWidget* PlotSettingsDialogBase::makeButtons()
{
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
    applyButton = buttons->button(QDialogButtonBox::Apply);
    restoreButton = buttons->addButton(tr("Restore defaults"), QDialogButtonBox::ResetRole);
    auto* menu = new QMenu(restoreButton);
    menu->addAction(tr("This page"), this, &PlotSettingsDialogBase::restorePageDefaults);
    menu->addAction(tr("All pages"), this, &PlotSettingsDialogBase::restoreAllDefaults);
    restoreButton->setMenu(menu);
    QPushButton* templates = buttons->addButton(tr("Template"), QDialogButtonBox::ResetRole);
    templates->setMenu((new TemplateActions(getPlot(), this, &binder.getUndoStack()))->makeMenu(templates));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(applyButton, &QPushButton::clicked, this, &PlotSettingsDialogBase::apply);
    return buttons;
}

void PlotSettingsDialogBase::buildPages(const QVector<SettingsPageEntry>& entries)
{
    UntouchedPlot untouched;
    for (const SettingsPageEntry& entry : entries) {
        AbstractSettingsPage* page = entry.make();
        page->build(binder, untouched);
        auto* area = new QScrollArea(stack);
        area->setWidget(page);
        area->setWidgetResizable(true);
        area->setFrameShape(QFrame::NoFrame);
        stack->addWidget(area);
        areas.append(area);
        list->addItem(entry.title);
        list->item(list->count() - 1)->setData(Qt::UserRole, entry.icon);
        pages.append(page);
        addSearchEntries(entry.title, pages.size() - 1);
    }
}

void PlotSettingsDialogBase::addSearchEntries(const QString& pageTitle, int page)
{
    const QString arrow = QStringLiteral(" \u203A ");
    for (const FieldGroup& group : pages.at(page)->getGroups()) {
        for (const Field& field : group.fields) {
            QStringList steps{pageTitle, group.title, group.tab, field.accessibleName()};
            steps.removeAll(QString());
            searchEntries.append({field.id, page, steps.join(arrow), field.label, field.description});
        }
    }
}

void PlotSettingsDialogBase::fitSide()
{
    const int line = list->fontMetrics().height();
    list->setIconSize({line * 3 / 2, line * 3 / 2});
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (int i = 0; i < list->count(); ++i) {
        list->item(i)->setSizeHint({0, line * 2});
        list->item(i)->setIcon(
            pageIcon(list->item(i)->data(Qt::UserRole).toString(), list->iconSize(), palette()));
    }
    stack->setMinimumSize(stack->fontMetrics().averageCharWidth() * leastLetters, line * leastLines);
    narrow();
}

int PlotSettingsDialogBase::getFullWidth() const
{
    int width = 0;
    for (const AbstractSettingsPage* page : pages)
        width = std::max(width, page->sizeHint().width());
    const auto* grid = static_cast<const QGridLayout*>(layout());
    const QMargins margins = grid->contentsMargins();
    return margins.left() + list->getFullWidth() + grid->horizontalSpacing() + width +
           style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this) + margins.right();
}

void PlotSettingsDialogBase::narrow()
{
    const bool bare = width() < getFullWidth();
    list->setBare(bare);
    list->parentWidget()->setFixedWidth(list->getWidth());
    searchLine->setMaximumWidth(bare ? searchLine->fontMetrics().averageCharWidth() * searchLetters
                                     : QWIDGETSIZE_MAX);
    if (bare == (headLine->indexOf(searchLine) >= 0))
        return;
    const bool focused = focusWidget() == searchLine;
    if (bare)
        headLine->insertWidget(headLine->indexOf(title) + 1, searchLine);
    else
        sideColumn->insertWidget(0, searchLine);
    // It was hidden on its way.
    searchLine->show();
    if (focused)
        searchLine->setFocus();
}

QSize PlotSettingsDialogBase::sizeHint() const
{
    const QSize hint = PlotBaseDialog::sizeHint();
    return {std::max(hint.width(), getFullWidth()),
            std::max(hint.height(), fontMetrics().height() * usualLines)};
}

int PlotSettingsDialogBase::getCurrentRow() const
{
    return list->currentRow();
}

void PlotSettingsDialogBase::setCurrentRow(int row)
{
    if (row >= 0 && row < list->count())
        list->setCurrentRow(row);
}

bool PlotSettingsDialogBase::goTo(const QString& id)
{
    const auto found = std::find_if(searchEntries.cbegin(), searchEntries.cend(),
                                    [&id](const SearchEntry& entry) { return entry.id == id; });
    if (found == searchEntries.cend())
        return false;
    setCurrentRow(found->page);
    const FieldEditor* editor = pages.at(found->page)->reveal(id);
    areas.at(found->page)->ensureWidgetVisible(editor->getEditor());
    editor->getEditor()->focusTarget()->setFocus(Qt::OtherFocusReason);
    return true;
}

void PlotSettingsDialogBase::search(const QString& typed)
{
    QStringList paths;
    for (int index : searchSettings(searchEntries, typed))
        paths.append(searchEntries.at(index).path);
    static_cast<QStringListModel*>(results->model())->setStringList(paths);
    if (paths.isEmpty()) {
        results->popup()->hide();
        return;
    }
    const int text = results->popup()->sizeHintForColumn(0);
    const int frame = 2 * results->popup()->frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    results->complete(QRect(0, searchLine->height(), std::max(text + frame, searchLine->width()), 1));
}

void PlotSettingsDialogBase::goToResult(const QString& path)
{
    const auto found = std::find_if(searchEntries.cbegin(), searchEntries.cend(),
                                    [&path](const SearchEntry& entry) { return entry.path == path; });
    if (found == searchEntries.cend())
        return;
    searchLine->clear();
    goTo(found->id);
}

void PlotSettingsDialogBase::updateButtons()
{
    applyButton->setEnabled(binder.isModified());
}

void PlotSettingsDialogBase::apply()
{
    if (!getPlot())
        return;
    completeTyping();
    getPlot()->slotSaveSettings();
    binder.keep();
    updateButtons();
}

void PlotSettingsDialogBase::accept()
{
    apply();
    PlotBaseDialog::accept();
}

void PlotSettingsDialogBase::reject()
{
    // Not when it is hidden, after the values were put back.
    completeTyping();
    binder.restore();
    PlotBaseDialog::reject();
}

void PlotSettingsDialogBase::done(int result)
{
    QSettings(getOrganization(), getApplication()).setValue(storeKey("currentRow"), getCurrentRow());
    PlotBaseDialog::done(result);
}

void PlotSettingsDialogBase::restorePageDefaults()
{
    if (getCurrentRow() >= 0)
        binder.reset(pages.at(getCurrentRow())->getIds());
}

void PlotSettingsDialogBase::restoreAllDefaults()
{
    binder.reset(binder.getIds());
}

void PlotSettingsDialogBase::plotDeleted()
{
    binder.forget();
}

void PlotSettingsDialogBase::keyPressEvent(QKeyEvent* event)
{
    // Enter completes a number that is being typed; it must not close the dialog with it.
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !qobject_cast<QPushButton*>(focusWidget()))
        return;
    PlotBaseDialog::keyPressEvent(event);
}

void PlotSettingsDialogBase::changeEvent(QEvent* event)
{
    PlotBaseDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        fitSide();
}

void PlotSettingsDialogBase::resizeEvent(QResizeEvent* event)
{
    PlotBaseDialog::resizeEvent(event);
    narrow();
}

void PlotSettingsDialogBase::showEvent(QShowEvent* event)
{
    fitSide();
    PlotBaseDialog::showEvent(event);
}

} // namespace Zel3D
