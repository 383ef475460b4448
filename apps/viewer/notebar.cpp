#include "notebar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QStyle>
#include <QToolButton>

NoteBar::NoteBar(const QStringList& notes, bool offersParts, QWidget* parent) : QFrame(parent), m_notes(notes)
{
    setObjectName("notes");
    setFrameShape(QFrame::StyledPanel);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 4, 4);
    auto* sign = new QLabel;
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(side));
    layout->addWidget(sign);
    auto* text = new QLabel(m_notes.first());
    text->setTextFormat(Qt::PlainText);
    text->setToolTip(m_notes.join('\n'));
    text->setWordWrap(true);
    layout->addWidget(text, 1);
    if (m_notes.size() > 1) {
        auto* details = new QToolButton;
        details->setText(tr("All %n notes...", nullptr, m_notes.size()));
        details->setAutoRaise(true);
        connect(details, &QToolButton::clicked, this, &NoteBar::showAll);
        layout->addWidget(details);
    }
    if (offersParts) {
        auto* part = new QToolButton;
        part->setObjectName("openPart");
        part->setText(tr("Open part..."));
        part->setToolTip(tr("Choose a part and show all its nodes"));
        connect(part, &QToolButton::clicked, this, &NoteBar::partWanted);
        layout->addWidget(part);
    }
    auto* close = new QToolButton;
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip(tr("Close the notes"));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    layout->addWidget(close);
}

void NoteBar::showAll()
{
    QMessageBox::information(window(), tr("Notes"), m_notes.join("\n\n"));
}
