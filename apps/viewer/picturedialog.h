#pragma once

#include "export/pictureoptions.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

/// Asks for the file of a picture, its format and its size. Begins with what was accepted last.
class PictureDialog : public QDialog
{
    Q_OBJECT
public:
    /// \a name, without a suffix, is proposed for the file; \a window is the plot's size in pixels.
    PictureDialog(const QString& name, const QSize& window, QWidget* parent = nullptr);

    /// With a suffix: that of the chosen format where none was typed.
    QString path() const;
    Zel3D::PictureOptions options() const;

public slots:
    /// Asks before a file is replaced, and remembers what is accepted.
    void accept() override;

private:
    enum Unit { Window, Pixels, Millimetres };

    void addFile(QFormLayout& form);
    void addSize(QFormLayout& form);
    void restore(const QString& name);
    void browse();
    void takeFormat();
    void followSuffix();
    void takeUnit();
    Unit unit() const;
    /// Pixels to one unit of the size.
    double pixelsPerUnit(Unit of) const;

    const QSize m_window;
    QLineEdit* m_path = nullptr;
    QComboBox* m_format = nullptr;
    QDoubleSpinBox* m_width = nullptr;
    QDoubleSpinBox* m_height = nullptr;
    QComboBox* m_unit = nullptr;
    QSpinBox* m_resolution = nullptr;
    QCheckBox* m_transparent = nullptr;
    Unit m_shownUnit = Window;
    QString m_replaced; ///< the file that may be replaced
};
