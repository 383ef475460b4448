#include "recentmenu.h"

#include "recentfiles.h"

#include <QFileInfo>

RecentMenu::RecentMenu(QWidget* parent) : QMenu(tr("Recent &files"), parent)
{
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::refresh);
    refresh();
}

void RecentMenu::refresh()
{
    clear();
    const QStringList files = RecentFiles::all();
    for (const QString& path : files) {
        const QFileInfo file(path);
        QString text = file.fileName().replace('&', "&&");
        if (!file.exists())
            text = tr("%1 (missing)").arg(text);
        QAction* action = addAction(text);
        action->setToolTip(path);
        action->setStatusTip(path);
        action->setEnabled(file.exists());
        connect(action, &QAction::triggered, this, [this, path] { emit chosen(path); });
    }
    if (files.isEmpty())
        addAction(tr("No files yet"))->setEnabled(false);
    addSeparator();
    QAction* forget = addAction(tr("&Clear the list"));
    forget->setEnabled(!files.isEmpty());
    connect(forget, &QAction::triggered, this, [this] {
        RecentFiles::clear();
        emit cleared();
    });
}
