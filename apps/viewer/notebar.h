#pragma once

#include <QFrame>
#include <QStringList>

/// A line under a plot that tells what was changed or left out while reading; the person can close it.
class NoteBar : public QFrame
{
    Q_OBJECT
public:
    /// At least one sentence.
    explicit NoteBar(const QStringList& notes, QWidget* parent = nullptr);

private:
    void showAll();

    QStringList m_notes;
};
