#include "csvreader.h"

#include <algorithm>
#include <cstring>
#include <new>

#include <csv.h>

namespace {

// No number and no name is longer; a quote that is never closed would otherwise take the whole file.
constexpr std::size_t longestCell = 1 << 20;

bool isBlank(const char* bytes, std::size_t size)
{
    return std::all_of(bytes, bytes + size, [](char c) { return c == ' ' || c == '\n' || c == '\r'; });
}

} // namespace

CsvReader::CsvReader(char delimiter, Handler handler)
    : m_handler(std::move(handler)), m_parser(std::make_unique<csv_parser>())
{
    csv_init(m_parser.get(), 0);
    csv_set_delim(m_parser.get(), static_cast<unsigned char>(delimiter));
}

CsvReader::~CsvReader()
{
    csv_free(m_parser.get());
}

bool CsvReader::fail(const QString& reason)
{
    m_error = reason;
    return false;
}

void CsvReader::takeCell(const char* text, std::size_t size)
{
    m_record.cells.emplace_back(text, size);
    m_cellBytes = 0;
}

bool CsvReader::parse(const char* bytes, std::size_t size)
{
    const auto cell = [](void* text, std::size_t length, void* self) {
        static_cast<CsvReader*>(self)->takeCell(static_cast<const char*>(text), length);
    };
    const auto row = [](int, void* self) { static_cast<CsvReader*>(self)->m_complete = true; };
    m_cellBytes += size;
    if (csv_parse(m_parser.get(), bytes, size, cell, row, this) != size)
        throw std::bad_alloc();
    if (m_cellBytes > longestCell)
        return fail(tr("line %1, column %2: the cell never ends; a quote may be missing")
                        .arg(m_record.line)
                        .arg(m_record.cells.size() + 1));
    if (!m_complete)
        return true;
    m_complete = false;
    m_inRecord = false;
    ++m_records;
    const bool goesOn = m_handler(m_record);
    m_record.cells.clear();
    return goesOn;
}

/// Reads a line, or the part of it that stands in the bytes at hand.
bool CsvReader::feedLine(const char* bytes, std::size_t size)
{
    const bool ends = bytes[size - 1] == '\n' || bytes[size - 1] == '\r';
    if (const void* found = std::memchr(bytes, 0, size))
        return fail(tr("line %1, character %2: found a zero byte, expected text")
                        .arg(m_line)
                        .arg(static_cast<const char*>(found) - bytes + 1));
    if (m_commentsAllowed && m_lineStart && !m_inRecord && bytes[0] == '#') {
        m_inComment = true;
        ++m_comments;
    }
    m_lineStart = ends;
    if (m_inComment) {
        m_inComment = !ends;
        return true;
    }
    if (!m_inRecord && isBlank(bytes, size))
        return true;
    if (!m_inRecord) {
        m_inRecord = true;
        m_cellBytes = 0;
        m_record.line = m_line;
    }
    return parse(bytes, size);
}

bool CsvReader::feed(const char* bytes, std::size_t size)
{
    const char* const end = bytes + size;
    while (bytes != end) {
        // The second half of a line end.
        const bool half = m_afterReturn && *bytes == '\n';
        const char* stop = std::find_if(bytes, end, [](char c) { return c == '\n' || c == '\r'; });
        if (stop != end)
            ++stop;
        if (!feedLine(bytes, static_cast<std::size_t>(stop - bytes)))
            return false;
        m_afterReturn = stop[-1] == '\r';
        if (!half && (m_afterReturn || stop[-1] == '\n'))
            ++m_line;
        bytes = stop;
    }
    return true;
}

bool CsvReader::finish()
{
    if (!m_lineStart && !feed("\n", 1))
        return false;
    if (m_inRecord)
        return fail(tr("line %1, column %2: the quoted cell never ends")
                        .arg(m_record.line)
                        .arg(m_record.cells.size() + 1));
    return true;
}
