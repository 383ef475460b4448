// Every page of the settings dialog, field by field, from the description of the fields alone.

#include "settingsfixture.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QTimer>

using namespace Zel3D;
using namespace fixture;

namespace {

QStringList pageNames()
{
    QStringList names;
    for (const SettingsPageEntry& page : PlotSettingsDialog::libraryPages())
        names.append(page.id);
    return names;
}

/// A plot on the screen and its open dialog.
struct Session
{
    Session() : dialog(nullptr, organization, application, &plot)
    {
        plot.setBoxScaling(ManualScaling);
        plot.setAutomaticEdges(false);
        harness::show(plot, 200, 200);
        dialog.getBinder().keep();
        dialog.show();
        (void)QTest::qWaitForWindowExposed(&dialog);
        // Values that no signal tells of are waited for.
        dialog.findChild<QTimer*>("refresh")->setInterval(1);
    }

    FieldEditor* open(const QString& id)
    {
        dialog.goTo(id);
        for (AbstractSettingsPage* page : dialog.getPages()) {
            if (FieldEditor* editor = page->reveal(id))
                return editor;
        }
        return nullptr;
    }

    StyledPlot plot;
    PlotSettingsDialog dialog;
};

void pageRows()
{
    QTest::addColumn<int>("page");
    const QStringList names = pageNames();
    for (int i = 0; i < names.size(); ++i)
        QTest::newRow(qPrintable(names.at(i))) << i;
}

} // namespace

class TestSettingsPages : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void cleanupTestCase() { shared.reset(); }
    void editsReachThePlot_data() { pageRows(); }
    void editsReachThePlot();
    void changesElsewhereAreShown_data() { pageRows(); }
    void changesElsewhereAreShown();
    void resetGoesToAFreshPlot_data() { pageRows(); }
    void resetGoesToAFreshPlot();
    void cancelRestoresEverything();
    void fieldsAreNamed_data() { pageRows(); }
    void fieldsAreNamed();
    void choicesOffer_data();
    void choicesOffer();
    void nothingIsCut_data();
    void nothingIsCut();
    void everythingIsThereAfterARestart_data();
    void everythingIsThereAfterARestart();
    void everySignalHasAField();
    void everyStoredKeyHasAField();

private:
    /// One for the tests that leave it as it was: a dialog on the screen takes its time.
    Session& session()
    {
        if (!shared)
            shared = std::make_unique<Session>();
        return *shared;
    }

    std::unique_ptr<Session> shared;
};

void TestSettingsPages::editsReachThePlot()
{
    QFETCH(int, page);
    FieldBinder& binder = session().dialog.getBinder();
    for (const QString& id : session().dialog.getPages().at(page)->getIds()) {
        const Field& field = binder.getField(id);
        const FieldEditor* editor = session().open(id);
        if (!binder.isEnabled(id))
            continue;
        const QVariant before = field.read();
        const QVariant wanted = otherValue(field, before);
        QObject receiver;
        int signalCount = 0;
        for (const Field::Listener& listen : field.listeners)
            listen(&receiver, [&signalCount] { ++signalCount; });
        editByHand(field, *editor->getEditor(), wanted);
        QVERIFY2(sameValue(field.read(), wanted), qPrintable(id + " is not what was entered"));
        QVERIFY2(field.listeners.isEmpty() || signalCount == 1, qPrintable(id + " does not tell once"));
        QVERIFY2(binder.getUndoStack().canUndo(), qPrintable(id));
        binder.getUndoStack().undo();
        QVERIFY2(sameValue(field.read(), before), qPrintable(id + " is not undone"));
        QVERIFY2(shows(field, *editor->getEditor(), before), qPrintable(id + " does not show the undo"));
        binder.getUndoStack().redo();
        QVERIFY2(sameValue(field.read(), wanted), qPrintable(id + " is not redone"));
        QVERIFY2(shows(field, *editor->getEditor(), wanted), qPrintable(id + " does not show the redo"));
        // What depends on this field should meet it as it was.
        binder.getUndoStack().undo();
    }
}

void TestSettingsPages::changesElsewhereAreShown()
{
    QFETCH(int, page);
    for (const QString& id : session().dialog.getPages().at(page)->getIds()) {
        const Field& field = session().dialog.getBinder().getField(id);
        const FieldEditor* editor = session().open(id);
        const QVariant before = field.read();
        const QVariant wanted = otherValue(field, before);
        QVERIFY2(field.write(wanted), qPrintable(id + " is refused"));
        if (!field.listeners.isEmpty())
            QVERIFY2(shows(field, *editor->getEditor(), wanted),
                     qPrintable(id + " does not follow the signal"));
        // QTest::qWaitFor() would sleep 10 ms for each of some hundred fields.
        QElapsedTimer clock;
        clock.start();
        while (!shows(field, *editor->getEditor(), wanted) && clock.elapsed() < 2000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const bool shown = shows(field, *editor->getEditor(), wanted);
        QVERIFY2(shown, qPrintable(id + " does not show what was set elsewhere"));
        // What depends on this field should meet it as it was.
        field.write(before);
    }
}

void TestSettingsPages::resetGoesToAFreshPlot()
{
    QFETCH(int, page);
    FieldBinder& binder = session().dialog.getBinder();
    binder.getUndoStack().clear();
    StyledPlot fresh;
    AbstractSettingsPage* edited = session().dialog.getPages().at(page);
    QHash<QString, QVariant> wanted;
    for (const FieldGroup& group : edited->describe(fresh)) {
        for (const Field& field : group.fields)
            wanted.insert(field.id, field.read());
    }
    QHash<QString, QVariant> changed;
    for (const QString& id : edited->getIds())
        binder.write(id, otherValue(binder.getField(id), binder.value(id)));
    for (const QString& id : edited->getIds())
        changed.insert(id, binder.value(id));
    session().dialog.setCurrentRow(page);
    session().dialog.restorePageDefaults();
    // What the test's own plot was given is no default.
    const QStringList own{"style/style", "style/gradient", "legend/visible"};
    for (const QString& id : edited->getIds()) {
        if (!own.contains(id) && !id.startsWith("common/scale"))
            QVERIFY2(sameValue(binder.value(id), wanted.value(id)), qPrintable(id + " has another default"));
    }
    QCOMPARE(binder.getUndoStack().count(), 1);
    binder.getUndoStack().undo();
    for (const QString& id : edited->getIds())
        QVERIFY2(sameValue(binder.value(id), changed.value(id)), qPrintable(id + " is not undone"));
    binder.restore();
}

void TestSettingsPages::cancelRestoresEverything()
{
    Session session;
    FieldBinder& binder = session.dialog.getBinder();
    QHash<QString, QVariant> before;
    for (const QString& id : binder.getIds())
        before.insert(id, binder.value(id));
    for (const QString& id : binder.getIds())
        binder.edit(id, otherValue(binder.getField(id), binder.value(id)));
    // Turned with the mouse, past the dialog.
    session.plot.setRotation({12.0, 34.0, 56.0});
    QVERIFY(binder.isModified());
    session.dialog.reject();
    for (const QString& id : before.keys())
        QVERIFY2(sameValue(binder.getField(id).read(), before.value(id)), qPrintable(id + " stays changed"));
}

void TestSettingsPages::fieldsAreNamed()
{
    QFETCH(int, page);
    session().dialog.setCurrentRow(page);
    for (const QString& id : session().dialog.getPages().at(page)->getIds()) {
        const Field& field = session().dialog.getBinder().getField(id);
        const FieldEditor* editor = session().open(id);
        QWidget* target = editor->getEditor()->focusTarget();
        QCOMPARE(editor->getLabel()->buddy(), target);
        QVERIFY(!editor->getLabel()->text().isEmpty());
        QCOMPARE(target->accessibleName(), field.accessibleName());
        QVERIFY(target->toolTip().contains(field.description) && !field.description.isEmpty());
        if (auto* box = qobject_cast<QDoubleSpinBox*>(target)) {
            QCOMPARE(box->minimum(), field.minimum);
            QCOMPARE(box->maximum(), field.maximum);
            QVERIFY(target->toolTip().contains(" to "));
        }
    }
    // The order of the tab key is that of the eye: down, and right in a row.
    QWidget* area = session().dialog.getPages().at(page);
    QWidget* widget = area->nextInFocusChain();
    QRect before;
    int visited = 0;
    for (; area->isAncestorOf(widget); widget = widget->nextInFocusChain()) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisible() || widget->focusProxy())
            continue;
        const QRect place(widget->mapTo(area, QPoint(0, 0)), widget->size());
        const QRect beside(before.x(), place.y(), before.width(), place.height());
        const bool sameRow = (beside & before).height() * 2 > qMin(place.height(), before.height());
        QVERIFY2(sameRow ? place.x() > before.x() : place.center().y() > before.center().y(),
                 qPrintable(QString("%1 at %2, %3 after %4, %5")
                                .arg(widget->accessibleName())
                                .arg(place.x())
                                .arg(place.y())
                                .arg(before.x())
                                .arg(before.y())));
        before = place;
        ++visited;
    }
    QVERIFY(visited > 2);
}

void TestSettingsPages::choicesOffer_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("texts");
    QTest::newRow("projection") << "common/projection"
                                << "Orthogonal Perspective";
    QTest::newRow("shading") << "common/shading"
                             << "Flat Smooth";
    QTest::newRow("contour") << "common/contour"
                             << "None Top Bottom";
    QTest::newRow("scale") << "scales/x/type"
                           << "Linear Logarithmic";
    QTest::newRow("ticks") << "axes/axis0/tics/style"
                           << "Out Both";
    QTest::newRow("alignment") << "axes/axis0/numbers/alignment"
                               << "TopLeft TopCenter TopRight CenterLeft Automatic CenterRight BottomLeft "
                                  "BottomCenter BottomRight";
    QTest::newRow("lines") << "grid/majorStyle"
                           << "SolidLine DashLine DotLine DashDotLine DashDotDotLine";
    QTest::newRow("legend") << "legend/position"
                            << "Top Bottom Left Right";
    QTest::newRow("light") << "lighting/light0/type"
                           << "Directional Dotted Spot";
}

void TestSettingsPages::choicesOffer()
{
    QFETCH(QString, id);
    QFETCH(QString, texts);
    QStringList offered;
    for (const Field::Offer& offer : session().dialog.getBinder().getField(id).offers)
        offered.append(offer.text);
    QCOMPARE(offered.join(' '), texts);
}

void TestSettingsPages::nothingIsCut_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<bool>("longTexts");
    for (int points : {8, 10, 16}) {
        QTest::newRow(qPrintable(QString("%1 points").arg(points))) << points << false;
        QTest::newRow(qPrintable(QString("%1 points, long texts").arg(points))) << points << true;
    }
}

void TestSettingsPages::nothingIsCut()
{
    QFETCH(int, points);
    QFETCH(bool, longTexts);
    const QFont usual = QApplication::font();
    QApplication::setFont(QFont("DejaVu Sans", points));
    LongTexts translator;
    if (longTexts)
        QApplication::installTranslator(&translator);
    {
        Session session;
        for (int page = 0; page < session.dialog.getPages().size(); ++page) {
            session.dialog.setCurrentRow(page);
            QTest::qWait(20);
            for (const QScrollArea* area : session.dialog.findChildren<QScrollArea*>())
                QVERIFY2(!area->isVisible() || area->horizontalScrollBar()->maximum() == 0,
                         qPrintable(pageNames().at(page) + " is wider than its place"));
            for (const QWidget* widget : session.dialog.findChildren<QWidget*>()) {
                const bool hasText =
                    qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget) ||
                    qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget);
                if (!hasText || !widget->isVisible() ||
                    qobject_cast<const QComboBox*>(widget->parentWidget()))
                    continue;
                QVERIFY2(widget->width() >= widget->minimumSizeHint().width() &&
                             widget->height() >= widget->minimumSizeHint().height(),
                         qPrintable(pageNames().at(page) + ": " + widget->accessibleName()));
            }
        }
    }
    QApplication::removeTranslator(&translator);
    QApplication::setFont(usual);
}

namespace {

/// What decides whether other fields can be edited.
const QStringList gates{"axes/automaticEdges", "common/boxScaling", "legend/automatic"};

/// Gives every field of the pages another value, those that refuse it aside.
void editAll(const QVector<Field>& fields, bool withGates)
{
    for (const Field& field : fields) {
        if (withGates || !gates.contains(field.id))
            field.write(otherValue(field, field.read()));
    }
}

/// The fields of all pages of the library.
QVector<Field> allFields(BasePlot& plot)
{
    QVector<Field> fields;
    for (const SettingsPageEntry& entry : PlotSettingsDialog::libraryPages()) {
        const std::unique_ptr<AbstractSettingsPage> page(entry.make());
        for (const FieldGroup& group : page->describe(plot))
            fields += group.fields;
    }
    return fields;
}

std::unique_ptr<BasePlot> makePlot(bool spectra)
{
    std::unique_ptr<BasePlot> plot;
    if (spectra)
        plot = std::make_unique<SpectrumPlot>();
    else
        plot = std::make_unique<StyledPlot>();
    plot->setBoxScaling(ManualScaling);
    plot->setAutomaticEdges(false);
    // As a host does when it starts.
    plot->slotLoadSettings();
    plot->loadAxesSettings();
    return plot;
}

QHash<QString, QVariant> storeOf(BasePlot& plot)
{
    plot.slotSaveSettings();
    QHash<QString, QVariant> values;
    const QSettings store(organization, application);
    for (const QString& key : store.allKeys())
        values.insert(key, store.value(key));
    return values;
}

/// Tells which signals of a plot somebody listens to.
class HeardPlot : public StyledPlot
{
public:
    int listeners(const QMetaMethod& signal) const
    {
        return receivers(QByteArray("2" + signal.methodSignature()).constData());
    }
};

} // namespace

void TestSettingsPages::everythingIsThereAfterARestart_data()
{
    QTest::addColumn<bool>("spectra");
    QTest::addColumn<bool>("withGates");
    QTest::newRow("surface") << false << false;
    QTest::newRow("surface, all fields") << false << true;
    QTest::newRow("spectra") << true << false;
    QTest::newRow("spectra, all fields") << true << true;
}

void TestSettingsPages::everythingIsThereAfterARestart()
{
    QFETCH(bool, spectra);
    QFETCH(bool, withGates);
    QHash<QString, QVariant> wanted;
    {
        const std::unique_ptr<BasePlot> plot = makePlot(spectra);
        const QVector<Field> fields = allFields(*plot);
        QHash<QString, QVariant> before;
        for (const Field& field : fields)
            before.insert(field.id, field.read());
        editAll(fields, withGates);
        int different = 0;
        for (const Field& field : fields) {
            wanted.insert(field.id, field.read());
            different += sameValue(field.read(), before.value(field.id)) ? 0 : 1;
        }
        QVERIFY(different * 10 > wanted.size() * 9);
        plot->slotSaveSettings();
    }
    const std::unique_ptr<BasePlot> plot = makePlot(spectra);
    int lost = 0;
    for (const Field& field : allFields(*plot)) {
        if (sameValue(field.read(), wanted.value(field.id)))
            continue;
        qWarning("Lost: %s", qPrintable(field.id));
        ++lost;
    }
    QCOMPARE(lost, 0);
}

void TestSettingsPages::everySignalHasAField()
{
    // They tell of no setting, are never emitted, are the program's to choose, or the data give the value.
    const QStringList without{"selectedObject",     "contextProblemChanged", "plotStyleToolBarChanged",
                              "autoScalingChanged", "previewingChanged",     "cylinderRadiusChanged"};
    HeardPlot plot;
    QVector<int> before;
    const QMetaObject& meta = BasePlot::staticMetaObject;
    for (int i = ZelGLWidget::staticMetaObject.methodOffset(); i < meta.methodCount(); ++i)
        before.append(plot.listeners(meta.method(i)));
    const PlotSettingsDialog dialog(nullptr, organization, application, &plot);
    int signalCount = 0;
    for (int i = ZelGLWidget::staticMetaObject.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() != QMetaMethod::Signal || without.contains(method.name()))
            continue;
        ++signalCount;
        QVERIFY2(plot.listeners(method) > before.at(i - ZelGLWidget::staticMetaObject.methodOffset()),
                 method.name().constData());
    }
    QVERIFY(signalCount > 30);
}

void TestSettingsPages::everyStoredKeyHasAField()
{
    // Computed from the data or the window, another key of the same field, or a part of one value.
    const QStringList without{"/cylinder/radius", "/tics/majorLength", "/tics/minorLength", "/position",
                              "/orientation",     "/autoScaling",      "/gradients/names",  "/coordsystem",
                              "/additions",       "/axis%1/scale%2"};
    // The legend makes no room for a name and an arrow of its axis; a gradient and the markers are one value.
    const QRegularExpression parts("/legend/axis/(arrow|label)/|/gradients/|/additions/|/dataColor/");
    const std::unique_ptr<BasePlot> plot = makePlot(false);
    const QVector<Field> fields = allFields(*plot);
    // Twice the same by chance, but not three times.
    QVector<QHash<QString, QVariant>> stores;
    for (int round = 0; round < 3; ++round) {
        editAll(fields, false);
        stores.append(storeOf(*plot));
    }
    QStringList changed;
    for (const QString& key : stores.last().keys()) {
        if (stores.at(0).value(key) != stores.at(2).value(key) ||
            stores.at(1).value(key) != stores.at(2).value(key))
            changed.append(key);
    }
    // What stands beside fields in a record and has none.
    QStringList missing;
    for (const QString& key : stores.last().keys()) {
        const bool excused = std::any_of(without.cbegin(), without.cend(),
                                         [&key](const QString& end) { return key.endsWith(end); });
        if (!excused && !parts.match(key).hasMatch() && !changed.contains(key))
            missing.append(key);
    }
    // And the keys of records that no field changes at all.
    QSet<QString> templates;
    for (const char* folder : {"plots", "scene", "view", "core"}) {
        QDirIterator files(QString(VORAN_SOURCE_DIR "/src/") + folder, {"*.cpp"}, QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString text = QString::fromUtf8(file.readAll());
            QRegularExpressionMatchIterator found =
                QRegularExpression("\"(%0/[A-Za-z0-9%/]*[A-Za-z]+)\"").globalMatch(text);
            while (found.hasNext())
                templates.insert(found.next().captured(1));
        }
    }
    QVERIFY(templates.size() > 60);
    for (const QString& key : qAsConst(templates)) {
        if (without.contains(key.mid(2)))
            continue;
        QString pattern = QRegularExpression::escape(key.mid(2)).replace("\\%", "%");
        pattern.replace(QRegularExpression("%[0-9]"), "[^/]+");
        const QRegularExpression expression(pattern + '$');
        const bool edited = std::any_of(changed.cbegin(), changed.cend(), [&](const QString& changedKey) {
            return expression.match(changedKey).hasMatch();
        });
        if (!edited)
            missing.append(key);
    }
    for (const QString& key : qAsConst(missing))
        qWarning("No field changes %s", qPrintable(key));
    QVERIFY(missing.isEmpty());
}

int main(int argc, char* argv[])
{
    return harness::run<TestSettingsPages>(argc, argv);
}

#include "tst_settingspages.moc"
