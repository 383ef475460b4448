#pragma once

#include "clipboardtable.h"

#include <QDialog>

class QButtonGroup;
class QTableWidget;

/// Asks what a pasted table means, beside its first cells.
class TableDialog : public QDialog
{
    Q_OBJECT
public:
    /// The likeliest meaning is chosen at first.
    explicit TableDialog(const ClipboardTable& table, QWidget* parent = nullptr);

    TableMeaning meaning() const;

private:
    QTableWidget* makePreview();
    QWidget* makeChoices();
    /// Shows which cells are heights and which are places.
    void colorPreview();

    const ClipboardTable& m_table;
    QTableWidget* m_preview = nullptr;
    QButtonGroup* m_choices = nullptr;
};
