#pragma once

#include "csvnumber.h"
#include "csvreader.h"
#include "spectra.h"

#include <QCoreApplication>

/// Makes spectra of the records of a table, taken one by one.
///
/// Two forms are understood. Positions in the first record and then a record a spectrum, its name or position
/// first; or columns in pairs of x and y, with or without a first record of names.
class SpectraTable
{
    Q_DECLARE_TR_FUNCTIONS(SpectraTable)

public:
    explicit SpectraTable(char delimiter);

    /// Takes the next record. False when it does not fit; error() says where and why.
    bool take(const CsvRecord& record);
    /// Hands the spectra over when all records are taken. False when they make none.
    bool finish(Spectra& spectra);
    const QString& error() const { return m_error; }

private:
    enum Form { Rows, Pairs };
    struct Spectrum
    {
        QString name;
        int line = 0;
        double position = 0.0;
        std::map<double, double> values;
        std::map<double, int> places; ///< of pairs: the line of every x
    };

    bool takeFirst(const CsvRecord& record);
    bool takePositions(const CsvRecord& record);
    void startPairs(const QStringList& header);
    bool takePairNames(const CsvRecord& record);
    bool takeRow(const CsvRecord& record);
    bool takePairs(const CsvRecord& record);
    bool takePair(const CsvRecord& record, int pair);
    bool checkWidth(const CsvRecord& record);
    /// A value for the map: what cannot be drawn is missing.
    bool value(const CsvRecord& record, int column, double& found);
    /// A number that must be there.
    bool position(const CsvRecord& record, int column, double& found);
    bool cell(const CsvRecord& record, int column, bool missingAllowed, double& found);
    bool fail(const CsvRecord& record, int column, const QString& found, const QString& expected);
    bool fail(const QString& reason);
    bool checkEnd();
    void placeByNumber();
    void placeRows();
    void noteInfinite();

    CsvNumber m_numbers;
    CsvNumber m_labels; ///< of the first column: the point of a label such as "3.1" binds no other number
    Form m_form = Rows;
    int m_width = 0; ///< cells of a record; 0 before the first
    QStringList m_header;
    std::vector<double> m_positions;
    std::vector<Spectrum> m_spectra;
    QStringList m_notes;
    QString m_error;
    QString m_wordedRow; ///< the first row that begins with a text, in words
    int m_numberedRows = 0;
    std::size_t m_values = 0;
    int m_infinite = 0;
    QString m_firstInfinite;
};
