#pragma once

#include <QGradient>
#include <QToolButton>

class GradientManager;

namespace Zel3D {

/// A tool button that shows the current gradient of a store and opens a list of all of them, with entries to
/// edit the current one and to open the list dialog.
class Q_DECL_EXPORT GradientButton : public QToolButton
{
    Q_OBJECT
public:
    /// The store must outlive the button. The built-in gradient is current, or the first one without it.
    explicit GradientButton(GradientManager* gradientManager, QWidget* parent = nullptr);

    /// Empty when the store is empty.
    QString getCurrentName() const { return current; }
    QGradient getCurrentGradient() const { return gradient; }
    /// Unknown names are ignored. Emits gradientChanged() if the name or the gradient differs.
    void setCurrentName(const QString& name);
    /// No gradient is current until a person or setCurrentName() chooses one. Emits gradientChanged() if one
    /// was.
    void clearCurrent();

public slots:
    /// Opens the edit dialog. Of the built-in gradient, which does not change, a copy is made and edited.
    void editCurrent();
    /// Opens the list dialog, whose current gradient the button takes over.
    void openList();

signals:
    /// Another gradient is the current one, or the current one was changed. When the current one is removed
    /// the built-in gradient takes its place, or the first one without it; an empty name says that the store
    /// is empty.
    void gradientChanged(const QString& name, const QGradient& gradient);

protected:
    void changeEvent(QEvent* event) override;

private:
    void take(const QString& name, const QGradient& newGradient);
    void fillMenu();
    void leave(const QString& removed);
    void showSwatch();

    GradientManager* manager;
    QString current;
    QGradient gradient;
};

} // namespace Zel3D
