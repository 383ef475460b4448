#include "gradients/gradientcolors.h"
#include "gradients/gradientfile.h"
#include "harness/harness.h"

#include <QBuffer>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <cstdlib>

using Zel3D::GradientFile;

namespace {

/// Stops as "position #rrggbbaa" lines, positions to four digits.
QString written(const QGradientStops& stops)
{
    QStringList lines;
    for (const QGradientStop& stop : stops)
        lines << QString::number(stop.first, 'g', 4) + ' ' + Zel3D::colorText(stop.second);
    return lines.join(", ");
}

/// A device that never ends and counts what was taken from it.
class Endless : public QIODevice
{
public:
    Endless() { open(ReadOnly | Unbuffered); }
    qint64 taken = 0;

protected:
    qint64 readData(char* data, qint64 size) override
    {
        std::fill(data, data + size, '\n');
        taken += size;
        return size;
    }
    qint64 writeData(const char*, qint64) override { return -1; }
};

} // namespace

class TestGradientFile : public QObject
{
    Q_OBJECT
private slots:
    void colorsOfGradients();
    void roundTrip();
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
    void bounds();
    void curvedBlendings();
};

void TestGradientFile::colorsOfGradients()
{
    // Sharp edges, also at the ends, survive QGradient, which keeps one stop a position.
    const QGradientStops stops = {{0.0, Qt::red},  {0.0, Qt::green}, {0.5, Qt::blue}, {0.5, Qt::cyan},
                                  {0.5, Qt::gray}, {1.0, Qt::white}, {1.0, Qt::black}};
    const QLinearGradient gradient = Zel3D::gradientOf(stops);
    QCOMPARE(gradient.stops().size(), stops.size());
    QCOMPARE(Zel3D::editableStops(gradient), stops);
    QCOMPARE(Zel3D::editableStops(QLinearGradient()), QGradientStops());
    QLinearGradient explicitPair;
    explicitPair.setColorAt(0.0, Qt::black);
    explicitPair.setColorAt(1.0, Qt::white);
    QCOMPARE(Zel3D::editableStops(explicitPair).size(), 2);
    // Cut to whole numbers, down and up, as data are coloured; a stop's own position belongs to the left.
    const QGradientStops ramp = {{0.0, QColor(0, 255, 0, 0)}, {1.0, QColor(255, 0, 0, 255)}};
    QCOMPARE(Zel3D::stopsColor(ramp, 0.5), QColor(127, 127, 0, 127));
    QCOMPARE(Zel3D::stopsColor(stops, 0.5), QColor(Qt::blue));
    QCOMPARE(Zel3D::stopsColor(stops, -1.0), QColor(Qt::red));
    QCOMPARE(Zel3D::stopsColor(stops, 2.0), QColor(Qt::black));
    QVERIFY(!Zel3D::stopsColor({}, 0.5).isValid());
    QCOMPARE(written(Zel3D::coveringStops({{0.2, Qt::red}, {0.8, Qt::blue}})),
             QString("0 #ff0000ff, 0.2 #ff0000ff, 0.8 #0000ffff, 1 #0000ffff"));
}

void TestGradientFile::roundTrip()
{
    const QGradientStops stops = {{0.0, QColor(1, 2, 3, 4)},
                                  {1.0 / 3.0, Qt::red},
                                  {1.0 / 3.0, Qt::blue},
                                  {0.1 + 0.6, QColor(255, 254, 16, 0)},
                                  {1.0, Qt::white}};
    const QByteArray text = GradientFile::write("Größe\n9", stops);
    QVERIFY(text.startsWith("VORANPLOT gradient 1\nname: Größe 9\n0 #01020304\n"));
    for (const QByteArray& content : {text, "\xef\xbb\xbf" + text, QByteArray(text).replace("\n", "\r\n")}) {
        const GradientFile::Result result = GradientFile::parse(content);
        QVERIFY2(result.isOk(), qPrintable(result.message()));
        QCOMPARE(result.name, QString("Größe 9"));
        QCOMPARE(result.stops, stops);
    }
}

void TestGradientFile::reads_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("stops");
    const auto row = [](const char* name, const char* content, const char* stops) {
        QTest::newRow(name) << QByteArray(content) << stops;
    };
    row("text by hand", "VORANPLOT gradient 1\n\n# a remark\n  0\t#fF0000 \n1 #00f8\n",
        "0 #ff0000ff, 1 #0000ff88");
    row("css, plain", "linear-gradient(red, #00f)", "0 #ff0000ff, 1 #0000ffff");
    row("css, missing positions", "linear-gradient(to right, red 10%, lime, blue, #fff 70%, black)",
        "0 #ff0000ff, 0.1 #ff0000ff, 0.3 #00ff00ff, 0.5 #0000ffff, 0.7 #ffffffff, 1 #000000ff");
    row("css, positions never fall", "linear-gradient(red, lime 60%, blue 20%, white)",
        "0 #ff0000ff, 0.6 #00ff00ff, 0.6 #0000ffff, 1 #ffffffff");
    row("css, two positions", "linear-gradient(90deg, red 0 25%, blue 25% 100%)",
        "0 #ff0000ff, 0.25 #ff0000ff, 0.25 #0000ffff, 1 #0000ffff");
    row("css, cut off outside", "linear-gradient(0.25turn, #000 -100%, #fff 100%, red 120%)",
        "0 #7f7f7fff, 1 #ffffffff, 1 #ffffffff");
    row("css, functions",
        ".a {\n background: linear-gradient(45deg, rgb(255, 0, 0), rgb(0 50% 0 / 1) 20%,\n rgba(300,0,0,1) "
        "40%, "
        "hsl(120deg, 100%, 25%) 60%, hsla(0.5turn 100% 50% / 100%), RebeccaPurple);\n}",
        "0 #ff0000ff, 0.2 #008000ff, 0.4 #ff0000ff, 0.6 #008000ff, 0.8 #00ffffff, 1 #663399ff");
    row("css, remark", "/* linear-gradient(\n */ -webkit-linear-gradient(left, /* , */ tan, navy)",
        "0 #d2b48cff, 1 #000080ff");
    row("css, transparent keeps the color", "linear-gradient(red, transparent, blue)",
        "0 #ff0000ff, 0.5 #ff000000, 0.5 #0000ff00, 1 #0000ffff");
    row("cpt, rgb",
        "# COLOR_MODEL = RGB\n-10 0 0 255 0 255 255 255\n0 255/255/255 30 255/0/0 L ; label\nB black\n"
        "F 255 0 0\nN -\n",
        "0 #0000ffff, 0.25 #ffffffff, 1 #ff0000ff");
    row("cpt, names, greys, sharp edge, alpha", "0 red 1 red\n1 128 3 0@25 U\n3 #0f0 4 navy",
        "0 #ff0000ff, 0.25 #ff0000ff, 0.25 #808080ff, 0.75 #000000bf, 0.75 #00ff00ff, 1 #000080ff");
    row("cpt, mixed widths", "0 red 1 0 0 255\n1 0 0 255 2 white", "0 #ff0000ff, 0.5 #0000ffff, 1 #ffffffff");
    row("cpt, hsv colors", "#COLOR_MODEL=HSV\n0 0 1 1 10 240 1 0.5", "0 #ff0000ff, 1 #000080ff");
    row("cpt, hsv blending", "# COLOR_MODEL = +HSV\n0 0-1-1 8 240-1-1",
        "0 #ff0000ff, 0.125 #ff8000ff, 0.25 #ffff00ff, 0.375 #80ff00ff, 0.5 #00ff00ff, 0.625 #00ff80ff, "
        "0.75 #00ffffff, 0.875 #0080ffff, 1 #0000ffff");
    row("cpt, cmyk", "# COLOR_MODEL = CMYK\n0 0 100 100 0 1 0/0/0/100", "0 #ff0000ff, 1 #000000ff");
    row("ggr, linear",
        "GIMP Gradient\nName: Two\n2\n0 0.25 0.5 1 0 0 1 0 0 1 0.5 0 0\n0.5 0.9 1 0 0 1 0.5 1 1 1 1 0 0 0 "
        "0\n",
        "0 #ff0000ff, 0.5 #0000ff80, 0.9 #8080ffbf, 1 #ffffffff");
    row("ggr, steps without a name", "GIMP Gradient\n1\n0 0.3 1 0 0 0 1 1 1 1 1 5 0",
        "0 #000000ff, 0.3 #000000ff, 0.3 #ffffffff, 1 #ffffffff");
}

void TestGradientFile::reads()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, stops);
    const GradientFile::Result result = GradientFile::parse(content);
    QVERIFY2(result.isOk(), qPrintable(result.message()));
    QCOMPARE(written(result.stops), stops);
}

void TestGradientFile::refuses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("said");
    const auto row = [](const char* name, const QByteArray& content, int line, const char* said) {
        QTest::newRow(name) << content << line << said;
    };
    const QByteArray own = "VORANPLOT gradient 1\n";
    row("nothing", "", 1, "no slice");
    row("another version", "VORANPLOT gradient 2\n0 #000", 1, "first line");
    row("no stop", own + "name: x\n", 2, "no stop");
    row("falling", own + "0.5 #000\n\n0.4 #000", 4, "less");
    row("out of range", own + "1.5 #000", 2, "from 0 to 1");
    row("no number", own + "nan #000", 2, "from 0 to 1");
    row("five digits", own + "0 #00000", 2, "no color");
    row("binary", own + QByteArray("0 \0", 3), 2, "text file");
    row("not UTF-8", own + "name: \xff\n", 2, "text file");
    row("long line", own + QByteArray(5000, ' '), 2, "4096");
    row("many stops", own + QByteArray("0 #000\n").repeated(4097), 4098, "4096");
    row("css, no end", "a\nlinear-gradient(red, blue", 2, "closing");
    row("css, one color", "linear-gradient(red)", 1, "two colors");
    row("css, empty", "linear-gradient()", 1, "no color");
    row("css, pixels", "linear-gradient(red,\nblue 20px)", 2, "20px");
    row("css, unknown name", "linear-gradient(red, bluish)", 1, "bluish");
    row("css, hint at the end", "linear-gradient(red, blue, 50%)", 1, "hint");
    row("css, other function", "linear-gradient(lab(50% 40 59), red)", 1, "lab");
    row("css, repeating", "repeating-linear-gradient(red, blue 20%)", 1, "Repeating");
    row("cpt, gap", "0 red 1 red\n2 red 3 red", 2, "begin");
    row("cpt, falling", "0 red 1 red\n1 red 0 red", 2, "rise");
    row("cpt, categories", "0 red\n1 blue", 1, "slice is");
    row("cpt, component", "# x\n0 0 0 300 1 0 0 0", 2, "300");
    row("cpt, wrong background", "0 red 1 blue\nB nothing", 2, "nothing");
    row("cpt, infinite", "0 red inf blue", 1, "not numbers");
    row("ggr, short", "GIMP Gradient\nName: x\n2\n0 0.5 1 0 0 0 1 1 1 1 1 0 0\n", 4, "after 1 of 2");
    row("ggr, does not reach 1", "GIMP Gradient\nName: x\n1\n0 0.3 0.6 0 0 0 1 1 1 1 1 0 0\n", 4, "end at 1");
    row("ggr, gap", "GIMP Gradient\nName: x\n1\n0.2 0.3 1 0 0 0 1 1 1 1 1 0 0\n", 4, "begin");
    row("ggr, columns", "GIMP Gradient\nName: x\n1\n0 0.3 1 0 0 0 1 1 1 1 1 0\n", 4, "not 12");
    row("ggr, blending", "GIMP Gradient\nName: x\n1\n0 0.3 1 0 0 0 1 1 1 1 1 9 0\n", 4, "blending");
    row("ggr, no count", "GIMP Gradient\nName: x\nx\n", 3, "number of segments");
}

void TestGradientFile::refuses()
{
    QFETCH(QByteArray, content);
    QFETCH(int, line);
    QFETCH(QString, said);
    const GradientFile::Result result = GradientFile::parse(content);
    QVERIFY(!result.isOk());
    QVERIFY2(result.error.contains(said), qPrintable(result.message()));
    QCOMPARE(result.line, line);
    QVERIFY(result.stops.isEmpty());
}

void TestGradientFile::bounds()
{
    Endless endless;
    const GradientFile::Result result = GradientFile::read(endless);
    QVERIFY(result.error.contains("larger"));
    QVERIFY(endless.taken <= 2 * GradientFile::maximumBytes);
    // Short hostile texts end at once, with an error or without.
    const QByteArray seeds[] = {"linear-gradient(red 10%, 30%, rgb(1,2,3/4), hsl(1turn,2%,3%))",
                                "GIMP Gradient\nName: x\n1\n0 0.3 1 0 0 0 1 1 1 1 1 1 2\n",
                                "# COLOR_MODEL = +HSV\n0 0-1-1 8 240-1-1@3\nB 1/2/3",
                                "VORANPLOT gradient 1\nname: a\n0 #123\n1 #12345678"};
    int good = 0;
    for (const QByteArray& seed : seeds) {
        for (int i = 0; i < seed.size(); ++i) {
            for (const char c : {'(', ')', '-', '9', ' ', '%', '\n'}) {
                QByteArray changed = seed;
                changed[i] = c;
                const GradientFile::Result read = GradientFile::parse(changed);
                QCOMPARE(read.isOk(), !read.stops.isEmpty());
                good += read.isOk() ? 1 : 0;
                double before = 0.0;
                for (const QGradientStop& stop : read.stops) {
                    QVERIFY2(stop.first >= before && stop.first <= 1.0 && stop.second.isValid(), changed);
                    before = stop.first;
                }
            }
        }
    }
    QVERIFY(good > 50);
}

void TestGradientFile::curvedBlendings()
{
    const auto at = [](const char* content, double position) {
        const GradientFile::Result result = GradientFile::parse(content);
        return result.isOk() ? Zel3D::stopsColor(result.stops, position) : QColor();
    };
    const auto segment = [](const char* middle, const char* blending) {
        return "GIMP Gradient\nName: x\n1\n0 " + QByteArray(middle) + " 1 0 0 0 1 1 1 1 1 " + blending +
               " 0\n";
    };
    // Each blending has half of both colours in the middle, except the spherical ones: sqrt(0.75), 1 -
    // sqrt(0.75).
    QVERIFY(std::abs(at(segment("0.25", "1"), 0.25).red() - 128) <= 1);
    QVERIFY(std::abs(at(segment("0.25", "1"), 0.75).red() - 221) <= 2); // 0.75 ^ 0.5
    QVERIFY(std::abs(at(segment("0.5", "2"), 0.25).red() - 37) <= 2);   // (sin(-pi / 4) + 1) / 2
    QVERIFY(std::abs(at(segment("0.5", "3"), 0.5).red() - 221) <= 1);
    QVERIFY(std::abs(at(segment("0.5", "4"), 0.5).red() - 34) <= 1);
    // Around the circle of hues, red to blue: through green one way, through magenta the other way.
    const QByteArray hues = "GIMP Gradient\nName: x\n1\n0 0.5 1 1 0 0 1 0 0 1 1 0 ";
    QCOMPARE(at(hues + "1", 0.5), QColor(0, 255, 0));
    QCOMPARE(at(hues + "2", 0.5), QColor(255, 0, 255));
    // A hint: half of the way is gone at 25 %.
    QVERIFY(std::abs(at("linear-gradient(black, 25%, white)", 0.25).red() - 128) <= 1);
    QVERIFY(std::abs(at("linear-gradient(black, 25%, white)", 0.75).red() - 221) <= 2);
    // Multiplied by alpha: half way red weighs as much as its alpha.
    QVERIFY(std::abs(at("linear-gradient(rgb(255 0 0 / 100%), rgb(0 0 255 / 50%))", 0.5).red() - 170) <= 1);
}

int main(int argc, char* argv[])
{
    return harness::run<TestGradientFile>(argc, argv);
}

#include "tst_gradientfile.moc"
