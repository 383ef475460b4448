#include "clipboardtable.h"
#include "harness/harness.h"

#include <QElapsedTimer>
#include <QtTest>

#include <cmath>

namespace {

/// Heights from the first column on, rows from the front; "-" is missing.
QString heightsOf(TableGrid& made)
{
    QStringList columns;
    for (int column = 0; column < made.grid.columns; ++column) {
        QStringList heights;
        for (int row = 0; row < made.grid.rows; ++row) {
            const double height = made.grid.z()[column][row];
            heights.append(std::isnan(height) ? QStringLiteral("-") : QString::number(height));
        }
        columns.append(heights.join(' '));
    }
    return columns.join(" | ");
}

QString listOf(const std::vector<double>& numbers)
{
    QStringList texts;
    for (const double number : numbers)
        texts.append(QString::number(number));
    return texts.join(' ');
}

} // namespace

class TestClipboardTable : public QObject
{
    Q_OBJECT
private slots:
    void surfaces_data();
    void surfaces();
    void numbers_data();
    void numbers();
    void ambiguousTablesAreAsked_data();
    void ambiguousTablesAreAsked();
    void spectraHaveTheirNames();
    void faultsNameTheCell_data();
    void faultsNameTheCell();
    void aMillionCellsAreQuick();
};

void TestClipboardTable::surfaces_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("meaning");
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::addColumn<QString>("heights");
    QTest::addColumn<bool>("even");
    const auto row = [](const char* name, const QString& text, TableMeaning meaning, const char* x,
                        const char* y, const char* heights, bool even = true) {
        QTest::newRow(name) << text << int(meaning) << x << y << heights << even;
    };
    row("bare heights", "5\t1\t9\n2\t7\t3\n4\t4\t4\n", TableMeaning::Heights, "1 2 3", "1 2 3",
        "5 2 4 | 1 7 4 | 9 3 4");
    row("empty cells, no end of line", "5\t\t9\r\n2\t7\t", TableMeaning::Heights, "1 2 3", "1 2",
        "5 2 | - 7 | 9 -");
    row("row of spaces between", "5 1 9\n 2   7 3\n", TableMeaning::Heights, "1 2 3", "1 2",
        "5 2 | 1 7 | 9 3");
    row("axes with an empty corner", "\t10\t20\t40\n1\t5\t1\t9\n2\t2\t7\t3\n", TableMeaning::HeightsWithAxes,
        "10 20 40", "1 2", "5 2 | 1 7 | 9 3", false);
    row("axes that fall", "y\\x;30;20;10\n2;5;1;9\n1;2;7;3\n", TableMeaning::HeightsWithAxes, "10 20 30",
        "1 2", "3 9 | 7 1 | 2 5");
    row("a row of x above", "10\t20\t30\n5\t1\t9\n2\t7\t3\n", TableMeaning::HeightsWithX, "10 20 30", "1 2",
        "5 2 | 1 7 | 9 3");
    row("a column of y before", "0,5;5;1\n1;2;7\n1,5;4;4\n", TableMeaning::HeightsWithY, "1 2", "0.5 1 1.5",
        "5 2 4 | 1 7 4");
    row("points in any order", "east\tnorth\tz\n2\t1\t21\n1\t1\t11\n1\t2\t12\n2\t2\t22\n",
        TableMeaning::Points, "1 2", "1 2", "11 12 | 21 22");
    row("points with a gap", "0\t0\t1\n1\t0\t2\n5\t0\t3\n0\t1\t4\n5\t1\t6\n", TableMeaning::Points, "0 1 5",
        "0 1", "1 4 | 2 - | 3 6", false);
    row("texts left and above", "place\ta\tb\tc\nhere\t1\t5\t3\nthere\t2\t2\t9\n", TableMeaning::Heights,
        "1 2 3", "1 2", "1 2 | 5 2 | 3 9");
    row("quoted cells, errors of the spreadsheet", "\"5\",\"1,000\",9\n#N/A,7,#DIV/0!\n",
        TableMeaning::Heights, "1 2 3", "1 2", "5 - | 1000 7 | 9 -");
}

void TestClipboardTable::surfaces()
{
    QFETCH(QString, text);
    QFETCH(int, meaning);
    QFETCH(QString, x);
    QFETCH(QString, y);
    QFETCH(QString, heights);
    QFETCH(bool, even);
    ClipboardTable table(text);
    QVERIFY2(table.read(), qPrintable(table.error()));
    QVERIFY(table.mayBe(TableMeaning(meaning)));
    if (table.isSure())
        QCOMPARE(int(table.guess()), meaning);
    TableGrid made;
    QVERIFY2(table.makeGrid(TableMeaning(meaning), made), qPrintable(table.error()));
    QCOMPARE(listOf(made.x), x);
    QCOMPARE(listOf(made.y), y);
    QCOMPARE(heightsOf(made), heights);
    QCOMPARE(made.even, even);
    QCOMPARE(made.grid.xMin, made.x.front());
    QCOMPARE(made.grid.yMax, made.y.back());
}

void TestClipboardTable::numbers_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<double>("expected");
    QTest::newRow("decimal point") << "1.5"
                                   << "2" << 1.5;
    QTest::newRow("decimal comma") << "1,5"
                                   << "2" << 1.5;
    QTest::newRow("German groups") << "1.234.567,5"
                                   << "2" << 1234567.5;
    QTest::newRow("English groups") << "1,234,567.5"
                                    << "2" << 1234567.5;
    QTest::newRow("a comma that only others explain: groups") << "1,234"
                                                              << "0.5" << 1234.0;
    QTest::newRow("a comma that only others explain: decimals") << "1,234"
                                                                << "0,5" << 1.234;
    QTest::newRow("a comma that nothing explains") << "1,234"
                                                   << "5" << 1.234;
    QTest::newRow("a point that nothing explains") << "1.234"
                                                   << "5" << 1.234;
    QTest::newRow("a point between groups") << "1.234"
                                            << "0,5" << 1234.0;
    QTest::newRow("French groups") << QString::fromUtf8("1\u202f234,5") << "2" << 1234.5;
    QTest::newRow("Swiss groups") << "1'234.5"
                                  << "2" << 1234.5;
    QTest::newRow("typographic minus") << QString::fromUtf8("\u22121,5") << "2" << -1.5;
    QTest::newRow("exponent") << "-1.234E+05"
                              << "2" << -123400.0;
    QTest::newRow("plus") << "+7"
                          << "2" << 7.0;
}

void TestClipboardTable::numbers()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(double, expected);
    ClipboardTable table(first + '\t' + second + "\n9\t4\n1\t3\n");
    QVERIFY2(table.read(), qPrintable(table.error()));
    TableGrid made;
    QVERIFY(table.makeGrid(TableMeaning::Heights, made));
    QCOMPARE(made.grid.z()[0][0], expected);
}

void TestClipboardTable::ambiguousTablesAreAsked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("guess");
    QTest::addColumn<bool>("sure");
    const auto row = [](const char* name, const char* text, TableMeaning guess, bool sure) {
        QTest::newRow(name) << text << int(guess) << sure;
    };
    row("nothing ascends", "5 1 9\n2 7 3\n4 4 4\n", TableMeaning::Heights, true);
    row("a corner that is no height", "nm 1 2 4\n1 5 1 9\n2 2 7 3\n", TableMeaning::HeightsWithAxes, true);
    row("both may be axes", "0 1 2 3\n1 5 1 9\n2 2 7 3\n3 1 1 1\n", TableMeaning::HeightsWithAxes, false);
    row("the first column may be x", "1 5 1\n2 2 7\n3 1 1\n4 0 2\n", TableMeaning::Spectra, false);
    row("uneven column that ascends", "1 5 1\n2 2 7\n7 1 1\n8 0 2\n", TableMeaning::Heights, false);
    row("named columns", "t a b\n1 5 1\n2 2 7\n3 1 1\n", TableMeaning::Spectra, true);
    row("two columns", "1 5\n2 2\n3 1\n", TableMeaning::Spectra, true);
    row("points", "1 1 5\n1 2 6\n2 1 7\n2 2 8\n", TableMeaning::Points, true);
    row("three columns that are no grid", "1 1 5\n1 2 6\n1 2 7\n2 2 8\n", TableMeaning::Heights, true);
}

void TestClipboardTable::ambiguousTablesAreAsked()
{
    QFETCH(QString, text);
    QFETCH(int, guess);
    QFETCH(bool, sure);
    ClipboardTable table(text);
    QVERIFY2(table.read(), qPrintable(table.error()));
    QCOMPARE(int(table.guess()), guess);
    QCOMPARE(table.isSure(), sure);
}

void TestClipboardTable::spectraHaveTheirNames()
{
    ClipboardTable table("nm\tdark\tbright\n500\t1,5\t\n400\t2,5\t8\n");
    QVERIFY(table.read());
    Spectra spectra;
    QVERIFY(table.makeSpectra(spectra));
    QCOMPARE(spectra.names, (QStringList{"dark", "bright"}));
    QCOMPARE(spectra.positionLabel, QString("nm"));
    QCOMPARE(spectra.map[1.0], (std::map<double, double>{{400.0, 2.5}, {500.0, 1.5}}));
    QVERIFY(std::isnan(spectra.map[2.0][500.0]));
    QCOMPARE(spectra.map[2.0][400.0], 8.0);
}

void TestClipboardTable::faultsNameTheCell_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    QTest::newRow("text among numbers")
        << "1\t5\t9\n2\tabc\t3\n"
        << "The table cannot be read: row 2, column 2 (B): found \"abc\", expected a number.";
    QTest::newRow("the other decimal sign")
        << "1,5\t2,5\n2,5\t3.75\n"
        << "The table cannot be read: row 2, column 2 (B): found \"3.75\", expected a number with a decimal "
           "comma as in other cells.";
    QTest::newRow("ragged") << "1\t5\t9\n2\t7\n"
                            << "The table cannot be read: row 2, column 3 (C): found the end of the row, "
                               "expected 3 columns as in row 1.";
    QTest::newRow("open quotation mark")
        << "1\t\"5\n2\t7\n"
        << "The table cannot be read: line 1, column 2: the quoted cell never ends.";
    QTest::newRow("a column too narrow for its number")
        << "1\t5\n2\t####\n"
        << "The table cannot be read: row 2, column 2 (B): found \"####\", expected a number.";
    QTest::newRow("one row") << "1\t5\t9\n"
                             << "The table has rows: 1, columns: 3; at least two of each are needed.";
    QTest::newRow("empty") << "\n\n"
                           << "The table has rows: 0, columns: 0; at least two of each are needed.";
    QTest::newRow("below empty rows")
        << "\t\n1\t5\n2\tx y\n"
        << "The table cannot be read: row 3, column 2 (B): found \"x y\", expected a number.";
}

void TestClipboardTable::faultsNameTheCell()
{
    QFETCH(QString, text);
    QFETCH(QString, error);
    ClipboardTable table(text);
    QVERIFY(!table.read());
    QCOMPARE(table.error(), error);
}

void TestClipboardTable::aMillionCellsAreQuick()
{
    constexpr int side = 1000;
    QString text;
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column)
            text += QString::number((row * column) % 977) + ",25" + (column < side - 1 ? '\t' : '\n');
    }
    QElapsedTimer clock;
    clock.start();
    ClipboardTable table(text);
    QVERIFY2(table.read(), qPrintable(table.error()));
    TableGrid made;
    QVERIFY(table.makeGrid(TableMeaning::Heights, made));
    const qint64 needed = clock.elapsed();
    QCOMPARE(made.grid.z()[999][3], 2997 % 977 + 0.25);
    // Measured: 0.4 s. Much more is a fault.
    QVERIFY2(needed < 10000, qPrintable(QString::number(needed)));
}

int main(int argc, char* argv[])
{
    return harness::run<TestClipboardTable>(argc, argv);
}

#include "tst_clipboardtable.moc"
