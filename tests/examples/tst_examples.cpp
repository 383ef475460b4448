// Every example takes its picture, and what an example cannot read it refuses with a sentence.

#include "harness/harness.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <utility>

namespace {

struct Outcome
{
    int status = -1;
    QString errors;
};

Outcome start(const QString& example, const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(VORAN_EXAMPLES "/") + example, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
}

/// The part of the middle of a picture, where the data are, that differs from its background.
double drawnPart(const QImage& image)
{
    const QRect middle(image.width() / 4, image.height() / 4, image.width() / 2, image.height() / 2);
    const QRgb background = image.pixel(2, image.height() - 60);
    int drawn = 0;
    for (int y = middle.top(); y <= middle.bottom(); ++y) {
        for (int x = middle.left(); x <= middle.right(); ++x)
            drawn += image.pixel(x, y) != background ? 1 : 0;
    }
    return double(drawn) / (middle.width() * middle.height());
}

} // namespace

class TestExamples : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(folder.isValid()); }
    void picture_data();
    void picture();
    void refusal_data();
    void refusal();

private:
    QTemporaryDir folder;
    QList<std::pair<QString, QImage>> taken;
};

void TestExamples::picture_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = QString(VORAN_EXAMPLE_NAMES).split(',');
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void TestExamples::picture()
{
    QFETCH(QString, name);
    const QString file = folder.filePath(name + ".png");
    const Outcome outcome = start(name, {"--picture", file, "--size", "640x480"});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    const QImage image(file);
    QCOMPARE(image.size(), QSize(640, 480));
    // Axes and grid alone take about a twentieth.
    const double drawn = drawnPart(image);
    QVERIFY2(drawn > 0.15, qPrintable(QString::number(drawn)));
    for (const auto& other : qAsConst(taken))
        QVERIFY2(image != other.second, qPrintable("the same picture as " + other.first));
    taken.append({name, image});
}

void TestExamples::refusal_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    const QString header = "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\nNODATA_value -1\n";
    QTest::newRow("no grid") << "elevation"
                             << "hello"
                             << "header lines";
    QTest::newRow("grid without end") << "elevation" << header + "1 2 3"
                                      << "too few heights";
    QTest::newRow("no mesh") << "cellmesh"
                             << "hello"
                             << "is not a whole OFF file";
    QTest::newRow("mesh without end") << "cellmesh"
                                      << "OFF\n3 1 0\n0 0 0\n1 0"
                                      << "is not a whole OFF file";
    QTest::newRow("mesh of unknown corners") << "cellmesh"
                                             << "OFF\n1 1 0\n0 0 0\n1 7\n"
                                             << "cannot be drawn";
    QTest::newRow("no spectra") << "spectra"
                                << "sample,900\n"
                                << "no spectra";
    QTest::newRow("short spectrum") << "spectra"
                                    << "sample,900,902\n1,0.5\n"
                                    << "line 2";
    QTest::newRow("no number") << "spectra"
                               << "sample,900\n1,x\n"
                               << "not a number";
}

void TestExamples::refusal()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QString, reason);
    QFile file(folder.filePath("damaged"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) == text.size());
    file.close();
    const QString picture = folder.filePath("none.png");
    const Outcome outcome = start(name, {"--picture", picture, file.fileName()});
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains(reason), qPrintable(outcome.errors));
    QVERIFY(!QFile::exists(picture));
}

int main(int argc, char* argv[])
{
    return harness::run<TestExamples>(argc, argv);
}

#include "tst_examples.moc"
