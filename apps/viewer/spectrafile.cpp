#include "spectrafile.h"

#include "filecheck.h"
#include "memoryneed.h"
#include "spectratable.h"

#include <QFile>

#include <algorithm>
#include <new>
#include <utility>

namespace {

constexpr int chunk = 1 << 16;

/// Memory for a value: 64 in the reader's map (measured), as many in the plot's copy, and its compiled
/// picture.
constexpr double bytesPerValue = 250.0;

/// What a delimiter makes of the beginning of a file.
struct Sample
{
    int numbers = 0;
    int texts = 0;
    int cells = 0;
    bool parted = false; ///< into several cells, in some row
};

Sample tryDelimiter(const QByteArray& start, char delimiter)
{
    Sample sample;
    CsvNumber numbers(delimiter);
    CsvReader reader(delimiter, [&](const CsvRecord& record) {
        sample.parted = sample.parted || record.cells.size() > 1;
        for (const std::string& cell : record.cells) {
            double value = 0.0;
            const CsvNumber::Kind kind = numbers.read(cell, record.line, value);
            // The decimal sign is not at issue here.
            sample.numbers += kind == CsvNumber::Number || (delimiter != ',' && kind == CsvNumber::WrongSign);
            sample.texts += kind == CsvNumber::Text;
            ++sample.cells;
        }
        return true;
    });
    // The beginning may end within a cell; a failure shows again when the whole file is read.
    if (reader.feed(start.constData(), static_cast<std::size_t>(start.size())))
        reader.finish();
    return sample;
}

/// The delimiter that makes the most numbers and the fewest other texts of the beginning of a file, or the
/// most cells where there are only names.
char findDelimiter(const QByteArray& start)
{
    const auto worth = [](const Sample& sample) {
        if (!sample.parted)
            return std::make_pair(0, 0);
        return sample.numbers > 0 ? std::make_pair(2, sample.numbers - sample.texts)
                                  : std::make_pair(1, sample.cells);
    };
    char best = '\t';
    for (const char delimiter : {';', ','}) {
        if (worth(tryDelimiter(start, delimiter)) > worth(tryDelimiter(start, best)))
            best = delimiter;
    }
    return best;
}

} // namespace

SpectraFile::SpectraFile(const QString& path) : m_path(path) {}

bool SpectraFile::fail(const QString& sentence)
{
    m_error = sentence;
    return false;
}

bool SpectraFile::checkFile()
{
    const QString problem = fileProblem(m_path, tr("a file of spectra"));
    return problem.isEmpty() || fail(problem);
}

bool SpectraFile::checkText(const QByteArray& start)
{
    if (start.startsWith("\xff\xfe") || start.startsWith("\xfe\xff"))
        return fail(tr("\"%1\" cannot be read: line 1: found UTF-16 text, expected UTF-8.").arg(m_path));
    return true;
}

bool SpectraFile::checkSize(qint64 size, const QByteArray& start, char delimiter)
{
    const Sample sample = tryDelimiter(start, delimiter);
    if (sample.numbers == 0 && start.size() >= size && !start.contains('\0'))
        return fail(tr("\"%1\" holds no numbers.").arg(m_path));
    const double values = double(size) / double(start.size()) * sample.cells;
    const double need = values * bytesPerValue;
    const std::optional<double> freeBytes = MemoryNeed::freeBytes();
    if (!freeBytes || need <= *freeBytes)
        return true;
    return fail(tr("\"%1\" needs about %2 of memory for about %L3 million values; %4 are free.")
                    .arg(m_path, MemoryNeed::gigabytes(need))
                    .arg(values / 1e6, 0, 'f', 0)
                    .arg(MemoryNeed::gigabytes(*freeBytes)));
}

bool SpectraFile::readTable(QFile& file, char delimiter, Spectra& spectra, const LoadProgress& progress)
{
    SpectraTable table(delimiter);
    CsvReader reader(delimiter, [&table](const CsvRecord& record) { return table.take(record); });
    bool goesOn = true;
    std::vector<char> bytes(chunk);
    while (goesOn) {
        if (!progress(double(file.pos()) / double(file.size())))
            return false;
        const qint64 count = file.read(bytes.data(), chunk);
        if (count < 0)
            return fail(tr("\"%1\" cannot be read: %2.").arg(m_path, file.errorString()));
        if (count == 0)
            break;
        goesOn = reader.feed(bytes.data(), static_cast<std::size_t>(count));
    }
    if (!progress(1.0))
        return false;
    Spectra found;
    const bool whole = goesOn && reader.finish() && table.finish(found);
    if (!whole)
        return fail(tr("\"%1\" cannot be read: %2.")
                        .arg(m_path, reader.error().isEmpty() ? table.error() : reader.error()));
    if (reader.comments() > 0)
        found.notes.append(tr("Comment lines passed over: %L1.").arg(reader.comments()));
    spectra = std::move(found);
    return true;
}

bool SpectraFile::read(Spectra& spectra, const LoadProgress& progress)
{
    m_error.clear();
    if (!checkFile())
        return false;
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(tr("\"%1\" cannot be read: %2.").arg(m_path, file.errorString()));
    QByteArray start = file.peek(chunk);
    if (!checkText(start))
        return false;
    if (start.startsWith("\xef\xbb\xbf")) {
        file.skip(3);
        start.remove(0, 3);
    }
    try {
        const char delimiter = findDelimiter(start);
        return checkSize(file.bytesAvailable(), start, delimiter) &&
               readTable(file, delimiter, spectra, progress);
    } catch (const std::bad_alloc&) {
        return fail(tr("\"%1\" needs more memory than can be had.").arg(m_path));
    }
}
