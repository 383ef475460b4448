#include "formula.h"

#include "memoryneed.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <new>

#include <muParser.h>

namespace {

double roundDown(double value)
{
    return std::floor(value);
}

double roundUp(double value)
{
    return std::ceil(value);
}

double remainderOf(double value, double divisor)
{
    return std::fmod(value, divisor);
}

/// The position of an = that is no comparison; -1 for none.
int findAssignment(const QString& text)
{
    const auto at = [&text](int i) { return i >= 0 && i < text.size() ? text[i] : QChar(' '); };
    for (int i = 0; i < text.size(); ++i) {
        if (at(i) == '=' && at(i + 1) != '=' && !QStringLiteral("=<>!").contains(at(i - 1)))
            return i;
    }
    return -1;
}

/// The position of a comma outside all parentheses; -1 for none.
int findFreeComma(const QString& text)
{
    int depth = 0;
    for (int i = 0; i < text.size(); ++i) {
        depth += text[i] == '(' ? 1 : text[i] == ')' ? -1 : 0;
        if (text[i] == ',' && depth == 0)
            return i;
    }
    return -1;
}

} // namespace

Formula::Formula(const QString& text) : m_text(text), m_parser(std::make_unique<mu::Parser>())
{
    m_parser->DefineVar("x", &m_x);
    m_parser->DefineVar("y", &m_y);
    for (const char* name : {"pi", "_pi"})
        m_parser->DefineConst(name, M_PI);
    for (const char* name : {"e", "_e"})
        m_parser->DefineConst(name, M_E);
    m_parser->DefineFun("floor", roundDown);
    m_parser->DefineFun("ceil", roundUp);
    m_parser->DefineFun("mod", remainderOf);
    parse();
}

Formula::~Formula() = default;

bool Formula::fail(const QString& sentence)
{
    m_error = sentence;
    return false;
}

QString Formula::failure(int column, const QString& why) const
{
    return tr("\"%1\" cannot be read at column %2: %3.").arg(m_text).arg(column).arg(why);
}

QString Formula::reason(int code, const QString& token) const
{
    const QString name = token.trimmed();
    switch (code) {
    case mu::ecUNASSIGNABLE_TOKEN:
        return tr("\"%1\" is not known here").arg(name);
    case mu::ecUNEXPECTED_EOF:
        return tr("the formula ends too early");
    case mu::ecMISSING_PARENS:
        return tr("a parenthesis is not closed");
    case mu::ecTOO_MANY_PARAMS:
        return tr("\"%1\" has too many arguments").arg(name);
    case mu::ecTOO_FEW_PARAMS:
        return tr("\"%1\" has too few arguments").arg(name);
    case mu::ecMISSING_ELSE_CLAUSE:
        return tr("\"?\" has no \":\"");
    case mu::ecUNEXPECTED_VAL:
    case mu::ecUNEXPECTED_VAR:
    case mu::ecUNEXPECTED_FUN:
        return tr("an operator such as * is missing before \"%1\"").arg(name);
    default:
        return tr("\"%1\" cannot stand here").arg(name);
    }
}

/// What muParser would take for a formula of another kind.
bool Formula::checkForm()
{
    if (m_text.trimmed().isEmpty())
        return fail(tr("The formula is empty."));
    const int assignment = findAssignment(m_text);
    if (assignment >= 0)
        return fail(
            failure(assignment + 1, tr("\"=\" cannot stand here; give what z is equal to, without z =")));
    const int comma = findFreeComma(m_text);
    if (comma >= 0)
        return fail(failure(comma + 1, tr("\",\" cannot stand here; the decimal sign is a point")));
    return true;
}

void Formula::parse()
{
    if (!checkForm())
        return;
    const QByteArray bytes = m_text.toUtf8();
    try {
        m_parser->SetExpr(bytes.toStdString());
        m_parser->Eval();
        m_valid = true;
    } catch (const mu::Parser::exception_type& problem) {
        // Some positions are behind the end or not told: those faults show at the end.
        const auto told = static_cast<int>(problem.GetPos());
        const int position = told < 0 ? bytes.size() : std::min(told, bytes.size());
        m_error = failure(QString::fromUtf8(bytes.left(position)).size() + 1,
                          reason(problem.GetCode(), QString::fromStdString(problem.GetToken())));
    }
}

double Formula::value(double x, double y)
{
    const double missing = std::numeric_limits<double>::quiet_NaN();
    if (!m_valid)
        return missing;
    m_x = x;
    m_y = y;
    const double height = m_parser->Eval();
    // The plot draws in single precision. NaN fails too.
    return std::abs(height) <= double(FLT_MAX) ? height : missing;
}

std::optional<double> Formula::constant()
{
    if (!m_valid || !m_parser->GetUsedVar().empty())
        return std::nullopt;
    const double found = value(0.0, 0.0);
    return std::isnan(found) ? std::nullopt : std::optional<double>(found);
}

bool Formula::fits(const FormulaArea& area)
{
    if (m_valid)
        m_error.clear();
    if (area.columns < 2 || area.rows < 2)
        return fail(tr("\"%1\" cannot be drawn over %2 x %3 nodes (columns x rows); a surface needs at least "
                       "2 x 2.")
                        .arg(m_text)
                        .arg(area.columns)
                        .arg(area.rows));
    const MemoryNeed need(area.columns, area.rows);
    const std::optional<double> freeBytes = MemoryNeed::freeBytes();
    if (freeBytes && !need.fits(*freeBytes))
        return fail(tr("\"%1\" needs about %2; %3 are free.")
                        .arg(m_text, need.text(), MemoryNeed::gigabytes(*freeBytes)));
    return true;
}

bool Formula::fill(Grid& grid, const LoadProgress& progress)
{
    const double stepX = (grid.xMax - grid.xMin) / (grid.columns - 1);
    const double stepY = (grid.yMax - grid.yMin) / (grid.rows - 1);
    QString first;
    for (int column = 0; column < grid.columns; ++column) {
        if (!progress(double(column) / grid.columns))
            return false;
        const double x = grid.xMin + column * stepX;
        for (int row = 0; row < grid.rows; ++row) {
            const double y = grid.yMin + row * stepY;
            const double height = value(x, y);
            grid.columnStarts[static_cast<std::size_t>(column)][row] = height;
            if (std::isnan(height) && first.isEmpty())
                first = tr("x = %L1, y = %L2").arg(x).arg(y);
        }
    }
    grid.measure();
    if (!first.isEmpty())
        m_notes.append(tr("The formula has no height at %L1 of %L2 nodes, the first at %3.")
                           .arg(grid.heights.size() - grid.validNodes)
                           .arg(grid.heights.size())
                           .arg(first));
    return true;
}

bool Formula::read(Grid& grid, const FormulaArea& area, const LoadProgress& progress)
{
    m_notes.clear();
    if (!m_valid)
        return false;
    if (!fits(area))
        return false;
    Grid found;
    try {
        found.allocate(area.columns, area.rows);
    } catch (const std::bad_alloc&) {
        return fail(tr("\"%1\" needs about %2, which cannot be had.")
                        .arg(m_text, MemoryNeed(area.columns, area.rows).text()));
    }
    found.xMin = area.xMin;
    found.xMax = area.xMax;
    found.yMin = area.yMin;
    found.yMax = area.yMax;
    found.name = m_text;
    if (!fill(found, progress))
        return false;
    if (found.validNodes == 0)
        return fail(tr("\"%1\" has no height at any node.").arg(m_text));
    if (found.zMax - found.zMin > double(FLT_MAX))
        return fail(
            tr("\"%1\" cannot be drawn: its heights span from %L2 to %L3, more than single precision holds.")
                .arg(m_text)
                .arg(found.zMin)
                .arg(found.zMax));
    grid = std::move(found);
    return true;
}
