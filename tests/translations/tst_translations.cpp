// The translations are complete and right in form, and plots follow them.

#include "core/translations.h"
#include "gradients/gradientmanager.h"
#include "harness/harness.h"
#include "plots/baseplotsettings.h"
#include "plots/look.h"
#include "plots/shplot.h"
#include "plots/spectrum.h"
#include "plots/styleaction.h"
#include "view/plotstatusbar.h"

#include <QDir>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QToolBar>
#include <QXmlStreamReader>
#include <QtTest>

using namespace Zel3D;

namespace {

constexpr char organization[] = "voran-test";
const QDir translations(VORAN_SOURCE_DIR "/translations");

/// What a text has in common with its translation.
struct Mark
{
    const char* name;
    const char* pattern;
};

constexpr Mark marks[] = {
    {"placeholders", "%(?:L?\\d|n)"},
    {"mnemonic", "&(?=[^&\\s])"},
    {"suspension points or colon at the end", "(?:\\.\\.\\.|:)$"},
    {"full stop at the end", "(?<!\\.)\\.$"},
    {"blank at the beginning", "^[\\s\u00a0]"},
    {"lines", "\\n"},
    {"options", "--[a-z%]+"},
    {"patterns of files", "\\*[\\w.%]*"},
};

/// What a language does not write.
const QMap<QString, QString> faults = {
    {"de", "\"|“[^„]*“|''|  |\\s$"},
    {"fr", "[\"'“”„]|[^\\s\u00a0\\d:?*][:;!?](?!\\w)(?![;)=])| [:;!?»]|« |  |\\s$"},
};

QStringList sorted(const QString& text, const char* pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator all =
        QRegularExpression(pattern, QRegularExpression::UseUnicodePropertiesOption).globalMatch(text);
    while (all.hasNext())
        found.append(all.next().captured());
    // No-break spaces stand for blanks.
    found.replaceInStrings(QString(QChar::Nbsp), QStringLiteral(" "));
    found.sort();
    return found;
}

/// The faults of one translation.
QStringList faultsOf(const QString& source, const QString& translation, const QString& language)
{
    QStringList found;
    if (translation.isEmpty())
        return {source + ": is missing"};
    for (const Mark& mark : marks) {
        if (sorted(source, mark.pattern) != sorted(translation, mark.pattern))
            found.append(QString("%1: %2: %3").arg(source, translation, mark.name));
    }
    // Filters of files, key names and formulas are not prose.
    if (!source.contains(";;") && !source.contains("?:"))
        for (const QString& fault : sorted(translation, qPrintable(faults.value(language))))
            found.append(QString("%1: %2: \"%3\" is not written so").arg(source, translation, fault));
    return found;
}

QStringList styleTexts(const BasePlot& plot)
{
    QStringList texts;
    for (const StyleAction* action : plot.getStyleActions())
        texts.append(action->text() + '|' + action->toolTip());
    return texts;
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();
    void everyTextIsTranslated();
    void formOfTranslations_data();
    void formOfTranslations();
    void languageFollowsTheLocale_data();
    void languageFollowsTheLocale();
    void plotFollowsTheLanguage();
    void statusBarFollowsTheLanguage();
    void storesSpeakNoLanguage();
};

void TestTranslations::cleanup()
{
    Translations::remove();
    harness::clearStore();
}

void TestTranslations::everyTextIsTranslated()
{
    QProcess script;
    script.setProcessChannelMode(QProcess::MergedChannels);
    script.start(VORAN_SOURCE_DIR "/tools/update-translations", {"--check"});
    QVERIFY(script.waitForFinished(60000));
    QVERIFY2(script.exitStatus() == QProcess::NormalExit && script.exitCode() == 0,
             script.readAll().constData());
}

void TestTranslations::formOfTranslations_data()
{
    QTest::addColumn<QString>("language");
    const QStringList files = translations.entryList({"*.ts"}, QDir::Files);
    QCOMPARE(files.size(), 2 * (Translations::languages().size() - 1));
    for (const QString& file : files)
        QTest::newRow(qPrintable(file)) << file.section('_', 1).section('.', 0, 0);
}

void TestTranslations::formOfTranslations()
{
    QFETCH(QString, language);
    QFile file(translations.filePath(QTest::currentDataTag()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QString source;
    QStringList found;
    int count = 0;
    while (!xml.atEnd()) {
        const bool starts = xml.readNext() == QXmlStreamReader::StartElement;
        if (starts && xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        // A plural has several forms.
        if (!starts ||
            (xml.name() != QLatin1String("translation") && xml.name() != QLatin1String("numerusform")))
            continue;
        if (xml.name() == QLatin1String("translation") && source.contains("%n"))
            continue;
        found += faultsOf(source, xml.readElementText(), language);
        ++count;
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(count > 100);
    QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
}

void TestTranslations::languageFollowsTheLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("filled");
    QTest::newRow("German") << "de_DE"
                            << "de"
                            << "Gefüllt";
    QTest::newRow("Austrian German") << "de_AT"
                                     << "de"
                                     << "Gefüllt";
    QTest::newRow("French") << "fr_FR"
                            << "fr"
                            << "Rempli";
    QTest::newRow("English") << "en_GB"
                             << "en"
                             << "Filled";
    QTest::newRow("none of the languages") << "ja_JP"
                                           << "en"
                                           << "Filled";
    QTest::newRow("C") << "C"
                       << "en"
                       << "Filled";
}

void TestTranslations::languageFollowsTheLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, language);
    QFETCH(QString, filled);
    // In place of another one.
    Translations::install(QLocale("fr"));
    QCOMPARE(Translations::install(QLocale(locale)), language);
    QCOMPARE(SHPlot::tr("Filled"), filled);
    Translations::remove();
    QCOMPARE(SHPlot::tr("Filled"), QString("Filled"));
}

void TestTranslations::plotFollowsTheLanguage()
{
    QMainWindow window;
    auto* plot = new SHPlot("plot", organization, organization);
    window.setCentralWidget(plot);
    Spectrum alone("spectrum", organization, organization);
    QToolBar* views = plot->getToolBar(ViewsToolBar);
    window.addToolBar(views);
    const QStringList english = styleTexts(*plot);
    QAction* own = plot->getToolBar(GridStyleToolBar)->actions().first();
    own->setText("North");
    alone.getStyleActions().at(2)->setToolTip("Curves");

    Translations::install(QLocale("de"));
    QCoreApplication::processEvents();
    QCOMPARE(views->windowTitle(), QString("Ansichten"));
    QCOMPARE(views->actions().first()->text(), QString("Ansicht von &oben"));
    QCOMPARE(views->actions().first()->statusTip(), QString("Ansicht von oben"));
    QCOMPARE(plot->getStyleActions().at(2)->text(), QString("Drahtgitter"));
    QStringList menu;
    for (const QAction* action : plot->getContextMenu()->actions())
        menu.append(action->text());
    menu.removeAll(QString());
    QCOMPARE(menu, (QStringList{"Gitter", "Darstellung", "Ansichten", "Einstellungen"}));
    // What the host says is the host's.
    QCOMPARE(own->text(), QString("North"));
    QCOMPARE(own->toolTip(), QString("Oben"));
    QCOMPARE(alone.getStyleActions().at(2)->text(), QString("Linien"));
    QCOMPARE(alone.getStyleActions().at(2)->toolTip(), QString("Curves"));

    Translations::install(QLocale("fr"));
    QCoreApplication::processEvents();
    QCOMPARE(views->actions().first()->text(), QString("Vue de &dessus"));
    QCOMPARE(own->toolTip(), QString("Dessus"));
    Translations::remove();
    QCoreApplication::processEvents();
    QCOMPARE(styleTexts(*plot), english);
    QCOMPARE(views->actions().first()->text(), QString("&Top view"));
}

void TestTranslations::statusBarFollowsTheLanguage()
{
    SHPlot plot("plot", organization, organization);
    PlotStatusBar bar(&plot);
    plot.setZoom(2.0);
    QLabel* zoom = bar.findChildren<QLabel*>().last();
    QCOMPARE(zoom->text(), QString("Zoom: 2"));
    Translations::install(QLocale("fr"));
    QCoreApplication::processEvents();
    QCOMPARE(zoom->text(), QString("Zoom\u00a0: 2"));
    QCOMPARE(bar.findChildren<QLabel*>().first()->toolTip(), QString("Rotation\u00a0: [X;Y;Z]"));
}

void TestTranslations::storesSpeakNoLanguage()
{
    Translations::install(QLocale("de"));
    QCOMPARE(Look::dark().name, QString("Dark"));
    QCOMPARE(Look::dark().getTitle(), QString("Dunkel"));
    const QLinearGradient gradient;
    BasePlot::GradientsSettings german;
    german.setData("Vorgabe", {{"Vorgabe", gradient}, {"warm", gradient}});
    german.saveSettings("plot", organization, organization);
    const QSettings store(organization, organization);
    QCOMPARE(store.value("plot/gradients/current").toString(), QString("Default"));
    QCOMPARE(store.value("plot/gradients/names").toStringList(), (QStringList{"Default", "warm"}));
    Translations::install(QLocale("fr"));
    BasePlot::GradientsSettings french;
    french.loadSettings("plot", organization, organization);
    QCOMPARE(french.getCurrent(), GradientManager(nullptr, gradient).gradients().firstKey());
    QCOMPARE(french.getCurrent(), QString("Par défaut"));
}

int main(int argc, char* argv[])
{
    return harness::run<TestTranslations>(argc, argv);
}

#include "tst_translations.moc"
