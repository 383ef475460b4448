// The house rules that a machine can check: who includes whom, and how long a file may grow.

#include "harness/harness.h"

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QtTest>

namespace {

const QString source = QStringLiteral(VORAN_SOURCE_DIR "/src");

/// Which folders a folder may include; a missing folder may include nothing.
const QMap<QString, QStringList> allowed = {
    {"core", {"core"}},
    {"gradients", {"gradients"}},
    {"view", {"core", "view"}},
    {"scene", {"core", "view", "scene"}},
    {"plots", {"core", "view", "scene", "gradients", "plots"}},
    {"export", {"core", "view", "scene", "gradients", "plots", "export"}},
    {"settings", {"core", "view", "scene", "gradients", "plots", "settings"}},
};

/// The view's headers that the scene may see: the guards and the entry points, not the widget.
const QStringList sceneSees = {"view/glmode.h", "view/glscopes.h", "view/opengl.h", "view/rotateonto.h"};

/// The arrows that point up, each from a source file alone.
const QMap<QString, QStringList> upwards = {
    {"core/datacolor.cpp", {"plots/baseplot.h"}},
    {"view/plotstatusbar.cpp", {"plots/baseplot.h"}},
    {"core/function.cpp", {"plots/shplot.h"}},
    {"core/gridmapping.cpp", {"plots/shplot.h"}},
    {"core/parametricsurface.cpp", {"plots/shplot.h"}},
    {"core/testcelldata.cpp", {"plots/shplot.h"}},
    {"core/watersurface.cpp", {"plots/shplot.h"}},
    {"plots/shplot.cpp", {"settings/plotsettingsdialog.h"}},
    {"plots/spectrum.cpp", {"settings/plotsettingsdialog.h"}},
};

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestArchitecture : public QObject
{
    Q_OBJECT
private slots:
    void sources_data();
    void sources();
    void examplesStayShort();
};

void TestArchitecture::sources_data()
{
    QTest::addColumn<QString>("path");
    QDirIterator files(source, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = QDir(source).relativeFilePath(files.next());
        QTest::newRow(qPrintable(path)) << path;
    }
}

void TestArchitecture::sources()
{
    QFETCH(QString, path);
    const QByteArray text = contents(source + '/' + path);
    QVERIFY(!text.isEmpty());
    QVERIFY2(text.count('\n') <= 520, "the file has grown past one duty");
    const QString folder = path.section('/', 0, 0);
    QVERIFY2(allowed.contains(folder), "the folder is not part of the house");
    QRegularExpressionMatchIterator includes =
        QRegularExpression("^#include \"([a-z0-9]+)/([a-z0-9_]+\\.h)\"", QRegularExpression::MultilineOption)
            .globalMatch(QString::fromUtf8(text));
    while (includes.hasNext()) {
        const QRegularExpressionMatch match = includes.next();
        const QString included = match.captured(1) + '/' + match.captured(2);
        if (upwards.value(path).contains(included))
            continue;
        QVERIFY2(allowed.value(folder).contains(match.captured(1)),
                 qPrintable(path + " includes " + included));
        if (folder == "scene" && match.captured(1) == "view")
            QVERIFY2(sceneSees.contains(included), qPrintable(path + " includes " + included));
    }
}

void TestArchitecture::examplesStayShort()
{
    const QDir examples(VORAN_SOURCE_DIR "/examples");
    const QStringList files = examples.entryList({"*.cpp"}, QDir::Files);
    QVERIFY(files.contains("surface.cpp"));
    for (const QString& file : files) {
        // What they share is not there to be read.
        if (file != "example.cpp")
            QVERIFY2(contents(examples.filePath(file)).count('\n') < 80, qPrintable(file));
    }
}

int main(int argc, char* argv[])
{
    return harness::run<TestArchitecture>(argc, argv);
}

#include "tst_architecture.moc"
