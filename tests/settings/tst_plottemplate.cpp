#include "settings/plottemplate.h"

#include "core/gradientstops.h"
#include "plots/spectrum.h"
#include "settings/templateactions.h"
#include "settings/templatetext.h"
#include "settingsfixture.h"

#include <QAction>
#include <QTemporaryDir>
#include <QUndoStack>

#include <csignal>
#include <memory>
#include <sys/resource.h>

using Zel3D::BasePlot;
using Zel3D::Field;
using Zel3D::PlotTemplate;

namespace {

constexpr int everything = PlotTemplate::Appearance | PlotTemplate::View;

std::unique_ptr<BasePlot> makePlot(const QString& kind)
{
    std::unique_ptr<BasePlot> plot;
    if (kind == "surface")
        plot = std::make_unique<Zel3D::SHPlot>("plot", fixture::organization, fixture::application);
    else
        plot = std::make_unique<Zel3D::Spectrum>("plot", fixture::organization, fixture::application);
    plot->setBoxScaling(Zel3D::ManualScaling);
    plot->setGradient("ramp", fixture::ramp());
    return plot;
}

/// Changes every setting that a template holds.
void changeAll(BasePlot& plot)
{
    for (const Field& field : PlotTemplate::fields(plot, everything)) {
        if (field.id != "common/boxScaling")
            field.write(fixture::otherValue(field, field.read()));
    }
    plot.setGradient("other", fixture::plain(QColor(1, 2, 3, 100)));
}

/// "key = value" of what differs between two templates.
QStringList differences(const PlotTemplate& a, const PlotTemplate& b)
{
    QStringList found;
    for (const QString& key : a.getEntries().keys() + b.getEntries().keys()) {
        const QString value = a.getEntries().value(key);
        const QString other = b.getEntries().value(key);
        // Directions of lights are computed from angles.
        if (value != other &&
            qAbs(value.toDouble() - other.toDouble()) > 1e-6 * (1.0 + qAbs(value.toDouble())))
            found.append(QString("%1 = %2, not %3").arg(key, other, value));
        else if (value != other && value.toDouble() == 0.0 && value != "0" && other != "0")
            found.append(QString("%1 = %2, not %3").arg(key, other, value));
    }
    found.removeDuplicates();
    return found;
}

QStringList skippedKeys(const PlotTemplate::Report& report)
{
    QStringList keys;
    for (const Zel3D::SkippedEntry& entry : report.skipped)
        keys.append(entry.key);
    return keys;
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QByteArray head = "[template]\ntype=plot appearance\nversion=1\n";

} // namespace

class TestPlotTemplate : public QObject
{
    Q_OBJECT
private slots:
    void everySettingComesBack_data();
    void everySettingComesBack();
    void choicesHaveNames_data();
    void choicesHaveNames();
    void damageIsNamed_data();
    void damageIsNamed();
    void cutOffFilesStateNothingWrong();
    void refusedFiles_data();
    void refusedFiles();
    void failedSavingKeepsTheOldFile_data();
    void failedSavingKeepsTheOldFile();
    void surfaceToSpectrum();
    void viewOnDemand();
    void settingsThatLimitEachOther();
    void gradientsOfThePlotStay();
    void oneStepInTheDialog();
    void cancelTakesATemplateBack();
    void boxNamesWhatWasLeftOut();

private:
    QString path(const QString& name = "look.plottemplate") const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void TestPlotTemplate::everySettingComesBack_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("changed");
    QTest::newRow("surface, changed") << "surface" << true;
    QTest::newRow("surface, as constructed") << "surface" << false;
    QTest::newRow("spectrum, changed") << "spectrum" << true;
    QTest::newRow("spectrum, as constructed") << "spectrum" << false;
}

void TestPlotTemplate::everySettingComesBack()
{
    QFETCH(QString, kind);
    QFETCH(bool, changed);
    const auto source = makePlot(kind);
    const auto target = makePlot(kind);
    changeAll(changed ? *source : *target);
    const PlotTemplate wanted = PlotTemplate::of(*source, everything);
    QVERIFY(wanted.getEntries().size() > 200);
    QVERIFY(differences(wanted, PlotTemplate::of(*target, everything)).size() > 190);

    QString error;
    QVERIFY2(wanted.save(path(), &error), qPrintable(error));
    PlotTemplate loaded;
    QVERIFY2(loaded.load(path(), &error), qPrintable(error));
    QCOMPARE(loaded.getEntries(), wanted.getEntries());
    const PlotTemplate::Report report = loaded.applyTo(*target);
    QCOMPARE(report.text(), QString("Settings applied: %1.").arg(report.applied));
    QCOMPARE(differences(wanted, PlotTemplate::of(*target, everything)), QStringList());
    QCOMPARE(target->getCurrentGradient().stops(), source->getCurrentGradient().stops());
}

void TestPlotTemplate::choicesHaveNames_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("surface") << "surface";
    QTest::newRow("spectrum") << "spectrum";
}

void TestPlotTemplate::choicesHaveNames()
{
    QFETCH(QString, kind);
    const auto plot = makePlot(kind);
    for (const Field& field : PlotTemplate::fields(*plot, everything)) {
        if (field.kind != Field::Choice || field.id.endsWith("/minor"))
            continue;
        QStringList names;
        for (const Field::Offer& offer : field.offers) {
            const QString name = Zel3D::TemplateText::offerName(*plot, field, offer.value);
            // The names are the shown texts in English.
            QCOMPARE(name, offer.text.toLower());
            QVERIFY2(!names.contains(name), qPrintable(field.id));
            names.append(name);
        }
    }
}

void TestPlotTemplate::damageIsNamed_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QStringList>("skipped");
    QTest::newRow("word for number") << QByteArray("[style]\nmeshWidth=wide\n")
                                     << QStringList{"style/meshWidth"};
    QTest::newRow("out of range") << QByteArray("[style]\nmeshWidth=1000\n")
                                  << QStringList{"style/meshWidth"};
    QTest::newRow("negative") << QByteArray("[style]\nmeshWidth=-1\n") << QStringList{"style/meshWidth"};
    QTest::newRow("not a number") << QByteArray("[style]\nmeshWidth=nan\n") << QStringList{"style/meshWidth"};
    QTest::newRow("infinite") << QByteArray("[common]\npolygonOffset=inf\n")
                              << QStringList{"common/polygonOffset"};
    QTest::newRow("empty") << QByteArray("[style]\nmeshWidth=\n") << QStringList{"style/meshWidth"};
    QTest::newRow("overflow") << QByteArray("[scales]\nx\\linear\\major=99999999999\n")
                              << QStringList{"scales/x/linear/major"};
    QTest::newRow("no color") << QByteArray("[style]\nmeshColor=#12345\n") << QStringList{"style/meshColor"};
    QTest::newRow("no switch") << QByteArray("[style]\nmeshX=maybe\n") << QStringList{"style/meshX"};
    QTest::newRow("no font") << QByteArray("[title]\nfont=\"Sans, -3 pt\"\n") << QStringList{"title/font"};
    QTest::newRow("no choice") << QByteArray("[common]\nshading=7\n") << QStringList{"common/shading"};
    QTest::newRow("unknown key") << QByteArray("[style]\nglitter=true\n") << QStringList{"style/glitter"};
    QTest::newRow("of the data") << QByteArray("[title]\ntext=Mine\n") << QStringList{"title/text"};
    QTest::newRow("no entry") << QByteArray("meshWidth\n") << QStringList{"line 7"};
    QTest::newRow("lost quotation mark")
        << QByteArray("[title]\nfont=\"Sans, 8 pt\n") << QStringList{"line 8"};
    QTest::newRow("object") << QByteArray("[style]\nmeshColor=@Variant(\\0\\0\\0\\x43\\x1)\n")
                            << QStringList{"line 8"};
    QTest::newRow("hidden object") << QByteArray("[style]\nmeshColor=\\x40Variant(\\0)\n")
                                   << QStringList{"line 8"};
    QTest::newRow("bytes") << QByteArray("[style]\n\x80\xff\0\x01=\x02\xfe\n", 16) << QStringList{"line 8"};
    QTest::newRow("stop outside") << QByteArray("[gradient]\nstops=\"0 #ff000000, 1.5 #ffffffff\"\n")
                                  << QStringList{"gradient/stops"};
    QTest::newRow("stops that fall") << QByteArray("[gradient]\nstops=\"0.5 #ff000000, 0 #ffffffff\"\n")
                                     << QStringList{"gradient/stops"};
    QTest::newRow("stop without color")
        << QByteArray("[gradient]\nstops=\"0 #ff000000, 1\"\n") << QStringList{"gradient/stops"};
    QTest::newRow("gradient without stops")
        << QByteArray("[gradient]\nname=Empty\n") << QStringList{"gradient/name"};
    QTest::newRow("endless gradient")
        << "[gradient]\nstops=\"" + QByteArray("0 #ff000000,").repeated(1000) + "1 #ff000000\"\n"
        << QStringList{"gradient/stops"};
    QTest::newRow("kept by another setting")
        << QByteArray("[grid]\nmajorWidth=1\nminorWidth=3\n") << QStringList{"grid/minorWidth"};
    QTest::newRow("last line cut off") << QByteArray("[style]\nmeshWidth=1") << QStringList{"line 8"};
}

void TestPlotTemplate::damageIsNamed()
{
    QFETCH(QByteArray, lines);
    QFETCH(QStringList, skipped);
    const auto plot = makePlot("surface");
    QMap<QString, QString> expected = PlotTemplate::of(*plot, everything).getEntries();
    expected["common/background"] = "#ff102030";
    expected["axes/axis0/line/width"] = "2.5";
    // The valid entries stand before and behind the damaged ones.
    const QByteArray before = "[common]\nbackground=#102030\n";
    const QByteArray behind = lines.endsWith('\n') ? "[axes]\naxis0\\line\\width=2.5\n" : "";
    if (behind.isEmpty())
        expected["axes/axis0/line/width"] =
            PlotTemplate::of(*plot).getEntries().value("axes/axis0/line/width");
    writeFile(path(), head + "\n" + before + lines + behind);

    PlotTemplate look;
    QString error;
    QVERIFY2(look.load(path(), &error), qPrintable(error));
    const PlotTemplate::Report report = look.applyTo(*plot);
    QCOMPARE(skippedKeys(report), skipped);
    QVERIFY(report.skipped.first().reason.endsWith('.'));
    QVERIFY(report.text().contains(report.skipped.first().reason));
    QMap<QString, QString> now = PlotTemplate::of(*plot, everything).getEntries();
    if (skipped.first() == "grid/minorWidth") {
        QCOMPARE(now.value("grid/majorWidth"), now.value("grid/minorWidth"));
        now["grid/majorWidth"] = expected["grid/majorWidth"];
        now["grid/minorWidth"] = expected["grid/minorWidth"];
    }
    QCOMPARE(now, expected);
}

void TestPlotTemplate::cutOffFilesStateNothingWrong()
{
    const auto source = makePlot("surface");
    changeAll(*source);
    const PlotTemplate wanted = PlotTemplate::of(*source);
    QVERIFY(wanted.save(path()));
    const QByteArray whole = readFile(path());
    for (int size = 0; size < whole.size(); size += 7) {
        writeFile(path("cut"), whole.left(size));
        PlotTemplate cut;
        if (!cut.load(path("cut")))
            continue;
        for (auto entry = cut.getEntries().cbegin(); entry != cut.getEntries().cend(); ++entry)
            QCOMPARE(entry.value(), wanted.getEntries().value(entry.key()));
    }
}

void TestPlotTemplate::refusedFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("problem");
    const QByteArray setting = "[common]\nbackground=#102030\n";
    QTest::newRow("newer version") << QByteArray("[template]\ntype=plot appearance\nversion=2\n") + setting
                                   << "newer version";
    QTest::newRow("no version") << setting << "no template";
    QTest::newRow("another type") << QByteArray("[template]\ntype=letter\nversion=1\n") + setting
                                  << "no template";
    QTest::newRow("version 0") << QByteArray("[template]\ntype=plot appearance\nversion=0\n") + setting
                               << "no template";
    QTest::newRow("binary") << QByteArray("\x7f"
                                          "ELF\0\x01\n=\n[\n%%\xff\xfe",
                                          14)
                            << "no template";
    QTest::newRow("empty") << QByteArray() << "no template";
    QTest::newRow("huge") << head + setting + QByteArray(1100000, 'x') << "larger than";
}

void TestPlotTemplate::refusedFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);
    writeFile(path(), bytes);
    PlotTemplate look;
    QString error;
    QVERIFY(!look.load(path(), &error));
    QVERIFY2(error.contains(problem), qPrintable(error));
    const auto plot = makePlot("surface");
    QCOMPARE(look.applyTo(*plot).applied, 0);
    QCOMPARE(plot->getBackgroundColor(), QColor(Qt::white));
    // What is no file is not opened: reading a pipe would wait for ever.
    QVERIFY(!look.load(m_folder.path(), &error));
    QVERIFY(!look.load(path("missing"), &error));
    QVERIFY(error.contains("missing"));
}

void TestPlotTemplate::failedSavingKeepsTheOldFile_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("full");
    QTest::newRow("missing folder") << "no/such/folder/look" << false;
    QTest::newRow("a file as folder") << "old/look" << false;
    QTest::newRow("full disk") << "old" << true;
}

void TestPlotTemplate::failedSavingKeepsTheOldFile()
{
    QFETCH(QString, file);
    QFETCH(bool, full);
    writeFile(path("old"), "precious");
    const auto plot = makePlot("surface");
    const PlotTemplate look = PlotTemplate::of(*plot);
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = before;
    small.rlim_cur = 1000;
    if (full)
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    QString error;
    const bool saved = look.save(path(file), &error);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
    QVERIFY(!saved);
    QVERIFY(error.endsWith('.'));
    QCOMPARE(readFile(path("old")), QByteArray("precious"));
    QCOMPARE(QFileInfo::exists(path("no")), false);
}

void TestPlotTemplate::surfaceToSpectrum()
{
    const auto surface = makePlot("surface");
    const auto spectrum = makePlot("spectrum");
    surface->setPlotStyle(2);
    surface->setBackgroundColor(QColor(9, 8, 7));
    const int style = spectrum->getSettings().getStyle();
    const PlotTemplate::Report report = PlotTemplate::of(*surface).applyTo(*spectrum);
    QCOMPARE(skippedKeys(report), QStringList{"style/style"});
    QCOMPARE(report.skipped.first().value, QString("wireframe"));
    QVERIFY(report.skipped.first().reason.contains("filled and frame"));
    QCOMPARE(spectrum->getSettings().getStyle(), style);
    QCOMPARE(spectrum->getBackgroundColor(), QColor(9, 8, 7));
    // "filled" is the fifth style of the one and the fourth of the other.
    surface->setPlotStyle(4);
    QVERIFY(PlotTemplate::of(*surface).applyTo(*spectrum).skipped.isEmpty());
    QCOMPARE(spectrum->getSettings().getStyle(), 3);
}

void TestPlotTemplate::viewOnDemand()
{
    const auto source = makePlot("surface");
    const auto target = makePlot("surface");
    source->setRotation({10.0, 20.0, 30.0});
    source->setScale({2.0, 3.0, 4.0});
    PlotTemplate::of(*source).applyTo(*target);
    QVERIFY(!(target->getRotation() != Zel3D::ValueXYZ<double>()));
    PlotTemplate::of(*source, PlotTemplate::View).applyTo(*target);
    QVERIFY(!(target->getRotation() != source->getRotation()));
    QVERIFY(!(target->getScale() != source->getScale()));
    // A scale that automatic scaling made from the data is not kept.
    source->setBoxScaling(Zel3D::CubeScaling);
    QVERIFY(!PlotTemplate::of(*source, PlotTemplate::View).getEntries().contains("common/scaleX"));
}

void TestPlotTemplate::settingsThatLimitEachOther()
{
    // Minor lines are never wider than major ones: the major ones can shrink only after the minor ones.
    const auto source = makePlot("surface");
    const auto target = makePlot("surface");
    source->getCoordinateSystem().setMinorLineWidth(0.5);
    source->getCoordinateSystem().setMajorLineWidth(1.0);
    target->getCoordinateSystem().setMajorLineWidth(5.0);
    target->getCoordinateSystem().setMinorLineWidth(3.0);
    const PlotTemplate look = PlotTemplate::of(*source);
    QVERIFY(look.applyTo(*target).skipped.isEmpty());
    QCOMPARE(target->getCoordinateSystem().getSettings().getMajorLineWidth(), 1.0);
    QCOMPARE(target->getCoordinateSystem().getSettings().getMinorLineWidth(), 0.5);
}

void TestPlotTemplate::gradientsOfThePlotStay()
{
    const auto source = makePlot("surface");
    const auto target = makePlot("surface");
    source->setGradient("ramp", fixture::plain(Qt::red));
    const PlotTemplate look = PlotTemplate::of(*source);
    look.applyTo(*target);
    look.applyTo(*target);
    const auto& gradients = target->getSettings().getGradients();
    QCOMPARE(gradients.getGradients().keys(), (QStringList{"ramp", "ramp 2"}));
    QCOMPARE(Zel3D::gradientStops(gradients.getGradients()["ramp"]), Zel3D::gradientStops(fixture::ramp()));
    QCOMPARE(gradients.getCurrent(), QString("ramp 2"));
}

void TestPlotTemplate::oneStepInTheDialog()
{
    const auto source = makePlot("surface");
    changeAll(*source);
    QVERIFY(PlotTemplate::of(*source).save(path()));
    const auto plot = makePlot("surface");
    const PlotTemplate before = PlotTemplate::of(*plot, everything);
    Zel3D::PlotSettingsDialog dialog(nullptr, fixture::organization, fixture::application, plot.get());
    QUndoStack& stack = dialog.getBinder().getUndoStack();
    Zel3D::TemplateActions actions(plot.get(), &dialog, &stack);
    QVERIFY(actions.applyFrom(path()));
    QCOMPARE(stack.count(), 1);
    QCOMPARE(differences(PlotTemplate::of(*source), PlotTemplate::of(*plot)), QStringList());
    stack.undo();
    QCOMPARE(differences(before, PlotTemplate::of(*plot, everything)), QStringList());
    stack.redo();
    QCOMPARE(differences(PlotTemplate::of(*source), PlotTemplate::of(*plot)), QStringList());
}

void TestPlotTemplate::cancelTakesATemplateBack()
{
    const auto source = makePlot("surface");
    changeAll(*source);
    QVERIFY(PlotTemplate::of(*source).save(path()));
    const auto plot = makePlot("surface");
    const PlotTemplate before = PlotTemplate::of(*plot, everything);
    Zel3D::SettingsDialogOptions options;
    // A template changes what hidden pages show, too.
    options.setPageVisible("lighting", false);
    options.setPageVisible("plotstyle", false);
    Zel3D::PlotSettingsDialog dialog(&options, fixture::organization, fixture::application, plot.get());
    Zel3D::TemplateActions actions(plot.get(), &dialog, &dialog.getBinder().getUndoStack());
    QVERIFY(actions.applyFrom(path()));
    dialog.reject();
    QCOMPARE(differences(before, PlotTemplate::of(*plot, everything)), QStringList());
}

void TestPlotTemplate::boxNamesWhatWasLeftOut()
{
    const auto plot = makePlot("surface");
    QWidget window;
    window.show();
    Zel3D::TemplateActions actions(plot.get(), &window);
    writeFile(path(), head + "[style]\nmeshWidth=<b>wide</b>\nmeshX=false\n");
    const QString text = harness::boxText([&] { QVERIFY(actions.applyFrom(path())); });
    QVERIFY2(text.contains("style/meshWidth = <b>wide</b>: "), qPrintable(text));
    writeFile(path(), "nothing");
    QVERIFY(harness::boxText([&] { QVERIFY(!actions.applyFrom(path())); }).contains("no template"));
    QVERIFY(harness::boxText([&] {
                QVERIFY(!actions.saveTo(path("no/where"), everything));
            }).contains("cannot be written"));
}

int main(int argc, char* argv[])
{
    return harness::run<TestPlotTemplate>(argc, argv);
}

#include "tst_plottemplate.moc"
