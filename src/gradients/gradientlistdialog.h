#pragma once

#include <QDialog>
#include <QGradient>

class GradientManager;
class QLabel;
class QLineEdit;
class QListView;
class QMenu;
class QPushButton;
class QSortFilterProxyModel;

namespace Zel3D {

class GradientListModel;

/// The gradients of a store: selects, adds, duplicates, renames, removes, edits, reads and writes them. It
/// follows the store and keeps nothing itself, but what was removed can be put back while it lives.
class Q_DECL_EXPORT GradientListDialog : public QDialog
{
    Q_OBJECT
public:
    /// The store must outlive the dialog.
    explicit GradientListDialog(GradientManager* gradientManager, QWidget* parent = nullptr);

    /// Empty when nothing is selected.
    QString getCurrentName() const;
    /// Selects a gradient; clears the filter when it hides the name. Unknown names are ignored.
    void setCurrentName(const QString& name);

    /// Adds the gradient of a file, under the file's name if it holds none. A damaged file is told about.
    void importFile(const QString& path);
    /// Writes the current gradient as text. A failure is told about.
    void exportFile(const QString& path);

signals:
    /// A person or the store made another gradient the current one, or changed the current one.
    void currentGradientChanged(const QString& name, const QGradient& gradient);

private:
    QLayout* makeList();
    QLayout* makeButtons();
    QMenu* makeAddMenu();
    QPushButton* makeButton(const QString& text, const QString& tip);
    void connectStore();
    int currentRow() const;
    void showButtons();
    void announce();
    void note(const QString& text);
    void rename();
    void remove();
    void openImport();
    void openExport();

    GradientManager* manager;
    GradientListModel* model;
    QSortFilterProxyModel* filtered;
    QLineEdit* filter;
    QListView* list;
    QLabel* status;
    QPushButton* duplicateButton = nullptr;
    QPushButton* renameButton = nullptr;
    QPushButton* editButton = nullptr;
    QPushButton* removeButton = nullptr;
    QPushButton* restoreButton = nullptr;
    QPushButton* exportButton = nullptr;
};

} // namespace Zel3D
