#include "clipboardtable.h"

#include "csvreader.h"
#include "memoryneed.h"
#include "tablecell.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>
#include <map>
#include <new>

namespace {

/// Memory for a cell, its text and its number: 45 measured with short texts.
constexpr double bytesPerCell = 60.0;

/// Part of a step by which a line of an even grid may be off: numbers as they are shown are rounded.
constexpr double unevenness = 1e-4;

bool isAxis(const std::vector<double>& values)
{
    if (values.size() < 2)
        return false;
    const bool falling = values.front() > values.back();
    for (std::size_t i = 1; i < values.size(); ++i) {
        if (falling ? !(values[i] < values[i - 1]) : !(values[i] > values[i - 1]))
            return false;
    }
    return std::isfinite(values.front()) && std::isfinite(values.back());
}

bool isEven(const std::vector<double>& axis)
{
    const double step = (axis.back() - axis.front()) / double(axis.size() - 1);
    for (std::size_t i = 0; i < axis.size(); ++i) {
        if (std::abs(axis.front() + double(i) * step - axis[i]) > unevenness * std::abs(step))
            return false;
    }
    return true;
}

bool isEvenAxis(const std::vector<double>& values)
{
    return isAxis(values) && isEven(values);
}

/// One step: as even as any, but no sign of an axis.
bool tellsAxis(const std::vector<double>& values)
{
    return values.size() > 2 && isEvenAxis(values);
}

std::vector<double> counted(int count)
{
    std::vector<double> numbers(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = double(i + 1);
    return numbers;
}

void sortUnique(std::vector<double>& values)
{
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
}

bool isDistinct(std::vector<double> values)
{
    const std::size_t count = values.size();
    const auto isMissing = [](double value) { return std::isnan(value); };
    if (std::any_of(values.begin(), values.end(), isMissing))
        return false;
    sortUnique(values);
    return values.size() == count;
}

std::size_t placeOf(const std::vector<double>& axis, double value)
{
    return std::size_t(std::lower_bound(axis.begin(), axis.end(), value) - axis.begin());
}

char findDelimiter(const QByteArray& bytes)
{
    for (const char delimiter : {'\t', ';', ','}) {
        if (bytes.contains(delimiter))
            return delimiter;
    }
    return ' ';
}

/// Runs of spaces become one tab, as columns of a listing are parted by any number of them.
QByteArray spacesToTabs(const QByteArray& bytes)
{
    QByteArray parted;
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray& line : lines)
        parted += line.simplified().replace(' ', '\t') + '\n';
    return parted;
}

} // namespace

ClipboardTable::ClipboardTable(const QString& text) : m_bytes(text.toUtf8())
{
    if (m_bytes.startsWith("\xef\xbb\xbf"))
        m_bytes.remove(0, 3);
}

bool ClipboardTable::fail(const QString& sentence)
{
    m_error = sentence;
    return false;
}

bool ClipboardTable::fail(int column, int row, const QString& expected)
{
    const std::string& cell = m_cells[std::size_t(row)][std::size_t(column)];
    return fail(tr("The table cannot be read: row %1, column %2: found %3, expected %4.")
                    .arg(QString::number(row + 1 + m_skipped), columnText(column),
                         isBlankCell(cell) ? tr("an empty cell") : quotedCell(cell), expected));
}

QString ClipboardTable::text(int column, int row) const
{
    return column < 0 || column >= m_columns || row < 0 || row >= m_rows
               ? QString()
               : cellText(m_cells[std::size_t(row)][std::size_t(column)]);
}

bool ClipboardTable::read()
{
    m_error.clear();
    try {
        if (!split() || !checkWidths())
            return false;
        trim();
        if (m_rows < 2 || m_columns < 2)
            return fail(tr("The table has rows: %1, columns: %2; at least two of each are needed.")
                            .arg(m_rows)
                            .arg(m_columns));
        if (!readNumbers())
            return false;
        findHeaders();
        if (!checkBody())
            return false;
        findMeanings();
    } catch (const std::bad_alloc&) {
        return fail(tr("The table needs more memory than can be had."));
    }
    if (m_possible.isEmpty())
        return fail(tr("The table holds too few numbers for a surface or spectra."));
    chooseMeaning();
    return true;
}

bool ClipboardTable::split()
{
    char delimiter = findDelimiter(m_bytes);
    if (delimiter == ' ') {
        m_bytes = spacesToTabs(m_bytes);
        delimiter = '\t';
    }
    const double need = double(m_bytes.count(delimiter) + m_bytes.count('\n')) * bytesPerCell;
    const std::optional<double> freeBytes = MemoryNeed::freeBytes();
    if (freeBytes && need > *freeBytes)
        return fail(tr("The table needs about %1 of memory; %2 are free.")
                        .arg(MemoryNeed::gigabytes(need), MemoryNeed::gigabytes(*freeBytes)));
    m_reader = TableNumbers(delimiter);
    CsvReader reader(delimiter, [this](const CsvRecord& record) {
        m_cells.push_back(record.cells);
        return true;
    });
    // Errors of spreadsheets begin with the sign of comments.
    reader.setCommentsAllowed(false);
    const bool whole = reader.feed(m_bytes.constData(), std::size_t(m_bytes.size())) && reader.finish();
    m_bytes.clear();
    return whole || fail(tr("The table cannot be read: %1.").arg(reader.error()));
}

/// All rows as wide as the widest; cells that are only empty do not count.
bool ClipboardTable::checkWidths()
{
    const auto filled = [](const std::vector<std::string>& cells) {
        return cells.rend() - std::find_if(cells.rbegin(), cells.rend(),
                                           [](const std::string& cell) { return !isBlankCell(cell); });
    };
    std::size_t width = 0;
    std::size_t widest = 0;
    for (std::size_t row = 0; row < m_cells.size(); ++row) {
        const auto used = std::size_t(filled(m_cells[row]));
        if (used > width) {
            width = used;
            widest = row;
        }
    }
    for (std::size_t row = 0; row < m_cells.size(); ++row) {
        std::vector<std::string>& cells = m_cells[row];
        if (cells.size() < width && filled(cells) > 0)
            return fail(tr("The table cannot be read: row %1, column %2: found the end of the row, expected "
                           "%3 columns as in row %4.")
                            .arg(QString::number(row + 1), columnText(int(cells.size())))
                            .arg(width)
                            .arg(widest + 1));
        cells.resize(width);
    }
    m_columns = int(width);
    return true;
}

/// Drops empty rows at the top and at the end and empty columns at the left.
void ClipboardTable::trim()
{
    const auto isEmptyRow = [](const std::vector<std::string>& cells) {
        return std::all_of(cells.begin(), cells.end(), isBlankCell);
    };
    while (!m_cells.empty() && isEmptyRow(m_cells.back()))
        m_cells.pop_back();
    const auto first = std::find_if_not(m_cells.begin(), m_cells.end(), isEmptyRow);
    m_skipped = int(first - m_cells.begin());
    m_cells.erase(m_cells.begin(), first);
    m_rows = int(m_cells.size());
}

bool ClipboardTable::readNumbers()
{
    for (const auto& cells : m_cells) {
        for (const std::string& cell : cells)
            m_reader.learn(cell);
    }
    const std::size_t count = std::size_t(m_rows) * std::size_t(m_columns);
    m_numbers.resize(count);
    m_kinds.resize(count);
    std::size_t at = 0;
    for (const auto& cells : m_cells) {
        for (const std::string& cell : cells) {
            double value = std::numeric_limits<double>::quiet_NaN();
            m_kinds[at] = m_reader.read(cell, value);
            if (m_kinds[at] == CsvNumber::Number && !(std::abs(value) <= double(FLT_MAX))) {
                // What cannot be drawn.
                m_kinds[at] = CsvNumber::Missing;
                value = std::numeric_limits<double>::quiet_NaN();
                ++m_infinite;
            }
            m_numbers[at++] = value;
        }
    }
    return true;
}

/// A first row or column of texts; the corner belongs to both.
void ClipboardTable::findHeaders()
{
    int texts = 0;
    int numbers = 0;
    const auto count = [&](CsvNumber::Kind found) {
        texts += found == CsvNumber::Text ? 1 : 0;
        numbers += found == CsvNumber::Number || found == CsvNumber::WrongSign ? 1 : 0;
    };
    for (int column = 1; column < m_columns; ++column)
        count(kind(column, 0));
    m_firstRow = texts > 0 && numbers == 0 ? 1 : 0;
    texts = numbers = 0;
    for (int row = 1; row < m_rows; ++row)
        count(kind(0, row));
    m_firstColumn = texts > 0 && numbers == 0 ? 1 : 0;
    m_corner = m_firstRow + m_firstColumn == 0 && kind(0, 0) != CsvNumber::Number;
}

bool ClipboardTable::checkBody()
{
    for (int row = m_firstRow; row < m_rows; ++row) {
        for (int column = m_firstColumn; column < m_columns; ++column) {
            const CsvNumber::Kind found = kind(column, row);
            if (found == CsvNumber::Number || found == CsvNumber::Missing || (column == 0 && row == 0))
                continue;
            if (found == CsvNumber::Text)
                return fail(column, row, tr("a number"));
            return fail(column, row,
                        m_reader.sign() == '.' ? tr("a number with a decimal point as in other cells")
                                               : tr("a number with a decimal comma as in other cells"));
        }
    }
    return true;
}

std::vector<double> ClipboardTable::rowNumbers(int row, int firstColumn) const
{
    const auto first = m_numbers.begin() + std::ptrdiff_t(index(firstColumn, row));
    return {first, first + (m_columns - firstColumn)};
}

std::vector<double> ClipboardTable::columnNumbers(int column, int firstRow) const
{
    std::vector<double> found;
    for (int row = firstRow; row < m_rows; ++row)
        found.push_back(number(column, row));
    return found;
}

bool ClipboardTable::readPoints(std::vector<double>& x, std::vector<double>& y) const
{
    if (m_columns - m_firstColumn != 3)
        return false;
    x = columnNumbers(m_firstColumn, m_firstRow);
    y = columnNumbers(m_firstColumn + 1, m_firstRow);
    const std::size_t count = x.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (!std::isfinite(x[i]) || !std::isfinite(y[i]))
            return false;
    }
    sortUnique(x);
    sortUnique(y);
    // Nearly half of the nodes may be missing; of three columns of heights far more would be.
    const std::size_t nodes = x.size() * y.size();
    if (x.size() < 2 || y.size() < 2 || count < 4 || count > nodes || 2 * count <= nodes)
        return false;
    std::vector<bool> taken(x.size() * y.size());
    for (int row = m_firstRow; row < m_rows; ++row) {
        const std::size_t node =
            placeOf(x, number(m_firstColumn, row)) * y.size() + placeOf(y, number(m_firstColumn + 1, row));
        if (taken[node])
            return false;
        taken[node] = true;
    }
    return true;
}

void ClipboardTable::findMeanings()
{
    const int width = m_columns - m_firstColumn;
    const int height = m_rows - m_firstRow;
    const bool named = m_firstRow == 1;
    const bool labelled = m_firstColumn == 1;
    const auto add = [this](TableMeaning meaning, bool possible) {
        if (possible)
            m_possible.append(meaning);
    };
    const bool xRow = !named && isAxis(rowNumbers(0, m_firstColumn + (m_corner ? 1 : 0)));
    const bool yColumn = !labelled && isAxis(columnNumbers(0, m_firstRow + (m_corner ? 1 : 0)));
    std::vector<double> x;
    std::vector<double> y;
    add(TableMeaning::Heights, named || labelled || kind(0, 0) != CsvNumber::Text);
    add(TableMeaning::HeightsWithAxes, !named && !labelled && width > 2 && height > 2 &&
                                           isAxis(rowNumbers(0, 1)) && isAxis(columnNumbers(0, 1)));
    add(TableMeaning::HeightsWithX, xRow && !m_corner && height > 2);
    add(TableMeaning::HeightsWithY, yColumn && !m_corner && width > 2);
    add(TableMeaning::Points, (!m_corner || named) && readPoints(x, y));
    add(TableMeaning::Spectra, !labelled && !m_corner && isDistinct(columnNumbers(0, m_firstRow)));
    if (width < 2 || height < 2)
        m_possible.clear();
}

void ClipboardTable::chooseMeaning()
{
    const auto choose = [this](TableMeaning meaning, bool sure) {
        m_guess = meaning;
        m_sure = sure || m_possible.size() == 1;
    };
    if (mayBe(TableMeaning::Points))
        return choose(TableMeaning::Points, true);
    if (m_corner && mayBe(TableMeaning::HeightsWithAxes))
        return choose(TableMeaning::HeightsWithAxes, true);
    if (mayBe(TableMeaning::Spectra) && (m_firstRow == 1 || m_columns == 2))
        return choose(TableMeaning::Spectra, true);
    const bool xEven = m_firstRow == 0 && tellsAxis(rowNumbers(0, m_firstColumn + 1));
    const bool yEven = m_firstColumn == 0 && tellsAxis(columnNumbers(0, m_firstRow + 1));
    if (mayBe(TableMeaning::HeightsWithAxes) && xEven && yEven)
        return choose(TableMeaning::HeightsWithAxes, false);
    if (mayBe(TableMeaning::HeightsWithY))
        return choose(yEven ? TableMeaning::Spectra : TableMeaning::Heights, false);
    if (mayBe(TableMeaning::HeightsWithX))
        return choose(xEven ? TableMeaning::HeightsWithX : TableMeaning::Heights,
                      !xEven && m_firstColumn == 0);
    choose(m_possible.first(), true);
}

QString ClipboardTable::name(int column, const QString& otherwise) const
{
    const QString found = m_firstRow == 1 ? text(column, 0) : QString();
    return found.isEmpty() ? otherwise : found;
}

void ClipboardTable::noteHeaders(QStringList& notes) const
{
    if (m_firstColumn == 1)
        notes.append(tr("The first column holds texts and is left out."));
    if (m_infinite > 0)
        notes.append(tr("Values too large to draw are missing: %1.").arg(m_infinite));
}

/// Rows and columns of heights, turned so that x and y ascend.
void ClipboardTable::place(TableMeaning meaning, TableGrid& made) const
{
    const bool xRow = meaning == TableMeaning::HeightsWithX || meaning == TableMeaning::HeightsWithAxes;
    const bool yColumn = meaning == TableMeaning::HeightsWithY || meaning == TableMeaning::HeightsWithAxes;
    const int firstColumn = m_firstColumn + (yColumn ? 1 : 0);
    const int firstRow = m_firstRow + (xRow ? 1 : 0);
    Grid& grid = made.grid;
    grid.allocate(m_columns - firstColumn, m_rows - firstRow);
    made.x = xRow ? rowNumbers(0, firstColumn) : counted(grid.columns);
    made.y = yColumn ? columnNumbers(0, firstRow) : counted(grid.rows);
    grid.xName = xRow ? tr("x") : tr("Column");
    grid.yName = yColumn ? name(0, tr("y")) : tr("Row");
    const bool leftwards = made.x.front() > made.x.back();
    const bool downwards = made.y.front() > made.y.back();
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column)
            grid.z()[leftwards ? grid.columns - 1 - column : column][downwards ? grid.rows - 1 - row : row] =
                number(firstColumn + column, firstRow + row);
    }
    if (leftwards)
        std::reverse(made.x.begin(), made.x.end());
    if (downwards)
        std::reverse(made.y.begin(), made.y.end());
}

bool ClipboardTable::fillPoints(TableGrid& made) const
{
    if (!readPoints(made.x, made.y))
        return false;
    Grid& grid = made.grid;
    grid.allocate(int(made.x.size()), int(made.y.size()));
    for (int row = m_firstRow; row < m_rows; ++row)
        grid.z()[placeOf(made.x, number(m_firstColumn, row))]
                [placeOf(made.y, number(m_firstColumn + 1, row))] = number(m_firstColumn + 2, row);
    grid.xName = name(m_firstColumn, tr("x"));
    grid.yName = name(m_firstColumn + 1, tr("y"));
    grid.name = name(m_firstColumn + 2, QString());
    const int left = int(grid.heights.size()) - (m_rows - m_firstRow);
    if (left > 0)
        made.notes.append(tr("Nodes without a row in the table are missing: %1.").arg(left));
    return true;
}

bool ClipboardTable::makeGrid(TableMeaning meaning, TableGrid& made)
{
    m_error.clear();
    if (!mayBe(meaning) || meaning == TableMeaning::Spectra)
        return fail(tr("The table does not have this form."));
    const MemoryNeed need(m_columns, m_rows);
    const std::optional<double> freeBytes = MemoryNeed::freeBytes();
    if (freeBytes && !need.fits(*freeBytes))
        return fail(
            tr("The table needs %1; %2 are free.").arg(need.text(), MemoryNeed::gigabytes(*freeBytes)));
    try {
        made = TableGrid();
        if (meaning == TableMeaning::Points)
            fillPoints(made);
        else
            place(meaning, made);
    } catch (const std::bad_alloc&) {
        return fail(tr("The table needs more memory than can be had."));
    }
    Grid& grid = made.grid;
    grid.measure();
    if (grid.validNodes == 0)
        return fail(tr("Every height of the table is missing."));
    grid.xMin = made.x.front();
    grid.xMax = made.x.back();
    grid.yMin = made.y.front();
    grid.yMax = made.y.back();
    made.even = isEvenAxis(made.x) && isEvenAxis(made.y);
    noteHeaders(made.notes);
    return true;
}

bool ClipboardTable::makeSpectra(Spectra& made)
{
    m_error.clear();
    if (!mayBe(TableMeaning::Spectra))
        return fail(tr("The table does not have this form."));
    made = Spectra();
    std::size_t valid = 0;
    for (int column = 1; column < m_columns; ++column) {
        std::map<double, double>& spectrum = made.map[double(column)];
        for (int row = m_firstRow; row < m_rows; ++row) {
            spectrum.emplace(number(0, row), number(column, row));
            valid += kind(column, row) == CsvNumber::Number ? 1U : 0U;
        }
        made.names.append(name(column, tr("Column %1").arg(column + 1)));
        made.lines.append(m_firstRow + 1);
    }
    if (valid == 0)
        return fail(tr("Every value of the table is missing."));
    made.spectraLabel = tr("Spectrum");
    made.positionLabel = name(0, tr("x"));
    noteHeaders(made.notes);
    return true;
}
