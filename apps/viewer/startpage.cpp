#include "startpage.h"

#include "recentfiles.h"

#include <QAction>
#include <QCommandLinkButton>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

constexpr int widest = 900;
constexpr int gap = 24;
constexpr int pictureSide = 56;
constexpr QSize entryIcons(28, 28);

QLabel* heading(const QString& text, double larger)
{
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(larger * font.pointSizeF());
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    return label;
}

QCommandLinkButton* entry(const QString& title, const QString& description, const QIcon& icon)
{
    auto* button = new QCommandLinkButton(title, description);
    button->setIcon(icon);
    button->setIconSize(entryIcons);
    // As high as its words need in the column's width, no more.
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    button->setSizePolicy(policy);
    return button;
}

/// A column under a heading; what is added stands at its top.
QVBoxLayout* column(QWidget& widget, const QString& title)
{
    auto* outer = new QVBoxLayout(&widget);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(heading(title, 1.2));
    auto* entries = new QVBoxLayout;
    entries->setSpacing(2);
    outer->addLayout(entries);
    outer->addStretch();
    return entries;
}

} // namespace

StartPage::StartPage(const QList<Example>& examples, QAction* openFile, const QList<QAction*>& others,
                     QWidget* parent)
    : QWidget(parent)
{
    setObjectName("startPage");
    auto* sheet = new QWidget;
    sheet->setMaximumWidth(widest);
    auto* rows = new QVBoxLayout(sheet);
    rows->setContentsMargins(gap, gap / 2, gap, gap / 2);
    rows->setSpacing(gap / 2);
    rows->addWidget(makeHead(openFile));
    auto* columns = new QHBoxLayout;
    columns->setSpacing(gap);
    columns->addWidget(makeExamples(examples, others), 3);
    columns->addWidget(makeRecent(), 2);
    rows->addLayout(columns, 1);
    auto* centred = new QWidget;
    auto* middle = new QHBoxLayout(centred);
    middle->setContentsMargins(0, 0, 0, 0);
    middle->addStretch(1);
    middle->addWidget(sheet, 1000);
    middle->addStretch(1);
    auto* scroll = new QScrollArea;
    scroll->setWidget(centred);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    centred->setBackgroundRole(QPalette::Base);
}

QWidget* StartPage::makeHead(QAction* openFile)
{
    auto* head = new QWidget;
    auto* layout = new QHBoxLayout(head);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap / 2);
    auto* picture = new QLabel;
    picture->setPixmap(QIcon(":/plot/images/voranview.svg").pixmap(pictureSide));
    layout->addWidget(picture);
    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    words->addWidget(heading(tr("voranview"), 1.8));
    auto* hint = new QLabel(tr("Drop a grid, spectra or a mesh into this window, or paste a table."));
    hint->setWordWrap(true);
    words->addWidget(hint);
    layout->addLayout(words, 1);
    auto* open = new QPushButton(openFile->icon(), tr("&Open a file..."));
    open->setDefault(true);
    connect(open, &QPushButton::clicked, openFile, &QAction::trigger);
    layout->addWidget(open);
    return head;
}

QWidget* StartPage::makeExamples(const QList<Example>& examples, const QList<QAction*>& others)
{
    auto* widget = new QWidget;
    QVBoxLayout* entries = column(*widget, tr("Try it"));
    for (const Example& example : examples) {
        QCommandLinkButton* button = entry(example.title, example.description, QIcon(example.icon));
        connect(button, &QPushButton::clicked, this, [this, example] { emit fileChosen(example.path); });
        entries->addWidget(button);
    }
    for (QAction* action : others) {
        QCommandLinkButton* button = entry(action->iconText(), action->statusTip(), action->icon());
        connect(button, &QPushButton::clicked, action, &QAction::trigger);
        entries->addWidget(button);
    }
    return widget;
}

QWidget* StartPage::makeRecent()
{
    auto* widget = new QWidget;
    m_recent = column(*widget, tr("Recent files"));
    return widget;
}

void StartPage::showEvent(QShowEvent* event)
{
    refresh();
    QWidget::showEvent(event);
}

void StartPage::refresh()
{
    while (QLayoutItem* item = m_recent->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const QStringList files = RecentFiles::all();
    for (const QString& path : files)
        addRecent(path);
    if (files.isEmpty()) {
        auto* none = new QLabel(tr("The files that you open will be listed here."));
        none->setWordWrap(true);
        m_recent->addWidget(none);
        return;
    }
    auto* forget = new QPushButton(tr("&Clear the list"));
    connect(
        forget, &QPushButton::clicked, this,
        [this] {
            RecentFiles::clear();
            refresh();
        },
        Qt::QueuedConnection);
    m_recent->addWidget(forget, 0, Qt::AlignLeft);
}

void StartPage::addRecent(const QString& path)
{
    const QFileInfo file(path);
    auto* button = new QPushButton(file.exists() ? file.fileName() : tr("%1 (missing)").arg(file.fileName()));
    button->setFlat(true);
    button->setStyleSheet("text-align: left; padding: 4px");
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    button->setToolTip(path);
    button->setEnabled(file.exists());
    connect(button, &QPushButton::clicked, this, [this, path] { emit fileChosen(path); });
    m_recent->addWidget(button);
}
