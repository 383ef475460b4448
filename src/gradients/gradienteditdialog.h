#pragma once

#include <QDialog>
#include <QGradient>

class GradientManager;
class QDoubleSpinBox;
class QLineEdit;
class QPushButton;

namespace Zel3D {

class ColorButton;
class GradientPreview;
class GradientStopsModel;
class GradientStopsWidget;

/// Edits the stops of one gradient. Everything it does, it does to a GradientStopsModel.
class Q_DECL_EXPORT GradientEditDialog : public QDialog
{
    Q_OBJECT
public:
    explicit GradientEditDialog(QWidget* parent = nullptr);

    /// Opens a dialog that edits a gradient of a store live; cancelling puts back what was there. It closes
    /// itself when the gradient is removed or renamed, and deletes itself when it is closed. The store must
    /// outlive it.
    static GradientEditDialog* edit(GradientManager& manager, const QString& name, QWidget* parent);

    /// The gradient to begin with, to which cancelling leads back. Emits nothing.
    void setGradient(const QGradient& gradient);
    /// The gradient as it is now; its type, spread and geometry are those of the one that was set.
    QGradient getGradient() const;

    GradientStopsModel* getModel() const { return model; }

public slots:
    void reject() override;

signals:
    /// The gradient changed, while a person edits it; also when cancelling puts it back.
    void gradientChanged(const QGradient& gradient);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeFields();
    QLayout* makeTools();
    QLayout* makeButtons();
    QPushButton* makeTool(const QString& text, const QString& tip);
    void connectFields();
    void showStops();
    void showCurrent();
    void showHistory();
    void readHex();
    bool isChanged() const;

    QGradient original;
    QGradientStops originalStops;
    bool isSetting = false;
    GradientStopsModel* model;
    GradientStopsWidget* stops;
    QDoubleSpinBox* position;
    ColorButton* color;
    QLineEdit* hex;
    QPushButton* removeButton = nullptr;
    QPushButton* undoButton = nullptr;
    QPushButton* redoButton = nullptr;
    GradientPreview* preview;
};

} // namespace Zel3D
