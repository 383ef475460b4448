#pragma once

#include <QMenu>

/// The recent files as a menu, read anew each time it opens. Files that are gone cannot be chosen.
class RecentMenu : public QMenu
{
    Q_OBJECT
public:
    explicit RecentMenu(QWidget* parent = nullptr);

    void refresh();

signals:
    void chosen(const QString& path);
    void cleared();
};
