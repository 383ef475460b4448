// What loads tell of their progress, and what they leave behind when they are cancelled.

#include "formula.h"
#include "gridfile.h"
#include "harness/harness.h"
#include "meshfile.h"
#include "progressline.h"
#include "spectrafile.h"

#include <QTemporaryDir>
#include <QtTest>

#include <functional>

#include <fcntl.h>
#include <unistd.h>

namespace {

struct Loaded
{
    bool done = false;
    bool untouched = false;
    QString error;
};

using Load = std::function<Loaded(const LoadProgress&)>;

Loaded loadGrid(const QString& path, const GridChoice& choice, const LoadProgress& progress)
{
    Grid grid;
    grid.allocate(2, 2);
    GridFile reader(path);
    const bool done = reader.read(grid, 1, choice, progress);
    return {done, grid.columns == 2 && grid.rows == 2, reader.error()};
}

Loaded loadSpectra(const QString& path, const LoadProgress& progress)
{
    Spectra spectra;
    spectra.map[1.0][2.0] = 3.0;
    SpectraFile reader(path);
    const bool done = reader.read(spectra, progress);
    return {done, spectra.map.size() == 1, reader.error()};
}

Loaded loadMesh(const QString& path, const LoadProgress& progress)
{
    Mesh mesh;
    mesh.vertices.resize(1);
    MeshFile reader(path);
    const bool done = reader.read(mesh, progress);
    return {done, mesh.vertices.size() == 1, reader.error()};
}

Loaded loadFormula(const LoadProgress& progress)
{
    Grid grid;
    Formula formula("x*y");
    const bool done = formula.read(grid, FormulaArea(), progress);
    return {done, grid.columns == 0, formula.error()};
}

/// A terminal whose other end is read here.
class Terminal
{
public:
    Terminal() : m_reader(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        if (m_reader >= 0 && grantpt(m_reader) == 0 && unlockpt(m_reader) == 0)
            m_file = std::fopen(ptsname(m_reader), "w");
    }
    ~Terminal()
    {
        if (m_file)
            std::fclose(m_file);
        if (m_reader >= 0)
            ::close(m_reader);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    /// Null where the system has no pseudo-terminals.
    std::FILE* file() { return m_file; }
    QString written()
    {
        char bytes[1000];
        const ssize_t count = ::read(m_reader, bytes, sizeof bytes);
        return QString::fromUtf8(bytes, int(std::max<ssize_t>(count, 0)));
    }

private:
    int m_reader;
    std::FILE* m_file = nullptr;
};

} // namespace

Q_DECLARE_METATYPE(Load)

class TestLoadProgress : public QObject
{
    Q_OBJECT
private slots:
    void everyReader_data();
    void everyReader();
    void reportsKeepTheirDistance();
    void sectionsShareTheCancellation();
    void lineOnATerminal();
    void lineElsewhere();

private:
    QString write(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The test file cannot be written");
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

void TestLoadProgress::everyReader_data()
{
    QTest::addColumn<Load>("load");
    QTest::addColumn<int>("least"); // reports
    const QString grid = QString(VORAN_SOURCE_DIR) + "/examples/data/jacksboro_dem.asc";
    QByteArray table("no,1,2,3\n");
    for (int row = 1; row < 20000; ++row)
        table += QByteArray::number(row) + ",0.25,0.5,0.75\n";
    const QString spectra = write("long.csv", table);
    const QString mesh = QString(VORAN_SOURCE_DIR) + "/examples/data/bunny.off";
    // A format whose reader reports.
    QByteArray object;
    for (int i = 0; i < 20000; ++i)
        object += "v " + QByteArray::number(i % 100) + ' ' + QByteArray::number(i / 100) + " 0\n";
    for (int i = 1; i < 19900; ++i)
        object += "f " + QByteArray::number(i) + ' ' + QByteArray::number(i + 1) + ' ' +
                  QByteArray::number(i + 100) + '\n';
    const QString reporting = write("reporting.obj", object);
    QTest::newRow("grid") << Load([grid](const LoadProgress& p) { return loadGrid(grid, {}, p); }) << 20;
    QTest::newRow("thinned grid") << Load([grid](const LoadProgress& p) {
        return loadGrid(grid, {10000.0, {}}, p);
    }) << 300;
    QTest::newRow("spectra") << Load([spectra](const LoadProgress& p) { return loadSpectra(spectra, p); })
                             << 5;
    QTest::newRow("mesh") << Load([mesh](const LoadProgress& p) { return loadMesh(mesh, p); }) << 5;
    QTest::newRow("mesh of a reporting reader")
        << Load([reporting](const LoadProgress& p) { return loadMesh(reporting, p); }) << 20;
    QTest::newRow("formula") << Load(loadFormula) << 50;
}

void TestLoadProgress::everyReader()
{
    QFETCH(Load, load);
    QFETCH(int, least);
    QVector<double> parts;
    const Loaded whole = load(LoadProgress(
        [&parts](const LoadProgress::Report& report) {
            parts.append(report.part);
            return true;
        },
        0));
    QVERIFY2(whole.done, qPrintable(whole.error));
    QVERIFY2(parts.size() >= least, qPrintable(QString::number(parts.size())));
    QVERIFY(std::is_sorted(parts.begin(), parts.end()));
    QVERIFY(parts.first() >= 0.0 && parts.last() <= 1.0 && parts.last() > 0.9);
    for (const int last : {1, 2, parts.size() / 3, parts.size() / 2, parts.size() - 1, parts.size()}) {
        int reports = 0;
        const LoadProgress progress(
            [&reports, last](const LoadProgress::Report& /*report*/) { return ++reports < last; }, 0);
        const Loaded cancelled = load(progress);
        QVERIFY2(!cancelled.done && cancelled.untouched, qPrintable(QString::number(last)));
        QCOMPARE(cancelled.error, QString());
        QVERIFY(progress.isCancelled());
        QCOMPARE(reports, last);
    }
}

void TestLoadProgress::reportsKeepTheirDistance()
{
    int reports = 0;
    const LoadProgress progress(
        [&reports](const LoadProgress::Report& /*report*/) {
            // Longer than the distance: the work must still have its turn.
            QTest::qSleep(30);
            ++reports;
            return true;
        },
        20);
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < 300)
        progress(0.5);
    QVERIFY2(reports >= 3 && reports <= 7, qPrintable(QString::number(reports)));
    // A step that reports nothing more is told of at once.
    const int before = reports;
    progress.busy(LoadProgress::Drawing, 1.0);
    progress.busy(LoadProgress::Drawing, 1.0);
    QCOMPARE(reports, before + 2);
}

void TestLoadProgress::sectionsShareTheCancellation()
{
    double told = -1.0;
    const LoadProgress whole(
        [&told](const LoadProgress::Report& report) {
            told = report.part;
            return report.part < 0.7;
        },
        0);
    const LoadProgress second = whole.section(0.5, 1.0).section(0.0, 0.5);
    QVERIFY(second(0.5));
    QCOMPARE(told, 0.625);
    // Nothing goes back.
    QVERIFY(whole(0.1));
    QCOMPARE(told, 0.625);
    QVERIFY(!second(1.0));
    QVERIFY(whole.isCancelled() && !whole(0.9) && !whole.busy(LoadProgress::Drawing, 0.0));
}

void TestLoadProgress::lineOnATerminal()
{
    Terminal terminal;
    if (!terminal.file())
        QSKIP("this system has no pseudo-terminals: /dev/pts is not mounted");
    bool interrupted = false;
    {
        ProgressLine late(
            terminal.file(), [] { return false; }, 100000);
        QVERIFY(late.loadProgress("terrain.tif")(0.43));
    }
    QCOMPARE(terminal.written(), QString());
    ProgressLine line(
        terminal.file(), [&interrupted] { return interrupted; }, 0);
    QVERIFY(line.loadProgress("terrain.tif")(0.431));
    const QString reading("voranview: reading terrain.tif 43 %");
    QCOMPARE(terminal.written(), '\r' + reading);
    // What was longer is written over.
    QVERIFY(line.pictureProgress("/some/a.png")(1, 2));
    const QString writing("voranview: writing a.png 50 %");
    QCOMPARE(terminal.written(), '\r' + writing + QString(reading.size() - writing.size(), ' '));
    line.clear();
    QCOMPARE(terminal.written(), '\r' + QString(writing.size(), ' ') + '\r');
    // A name longer than the line keeps its beginning and its end.
    line.loadProgress(QString(300, 'a') + ".tif").busy(LoadProgress::Drawing, 1.0);
    const QString drawing = terminal.written();
    QVERIFY2(drawing.startsWith("\rvoranview: drawing aaa") && drawing.endsWith("a.tif ...") &&
                 drawing.size() < 80,
             qPrintable(drawing));
    interrupted = true;
    QVERIFY(!line.loadProgress("terrain.tif")(0.5));
    QVERIFY(!line.pictureProgress("a.png")(1, 2));
}

void TestLoadProgress::lineElsewhere()
{
    std::FILE* const file = std::tmpfile();
    {
        ProgressLine line(
            file, [] { return false; }, 0);
        QVERIFY(line.loadProgress("terrain.tif")(0.5));
    }
    QCOMPARE(std::ftell(file), 0L);
    std::fclose(file);
}

int main(int argc, char* argv[])
{
    return harness::run<TestLoadProgress>(argc, argv);
}

#include "tst_loadprogress.moc"
