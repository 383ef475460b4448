#pragma once

#include "formulaarea.h"

#include <QDialog>

#include <array>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

/// Asks for a formula and its area and says at once what is wrong with them. Begins with the formula that was
/// accepted last.
class FormulaDialog : public QDialog
{
    Q_OBJECT
public:
    explicit FormulaDialog(QWidget* parent = nullptr);

    QString formula() const;
    /// Where it is evaluated, once the dialog was accepted.
    const FormulaArea& area() const { return m_area; }

public slots:
    /// Remembers what is accepted.
    void accept() override;

private:
    void addFormula(QGridLayout& grid);
    void addRange(QGridLayout& grid);
    void addMesh(QGridLayout& grid);
    QLabel* addProblem(QGridLayout& grid, int row, const QString& name);
    void restore();
    void takeExample(int index);
    QString range() const;
    void setEnds(const std::array<QString, 4>& ends);
    void check();

    QComboBox* m_formula = nullptr;
    std::array<QLineEdit*, 4> m_ends{}; ///< x from, x to, y from, y to
    QSpinBox* m_columns = nullptr;
    QSpinBox* m_rows = nullptr;
    QLabel* m_formulaProblem = nullptr;
    QLabel* m_areaProblem = nullptr;
    QPushButton* m_ok = nullptr;
    FormulaArea m_area;
};
