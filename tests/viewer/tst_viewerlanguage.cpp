// The window speaks the person's language, at once and without losing what it shows.

#include "formuladialog.h"
#include "gradients/gradienteditdialog.h"
#include "gradients/gradientlistdialog.h"
#include "gradients/gradientmanager.h"
#include "harness/harness.h"
#include "memoryneed.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "preferencesdialog.h"
#include "scene/title.h"
#include "settings/bindingsdialog.h"
#include "settings/plotsettingsdialog.h"
#include "toroidsource.h"
#include "viewerlanguage.h"
#include "viewerpreferences.h"
#include "viewerwindow.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QToolBar>
#include <QTranslator>
#include <QtTest>

#include <memory>

namespace {

void speak(const QString& language)
{
    ViewerPreferences::setLanguage(language);
    ViewerLanguage::showPreferred();
    QCoreApplication::processEvents();
}

/// The texts of a window's actions and widgets, in the order in which they were made.
QStringList texts(const QWidget& window)
{
    QStringList found;
    for (const QObject* part : window.findChildren<QObject*>()) {
        const auto* action = qobject_cast<const QAction*>(part);
        if (!action && !part->isWidgetType())
            continue;
        for (const char* property : {"text", "title", "windowTitle", "toolTip", "statusTip", "iconText",
                                     "description", "currentText"}) {
            const QString text = part->property(property).toString();
            if (!text.isEmpty())
                found.append(QString("%1: %2").arg(QLatin1String(property), text));
        }
    }
    return found;
}

QAction* action(const QWidget& window, const QString& text)
{
    for (QAction* found : window.findChildren<QAction*>()) {
        if (found->text() == text)
            return found;
    }
    return nullptr;
}

/// The letters that choose more than one entry of a menu, and those of its submenus.
QStringList clashes(const QMenu& menu)
{
    QStringList found;
    QMap<QChar, QString> taken;
    for (const QAction* entry : menu.actions()) {
        const QRegularExpressionMatch letter = QRegularExpression("&([^&])").match(entry->text());
        if (entry->menu())
            found += clashes(*entry->menu());
        if (!letter.hasMatch())
            continue;
        const QChar key = letter.captured(1).at(0).toLower();
        if (taken.contains(key))
            found.append(QString("%1: %2, %3").arg(menu.title(), taken.value(key), entry->text()));
        taken.insert(key, entry->text());
    }
    return found;
}

/// A language in which every text stands between brackets.
class Foreign : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        return QString("[%1]").arg(QString::fromUtf8(source));
    }
};

/// The words on a window that were not translated.
QStringList untranslated(const QWidget& window)
{
    // Numbers, the letters of axes, the names of a font and of a language, a formula, the
    // authors of published tables.
    static const QRegularExpression noWords(
        "^\\w+: (\\P{L}*|[XYZxyz]|Sans Serif|English|sin\\(x\\)\\*cos\\(y\\)|.+\n.+)$",
        QRegularExpression::UseUnicodePropertiesOption);
    QStringList found;
    const QStringList all = texts(window);
    for (const QString& text : all) {
        if (!text.contains('[') && !noWords.match(text).hasMatch())
            found.append(text);
    }
    found.removeDuplicates();
    return found;
}

} // namespace

class TestViewerLanguage : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void windowFollowsTheLanguage();
    void languageBeforeTheWindow();
    void openSettingsFollowTheLanguage();
    void everyTextCanBeTranslated();
    void noMenuHasALetterTwice_data();
    void noMenuHasALetterTwice();
    void numbersFollowTheLanguage();
    void preferencesApplyAtOnce();
    void standardLookDressesNewPlots();

private:
    void showToroid();

    std::unique_ptr<ViewerWindow> m_window;
};

void TestViewerLanguage::init()
{
    QCoreApplication::setOrganizationName("voran-test");
    QCoreApplication::setApplicationName("voran-test");
    speak("en");
}

void TestViewerLanguage::cleanup()
{
    if (m_window && m_window->page()) {
        const Zel3D::BasePlot& plot = m_window->page()->plot();
        QSettings(plot.getOrganization(), plot.getApplication()).clear();
    }
    m_window.reset();
    speak("en");
    harness::clearStore();
}

void TestViewerLanguage::showToroid()
{
    m_window = std::make_unique<ViewerWindow>();
    QVERIFY(harness::show(*m_window, 700, 500));
    QString error;
    QVERIFY(m_window->present(std::make_unique<ToroidSource>(), error));
    QCoreApplication::processEvents();
}

void TestViewerLanguage::windowFollowsTheLanguage()
{
    showToroid();
    PlotPage* page = m_window->page();
    page->plot().getTitle().getSettings().setText("Points");
    page->plot().setRotation({10.0, 20.0, 30.0});
    page->view().setLook(Zel3D::Look::dark());
    const QStringList english = texts(*m_window);
    QVERIFY(action(*m_window, "&Open..."));

    speak("de");
    QCOMPARE(m_window->menuBar()->actions().first()->text(), QString("&Datei"));
    QVERIFY(action(*m_window, "&Öffnen..."));
    QVERIFY(!action(*m_window, "&Open..."));
    QCOMPARE(action(*m_window, "Ansicht &zurücksetzen")->statusTip(),
             QString("Drehung, Verschiebung und Zoom vom Anfang"));
    QCOMPARE(action(*m_window, "Drahtgitter")->toolTip(), QString("Drahtgitter"));
    QVERIFY(action(*m_window, "Dunkel"));
    QCOMPARE(page->plot().getToolBar(Zel3D::ViewsToolBar)->windowTitle(), QString("Ansichten"));
    // What was there in English is there in German, but for what is the same in both.
    const QStringList german = texts(*m_window);
    QCOMPARE(german.size(), english.size());

    speak("fr");
    QVERIFY(action(*m_window, "Vue de &dessus"));
    QVERIFY(action(*m_window, "Paramè&tres..."));

    QCOMPARE(m_window->page(), page);
    QCOMPARE(page->plot().getTitle().getSettings().getText(), QString("Points"));
    QCOMPARE(page->plot().getRotation().y, 20.0);
    page->plot().slotSaveSettings();
    QCOMPARE(page->view().look().name, QString("Dark"));
    m_window->close();
    QCOMPARE(QSettings().value("window/look").toString(), QString("Dark"));
    {
        // What was kept in one language is found in another one.
        ViewerWindow other;
        QString error;
        QVERIFY(other.present(std::make_unique<ToroidSource>(), error));
        QCOMPARE(other.page()->source().name(), QString("Tore"));
        QCOMPARE(other.page()->plot().getTitle().getSettings().getText(), QString("Points"));
    }
    speak("en");
    QCOMPARE(texts(*m_window), english);
}

void TestViewerLanguage::languageBeforeTheWindow()
{
    speak("fr");
    m_window = std::make_unique<ViewerWindow>();
    QVERIFY(action(*m_window, "&Ouvrir..."));
    QStringList buttons;
    for (const QPushButton* button : m_window->findChildren<QPushButton*>())
        buttons.append(button->text());
    QVERIFY(buttons.contains("&Ouvrir un fichier..."));
    speak("de");
    buttons.clear();
    for (const QPushButton* button : m_window->findChildren<QPushButton*>())
        buttons.append(button->text());
    QVERIFY(buttons.contains("Datei &öffnen..."));
}

void TestViewerLanguage::openSettingsFollowTheLanguage()
{
    showToroid();
    Zel3D::PlotSettingsDialog dialog(nullptr, "voran-test", "voran-test", &m_window->page()->plot(), nullptr);
    dialog.setCurrentRow(0);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QStringList english = texts(dialog);
    speak("de");
    QCOMPARE(dialog.findChild<QListWidget*>("pages")->item(0)->text(), QString("Allgemein"));
    QCOMPARE(texts(dialog).filter("text: Seitenverhältnis halten").size(), 1);
    QCOMPARE(texts(dialog).filter("currentText: Orthogonal").size(), 1);
    speak("en");
    QCOMPARE(texts(dialog), english);
}

void TestViewerLanguage::everyTextCanBeTranslated()
{
    Foreign foreign;
    QCoreApplication::installTranslator(&foreign);
    showToroid();
    Zel3D::BasePlot& plot = m_window->page()->plot();
    QCOMPARE(untranslated(*m_window).join('\n'), QString());
    QCOMPARE(untranslated(*plot.getContextMenu()).join('\n'), QString());
    {
        const Zel3D::PlotSettingsDialog settings(nullptr, "voran-test", "voran-test", &plot, nullptr);
        QCOMPARE(untranslated(settings).join('\n'), QString());
    }
    const Zel3D::BindingsDialog bindings(Zel3D::PlotBindings{}, nullptr);
    QCOMPARE(untranslated(bindings).join('\n'), QString());
    GradientManager store(nullptr, QLinearGradient());
    const Zel3D::GradientListDialog gradients(&store);
    QCOMPARE(untranslated(gradients).join('\n'), QString());
    const Zel3D::GradientEditDialog gradient;
    QCOMPARE(untranslated(gradient).join('\n'), QString());
    const FormulaDialog formula;
    QCOMPARE(untranslated(formula).join('\n'), QString());
    const PreferencesDialog preferences;
    QCOMPARE(untranslated(preferences).join('\n'), QString());
}

void TestViewerLanguage::noMenuHasALetterTwice_data()
{
    QTest::addColumn<QString>("language");
    for (const char* language : {"en", "de", "fr"})
        QTest::newRow(language) << language;
}

void TestViewerLanguage::noMenuHasALetterTwice()
{
    QFETCH(QString, language);
    showToroid();
    speak(language);
    QMenu bar;
    bar.addActions(m_window->menuBar()->actions());
    QCOMPARE(clashes(bar).join('\n'), QString());
}

void TestViewerLanguage::numbersFollowTheLanguage()
{
    QCOMPARE(MemoryNeed::gigabytes(1.5e9), QString("1.5 GB"));
    speak("de");
    QCOMPARE(MemoryNeed::gigabytes(1.5e9), QString("1,5 GB"));
    speak("fr");
    QCOMPARE(MemoryNeed::gigabytes(1.5e9), QString("1,5 Go"));
    // As the command line does.
    ViewerLanguage::showEnvironment();
    QCOMPARE(QLocale().toString(1.5), QString("1.5"));
}

void TestViewerLanguage::preferencesApplyAtOnce()
{
    PreferencesDialog dialog;
    auto* language = dialog.findChild<QComboBox*>("language");
    QCOMPARE(language->count(), 4);
    const int german = language->findData("de");
    QCOMPARE(language->itemText(german), QString("Deutsch"));
    language->setCurrentIndex(german);
    emit language->activated(german);
    QCOMPARE(ViewerPreferences::language(), QString("de"));
    QCOMPARE(dialog.windowTitle(), QString("Voreinstellungen"));
    QCOMPARE(language->itemText(0), QString("Sprache des Systems"));
    QCOMPARE(language->currentData().toString(), QString("de"));
    QVERIFY(texts(dialog).filter("Ein Raster dieser Größe braucht etwa 1,6 GB Speicher").size() == 1);

    auto* budget = dialog.findChild<QDoubleSpinBox*>("nodeBudget");
    budget->setValue(0.5);
    QCOMPARE(ViewerPreferences::nodeBudget(), 500000);
    QCOMPARE(budget->text(), QString("0,50 Millionen Knoten"));
    QVERIFY(texts(dialog).filter("etwa 0,2 GB Speicher").size() == 1);

    // A preview while a large grid is turned, unless a person does without.
    showToroid();
    QVERIFY(m_window->page()->view().plot().isPreviewing());
    dialog.findChild<QCheckBox*>("preview")->click();
    QString error;
    QVERIFY(m_window->present(std::make_unique<ToroidSource>(), error));
    QVERIFY(!m_window->page()->view().plot().isPreviewing());
}

void TestViewerLanguage::standardLookDressesNewPlots()
{
    showToroid();
    speak("de");
    PreferencesDialog dialog;
    connect(&dialog, &PreferencesDialog::lookChosen, m_window.get(),
            [this](const QString& name) { m_window->preferences().takeLook(name); });
    auto* looks = dialog.findChild<QComboBox*>("look");
    const int print = looks->findText("Druck");
    looks->setCurrentIndex(print);
    emit looks->activated(print);
    QCOMPARE(ViewerPreferences::standardLook(), QString("Print"));
    // The look of the plot that is left does not count any more.
    m_window->page()->view().setLook(Zel3D::Look::dark());
    QString error;
    QVERIFY(m_window->present(std::make_unique<ToroidSource>(), error));
    QCOMPARE(m_window->page()->view().look().name, QString("Print"));
    // The next window has it too.
    m_window = std::make_unique<ViewerWindow>();
    QVERIFY(m_window->present(std::make_unique<ToroidSource>(), error));
    QCOMPARE(m_window->page()->view().look().name, QString("Print"));
}

int main(int argc, char* argv[])
{
    return harness::run<TestViewerLanguage>(argc, argv);
}

#include "tst_viewerlanguage.moc"
