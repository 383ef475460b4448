#include "formulaarea.h"

#include "formula.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(FormulaArea)
};

/// Reads "-3:3" or "-3..3" into the ends of a range.
bool readEnds(const QString& text, double& lower, double& upper, QString& error)
{
    const QStringList ends =
        text.split(text.contains(QLatin1Char(':')) ? QStringLiteral(":") : QStringLiteral(".."));
    if (ends.size() != 2) {
        error = Words::tr("\"%1\" is no range; expected two numbers, such as -3:3.").arg(text);
        return false;
    }
    double found[2];
    for (int i = 0; i < 2; ++i) {
        const std::optional<double> value = Formula(ends[i]).constant();
        if (!value) {
            error = Words::tr("\"%1\" in the range \"%2\" is no number.").arg(ends[i], text);
            return false;
        }
        found[i] = *value;
    }
    // The plot's box is in single precision: it must still have a width there.
    const float first = static_cast<float>(found[0]);
    const float last = static_cast<float>(found[1]);
    if (!std::isfinite(first) || !std::isfinite(last) || !(first < last)) {
        error = Words::tr("The range \"%1\" has no width; its first number must be less than its last.")
                    .arg(text);
        return false;
    }
    lower = found[0];
    upper = found[1];
    return true;
}

} // namespace

bool FormulaArea::setRange(const QString& text, QString& error)
{
    static const QRegularExpression named("^([xy])\\s*=\\s*(.*)$");
    const QStringList parts = text.simplified().split(',');
    FormulaArea found = *this;
    QString axes;
    for (const QString& given : parts) {
        const QRegularExpressionMatch match = named.match(given.trimmed());
        const QString ends = match.hasMatch() ? match.captured(2) : given.trimmed();
        const QString axis = match.hasMatch() ? match.captured(1) : axes.isEmpty() ? "x" : "y";
        if (axes.contains(axis) || parts.size() > 2) {
            error = Words::tr("\"%1\" is no range of x and y; expected the form -3:3,-2:2.").arg(text);
            return false;
        }
        axes += axis;
        const bool isX = axis == "x";
        if (!readEnds(ends, isX ? found.xMin : found.yMin, isX ? found.xMax : found.yMax, error))
            return false;
        if (parts.size() == 1 && !match.hasMatch()) {
            found.yMin = found.xMin;
            found.yMax = found.xMax;
        }
    }
    *this = found;
    return true;
}

bool FormulaArea::setMesh(const QString& text, QString& error)
{
    static const QRegularExpression form("^\\s*(\\d+)\\s*(?:[xX\u00d7]\\s*(\\d+)\\s*)?$");
    const QRegularExpressionMatch match = form.match(text);
    const QString second = match.captured(2).isEmpty() ? match.captured(1) : match.captured(2);
    const int foundColumns = match.captured(1).toInt();
    const int foundRows = second.toInt();
    if (foundColumns < 2 || foundRows < 2) {
        error = Words::tr("\"%1\" is no mesh; expected columns and rows, at least 2 each, such as 200x100.")
                    .arg(text);
        return false;
    }
    columns = foundColumns;
    rows = foundRows;
    return true;
}
