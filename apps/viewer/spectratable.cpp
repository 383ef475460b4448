#include "spectratable.h"

#include "tablecell.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>

namespace {

/// The number of cells without the empty ones at the end.
int filledWidth(const CsvRecord& record)
{
    const auto last = std::find_if(record.cells.rbegin(), record.cells.rend(),
                                   [](const auto& c) { return !isBlankCell(c); });
    return static_cast<int>(record.cells.rend() - last);
}

bool isMonotonic(const std::vector<double>& values)
{
    const bool falling = values.front() > values.back();
    for (std::size_t i = 1; i < values.size(); ++i) {
        if (falling ? !(values[i] < values[i - 1]) : !(values[i] > values[i - 1]))
            return false;
    }
    return values.size() > 1;
}

} // namespace

SpectraTable::SpectraTable(char delimiter) : m_numbers(delimiter), m_labels(delimiter) {}

bool SpectraTable::fail(const QString& reason)
{
    m_error = reason;
    return false;
}

bool SpectraTable::fail(const CsvRecord& record, int column, const QString& found, const QString& expected)
{
    return fail(tr("line %1, column %2: found %3, expected %4")
                    .arg(QString::number(record.line), columnText(column), found, expected));
}

bool SpectraTable::cell(const CsvRecord& record, int column, bool missingAllowed, double& found)
{
    const std::string& text = record.cells[static_cast<std::size_t>(column)];
    const CsvNumber::Kind kind = m_numbers.read(text, record.line, found);
    if (kind == CsvNumber::Number || (kind == CsvNumber::Missing && missingAllowed))
        return true;
    if (kind == CsvNumber::WrongSign) {
        const QString sign = m_numbers.sign() == '.' ? tr("point") : tr("comma");
        if (m_numbers.signLine() == 0)
            return fail(record, column, quotedCell(text), tr("a number with a decimal %1").arg(sign));
        return fail(record, column, quotedCell(text),
                    tr("a number with a decimal %1 as in line %2").arg(sign).arg(m_numbers.signLine()));
    }
    return fail(record, column, isBlankCell(text) ? tr("an empty cell") : quotedCell(text), tr("a number"));
}

bool SpectraTable::position(const CsvRecord& record, int column, double& found)
{
    if (!cell(record, column, false, found))
        return false;
    // The plot's box is in single precision.
    if (std::abs(found) <= double(FLT_MAX))
        return true;
    return fail(record, column, quotedCell(record.cells[static_cast<std::size_t>(column)]),
                tr("a position that single precision holds"));
}

bool SpectraTable::value(const CsvRecord& record, int column, double& found)
{
    if (!cell(record, column, true, found))
        return false;
    if (std::isnan(found))
        return true;
    if (std::abs(found) <= double(FLT_MAX)) {
        ++m_values;
        return true;
    }
    found = std::numeric_limits<double>::quiet_NaN();
    if (m_infinite++ == 0)
        m_firstInfinite = tr("line %1, column %2").arg(QString::number(record.line), columnText(column));
    return true;
}

bool SpectraTable::take(const CsvRecord& record)
{
    if (filledWidth(record) == 0)
        return true;
    if (m_width == 0)
        return takeFirst(record);
    if (!checkWidth(record))
        return false;
    return m_form == Rows ? takeRow(record) : takePairs(record);
}

/// Tells the form of the table from its first record.
bool SpectraTable::takeFirst(const CsvRecord& record)
{
    m_width = filledWidth(record);
    if (m_width < 2)
        return fail(record, 0, tr("a single column"), tr("cells parted by commas, semicolons or tabs"));
    CsvNumber numbers = m_numbers;
    std::vector<double> found;
    int texts = 0;
    bool cornerIsNumber = false;
    for (int column = 0; column < m_width; ++column) {
        double number = 0.0;
        const CsvNumber::Kind kind =
            numbers.read(record.cells[static_cast<std::size_t>(column)], record.line, number);
        if (column == 0)
            cornerIsNumber = kind == CsvNumber::Number;
        else if (kind == CsvNumber::Number)
            found.push_back(number);
        else if (kind != CsvNumber::Missing)
            ++texts;
    }
    // A first record of numbers alone is one of positions when they rise or fall all the way.
    const bool positions = static_cast<int>(found.size()) == m_width - 1 && isMonotonic(found);
    if (cornerIsNumber && texts == 0 && m_width % 2 == 0 && !positions) {
        startPairs(QVector<QString>(m_width).toList());
        return takePairs(record);
    }
    if (!found.empty() && static_cast<int>(found.size()) >= texts)
        return takePositions(record);
    return takePairNames(record);
}

void SpectraTable::startPairs(const QStringList& header)
{
    m_form = Pairs;
    m_header = header;
    m_spectra.resize(static_cast<std::size_t>(m_width / 2));
}

bool SpectraTable::takePositions(const CsvRecord& record)
{
    m_form = Rows;
    m_header.append(cellText(record.cells.front()));
    std::map<double, int> places;
    for (int column = 1; column < m_width; ++column) {
        double found = 0.0;
        if (!position(record, column, found))
            return false;
        const auto placed = places.emplace(found, column);
        if (!placed.second)
            return fail(tr("line %1, columns %2 and %3: both have the position %4")
                            .arg(QString::number(record.line), columnText(placed.first->second),
                                 columnText(column), QString::number(found, 'g', 15)));
        m_positions.push_back(found);
    }
    if (m_positions.size() < 2)
        return fail(record, 1, tr("the only position"), tr("at least two"));
    return true;
}

bool SpectraTable::takePairNames(const CsvRecord& record)
{
    // The name of a pair may stand over its x alone.
    if (m_width % 2 != 0 && record.cells.size() > static_cast<std::size_t>(m_width))
        ++m_width;
    if (m_width % 2 != 0)
        return fail(tr("line %1: found %2 columns of names, expected either positions from the second column "
                       "on or columns in pairs of x and y")
                        .arg(record.line)
                        .arg(m_width));
    QStringList header;
    for (int column = 0; column < m_width; ++column)
        header.append(cellText(record.cells[static_cast<std::size_t>(column)]));
    startPairs(header);
    return true;
}

bool SpectraTable::checkWidth(const CsvRecord& record)
{
    const int filled = filledWidth(record);
    if (filled > m_width)
        return fail(record, filled - 1, quotedCell(record.cells[static_cast<std::size_t>(filled - 1)]),
                    tr("%1 columns as in the first row").arg(m_width));
    const int cells = static_cast<int>(record.cells.size());
    if (cells < m_width)
        return fail(record, cells, tr("the end of the row"),
                    tr("%1 columns as in the first row").arg(m_width));
    return true;
}

bool SpectraTable::takeRow(const CsvRecord& record)
{
    Spectrum spectrum;
    spectrum.line = record.line;
    spectrum.name = cellText(record.cells.front());
    const CsvNumber::Kind kind = m_labels.read(record.cells.front(), record.line, spectrum.position);
    if (kind == CsvNumber::Number && std::abs(spectrum.position) <= double(FLT_MAX))
        ++m_numberedRows;
    else if (m_wordedRow.isEmpty())
        m_wordedRow =
            tr("line %1 begins with %2").arg(QString::number(record.line), quotedCell(record.cells.front()));
    for (int column = 1; column < m_width; ++column) {
        double found = 0.0;
        if (!value(record, column, found))
            return false;
        spectrum.values.emplace_hint(spectrum.values.end(), m_positions[static_cast<std::size_t>(column - 1)],
                                     found);
    }
    m_spectra.push_back(std::move(spectrum));
    return true;
}

bool SpectraTable::takePairs(const CsvRecord& record)
{
    for (int pair = 0; pair < m_width / 2; ++pair) {
        if (!takePair(record, pair))
            return false;
    }
    return true;
}

bool SpectraTable::takePair(const CsvRecord& record, int pair)
{
    const int column = 2 * pair;
    const auto at = static_cast<std::size_t>(column);
    // The shorter of several spectra.
    if (isBlankCell(record.cells[at]) && isBlankCell(record.cells[at + 1]))
        return true;
    Spectrum& spectrum = m_spectra[static_cast<std::size_t>(pair)];
    double x = 0.0;
    double y = 0.0;
    if (!position(record, column, x) || !value(record, column + 1, y))
        return false;
    if (spectrum.values.empty())
        spectrum.line = record.line;
    const auto placed = spectrum.places.emplace(x, record.line);
    if (!placed.second)
        return fail(tr("lines %1 and %2, column %3: both have the position %4")
                        .arg(QString::number(placed.first->second), QString::number(record.line),
                             columnText(column), QString::number(x, 'g', 15)));
    spectrum.values.emplace(x, y);
    return true;
}

void SpectraTable::placeByNumber()
{
    double number = 0.0;
    for (Spectrum& spectrum : m_spectra)
        spectrum.position = ++number;
}

/// Rows stand at their numbers, or one after the other when they have none or share one.
void SpectraTable::placeRows()
{
    if (!m_wordedRow.isEmpty()) {
        if (m_numberedRows > 0)
            m_notes.append(tr("Not every row begins with a number (%1); all spectra are placed by their row "
                              "numbers.")
                               .arg(m_wordedRow));
        return placeByNumber();
    }
    constexpr int named = 3;
    std::map<double, int> places;
    QStringList clashes;
    int count = 0;
    for (const Spectrum& spectrum : m_spectra) {
        const auto placed = places.emplace(spectrum.position, spectrum.line);
        if (!placed.second && ++count <= named)
            clashes.append(tr("Lines %1 and %2 have the same position %3")
                               .arg(QString::number(placed.first->second), QString::number(spectrum.line),
                                    QString::number(spectrum.position, 'g', 15)));
    }
    if (count == 0)
        return;
    if (count > named)
        clashes.append(tr("%1 more clash likewise").arg(count - named));
    m_notes.append(
        tr("%1; all spectra are placed by their row numbers.").arg(clashes.join(QStringLiteral("; "))));
    placeByNumber();
}

bool SpectraTable::checkEnd()
{
    if (m_width == 0)
        return fail(tr("it has no rows"));
    if (m_spectra.empty())
        return fail(tr("it has only one row, expected a row of positions and then a row for each spectrum"));
    for (std::size_t i = 0; m_form == Pairs && i < m_spectra.size(); ++i) {
        if (m_spectra[i].values.size() < 2)
            return fail(tr("columns %1 and %2: found %3 points, expected at least two")
                            .arg(columnText(int(2 * i)), columnText(int(2 * i + 1)))
                            .arg(m_spectra[i].values.size()));
    }
    if (m_values == 0)
        return fail(tr("every value is missing"));
    return true;
}

void SpectraTable::noteInfinite()
{
    if (m_infinite > 0)
        m_notes.append(tr("Values too large to draw are missing: %L1, the first in %2.")
                           .arg(m_infinite)
                           .arg(m_firstInfinite));
}

bool SpectraTable::finish(Spectra& spectra)
{
    if (!checkEnd())
        return false;
    Spectra made;
    if (m_form == Rows) {
        placeRows();
        made.spectraLabel = m_header.front();
    } else {
        placeByNumber();
        made.positionLabel = m_header.front();
        m_notes.append(tr("The columns are read as pairs of x and y; spectra: %L1.").arg(m_spectra.size()));
    }
    noteInfinite();
    std::map<double, std::size_t> order;
    for (std::size_t i = 0; i < m_spectra.size(); ++i)
        order.emplace(m_spectra[i].position, i);
    for (const auto& [position, index] : order) {
        Spectrum& spectrum = m_spectra[index];
        if (m_form == Pairs) {
            const int column = static_cast<int>(2 * index);
            spectrum.name = m_header[column + 1].isEmpty() ? m_header[column] : m_header[column + 1];
        }
        made.names.append(spectrum.name.isEmpty() ? tr("Spectrum %1").arg(index + 1) : spectrum.name);
        made.lines.append(spectrum.line);
        made.map.emplace_hint(made.map.end(), position, std::move(spectrum.values));
    }
    if (made.spectraLabel.isEmpty())
        made.spectraLabel = tr("Spectrum");
    made.notes = m_notes;
    spectra = std::move(made);
    return true;
}
