#include "harness/harness.h"

#include <QDir>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

struct Outcome
{
    int status = -1; ///< -1 when the program crashed or did not end
    QString output;
    QString errors;
};

enum class Screen { None, Absent, Virtual };

Outcome runViewer(const QStringList& arguments, Screen screen = Screen::Virtual, const QString& language = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (screen != Screen::Virtual) {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(name);
    }
    if (screen == Screen::Absent)
        environment.insert("DISPLAY", ":987");
    environment.insert("LANGUAGE", language);
    // The driver's own allocations cannot be told from the program's once it is unloaded.
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(VORANVIEW, arguments);
    const bool ended = process.waitForFinished(100000) && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

const QString examples = QString(VORAN_SOURCE_DIR) + "/examples/data/";
const QString example = examples + "jacksboro_dem.asc";

/// How many pixels of a picture are of a kind.
template <class Kind>
int pixels(const QImage& image, const Kind& kind)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += kind(QColor(image.pixel(x, y))) ? 1 : 0;
    }
    return count;
}

int colours(const QImage& image)
{
    QSet<QRgb> found;
    pixels(image, [&found](const QColor& colour) {
        found.insert(colour.rgb());
        return false;
    });
    return found.size();
}

bool isGreen(const QColor& colour)
{
    return colour.green() > colour.red() + 10 && colour.green() > colour.blue() + 10;
}

} // namespace

Q_DECLARE_METATYPE(Screen)

class TestVoranview : public QObject
{
    Q_OBJECT
private slots:
    void wordsNeedNoDisplay_data();
    void wordsNeedNoDisplay();
    void refusalsAreOneSentence_data();
    void refusalsAreOneSentence();
    void nothingAboveZeroIsNoPicture();
    void wordsAreInTheLanguageOfTheEnvironment();
    void debugMessagesAreForThoseWhoAsk();
    void pictureHasTheSizeAndTheRelief_data();
    void pictureHasTheSizeAndTheRelief();
    void everyKindMakesAPicture_data();
    void everyKindMakesAPicture();
    void everyFormatIsWrittenInOneRun();
    void aFolderTakesAPictureOfEachFile();
    void optionsChangeThePicture_data();
    void optionsChangeThePicture();
    void notesGoToTheErrors();
    void terminalFollowsAndInterrupts();
    void stylesDiffer();
    void looksDiffer();
    void failureLeavesAnExistingPicture();

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_files;
    const QString m_broken = m_files.filePath("broken.csv");
};

void TestVoranview::wordsNeedNoDisplay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("word");
    QTest::newRow("help names a style") << "--help"
                                        << "histogram";
    QTest::newRow("help names the options") << "-h"
                                            << "--png";
    QTest::newRow("version") << "--version"
                             << "voranview 1.";
}

void TestVoranview::wordsNeedNoDisplay()
{
    QFETCH(QString, option);
    QFETCH(QString, word);
    const Outcome outcome = runViewer({option}, Screen::None);
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.output.contains(word), qPrintable(outcome.output));
    QCOMPARE(outcome.errors, QString());
}

void TestVoranview::refusalsAreOneSentence_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<Screen>("screen");
    QTest::addColumn<QString>("words");
    const QString picture = m_folder.filePath("refused.png");
    QFile broken(m_broken);
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no,numbers\nat,all\n") > 0);
    QTest::newRow("unknown style")
        << QStringList{"--style", "fancy", example} << Screen::None
        << "\"fancy\"; the styles are none, points, wireframe, hidden, filled, mesh, "
           "histogram.";
    QTest::newRow("unknown look") << QStringList{"--look", "fancy", example} << Screen::None
                                  << "There is no look \"fancy\"; the looks are light, dark, print.";
    QTest::newRow("size too small") << QStringList{"--size", "49x50", example} << Screen::None << "\"49x50\"";
    QTest::newRow("size too large") << QStringList{"--size", "50x16385", example} << Screen::None
                                    << "\"50x16385\"";
    QTest::newRow("size without form") << QStringList{"--size", "800", example} << Screen::None << "\"800\"";
    QTest::newRow("band") << QStringList{"--band", "0", example} << Screen::None << "\"0\"";
    QTest::newRow("unknown option") << QStringList{"--fast"} << Screen::None << "fast";
    QTest::newRow("picture of two files") << QStringList{example, examples + "bunny.off", "--png", picture}
                                          << Screen::None << "2 files are named: name a folder";
    QTest::newRow("style of one kind for two")
        << QStringList{example, examples + "gasoline_nir.csv", "--style", "mesh"} << Screen::None
        << "Spectra have no plot style \"mesh\"";
    QTest::newRow("mesh among logarithmic files")
        << QStringList{example, examples + "bunny.off", "--log", "z"} << Screen::None << "a mesh is named";
    QTest::newRow("picture of nothing")
        << QStringList{"--png", picture} << Screen::None << "needs a file or a formula";
    const auto refusal = [](const char* name, const QStringList& arguments, const QString& words) {
        QTest::newRow(name) << arguments << Screen::None << words;
    };
    refusal("style of surfaces for spectra", {"--style", "mesh", examples + "gasoline_nir.csv"},
            "the styles are none, points, lines, filled, frame.");
    refusal("file and formula", {example, "--function", "x"}, "only one of them");
    refusal("formula with a fault", {"--function", "sin(x)+*y"}, "at column 8");
    refusal("empty formula", {"--function", ""}, "The formula is empty.");
    refusal("range without width", {"--function", "x", "--range", "3:-3"}, "\"3:-3\" has no width");
    refusal("range without form", {"--function", "x", "--range", "3"}, "\"3\" is no range");
    refusal("mesh of nothing", {"--function", "x", "--mesh", "0x5"}, "\"0x5\"");
    refusal("range for a file", {"--range", "-3:3", example}, "--range is for a formula");
    refusal("mesh for a file", {"--mesh", "20", example}, "--mesh is for a formula");
    refusal("band of spectra", {"--band", "1", examples + "gasoline_nir.csv"}, "--band is for grid files");
    refusal("part of spectra", {"--part", "0,0,1,1", examples + "gasoline_nir.csv"},
            "--part is for grid files");
    refusal("budget of a formula", {"--budget", "20000", "--function", "x"}, "--budget is for grid files");
    refusal("part of three numbers", {"--part", "0,0,1", example}, "\"0,0,1\" is not X0,Y0,X1,Y1");
    refusal("part of words", {"--part", "0,0,1,nan", example}, "\"0,0,1,nan\"");
    refusal("budget too small", {"--budget", "9999", example}, "\"9999\" is not a whole number");
    refusal("view of another name", {"--view", "above", example},
            "one of top, bottom, left, right, front, back");
    refusal("view with two angles", {"--view", "10,20", example}, "\"10,20\"");
    refusal("view beyond a turn", {"--view", "10,20,361", example}, "\"10,20,361\"");
    refusal("view of nothing", {"--view", "top"}, "--view needs a file or a formula");
    refusal("unknown gradient", {"--gradient", "fancy", example}, "\"fancy\"; the gradients are ");
    refusal("two axes", {"--axes", "a,b", example}, "\"a,b\" are not three");
    refusal("logarithmic w", {"--log", "x,w", example}, "\"x,w\"");
    refusal("logarithmic mesh", {"--log", "z", examples + "bunny.off"}, "a mesh is named");
    refusal("transparent window", {"--transparent", example}, "--transparent is for pictures");
    refusal("picture without a name", {"--svg", "", example}, "--svg names no picture");
    QTest::newRow("mesh larger than memory")
        << QStringList{"--function", "x", "--mesh", "900000x900000", "--png", picture} << Screen::Virtual
        << "of memory for 900000 x 900000 nodes";
    QTest::newRow("broken spectra") << QStringList{m_broken, "--png", picture} << Screen::Virtual
                                    << "broken.csv";
    QTest::newRow("no display") << QStringList{example} << Screen::None << "set DISPLAY";
    QTest::newRow("display that is not there") << QStringList{example} << Screen::Absent << "set DISPLAY";
    QTest::newRow("missing file") << QStringList{"missing.asc"} << Screen::Virtual
                                  << "\"missing.asc\" does not exist";
    QTest::newRow("missing file for a picture") << QStringList{"missing.asc", "--png", picture}
                                                << Screen::Virtual << "\"missing.asc\" does not exist";
    QTest::newRow("part outside") << QStringList{example, "--part", "0,0,1,1", "--png", picture}
                                  << Screen::Virtual << "has no nodes in that part";
    QTest::newRow("no grid") << QStringList{VORANVIEW, "--png", picture} << Screen::Virtual
                             << "no grid file of a known format";
    QTest::newRow("missing folder") << QStringList{example, "--png", m_folder.filePath("no/such/a.png")}
                                    << Screen::Virtual << "the folder";
    QTest::newRow("folder below a file")
        << QStringList{example, "--png", example + "/a.png"} << Screen::Virtual << "the folder";
}

void TestVoranview::refusalsAreOneSentence()
{
    QFETCH(QStringList, arguments);
    QFETCH(Screen, screen);
    QFETCH(QString, words);
    const Outcome outcome = runViewer(arguments, screen);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.startsWith("voranview: ") && outcome.errors.count('\n') == 1,
             qPrintable(outcome.errors));
    QCOMPARE(outcome.output, QString());
    QVERIFY(QDir(m_folder.path()).isEmpty());
}

// After the plot's own word on how many points are missing.
void TestVoranview::nothingAboveZeroIsNoPicture()
{
    const QString path = m_folder.filePath("empty.png");
    const auto shown = [&path](const QString& formula) {
        return runViewer({"--function", formula, "--log", "z", "--mesh", "20", "--png", path},
                         Screen::Virtual);
    };
    const Outcome none = shown("-1-x*x");
    QCOMPARE(none.status, 1);
    QVERIFY2(none.errors.contains("voranview: \"-1-x*x\" has no values above zero"), qPrintable(none.errors));
    QVERIFY(!QFile::exists(path));
    QCOMPARE(shown("x").status, 0);
    QVERIFY(QFile::remove(path));
}

void TestVoranview::everyKindMakesAPicture_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<double>("coloured"); // part of the picture that is not grey, the legend included
    QTest::newRow("lines of spectra") << QStringList{examples + "gasoline_nir.csv"} << 0.08;
    QTest::newRow("sheets of spectra")
        << QStringList{examples + "gasoline_nir.csv", "--style", "filled", "--look", "dark"} << 0.12;
    QTest::newRow("mesh") << QStringList{examples + "bunny.off"} << 0.15;
    QTest::newRow("formula") << QStringList{"--function", "x*y", "--range", "-1:1,0:pi", "--mesh", "40x30"}
                             << 0.12;
}

void TestVoranview::everyKindMakesAPicture()
{
    QFETCH(QStringList, arguments);
    QFETCH(double, coloured);
    const QString path = m_folder.filePath("kind.png");
    const Outcome outcome = runViewer(arguments + QStringList{"--png", path, "--size", "500x400"});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    const QImage image(path);
    QCOMPARE(image.size(), QSize(500, 400));
    const double part =
        pixels(image, [](const QColor& colour) { return colour.saturation() > 80 && colour.value() > 60; }) /
        (500.0 * 400.0);
    QVERIFY2(part > coloured, qPrintable(QString::number(part)));
    QVERIFY(QFile::remove(path));
}

void TestVoranview::aFolderTakesAPictureOfEachFile()
{
    QVERIFY(QDir(m_folder.path()).mkpath("pictures/copy"));
    const QDir pictures(m_folder.filePath("pictures"));
    const QString mesh = examples + "bunny.off";
    const QString copy = pictures.filePath("copy/bunny.off");
    QVERIFY(QFile::copy(mesh, copy));
    const QStringList files{example, "missing.asc", examples + "gasoline_nir.csv"};
    const Outcome outcome = runViewer(QStringList{"--size", "200x150", "--png", pictures.path()} + files);
    // What can be shown is written; what cannot be is told.
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains("missing.asc"), qPrintable(outcome.errors));
    QCOMPARE(pictures.entryList(QDir::Files), (QStringList{"gasoline_nir.png", "jacksboro_dem.png"}));
    QVERIFY(QImage(pictures.filePath("gasoline_nir.png")) != QImage(pictures.filePath("jacksboro_dem.png")));
    const Outcome twins = runViewer({"--png", pictures.path(), mesh, copy});
    QCOMPARE(twins.status, 1);
    QVERIFY2(twins.errors.contains("have one name"), qPrintable(twins.errors));
    QVERIFY(QDir(pictures).removeRecursively());
}

void TestVoranview::everyFormatIsWrittenInOneRun()
{
    // The option tells the format, not the name.
    const QList<QPair<QString, QByteArray>> formats{
        {"png", "\x89PNG"}, {"jpeg", "\xff\xd8\xff"}, {"svg", "<?xml"}, {"pdf", "%PDF"}, {"eps", "%!PS"}};
    QStringList arguments{"--function", "x*y", "--mesh", "12", "--size", "300x200", "--axes", "east,,up"};
    arguments << "--transparent";
    for (const auto& format : formats)
        arguments << "--" + format.first << m_folder.filePath(format.first + ".out");
    const Outcome outcome = runViewer(arguments);
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.status, 0);
    QMap<QString, QByteArray> files;
    for (const auto& format : formats) {
        QFile file(m_folder.filePath(format.first + ".out"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        files[format.first] = file.readAll();
        QVERIFY2(files[format.first].startsWith(format.second), qPrintable(format.first));
        QVERIFY(file.remove());
    }
    QCOMPARE(qAlpha(QImage::fromData(files["png"]).pixel(0, 0)), 0);
    QCOMPARE(QImage::fromData(files["jpeg"]).size(), QSize(300, 200));
    QStringList texts;
    QXmlStreamReader svg(files["svg"]);
    while (!svg.atEnd()) {
        svg.readNext();
        texts.append(svg.isCharacters() ? svg.text().toString().trimmed() : QString());
    }
    QVERIFY2(!svg.hasError(), qPrintable(svg.errorString()));
    for (const char* text : {"x*y", "east", "up"})
        QVERIFY2(texts.contains(text), qPrintable(texts.join(' ')));
}

void TestVoranview::optionsChangeThePicture_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("same"); // arguments that give the same picture, where others do
    QTest::newRow("view") << QStringList{"--view", "TOP"} << QStringList{"--view", "90,0,0"};
    QTest::newRow("gradient") << QStringList{"--gradient", "viridis"} << QStringList{"--gradient", "Viridis"};
    QTest::newRow("logarithmic") << QStringList{"--log", "x,z"} << QStringList{"--log", "z,X"};
    QTest::newRow("axes") << QStringList{"--axes", "a,,"} << QStringList{"--axes", "a,y,z"};
}

void TestVoranview::optionsChangeThePicture()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, same);
    const auto picture = [this](const QStringList& options) {
        const QString path = m_folder.filePath("option.png");
        const Outcome outcome = runViewer(QStringList{"--function", "x*y", "--range", "1:100", "--mesh", "20",
                                                      "--size", "300x200", "--png", path} +
                                          options);
        const QImage image(path);
        QFile::remove(path);
        return outcome.status == 0 ? image : QImage();
    };
    const QImage changed = picture(arguments);
    QVERIFY(!changed.isNull());
    QVERIFY(changed != picture({}));
    QCOMPARE(picture(same), changed);
}

void TestVoranview::notesGoToTheErrors()
{
    const QString path = m_folder.filePath("notes.png");
    const Outcome outcome = runViewer({"--function", "sqrt(x)", "--png", path});
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.errors.startsWith("voranview: The formula has no height at") &&
                 outcome.errors.count('\n') == 1,
             qPrintable(outcome.errors));
    const Outcome thinned = runViewer({example, "--budget", "10000", "--png", path});
    QCOMPARE(thinned.status, 0);
    QVERIFY2(thinned.errors.startsWith("voranview: Shown thinned: 100 x 86 of 403 x 344 nodes") &&
                 thinned.errors.contains("--part"),
             qPrintable(thinned.errors));
    const Outcome part =
        runViewer({example, "--budget", "10000", "--part", "-84.3,36.5,-84.25,36.55", "--png", path});
    QCOMPARE(part.status, 0);
    QCOMPARE(part.errors, QString());
    QVERIFY(QFile::remove(path));
}

void TestVoranview::terminalFollowsAndInterrupts()
{
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (terminal < 0 || grantpt(terminal) != 0 || unlockpt(terminal) != 0)
        QSKIP("this system has no pseudo-terminals: /dev/pts is not mounted");
    const auto written = [terminal] {
        char bytes[4096];
        const ssize_t count = ::read(terminal, bytes, sizeof bytes);
        return QByteArray(bytes, int(std::max<ssize_t>(count, 0)));
    };
    // Long enough to be interrupted on a fast machine.
    const QString term = "+sin(x)*cos(y)";
    QProcess process;
    process.setStandardErrorFile(ptsname(terminal));
    process.start(VORANVIEW, {"--function", "0" + term.repeated(100), "--mesh", "1500", "--png",
                              m_folder.filePath("interrupted.png")});
    QByteArray errors;
    QElapsedTimer time;
    time.start();
    while (!errors.contains('%') && time.elapsed() < 60000 && !process.waitForFinished(20))
        errors += written();
    QVERIFY2(errors.startsWith("\rvoranview: reading 0+sin(x)"), errors.constData());
    QCOMPARE(::kill(pid_t(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished(20000));
    errors += written();
    ::close(terminal);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 128 + SIGINT);
    // The line is gone and no other one came.
    QVERIFY2(errors.endsWith(" \r") && !errors.contains('\n'), errors.constData());
    QVERIFY(QDir(m_folder.path()).isEmpty());
}

void TestVoranview::pictureHasTheSizeAndTheRelief_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("usual") << QSize(800, 600);
    QTest::newRow("small") << QSize(300, 200);
    QTest::newRow("wider than the screen") << QSize(2500, 400);
}

void TestVoranview::wordsAreInTheLanguageOfTheEnvironment()
{
    const QString help = runViewer({"--help"}, Screen::None, "de").output;
    QVERIFY2(help.contains("Zeigt Höhenraster"), qPrintable(help));
    // What is typed is the same in every language.
    for (const char* typed : {"--style <NAME>", "wireframe", "--look <NAME>", "dark", "Viridis", "front"})
        QVERIFY2(help.contains(typed), typed);
    const QString refusal = runViewer({"--size", "10x10", example}, Screen::None, "fr:de").errors;
    QCOMPARE(
        refusal,
        QString("voranview: La taille «\u00a010x10\u00a0» n’est pas LARGEURxHAUTEUR avec des côtés de 50 à "
                "16384 pixels.\n"));
}

void TestVoranview::debugMessagesAreForThoseWhoAsk()
{
    const QStringList mesh{examples + "bunny.off", "--png", m_folder.filePath("mesh.png"), "--size", "99x99"};
    const Outcome usual = runViewer(mesh);
    qputenv("VORAN_DEBUG", "1");
    const Outcome asked = runViewer(mesh);
    qunsetenv("VORAN_DEBUG");
    QFile::remove(m_folder.filePath("mesh.png"));
    QCOMPARE(usual.status, 0);
    QVERIFY2(!usual.errors.contains("createCellData"), qPrintable(usual.errors));
    QVERIFY2(asked.errors.contains("createCellData"), qPrintable(asked.errors));
}

void TestVoranview::pictureHasTheSizeAndTheRelief()
{
    QFETCH(QSize, size);
    const QString path = m_folder.filePath("relief.png");
    const Outcome outcome =
        runViewer({example, "--png", path, "--size", QString("%1x%2").arg(size.width()).arg(size.height())});
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files), QStringList{"relief.png"});
    const QImage image(path);
    QCOMPARE(image.size(), size);
    QVERIFY2(colours(image) > 500, qPrintable(QString::number(colours(image))));
    // The low country is green and takes a good part of the picture; the corners are background.
    const int shorter = qMin(size.width(), size.height());
    QVERIFY(pixels(image, isGreen) > shorter * shorter / 10);
    QCOMPARE(QColor(image.pixel(0, 0)), QColor(Qt::white));
    QCOMPARE(QColor(image.pixel(0, size.height() - 1)), QColor(Qt::white));
    QVERIFY(QFile::remove(path));
}

void TestVoranview::stylesDiffer()
{
    // The plot's own words for the styles serve too, in any case of letters.
    QMap<QString, QImage> images;
    for (const QString style :
         {"none", "POINTS", "wireframe", "Hidden line", "filled", "mesh", "histogram"}) {
        const QString path = m_folder.filePath("style.png");
        const Outcome outcome = runViewer({example, "--style", style, "--png", path, "--size", "400x300"});
        QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
        const QImage image(path);
        for (const QImage& other : qAsConst(images))
            QVERIFY2(image != other, qPrintable(style));
        images.insert(style, image);
    }
    // The legend is in every picture.
    const int legend = pixels(images.value("none"), isGreen);
    const auto green = [&](const char* style) { return pixels(images.value(style), isGreen) - legend; };
    QCOMPARE(green("wireframe"), 0);
    QCOMPARE(green("Hidden line"), 0);
    for (const char* style : {"POINTS", "filled", "mesh", "histogram"})
        QVERIFY2(green(style) > 4000, style);
    const auto dark = [&images](const char* style) {
        return pixels(images.value(style), [](const QColor& colour) { return colour.lightness() < 80; });
    };
    QVERIFY2(2 * dark("mesh") > 3 * dark("filled"),
             qPrintable(QString("%1 %2").arg(dark("mesh")).arg(dark("filled"))));
}

void TestVoranview::looksDiffer()
{
    const QMap<QString, QColor> backgrounds{
        {"light", Qt::white}, {"Dark", QColor(36, 39, 44)}, {"PRINT", Qt::white}};
    QMap<QString, QImage> images;
    for (const QString& look : backgrounds.keys()) {
        const QString path = m_folder.filePath("look.png");
        const Outcome outcome = runViewer({example, "--look", look, "--png", path, "--size", "400x300"});
        QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
        images.insert(look, QImage(path));
        QCOMPARE(QColor(images.value(look).pixel(0, 0)), backgrounds.value(look));
        QVERIFY(QFile::remove(path));
    }
    QVERIFY(images.value("light") != images.value("PRINT"));
}

void TestVoranview::failureLeavesAnExistingPicture()
{
    const QString path = m_folder.filePath("kept.png");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("old") == 3);
    file.close();
    QCOMPARE(runViewer({example, "--band", "2", "--png", path}).status, 1);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("old"));
}

int main(int argc, char* argv[])
{
    return harness::run<TestVoranview>(argc, argv);
}

#include "tst_voranview.moc"
