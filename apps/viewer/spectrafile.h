#pragma once

#include "loadprogress.h"
#include "spectra.h"

#include <QCoreApplication>
#include <QString>

class QFile;

/// Reads a family of spectra from a CSV file.
///
/// Commas, semicolons or tabs part the cells, told from the beginning of the file; numbers have a decimal
/// point or, but between commas, a decimal comma. Empty cells, "NaN", "NA", "n/a" and "-" are missing. For
/// the forms see SpectraTable. Nothing is left out without a note.
class SpectraFile
{
    Q_DECLARE_TR_FUNCTIONS(SpectraFile)

public:
    explicit SpectraFile(const QString& path);

    /// Reads the file and replaces the spectra. False when that fails: the spectra are as they were then and
    /// error() says why, or is empty when the progress was cancelled.
    bool read(Spectra& spectra, const LoadProgress& progress = {});
    /// One sentence that names the file, the place and the reason; empty after a success.
    const QString& error() const { return m_error; }

private:
    bool fail(const QString& sentence);
    bool checkFile();
    bool checkText(const QByteArray& start);
    bool checkSize(qint64 size, const QByteArray& start, char delimiter);
    bool readTable(QFile& file, char delimiter, Spectra& spectra, const LoadProgress& progress);

    QString m_path;
    QString m_error;
};
