#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

struct csv_parser;

/// One row of a CSV file.
struct CsvRecord
{
    int line = 0; ///< the line where it begins, from 1
    std::vector<std::string> cells;
};

/// Splits CSV text, fed piece by piece, into records and keeps count of the lines.
///
/// Lines end with LF, CR or both. Blank lines and lines that begin with # are passed over.
class CsvReader
{
    Q_DECLARE_TR_FUNCTIONS(CsvReader)

public:
    /// Takes a record; false ends the reading.
    using Handler = std::function<bool(const CsvRecord&)>;

    CsvReader(char delimiter, Handler handler);
    ~CsvReader();
    CsvReader(const CsvReader&) = delete;
    CsvReader& operator=(const CsvReader&) = delete;

    /// Whether lines that begin with # are comments, as they are at first, or rows like all others.
    void setCommentsAllowed(bool allowed) { m_commentsAllowed = allowed; }

    /// Reads the next bytes of the file. False when the handler ends the reading or the text cannot be read;
    /// error() then says where and why, and is empty in the first case.
    bool feed(const char* bytes, std::size_t size);
    /// Reads what stands after the last line end. False as with feed().
    bool finish();
    const QString& error() const { return m_error; }

    /// How many comment lines were passed over.
    int comments() const { return m_comments; }
    /// How many records were handed over.
    int records() const { return m_records; }

private:
    bool feedLine(const char* bytes, std::size_t size);
    bool parse(const char* bytes, std::size_t size);
    bool fail(const QString& reason);
    void takeCell(const char* text, std::size_t size);

    Handler m_handler;
    std::unique_ptr<csv_parser> m_parser;
    CsvRecord m_record;
    QString m_error;
    std::size_t m_cellBytes = 0; ///< bytes since the last whole cell
    int m_line = 1;
    int m_comments = 0;
    int m_records = 0;
    bool m_inRecord = false;
    bool m_complete = false;
    bool m_lineStart = true;
    bool m_inComment = false;
    bool m_afterReturn = false;
    bool m_commentsAllowed = true;
};
