#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;

/// What a person prefers for everything the viewer shows. Each choice is kept and takes effect at once.
class PreferencesDialog : public QDialog
{
    Q_OBJECT
public:
    explicit PreferencesDialog(QWidget* parent = nullptr);

signals:
    /// The name of the look that new plots are to have from now on; empty for that of the last plot.
    void lookChosen(const QString& name);

protected:
    void changeEvent(QEvent* event) override;

private:
    QComboBox* makeLanguages();
    QComboBox* makeLooks();
    QDoubleSpinBox* makeBudget();
    QCheckBox* makePreview();
    void showNeed();

    QLabel* m_need;
};
