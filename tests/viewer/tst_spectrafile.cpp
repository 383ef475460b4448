#include "filekind.h"
#include "harness/harness.h"
#include "spectrafile.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

using Map = std::map<double, std::map<double, double>>;

const double missing = std::numeric_limits<double>::quiet_NaN();

/// A map as a text: the keys and values of the spectra, one after the other.
QString text(const Map& map)
{
    QStringList spectra;
    for (const auto& [position, values] : map) {
        QStringList pairs;
        for (const auto& [at, value] : values)
            pairs.append(QString("%1=%2").arg(at).arg(std::isnan(value) ? "nan" : QString::number(value)));
        spectra.append(QString("%1: %2").arg(position).arg(pairs.join(' ')));
    }
    return spectra.join("; ");
}

} // namespace

Q_DECLARE_METATYPE(Map)
Q_DECLARE_METATYPE(FileKind)

class TestSpectraFile : public QObject
{
    Q_OBJECT
private slots:
    void everyForm_data();
    void everyForm();
    void notesTellWhatWasChanged_data();
    void notesTellWhatWasChanged();
    void errorsNameThePlace_data();
    void errorsNameThePlace();
    void errorsNameTheFile_data();
    void errorsNameTheFile();
    void failureKeepsTheSpectra();
    void cellsAcrossTheReadersPieces();
    void thousandsOfColumns();
    void hugeFileIsRefusedAtOnce();
    void exampleSpectra();
    void kindOfFile_data();
    void kindOfFile();

private:
    QString write(const QByteArray& bytes)
    {
        const QString path = m_folder.filePath("spectra \u00e9.csv");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The test file cannot be written");
        return path;
    }

    QTemporaryDir m_folder;
};

void TestSpectraFile::everyForm_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Map>("map");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QList<int>>("lines");
    const Map two{{1, {{10, 0.5}, {20, 1.5}, {30, -2}}}, {2, {{10, 3}, {20, 4e-3}, {30, 5}}}};
    const QString names("1|2");
    const QList<int> lines{2, 3};
    const auto row = [&](const char* name, const QByteArray& bytes) {
        QTest::newRow(name) << bytes << two << names << lines;
    };
    row("commas", "no,10,20,30\n1,0.5,1.5,-2\n2,3,4e-3,5\n");
    row("semicolons and points", "no;10;20;30\n1;0.5;1.5;-2\n2;3;4e-3;5\n");
    row("semicolons and decimal commas", "no;10;20;30\n1;0,5;1,5;-2\n2;3;4e-3;5\n");
    row("tabs and decimal commas", "no\t10\t20\t30\n1\t0,5\t1,5\t-2\n2\t3\t0,004\t5\n");
    QTest::newRow("decimal commas in every number")
        << QByteArray("no;10,0;20,0;30,0\n1,0;0,5;1,5;-2,0\n2,0;3,0;0,004;5,0\n") << two << "1,0|2,0"
        << lines;
    row("byte order mark and CRLF", "\xef\xbb\xbf\"no, really\",10,20,30\r\n1,0.5,1.5,-2\r\n2,3,4e-3,5\r\n");
    QTest::newRow("one short row between commas")
        << QByteArray("nm,A\n1,2\n3,4\n") << Map{{1, {{1, 2}, {3, 4}}}} << "A" << QList<int>{2};
    row("lone CR", "no,10,20,30\r1,0.5,1.5,-2\r2,3,4e-3,5\r");
    row("no line end at the end", "no,10,20,30\n1,0.5,1.5,-2\n2,3,4e-3,5");
    row("quoted cells", "\"no, really\",\"10\",20,\"30\"\n\"1\",\"0.5\",1.5,\"-2\"\n2,3,4e-3,\" 5 \"\n");
    row("spaces and signs", " no , 10, 20 ,30\n 1, +0.5,1.5 ,-2\n2, 3,+4E-3,5.\n");
    row("trailing delimiters", "no,10,20,30,,\n1,0.5,1.5,-2,,\n2,3,4e-3,5,\n,,,,\n");
    row("empty corner", ",10,20,30\n1,0.5,1.5,-2\n2,3,4e-3,5\n");
    row("number in the corner", "0,10,20,30\n1,0.5,1.5,-2\n2,3,4e-3,5\n");
    row("falling positions", "0,30,20,10\n1,-2,1.5,0.5\n2,5,4e-3,3\n");
    QTest::newRow("blank and comment lines count as lines")
        << QByteArray("# made; by, hand\n\nno,10,20,30\n  \r\n1,0.5,1.5,-2\n#x\n\n2,3,4e-3,5\n") << two
        << names << QList<int>{5, 8};
    QTest::newRow("rows by name stand at their numbers")
        << QByteArray("no,10,20,30\n\"wine, red\",0.5,1.5,-2\n\"beer\n\"\"X\"\"\",3,4e-3,5\n") << two
        << "wine, red|beer\n\"X\"" << lines;
    QTest::newRow("West European names")
        << QByteArray("no;10;20\n\xc4pfel;1;2\n") << Map{{1, {{10, 1}, {20, 2}}}} << QString("\u00c4pfel")
        << QList<int>{2};
    QTest::newRow("names follow the positions")
        << QByteArray("no,10,20\n7.5,1,2\n-3,3,4\n")
        << Map{{-3, {{10, 3}, {20, 4}}}, {7.5, {{10, 1}, {20, 2}}}} << "-3|7.5" << QList<int>{3, 2};
    QTest::newRow("labels with a point among decimal commas")
        << QByteArray("no;10;20\n3.1;0,5;1\n3.2;1,5;2\n")
        << Map{{3.1, {{10, 0.5}, {20, 1}}}, {3.2, {{10, 1.5}, {20, 2}}}} << "3.1|3.2" << lines;
    QTest::newRow("missing values")
        << QByteArray("no,1,2,3,4,5,6,7\n1,,NaN,NA,-,n/a,#N/A,8\n")
        << Map{{1,
                {{1, missing}, {2, missing}, {3, missing}, {4, missing}, {5, missing}, {6, missing}, {7, 8}}}}
        << "1" << QList<int>{2};
    const Map pairs{{1, {{400, 0.5}, {401, 0.75}}}, {2, {{400.5, 7}, {402, missing}, {403, 9}}}};
    QTest::newRow("pairs without names") << QByteArray("400,0.5,400.5,7\n401,0.75,402,NA\n,,403,9\n") << pairs
                                         << "Spectrum 1|Spectrum 2" << QList<int>{1, 1};
    QTest::newRow("pairs with names") << QByteArray("nm;A;nm;B\n400;0,5;400,5;7\n401;0,75;402;\n;;403;9\n")
                                      << pairs << "A|B" << QList<int>{2, 2};
    QTest::newRow("pairs named over x alone")
        << QByteArray("A,,B,\n400,0.5,400.5,7\n401,0.75,402,\n,,403,9\n") << pairs << "A|B"
        << QList<int>{2, 2};
    QTest::newRow("a pair whose first y is missing")
        << QByteArray("1,NaN\n2,5\n") << Map{{1, {{1, missing}, {2, 5}}}} << "Spectrum 1" << QList<int>{1};
}

void TestSpectraFile::everyForm()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Map, map);
    QFETCH(QString, names);
    QFETCH(QList<int>, lines);
    SpectraFile reader(write(bytes));
    Spectra spectra;
    QVERIFY2(reader.read(spectra), qPrintable(reader.error()));
    QCOMPARE(text(spectra.map), text(map));
    QCOMPARE(spectra.names.join('|'), names);
    QCOMPARE(spectra.lines.toList(), lines);
}

void TestSpectraFile::notesTellWhatWasChanged_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("notes");
    QTest::addColumn<QList<double>>("positions");
    QTest::newRow("plain") << QByteArray("no,10,20\n5,1,2\n7,3,4\n") << QStringList{} << QList<double>{5, 7};
    QTest::newRow("rows of one position")
        << QByteArray("no,10,20\n5,1,2\n7,3,4\n\n5,5,6\n")
        << QStringList{"Lines 2 and 5 have the same position 5; all spectra are placed by their row numbers."}
        << QList<double>{1, 2, 3};
    QTest::newRow("many rows of one position") << QByteArray("no,10,20\n5,1,2\n5,3,4\n5,5,6\n5,1,1\n5,1,1\n")
                                               << QStringList{"Lines 2 and 3 have the same position 5; Lines "
                                                              "2 and 4 have the same position 5; Lines 2 "
                                                              "and 5 have the same position 5; 1 more clash "
                                                              "likewise; all spectra are placed by their "
                                                              "row numbers."}
                                               << QList<double>{1, 2, 3, 4, 5};
    QTest::newRow("a name among numbers")
        << QByteArray("no,10,20\n5,1,2\nwater,3,4\n")
        << QStringList{"Not every row begins with a number (line 3 begins with \"water\"); all spectra are "
                       "placed by their row numbers."}
        << QList<double>{1, 2};
    QTest::newRow("pairs") << QByteArray("x,y\n1,2\n3,4\n")
                           << QStringList{"The columns are read as pairs of x and y; spectra: 1."}
                           << QList<double>{1};
    QTest::newRow("infinite values")
        << QByteArray("no,10,20\n5,1,inf\n7,-1e400,1e39\n")
        << QStringList{"Values too large to draw are missing: 3, the first in line 2, column 3 (C)."}
        << QList<double>{5, 7};
    QTest::newRow("comments") << QByteArray("#a\n#b\nno,10,20\n5,1,2\n")
                              << QStringList{"Comment lines passed over: 2."} << QList<double>{5};
}

void TestSpectraFile::notesTellWhatWasChanged()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QList<double>, positions);
    SpectraFile reader(write(bytes));
    Spectra spectra;
    QVERIFY2(reader.read(spectra), qPrintable(reader.error()));
    QTEST(spectra.notes, "notes");
    QList<double> found;
    for (const auto& spectrum : spectra.map)
        found.append(spectrum.first);
    QCOMPARE(found, positions);
}

void TestSpectraFile::errorsNameThePlace_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& bytes, const char* reason) {
        QTest::newRow(name) << bytes << QString(reason);
    };
    row("text in a row", "no,10,20\n1,2,3\n\n2,4,five\n",
        "line 4, column 3 (C): found \"five\", expected a number");
    row("text after a comment and CRLF", "#\r\nno,10,20\r\n1,x,3\r\n",
        "line 3, column 2 (B): found \"x\", expected a number");
    row("text after a cell of two lines", "no,10,20\n\"a\nb\",2,3\nc,4,five\n",
        "line 4, column 3 (C): found \"five\", expected a number");
    row("text among the positions", "no,10,x,30\n1,2,3,4\n",
        "line 1, column 3 (C): found \"x\", expected a number");
    row("gap among the positions", "no,10,,30\n1,2,3,4\n",
        "line 1, column 3 (C): found an empty cell, expected a number");
    row("infinite position", "no,10,1e40,30\n1,2,3,4\n",
        "line 1, column 3 (C): found \"1e40\", expected a position that single precision holds");
    row("long text", "no,10,20\n1,2," + QByteArray(99, 'z') + "\n",
        "line 2, column 3 (C): found \"zzzzzzzzzzzzzzzzzzzzzzzzzzzzzz...\", expected a number");
    row("comma decimals between commas", "no,10,20\n1,2,\"3,5\"\n",
        "line 2, column 3 (C): found \"3,5\", expected a number with a decimal point");
    row("two decimal signs", "no;10;20\n1;2,5;3\n2;2,5;3.5\n",
        "line 3, column 3 (C): found \"3.5\", expected a number with a decimal comma as in line 2");
    row("grouped thousands", "no;10;20\n1;2;1.234,5\n",
        "line 2, column 3 (C): found \"1.234,5\", expected a number");
    row("row too short", "no,10,20,30\n1,2,3,4\n2,3,4\n",
        "line 3, column 4 (D): found the end of the row, expected 4 columns as in the first row");
    row("row too long", "no,10,20\n1,2,3\n2,3,4,5\n",
        "line 3, column 4 (D): found \"5\", expected 3 columns as in the first row");
    row("columns of one position", "no,10,20,30,2e1\n1,2,3,4,5\n",
        "line 1, columns 3 (C) and 5 (E): both have the position 20");
    row("only one row", "no,10,20,30\n",
        "it has only one row, expected a row of positions and then a row for each spectrum");
    row("only one position", "no,10\n1,5\n",
        "line 1, column 2 (B): found the only position, expected at least two");
    row("only one column", "10\n20\n30\n",
        "line 1, column 1 (A): found a single column, expected cells parted by commas, semicolons or tabs");
    row("every value missing", "no,10,20\n1,,NA\n", "every value is missing");
    row("names in odd columns", "nm,A,B\n1,2,3\n",
        "line 1: found 3 columns of names, expected either positions from the second column on or columns in "
        "pairs of x and y");
    row("x without a number", "nm,A\n1,2\n,3\n",
        "line 3, column 1 (A): found an empty cell, expected a number");
    row("x twice", "nm,A,nm,B\n1,2,1,2\n2,3,3,4\n3,4,1,5\n",
        "lines 2 and 4, column 3 (C): both have the position 1");
    row("pair of one point", "nm,A,nm,B\n1,2,1,2\n2,3,,\n",
        "columns 3 (C) and 4 (D): found 1 points, expected at least two");
    row("open quote", "no,10,20\n1,2,3\n2,\"3,4\n5,6,7\n", "line 3, column 2: the quoted cell never ends");
    row("open quote in a long file", "no,10,20\n1,\"2,3\n" + QByteArray("2,3,4\n").repeated(200000),
        "line 2, column 2: the cell never ends; a quote may be missing");
    row("zero byte", QByteArray("no,10,20\n1,2\0,3\n", 16),
        "line 2, character 4: found a zero byte, expected text");
    row("UTF-16", QByteArray("\xff\xfen\0o\0,\0", 8), "line 1: found UTF-16 text, expected UTF-8");
}

void TestSpectraFile::errorsNameThePlace()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const QString path = write(bytes);
    SpectraFile reader(path);
    Spectra spectra;
    QVERIFY(!reader.read(spectra));
    QCOMPARE(reader.error(), QString("\"%1\" cannot be read: %2.").arg(path, reason));
}

void TestSpectraFile::errorsNameTheFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing") << QString() << "No file is named.";
    QTest::newRow("absent") << m_folder.filePath("absent.csv") << "\"%1\" does not exist.";
    QTest::newRow("folder") << m_folder.path() << "\"%1\" is a folder, not a file of spectra.";
    QTest::newRow("endless") << "/dev/zero"
                             << "\"%1\" is no regular file.";
    QFile empty(m_folder.filePath("empty.csv"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    QTest::newRow("empty") << empty.fileName() << "\"%1\" is empty.";
    QFile letter(m_folder.filePath("letter.csv"));
    QVERIFY(letter.open(QIODevice::WriteOnly));
    letter.write("Dear reader,\nthis, as you see, is no table.\n");
    QTest::newRow("letter") << letter.fileName() << "\"%1\" holds no numbers.";
}

void TestSpectraFile::errorsNameTheFile()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    SpectraFile reader(path);
    Spectra spectra;
    QVERIFY(!reader.read(spectra));
    QCOMPARE(reader.error(), path.isEmpty() ? reason : reason.arg(path));
}

void TestSpectraFile::failureKeepsTheSpectra()
{
    Spectra spectra;
    QVERIFY(SpectraFile(write("no,10,20\n1,2,3\n")).read(spectra));
    QVERIFY(!SpectraFile(write("no,10,20\n5,6,7\n8,9\n")).read(spectra));
    QCOMPARE(text(spectra.map), QString("1: 10=2 20=3"));
    QCOMPARE(spectra.names, QStringList{"1"});
}

void TestSpectraFile::cellsAcrossTheReadersPieces()
{
    // Long enough that line ends, cells and quotes fall on the reader's seams.
    QByteArray bytes("no,10,20\r\n");
    const int rows = 20000;
    for (int i = 0; i < rows; ++i)
        bytes += "\"" + QByteArray::number(i) + "\"," + QByteArray::number(i * 0.5) + "," +
                 QByteArray::number(-i) + "\r\n";
    SpectraFile reader(write(bytes));
    Spectra spectra;
    QVERIFY2(reader.read(spectra), qPrintable(reader.error()));
    QCOMPARE(int(spectra.map.size()), rows);
    for (int i = 0; i < rows; ++i) {
        QCOMPARE(spectra.map.at(i).at(10), i * 0.5);
        QCOMPARE(spectra.map.at(i).at(20), double(-i));
        QCOMPARE(spectra.lines.at(i), i + 2);
    }
}

void TestSpectraFile::thousandsOfColumns()
{
    QByteArray header("no");
    QByteArray row("s");
    for (int i = 1; i <= 5000; ++i) {
        header += ';' + QByteArray::number(i);
        row += ';' + QByteArray::number(i * 2);
    }
    Spectra spectra;
    SpectraFile reader(write(header + '\n' + row + '\n'));
    QVERIFY2(reader.read(spectra), qPrintable(reader.error()));
    QCOMPARE(int(spectra.map.at(1).size()), 5000);
    QCOMPARE(spectra.map.at(1).at(5000), 10000.0);
    SpectraFile wrong(write(header + '\n' + row + "x\n"));
    QVERIFY(!wrong.read(spectra));
    QVERIFY2(wrong.error().contains("line 2, column 5001 (GJI): found \"10000x\""),
             qPrintable(wrong.error()));
}

void TestSpectraFile::hugeFileIsRefusedAtOnce()
{
    // A gap takes no room on the disk.
    const QString path = write("no,10,20\n" + QByteArray("1,2,3\n").repeated(20000));
    QVERIFY(QFile::resize(path, Q_INT64_C(4000000000000)));
    SpectraFile reader(path);
    Spectra spectra;
    QVERIFY(!reader.read(spectra));
    QFile::remove(path);
    QVERIFY2(reader.error().contains(" million values; "), qPrintable(reader.error()));
}

void TestSpectraFile::exampleSpectra()
{
    SpectraFile reader(QString(VORAN_SOURCE_DIR) + "/examples/data/gasoline_nir.csv");
    Spectra spectra;
    QVERIFY2(reader.read(spectra), qPrintable(reader.error()));
    QCOMPARE(int(spectra.map.size()), 60);
    QCOMPARE(spectra.map.begin()->first, 1.0);
    QCOMPARE(spectra.map.rbegin()->first, 60.0);
    QCOMPARE(spectra.spectraLabel, QString("sample"));
    QVERIFY(spectra.notes.isEmpty());
    QFile file(QString(VORAN_SOURCE_DIR) + "/examples/data/gasoline_nir.csv");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (int sample = 1; sample <= 60; ++sample) {
        const std::map<double, double>& values = spectra.map.at(sample);
        QCOMPARE(int(values.size()), 401);
        QCOMPARE(values.begin()->first, 900.0);
        QCOMPARE(values.rbegin()->first, 1700.0);
        const QList<QByteArray> cells = lines[sample].trimmed().split(',');
        QCOMPARE(values.at(900), cells[1].toDouble());
        QCOMPARE(values.at(1246), cells[174].toDouble());
        QCOMPARE(values.at(1700), cells[401].toDouble());
    }
}

void TestSpectraFile::kindOfFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<FileKind>("kind");
    const auto row = [](const char* name, const char* path, const QByteArray& start, FileKind kind) {
        QTest::newRow(name) << QString(path) << start << kind;
    };
    const QByteArray points("x,y,z\n0,0,1\n1,0,2\n0,1,3\n");
    const QByteArray spectra("no;10;20;30\na;1,5;2;3\nb;4;5;6\n");
    row("csv", "a/b.csv", spectra, FileKind::Spectra);
    row("csv of points", "b.CSV", points, FileKind::Spectra);
    row("xyz", "b.xyz", points, FileKind::Grid);
    row("asc", "b.asc", spectra, FileKind::Grid);
    row("mesh", "b.Stl", {}, FileKind::Mesh);
    row("elevation model", "b.tif", "II*", FileKind::Grid);
    row("text of spectra", "b.txt", spectra, FileKind::Spectra);
    row("text of points", "b.txt", points, FileKind::Grid);
    row("text of points with spaces", "b.txt", "0 0 1\n1 0 2\n", FileKind::Grid);
    row("text of an ASCII grid", "b.txt", "NCOLS 2\nnrows 2\n1,2\n", FileKind::Grid);
    row("text of a mesh", "b.txt", "OFF\n3 1 0\n", FileKind::Mesh);
    row("text with a comment", "b.dat", "# 1\n400,0.5\n401,0.75\n", FileKind::Spectra);
    row("binary without an ending", "b", QByteArray("\0\1,2\n3,4\n", 9), FileKind::Grid);
    row("a word that begins like one of a mesh", "b.txt", "offset,1,2\n1,2,4\n2,5,6,7\n", FileKind::Spectra);
    row("a letter", "b.txt", "Dear reader, hello.\nYours\n", FileKind::Grid);
    row("a grid inside a file", "NETCDF:\"b.nc\":t", {}, FileKind::Grid);
}

void TestSpectraFile::kindOfFile()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, start);
    QFETCH(FileKind, kind);
    QVERIFY(fileKind(name, start) == kind);
}

int main(int argc, char* argv[])
{
    return harness::run<TestSpectraFile>(argc, argv);
}

#include "tst_spectrafile.moc"
