#include "gradients/gradientlistdialog.h"

#include "gradients/gradientcolors.h"
#include "gradients/gradienteditdialog.h"
#include "gradients/gradientlistmodel.h"
#include "gradients/gradientmanager.h"
#include "gradients/gradientpainter.h"
#include "gradients/gradientpresets.h"
#include "gradients/swatchmenustyle.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QSaveFile>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace Zel3D {

GradientListDialog::GradientListDialog(GradientManager* gradientManager, QWidget* parent)
    : QDialog(parent),
      manager(gradientManager),
      model(new GradientListModel(gradientManager, this)),
      filtered(new QSortFilterProxyModel(this)),
      filter(new QLineEdit(this)),
      list(new QListView(this)),
      status(new QLabel(this))
{
    setWindowTitle(tr("Gradients"));
    filtered->setSourceModel(model);
    filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto* layout = new QVBoxLayout(this);
    auto* columns = new QHBoxLayout;
    columns->addLayout(makeList(), 1);
    columns->addLayout(makeButtons());
    layout->addLayout(columns, 1);
    // Two lines, kept free so that nothing moves when something is told.
    status->setWordWrap(true);
    status->setTextFormat(Qt::PlainText);
    status->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    status->setMinimumHeight(2 * status->fontMetrics().lineSpacing());
    status->setAccessibleName(tr("Message"));
    layout->addWidget(status);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (QAbstractButton* button : box->buttons())
        static_cast<QPushButton*>(button)->setAutoDefault(false);
    layout->addWidget(box);
    connectStore();
    list->setCurrentIndex(filtered->index(0, 0));
    showButtons();
    list->setFocus();
}

QLayout* GradientListDialog::makeList()
{
    auto* column = new QVBoxLayout;
    auto* filterRow = new QHBoxLayout;
    auto* filterLabel = new QLabel(tr("&Filter"), this);
    filterLabel->setBuddy(filter);
    filter->setAccessibleName(tr("Filter of the names"));
    filter->setToolTip(tr("Shows only the gradients whose names contain this text"));
    filter->setPlaceholderText(tr("Part of a name"));
    filter->setClearButtonEnabled(true);
    filterRow->addWidget(filterLabel);
    filterRow->addWidget(filter, 1);
    column->addLayout(filterRow);
    auto* listLabel = new QLabel(tr("&Gradients"), this);
    listLabel->setBuddy(list);
    list->setModel(filtered);
    list->setAccessibleName(tr("Gradients"));
    list->setToolTip(tr("Select a gradient; F2 renames it, Return edits it, Delete removes it"));
    list->setIconSize(model->getSwatchSize());
    list->setSpacing(2);
    list->setUniformItemSizes(true);
    list->setTextElideMode(Qt::ElideRight);
    list->setEditTriggers(QAbstractItemView::EditKeyPressed);
    list->setMinimumSize(list->fontMetrics().height() * 20, list->fontMetrics().height() * 12);
    column->addWidget(listLabel);
    column->addWidget(list, 1);
    return column;
}

QPushButton* GradientListDialog::makeButton(const QString& text, const QString& tip)
{
    auto* button = new QPushButton(text, this);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    connect(button, &QPushButton::pressed, status, &QLabel::clear);
    return button;
}

QLayout* GradientListDialog::makeButtons()
{
    auto* column = new QVBoxLayout;
    QPushButton* add = makeButton(tr("&Add"), tr("Adds a new gradient or one from a published table"));
    add->setMenu(makeAddMenu());
    duplicateButton = makeButton(tr("&Duplicate"), tr("Adds a copy of the gradient"));
    renameButton = makeButton(tr("&Rename"), tr("Gives the gradient another name"));
    editButton = makeButton(tr("&Edit..."), tr("Changes the stops of the gradient"));
    removeButton = makeButton(tr("Re&move"), tr("Removes the gradient; it can be put back"));
    restoreButton = makeButton(tr("&Put back"), tr("Puts the gradient back that was removed last (Ctrl+Z)"));
    QPushButton* importButton =
        makeButton(tr("&Import..."), tr("Reads a gradient from a text file, CSS, GMT (.cpt) or GIMP (.ggr)"));
    exportButton = makeButton(tr("E&xport..."), tr("Writes the gradient to a text file"));
    connect(duplicateButton, &QPushButton::clicked, this,
            [this] { setCurrentName(model->duplicate(currentRow())); });
    connect(renameButton, &QPushButton::clicked, this, &GradientListDialog::rename);
    connect(editButton, &QPushButton::clicked, this,
            [this] { GradientEditDialog::edit(*manager, getCurrentName(), this); });
    connect(removeButton, &QPushButton::clicked, this, &GradientListDialog::remove);
    connect(restoreButton, &QPushButton::clicked, this, [this] { setCurrentName(model->restore()); });
    connect(importButton, &QPushButton::clicked, this, &GradientListDialog::openImport);
    connect(exportButton, &QPushButton::clicked, this, &GradientListDialog::openExport);
    for (QPushButton* button : {add, duplicateButton, renameButton, editButton})
        column->addWidget(button);
    column->addSpacing(fontMetrics().height());
    column->addWidget(removeButton);
    column->addWidget(restoreButton);
    column->addSpacing(fontMetrics().height());
    column->addWidget(importButton);
    column->addWidget(exportButton);
    column->addStretch();
    return column;
}

QMenu* GradientListDialog::makeAddMenu()
{
    auto* menu = new QMenu(this);
    menu->setToolTipsVisible(true);
    connect(menu->addAction(tr("&New gradient")), &QAction::triggered, this, [this] {
        setCurrentName(model->add(tr("New gradient"), gradientOf({{0.0, Qt::black}, {1.0, Qt::white}})));
    });
    QMenu* sequential = menu->addMenu(tr("&From low to high"));
    QMenu* diverging = menu->addMenu(tr("&Around a middle"));
    sequential->setToolTipsVisible(true);
    diverging->setToolTipsVisible(true);
    for (QMenu* sub : {sequential, diverging})
        sub->setStyle(new SwatchMenuStyle(fontMetrics().height() * 3, sub));
    for (const GradientPreset& preset : gradientPresets()) {
        QMenu* target = preset.kind == GradientPreset::Kind::Sequential ? sequential : diverging;
        const QGradient gradient = gradientOf(preset.stops);
        const QSize size(fontMetrics().height() * 3, fontMetrics().height());
        QAction* action =
            target->addAction(gradientSwatch(gradient, size, *this), gradientTitle(preset.name));
        action->setToolTip(preset.source + '\n' + preset.terms);
        connect(action, &QAction::triggered, this,
                [this, name = preset.name, gradient] { setCurrentName(model->add(name, gradient)); });
    }
    return menu;
}

void GradientListDialog::connectStore()
{
    connect(filter, &QLineEdit::textChanged, filtered, &QSortFilterProxyModel::setFilterFixedString);
    connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &GradientListDialog::announce);
    connect(model, &QAbstractItemModel::dataChanged, this, [this](const QModelIndex& index) {
        if (index.row() == currentRow())
            announce();
    });
    connect(model, &QAbstractItemModel::rowsInserted, this, &GradientListDialog::showButtons);
    connect(model, &GradientListModel::noted, this, &GradientListDialog::note);
    connect(manager, &GradientManager::currentChange, this, &GradientListDialog::setCurrentName);
    connect(list, &QListView::doubleClicked, editButton, &QPushButton::click);
    const auto shortcut = [this](const QKeySequence& keys, QPushButton* button) {
        auto* key = new QShortcut(keys, list, nullptr, nullptr, Qt::WidgetShortcut);
        connect(key, &QShortcut::activated, button, &QPushButton::click);
    };
    shortcut(Qt::Key_Return, editButton);
    shortcut(Qt::Key_Enter, editButton);
    shortcut(QKeySequence::Delete, removeButton);
    shortcut(QKeySequence::Undo, restoreButton);
}

int GradientListDialog::currentRow() const
{
    return filtered->mapToSource(list->currentIndex()).row();
}

QString GradientListDialog::getCurrentName() const
{
    return model->getName(currentRow());
}

void GradientListDialog::setCurrentName(const QString& name)
{
    const int row = model->rowOf(name);
    if (row < 0)
        return;
    if (!filtered->mapFromSource(model->index(row)).isValid())
        filter->clear();
    list->setCurrentIndex(filtered->mapFromSource(model->index(row)));
    list->scrollTo(list->currentIndex());
}

void GradientListDialog::showButtons()
{
    const int row = currentRow();
    const bool isChangeable = row >= 0 && !model->isProtected(row);
    duplicateButton->setEnabled(row >= 0);
    exportButton->setEnabled(row >= 0);
    for (QPushButton* button : {renameButton, editButton, removeButton})
        button->setEnabled(isChangeable);
    restoreButton->setEnabled(model->canRestore());
}

void GradientListDialog::announce()
{
    showButtons();
    if (currentRow() >= 0)
        emit currentGradientChanged(getCurrentName(), model->getGradient(currentRow()));
}

void GradientListDialog::note(const QString& text)
{
    status->setText(text);
}

void GradientListDialog::rename()
{
    list->setFocus();
    list->edit(list->currentIndex());
}

void GradientListDialog::remove()
{
    model->remove(currentRow());
    showButtons();
}

void GradientListDialog::importFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        note(tr("The file cannot be read: %1").arg(file.errorString()));
        return;
    }
    setCurrentName(model->import(file, QFileInfo(path).completeBaseName()));
}

void GradientListDialog::exportFile(const QString& path)
{
    QSaveFile file(path);
    const QByteArray content = model->exported(currentRow());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        note(tr("The file cannot be written: %1").arg(file.errorString()));
    else
        note(tr("“%1” was written.").arg(getCurrentName()));
}

void GradientListDialog::openImport()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Import a gradient"), QString(),
                                     tr("Gradients (*.gradient *.txt *.css *.cpt *.ggr);;All files (*)"));
    if (!path.isEmpty())
        importFile(path);
}

void GradientListDialog::openExport()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Export the gradient"), getCurrentName() + ".gradient",
                                     tr("Gradients (*.gradient);;All files (*)"));
    if (!path.isEmpty())
        exportFile(path);
}

} // namespace Zel3D
