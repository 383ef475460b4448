#pragma once

#include "spectra.h"
#include "tablegrid.h"
#include "tablenumbers.h"

#include <QCoreApplication>
#include <QVector>

#include <string>
#include <vector>

/// What the cells of a pasted table mean.
enum class TableMeaning {
    Heights,         ///< every cell is a height
    HeightsWithAxes, ///< the first row is x, the first column is y
    HeightsWithX,    ///< the first row is x
    HeightsWithY,    ///< the first column is y
    Points,          ///< three columns x, y and z that form a grid
    Spectra          ///< the first column is x, each other one a spectrum
};

/// Reads a table that was copied from a spreadsheet: cells parted by tabs, semicolons, commas or spaces, with
/// quotation marks where needed; numbers with a decimal point or a decimal comma. Empty cells are missing.
///
/// A first row or column of texts names what stands under or beside it.
class ClipboardTable
{
    Q_DECLARE_TR_FUNCTIONS(ClipboardTable)

public:
    explicit ClipboardTable(const QString& text);

    /// Finds rows, columns and numbers. False when there is no table; error() says where and why.
    bool read();
    /// One sentence; empty after a success.
    const QString& error() const { return m_error; }

    int columns() const { return m_columns; }
    int rows() const { return m_rows; }
    /// A cell as it was pasted; empty outside.
    QString text(int column, int row) const;

    /// After read().
    bool mayBe(TableMeaning meaning) const { return m_possible.contains(meaning); }
    /// The likeliest meaning, and whether no other one is likely.
    TableMeaning guess() const { return m_guess; }
    bool isSure() const { return m_sure; }

    /// The heights of any meaning but Spectra, rows and columns ascending. False when memory lacks or the
    /// table cannot have the meaning.
    bool makeGrid(TableMeaning meaning, TableGrid& made);
    bool makeSpectra(Spectra& made);

private:
    bool fail(const QString& sentence);
    bool fail(int column, int row, const QString& expected);
    bool split();
    bool checkWidths();
    void trim();
    bool readNumbers();
    bool checkBody();
    void findHeaders();
    void findMeanings();
    void chooseMeaning();
    bool readPoints(std::vector<double>& x, std::vector<double>& y) const;
    void place(TableMeaning meaning, TableGrid& made) const;
    bool fillPoints(TableGrid& made) const;
    void noteHeaders(QStringList& notes) const;

    double number(int column, int row) const { return m_numbers[index(column, row)]; }
    CsvNumber::Kind kind(int column, int row) const { return m_kinds[index(column, row)]; }
    std::size_t index(int column, int row) const
    {
        return std::size_t(row) * std::size_t(m_columns) + std::size_t(column);
    }
    std::vector<double> rowNumbers(int row, int firstColumn) const;
    std::vector<double> columnNumbers(int column, int firstRow) const;
    QString name(int column, const QString& otherwise) const;

    QByteArray m_bytes;
    QString m_error;
    std::vector<std::vector<std::string>> m_cells;
    std::vector<double> m_numbers;
    std::vector<CsvNumber::Kind> m_kinds;
    TableNumbers m_reader{'\t'};
    int m_columns = 0;
    int m_rows = 0;
    int m_skipped = 0;     ///< empty rows before the first
    int m_firstColumn = 0; ///< 1 when the first column holds texts
    int m_firstRow = 0;    ///< 1 when the first row holds texts
    bool m_corner = false; ///< the first cell is no number although its row and column are
    QVector<TableMeaning> m_possible;
    TableMeaning m_guess = TableMeaning::Heights;
    bool m_sure = true;
    std::size_t m_infinite = 0;
};
