#pragma once

#include <QFrame>
#include <QStringList>

/// A line under a plot that tells what was changed or left out while reading; the person can close it.
class NoteBar : public QFrame
{
    Q_OBJECT
public:
    /// At least one sentence; where nodes were left out, parts are offered.
    explicit NoteBar(const QStringList& notes, bool offersParts = false, QWidget* parent = nullptr);

signals:
    /// The person asks for a part.
    void partWanted();

private:
    void showAll();

    QStringList m_notes;
};
