#pragma once

#include <QList>
#include <QObject>

class PlotPage;
class QAction;
class QMainWindow;
class QMenu;

namespace Zel3D {
struct PictureResult;
}

/// The entries of the menus that make pictures of the shown plot: files, pages, the clipboard.
class PictureActions : public QObject
{
    Q_OBJECT
public:
    /// Adds the entries to two menus of the window.
    PictureActions(QMainWindow& window, QMenu& fileMenu, QMenu& editMenu);

    /// Null without a plot, which disables the entries.
    void setPage(PlotPage* page);

private:
    void save();
    void saveTurntable();
    void print();
    void preview();
    void copy();
    /// The name of what is shown, for a file.
    QString fileName() const;
    /// In the status bar, or in a box when it failed.
    void tell(const Zel3D::PictureResult& result, const QString& path);
    void warn(const QString& sentence);

    QMainWindow& m_window;
    PlotPage* m_page = nullptr;
    QList<QAction*> m_actions;
};
