// Every page of the settings dialog, field by field, from the description of the fields alone.

#include "settingsfixture.h"

#include <QScrollArea>
#include <QScrollBar>

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
        harness::show(plot, 200, 200);
        dialog.getBinder().keep();
        dialog.show();
        (void)QTest::qWaitForWindowExposed(&dialog);
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
    void editsReachThePlot_data() { pageRows(); }
    void editsReachThePlot();
    void changesElsewhereAreShown_data() { pageRows(); }
    void changesElsewhereAreShown();
    void resetGoesToAFreshPlot_data() { pageRows(); }
    void resetGoesToAFreshPlot();
    void cancelRestoresEverything();
    void fieldsAreNamed_data() { pageRows(); }
    void fieldsAreNamed();
    void nothingIsCut_data();
    void nothingIsCut();
};

void TestSettingsPages::editsReachThePlot()
{
    QFETCH(int, page);
    Session session;
    FieldBinder& binder = session.dialog.getBinder();
    for (const QString& id : session.dialog.getPages().at(page)->getIds()) {
        const Field& field = binder.getField(id);
        const FieldEditor* editor = session.open(id);
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
    Session session;
    for (const QString& id : session.dialog.getPages().at(page)->getIds()) {
        const Field& field = session.dialog.getBinder().getField(id);
        const FieldEditor* editor = session.open(id);
        const QVariant before = field.read();
        const QVariant wanted = otherValue(field, before);
        QVERIFY2(field.write(wanted), qPrintable(id + " is refused"));
        if (!field.listeners.isEmpty())
            QVERIFY2(shows(field, *editor->getEditor(), wanted),
                     qPrintable(id + " does not follow the signal"));
        const bool shown = QTest::qWaitFor([&] { return shows(field, *editor->getEditor(), wanted); }, 2000);
        QVERIFY2(shown, qPrintable(id + " does not show what was set elsewhere"));
        // What depends on this field should meet it as it was.
        field.write(before);
    }
}

void TestSettingsPages::resetGoesToAFreshPlot()
{
    QFETCH(int, page);
    Session session;
    FieldBinder& binder = session.dialog.getBinder();
    StyledPlot fresh;
    AbstractSettingsPage* edited = session.dialog.getPages().at(page);
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
    session.dialog.setCurrentRow(page);
    session.dialog.restorePageDefaults();
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
    Session session;
    session.dialog.setCurrentRow(page);
    for (const FieldEditor* editor : session.dialog.getPages().at(page)->getEditors()) {
        const Field& field = session.dialog.getBinder().getField(editor->getId());
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
    QWidget* area = session.dialog.getPages().at(page);
    QWidget* widget = area->nextInFocusChain();
    QPoint place;
    int visited = 0;
    for (; area->isAncestorOf(widget); widget = widget->nextInFocusChain()) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisible() || widget->focusProxy())
            continue;
        const QPoint centre = widget->mapTo(area, widget->rect().center());
        QVERIFY2(centre.y() > place.y() + 4 || (qAbs(centre.y() - place.y()) <= 4 && centre.x() > place.x()),
                 qPrintable(widget->accessibleName()));
        place = centre;
        ++visited;
    }
    QVERIFY(visited > 2);
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

int main(int argc, char* argv[])
{
    return harness::run<TestSettingsPages>(argc, argv);
}

#include "tst_settingspages.moc"
