#pragma once

#include <QTableView>

/// A table of a plot's values whose selected cells can be copied.
class ValueTableView : public QTableView
{
    Q_OBJECT
public:
    explicit ValueTableView(QWidget* parent = nullptr);

    /// The smallest rectangle around the selected cells as lines of cells parted by tabs, its numbers in full
    /// and with the decimal sign of the locale, as spreadsheets take them. Cells that are not selected, and
    /// missing ones, are empty.
    QString selectedText() const;

public slots:
    void copy();

signals:
    /// One sentence on what was copied, or why nothing was.
    void told(const QString& sentence);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};
