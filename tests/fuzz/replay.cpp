// Gives a fuzz target all seeds of a folder and then, for some seconds, seeds that were changed at random.
// For compilers without a fuzzer of their own; always the same changes in the same order.

#include "fuzztarget.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QVector>

#include <algorithm>
#include <random>

namespace {

constexpr int mostChanges = 8;
constexpr int longest = 1 << 16;

class Mutator
{
public:
    explicit Mutator(const QVector<QByteArray>& seeds) : m_seeds(seeds) {}

    QByteArray next()
    {
        QByteArray input = any();
        for (int changes = below(mostChanges) + 1; changes > 0; --changes)
            change(input);
        return input.left(longest);
    }

private:
    int below(int limit) { return limit > 0 ? int(m_random() % unsigned(limit)) : 0; }
    QByteArray any() { return m_seeds.at(below(m_seeds.size())); }

    void change(QByteArray& input)
    {
        // A literal would end at it.
        const QByteArray nul(1, '\0');
        static const QVector<QByteArray> words = {
            "0",  "-1", "1e308", "1e-320",       "nan",  "inf", "2147483648", "\"", ",", ";", "\t",
            "\n", "\r", nul,     "\xef\xbb\xbf", "\xff", "0x",  "%",          "=",  "(", ")"};
        const int place = below(input.size() + 1);
        switch (below(6)) {
        case 0:
            input.insert(place, words.at(below(words.size())));
            break;
        case 1:
            input.remove(place, below(16) + 1);
            break;
        case 2:
            input.insert(place, input.mid(below(input.size()), below(64)));
            break;
        case 3:
            input.truncate(place);
            break;
        case 4:
            input = input.left(place) + any().mid(below(512));
            break;
        default:
            if (place < input.size())
                input[place] = char(below(256));
        }
    }

    const QVector<QByteArray> m_seeds;
    std::mt19937 m_random{1};
};

void give(const QByteArray& input, const QString& record)
{
    QFile file(record);
    // What breaks the program is found there.
    if (file.open(QIODevice::WriteOnly))
        file.write(input);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                           std::size_t(input.size()));
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    FuzzTarget::demand(arguments.size() == 3, "arguments are the folder of the seeds and seconds");
    const QString record = QDir::current().filePath(arguments.at(0).section('/', -1) + ".input");
    QVector<QByteArray> seeds;
    const QDir folder(arguments.at(1));
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        FuzzTarget::demand(file.open(QIODevice::ReadOnly), "seeds can be read");
        seeds.append(file.readAll());
        give(seeds.last(), record);
    }
    FuzzTarget::demand(!seeds.isEmpty(), "there are seeds");
    Mutator mutator(seeds);
    QElapsedTimer time;
    time.start();
    long inputs = 0;
    for (const qint64 limit = qint64(arguments.at(2).toDouble() * 1000); time.elapsed() < limit; ++inputs)
        give(mutator.next(), record);
    std::printf("%d seeds, %ld changed inputs\n", int(seeds.size()), inputs);
    QFile::remove(record);
    return inputs > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
