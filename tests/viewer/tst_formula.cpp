#include "formula.h"
#include "harness/harness.h"

#include <QtTest>

#include <cmath>

namespace {

const double pi = 3.14159265358979323846;

} // namespace

class TestFormula : public QObject
{
    Q_OBJECT
private slots:
    void values_data();
    void values();
    void errorsNameTheColumn_data();
    void errorsNameTheColumn();
    void heightsStandAtTheirCoordinates();
    void nodesWithoutAHeightAreMissing();
    void areasThatCannotBeDrawn_data();
    void areasThatCannotBeDrawn();
    void ranges_data();
    void ranges();
    void rangeErrors_data();
    void rangeErrors();
    void meshes_data();
    void meshes();
};

void TestFormula::values_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value"); // at x = 2, y = 3
    QTest::newRow("functions") << "sin(x)*cos(y)" << std::sin(2.0) * std::cos(3.0);
    QTest::newRow("powers bind from the right") << "2^3^x - -x^2" << 512.0 + 4.0;
    QTest::newRow("constants") << "pi+e-_pi-_e" << 0.0;
    QTest::newRow("logarithms") << "ln(e^2) + log(e) + log10(100) + log2(8)" << 8.0;
    QTest::newRow("rounding") << "floor(-1.5) + ceil(1.5) + mod(7,4) + rint(2.4)" << 5.0;
    QTest::newRow("comparison") << "x>=2 && y!=2 ? atan2(x,y) : 0" << std::atan2(2.0, 3.0);
    QTest::newRow("several arguments") << "max(x,y,7) + min(x,y)" << 9.0;
    QTest::newRow("exponent") << "1.5e2*x" << 300.0;
}

void TestFormula::values()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    Formula formula(text);
    QVERIFY2(formula.isValid(), qPrintable(formula.error()));
    QVERIFY2(std::abs(formula.value(2.0, 3.0) - value) < 1e-12,
             qPrintable(QString::number(formula.value(2, 3))));
}

void TestFormula::errorsNameTheColumn_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* text, int column, const char* reason) {
        QTest::newRow(text) << QString::fromUtf8(text) << column << QString::fromUtf8(reason);
    };
    row("x+foo(y)", 3, "\"foo\" is not known here");
    row("x + \xcf\x80", 5, "\"\xcf\x80\" is not known here");
    row("2e", 1, "\"2e\" is not known here");
    row("x+", 3, "the formula ends too early");
    row("sin(x", 6, "a parenthesis is not closed");
    row("x)", 2, "\")\" cannot stand here");
    row("x+*y", 3, "\"*\" cannot stand here");
    row("2x", 2, "an operator such as * is missing before \"x\"");
    row("sin(x)cos(y)", 7, "an operator such as * is missing before \"cos\"");
    row("atan2(x)", 8, "\"atan2\" has too few arguments");
    row("sin(x,y)", 8, "\"sin\" has too many arguments");
    row("x>0 ? 1", 8, "\"?\" has no \":\"");
    row("z=x*y", 2, "\"=\" cannot stand here; give what z is equal to, without z =");
    row("x=3", 2, "\"=\" cannot stand here; give what z is equal to, without z =");
    row("1,5*x", 2, "\",\" cannot stand here; the decimal sign is a point");
}

void TestFormula::errorsNameTheColumn()
{
    QFETCH(QString, text);
    QFETCH(int, column);
    QFETCH(QString, reason);
    Formula formula(text);
    QVERIFY(!formula.isValid());
    QCOMPARE(formula.error(),
             QString("\"%1\" cannot be read at column %2: %3.").arg(text).arg(column).arg(reason));
    Grid grid;
    QVERIFY(!formula.read(grid, FormulaArea()));
    QVERIFY(std::isnan(formula.value(0.0, 0.0)));
    QCOMPARE(Formula("  ").error(), QString("The formula is empty."));
}

void TestFormula::heightsStandAtTheirCoordinates()
{
    Formula formula("10*x + y");
    FormulaArea area{-3.0, 3.0, 1.0, 2.0, 4, 3};
    Grid grid;
    QVERIFY2(formula.read(grid, area), qPrintable(formula.error()));
    QCOMPARE((QVector<int>{grid.columns, grid.rows, int(grid.validNodes)}), (QVector<int>{4, 3, 12}));
    QCOMPARE((QVector<double>{grid.xMin, grid.xMax, grid.yMin, grid.yMax}), (QVector<double>{-3, 3, 1, 2}));
    QCOMPARE((QVector<double>{grid.z()[0][0], grid.z()[3][0], grid.z()[0][2], grid.z()[1][1]}),
             (QVector<double>{-29, 31, -28, -8.5}));
    QCOMPARE((QVector<double>{grid.zMin, grid.zMax}), (QVector<double>{-29, 32}));
    QVERIFY(formula.notes().isEmpty());
}

void TestFormula::nodesWithoutAHeightAreMissing()
{
    Formula formula("x > 1 ? 1e300 : 1/x + sqrt(y)");
    const FormulaArea area{-2.0, 2.0, -1.0, 1.0, 5, 3};
    Grid grid;
    QVERIFY2(formula.read(grid, area), qPrintable(formula.error()));
    // The row y = -1, the column x = 0 and the column x = 2.
    QCOMPARE(int(grid.validNodes), 6);
    QVERIFY(std::isnan(grid.z()[0][0]) && std::isnan(grid.z()[2][1]) && std::isnan(grid.z()[4][2]));
    QCOMPARE(grid.z()[3][2], 2.0);
    QCOMPARE(formula.notes(),
             QStringList{"The formula has no height at 9 of 15 nodes, the first at x = -2, y = -1."});
}

void TestFormula::areasThatCannotBeDrawn_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("error");
    QTest::newRow("one column") << "x" << 1 << 5 << "\"x\" cannot be drawn over 1 x 5 nodes";
    QTest::newRow("too large")
        << "x" << 2000000000 << 2000000000
        << "needs about 1600000000000.0 GB of memory for 2000000000 x 2000000000 nodes";
    QTest::newRow("nowhere") << "sqrt(-1-x^2)" << 5 << 5 << "has no height at any node";
    QTest::newRow("too high") << "3e38*x" << 5 << 5 << "more than single precision holds";
}

void TestFormula::areasThatCannotBeDrawn()
{
    QFETCH(QString, text);
    QFETCH(int, columns);
    QFETCH(int, rows);
    QFETCH(QString, error);
    Formula formula(text);
    Grid grid;
    QVERIFY(formula.read(grid, {-1.0, 1.0, -1.0, 1.0, 2, 2}) || formula.error().contains(error));
    const int before = grid.columns;
    QVERIFY(!formula.read(grid, {-1.0, 1.0, -1.0, 1.0, columns, rows}));
    QVERIFY2(formula.error().contains(error), qPrintable(formula.error()));
    QCOMPARE(grid.columns, before);
}

void TestFormula::ranges_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<double>>("range"); // before: -1, 1, -1, 1
    QTest::newRow("both axes at once") << "-3:3" << QVector<double>{-3, 3, -3, 3};
    QTest::newRow("two ranges") << "-3:3,0:2.5" << QVector<double>{-3, 3, 0, 2.5};
    QTest::newRow("dots") << "-3..3, .5..2e1" << QVector<double>{-3, 3, 0.5, 20};
    QTest::newRow("names") << "x=-3..3,y=-2..2" << QVector<double>{-3, 3, -2, 2};
    QTest::newRow("names, y first") << " y = -2:2 , x=0:1" << QVector<double>{0, 1, -2, 2};
    QTest::newRow("one name") << "y=5:6" << QVector<double>{-1, 1, 5, 6};
    QTest::newRow("constants") << "-pi:2*pi" << QVector<double>{-pi, 2 * pi, -pi, 2 * pi};
}

void TestFormula::ranges()
{
    QFETCH(QString, text);
    FormulaArea area;
    QString error;
    QVERIFY2(area.setRange(text, error), qPrintable(error));
    QTEST((QVector<double>{area.xMin, area.xMax, area.yMin, area.yMax}), "range");
    QVERIFY(error.isEmpty());
}

void TestFormula::rangeErrors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    QTest::newRow("empty") << ""
                           << "\"\" is no range; expected two numbers, such as -3:3.";
    QTest::newRow("one number") << "5"
                                << "\"5\" is no range; expected two numbers, such as -3:3.";
    QTest::newRow("three numbers") << "1:2:3"
                                   << "\"1:2:3\" is no range; expected two numbers, such as -3:3.";
    QTest::newRow("no number") << "0:1,-a:2"
                               << "\"-a\" in the range \"-a:2\" is no number.";
    QTest::newRow("a variable") << "0:x"
                                << "\"x\" in the range \"0:x\" is no number.";
    QTest::newRow("infinite") << "0:1/0"
                              << "\"1/0\" in the range \"0:1/0\" is no number.";
    QTest::newRow("reversed")
        << "3:-3"
        << "The range \"3:-3\" has no width; its first number must be less than its last.";
    QTest::newRow("no width in single precision")
        << "1e9:1e9+1"
        << "The range \"1e9:1e9+1\" has no width; its first number must be less than its last.";
    QTest::newRow("three axes") << "0:1,0:1,0:1"
                                << "\"0:1,0:1,0:1\" is no range of x and y; expected the form -3:3,-2:2.";
    QTest::newRow("an axis twice") << "x=0:1,x=0:2"
                                   << "\"x=0:1,x=0:2\" is no range of x and y; expected the form -3:3,-2:2.";
}

void TestFormula::rangeErrors()
{
    QFETCH(QString, text);
    FormulaArea area;
    QString error;
    QVERIFY(!area.setRange(text, error));
    QTEST(error, "error");
    QCOMPARE((QVector<double>{area.xMin, area.xMax, area.yMin, area.yMax}), (QVector<double>{-1, 1, -1, 1}));
}

void TestFormula::meshes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("size"); // empty: an error
    QTest::newRow("columns and rows") << "200x50" << QList<int>{200, 50};
    QTest::newRow("one number") << "30" << QList<int>{30, 30};
    QTest::newRow("spaces") << " 4 X 5 " << QList<int>{4, 5};
    for (const char* wrong : {"", "1x5", "5x0", "-3x3", "3x3x3", "3.5", "99999999999x5", "ax5"})
        QTest::newRow(wrong) << wrong << QList<int>{};
}

void TestFormula::meshes()
{
    QFETCH(QString, text);
    QFETCH(QList<int>, size);
    FormulaArea area;
    QString error;
    QCOMPARE(area.setMesh(text, error), !size.isEmpty());
    if (size.isEmpty()) {
        QVERIFY2(error.startsWith(QString("\"%1\" is no mesh; ").arg(text)), qPrintable(error));
        size = {FormulaArea().columns, FormulaArea().rows};
    }
    QCOMPARE((QList<int>{area.columns, area.rows}), size);
}

int main(int argc, char* argv[])
{
    return harness::run<TestFormula>(argc, argv);
}

#include "tst_formula.moc"
