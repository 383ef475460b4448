#pragma once

#include "formulaarea.h"
#include "grid.h"
#include "loadprogress.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace mu {
class Parser;
}

/// A formula z = f(x, y) that a person typed, such as "sin(x)*cos(y)".
///
/// Operators are + - * / ^, comparisons, && || and ?:. Functions are those of muParser (sin, cos, tan, asin,
/// acos, atan, atan2, sinh, cosh, tanh, exp, ln, log (natural, too), log2, log10, sqrt, abs, sign, rint, min,
/// max, sum, avg) and floor, ceil and mod. Constants are pi and e, with or without a leading underscore.
class Formula
{
    Q_DECLARE_TR_FUNCTIONS(Formula)

public:
    explicit Formula(const QString& text);
    ~Formula();
    Formula(const Formula&) = delete;
    Formula& operator=(const Formula&) = delete;

    bool isValid() const { return m_valid; }
    /// One sentence that names the formula, the column (from 1) and the reason. Empty while the formula is
    /// valid and the last read() succeeded.
    const QString& error() const { return m_error; }

    /// The height at a place; NaN where it is not defined, too large to draw or the formula is not valid.
    double value(double x, double y);
    /// The value of a valid formula without x and y; otherwise nothing.
    std::optional<double> constant();

    /// Whether the machine has memory for a surface over the area, of two columns and rows at least; if not,
    /// error() says so.
    bool fits(const FormulaArea& area);
    /// Evaluates the formula over an area and replaces the grid with the heights. Nodes without a height are
    /// missing. False when that fails: the grid is as it was then and error() says why, or is empty when the
    /// progress was cancelled.
    bool read(Grid& grid, const FormulaArea& area, const LoadProgress& progress = {});
    /// What the last read() left out.
    const QStringList& notes() const { return m_notes; }

private:
    bool fail(const QString& sentence);
    void parse();
    bool checkForm();
    QString reason(int code, const QString& token) const;
    QString failure(int column, const QString& why) const;
    bool fill(Grid& grid, const LoadProgress& progress);

    QString m_text;
    QString m_error;
    QStringList m_notes;
    std::unique_ptr<mu::Parser> m_parser;
    double m_x = 0.0;
    double m_y = 0.0;
    bool m_valid = false;
};
