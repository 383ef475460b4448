#include "gradients/colorbutton.h"
#include "gradients/gradientbutton.h"
#include "gradients/gradientcolors.h"
#include "gradients/gradienteditdialog.h"
#include "gradients/gradientlistdialog.h"
#include "gradients/gradientmanager.h"
#include "gradients/gradientstopsmodel.h"
#include "harness/harness.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QColorDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace Zel3D;

namespace {

QGradient gradientTo(const QColor& color)
{
    return gradientOf({{0.0, Qt::black}, {1.0, color}});
}

QColor lastColor(const QGradient& gradient)
{
    return gradient.stops().last().second;
}

QPushButton* buttonOf(QWidget& window, const QString& text)
{
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->text().remove('&') == text)
            return button;
    }
    qFatal("no button %s", qPrintable(text));
}

QStringList namesIn(GradientListDialog& dialog)
{
    const QAbstractItemModel* shown = dialog.findChild<QAbstractItemView*>()->model();
    QStringList names;
    for (int row = 0; row < shown->rowCount(); ++row)
        names << shown->index(row, 0).data().toString();
    return names;
}

QString noteOf(GradientListDialog& dialog)
{
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        if (label->accessibleName() == "Message")
            return label->text();
    }
    return {};
}

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

} // namespace

class TestGradientDialogs : public QObject
{
    Q_OBJECT
private slots:
    void editingIsLive();
    void cancellingPutsBack();
    void fieldsFollowTheStop();
    void editorOfAStoreEndsWithItsGradient();
    void listFollowsTheStore();
    void renamingInPlace();
    void removingAndPuttingBack();
    void builtInStays();
    void filtering();
    void adding();
    void files();
    void buttonFollowsTheStore();
    void buttonEditsACopyOfTheBuiltIn();
    void colorButtonIsLive();
    void everyFieldIsNamed();
};

void TestGradientDialogs::editingIsLive()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    manager.addGradient("A", gradientTo(Qt::red));
    QWidget parent;
    GradientEditDialog* dialog = GradientEditDialog::edit(manager, "A", &parent);
    QSignalSpy changes(&manager, &GradientManager::gradientChanged);
    dialog->getModel()->setColor(1, Qt::blue);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(lastColor(manager.gradients()["A"]), QColor(Qt::blue));
    buttonOf(*dialog, "Reverse")->click();
    QCOMPARE(lastColor(manager.gradients()["A"]), QColor(Qt::black));
    buttonOf(*dialog, "Undo")->click();
    QCOMPARE(lastColor(manager.gradients()["A"]), QColor(Qt::blue));
    dialog->accept();
    QCOMPARE(lastColor(manager.gradients()["A"]), QColor(Qt::blue));
}

void TestGradientDialogs::cancellingPutsBack()
{
    // A gradient that the editor would give back in another shape.
    QRadialGradient original(0.0, 0.0, 5.0);
    original.setColorAt(0.3, Qt::red);
    original.setColorAt(0.6, Qt::green);
    GradientEditDialog dialog;
    dialog.setGradient(original);
    QSignalSpy changes(&dialog, &GradientEditDialog::gradientChanged);
    dialog.reject();
    QCOMPARE(changes.size(), 0);
    dialog.getModel()->move(0, 0.1);
    QVERIFY(dialog.getGradient() != original);
    dialog.reject();
    QCOMPARE(changes.size(), 2);
    QVERIFY(changes.last().first().value<QGradient>() == original);
    // Undone to the beginning it is the original as well.
    dialog.getModel()->undo();
    QVERIFY(dialog.getGradient() == original);
}

void TestGradientDialogs::fieldsFollowTheStop()
{
    GradientEditDialog dialog;
    dialog.setGradient(
        gradientOf({{0.0, Qt::black}, {0.25, QColor(1, 2, 3, 4)}, {1.0 / 3.0, Qt::red}, {1.0, Qt::white}}));
    GradientStopsModel& model = *dialog.getModel();
    auto* position = dialog.findChild<QDoubleSpinBox*>();
    auto* color = dialog.findChild<ColorButton*>();
    QLineEdit* hex = nullptr;
    for (QLineEdit* edit : dialog.findChildren<QLineEdit*>()) {
        if (edit->maxLength() == 9)
            hex = edit;
    }
    QVERIFY(position && color && hex && harness::show(dialog, 600, 500));
    model.setCurrent(1);
    QCOMPARE(position->value(), 25.0);
    QCOMPARE(color->getColor(), QColor(1, 2, 3, 4));
    QCOMPARE(hex->text(), QString("#01020304"));
    model.setCurrent(2); // at a third, which the field cannot show
    model.setCurrent(1);
    QVERIFY(!model.canUndo()); // showing is not editing
    position->setFocus();
    position->selectAll();
    QTest::keyClicks(position, "33.33");
    QCOMPARE(model.getPosition(1), 0.25); // not before it is complete
    QTest::keyClick(position, Qt::Key_Return);
    QCOMPARE(model.getPosition(1), 0.3333);
    QVERIFY(dialog.isVisible());
    hex->setText("0f0");
    hex->setFocus();
    QTest::keyClick(hex, Qt::Key_Return);
    QCOMPARE(model.getColor(1), QColor(0, 255, 0));
    QVERIFY(dialog.isVisible());
    hex->setText("nothing");
    QTest::keyClick(hex, Qt::Key_Return);
    QCOMPARE(hex->text(), QString("#00ff00ff"));
    color->setColor(Qt::cyan);
    QCOMPARE(model.getColor(1), QColor(Qt::cyan));
    QPushButton* remove = buttonOf(dialog, "Remove");
    for (int i = 0; i < 4; ++i)
        remove->click();
    QCOMPARE(model.count(), 1);
    QVERIFY(!remove->isEnabled());
}

void TestGradientDialogs::editorOfAStoreEndsWithItsGradient()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    manager.addGradient("A", gradientTo(Qt::red));
    QWidget parent;
    QPointer<GradientEditDialog> dialog = GradientEditDialog::edit(manager, "A", &parent);
    dialog->getModel()->reverse();
    QSignalSpy added(&manager, &GradientManager::gradientAdded);
    manager.changeGradient("A", "B", gradientTo(Qt::green));
    QVERIFY(!dialog || !dialog->isVisible());
    QCOMPARE(manager.gradients().keys(), (QStringList{"B", "Default"}));
    QCOMPARE(lastColor(manager.gradients()["B"]), QColor(Qt::green));
}

void TestGradientDialogs::listFollowsTheStore()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    GradientListDialog dialog(&manager);
    QCOMPARE(namesIn(dialog), QStringList{"Default"});
    manager.addGradient("Z", gradientTo(Qt::red));
    manager.addGradient("A", gradientTo(Qt::red));
    QCOMPARE(namesIn(dialog), (QStringList{"A", "Default", "Z"}));
    QCOMPARE(dialog.getCurrentName(), QString("Default"));
    dialog.setCurrentName("Z");
    QSignalSpy current(&dialog, &GradientListDialog::currentGradientChanged);
    manager.changeGradient("A", "A", gradientTo(Qt::green));
    QCOMPARE(current.size(), 0);
    manager.changeGradient("Z", "Z", gradientTo(Qt::green));
    QCOMPARE(current.size(), 1);
    QCOMPARE(lastColor(current.last().at(1).value<QGradient>()), QColor(Qt::green));
    manager.changeGradient("Z", "B", gradientTo(Qt::blue));
    QCOMPARE(namesIn(dialog), (QStringList{"A", "B", "Default"}));
    QCOMPARE(dialog.getCurrentName(), QString("B"));
    manager.clear();
    QCOMPARE(namesIn(dialog), QStringList());
    QVERIFY(!buttonOf(dialog, "Duplicate")->isEnabled());
    manager.addGradient("C", gradientTo(Qt::blue));
    QCOMPARE(namesIn(dialog), QStringList{"C"});
}

void TestGradientDialogs::renamingInPlace()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    manager.addGradient("A", gradientTo(Qt::red));
    manager.addGradient("B", gradientTo(Qt::green));
    GradientListDialog dialog(&manager);
    QVERIFY(harness::show(dialog, 500, 400));
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const auto type = [&](const QString& text) {
        buttonOf(dialog, "Rename")->click();
        auto* list = dialog.findChild<QAbstractItemView*>();
        auto* editor = list->viewport()->findChild<QLineEdit*>();
        QVERIFY(editor);
        editor->setText(text);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    dialog.setCurrentName("A");
    type("C");
    QCOMPARE(namesIn(dialog), (QStringList{"B", "C", "Default"}));
    QCOMPARE(dialog.getCurrentName(), QString("C"));
    // A taken name gets a number, which is told; the other gradient stays what it is.
    type("B");
    QCOMPARE(manager.gradients().keys(), (QStringList{"B", "B1", "Default"}));
    QCOMPARE(lastColor(manager.gradients()["B"]), QColor(Qt::green));
    QCOMPARE(lastColor(manager.gradients()["B1"]), QColor(Qt::red));
    QCOMPARE(dialog.getCurrentName(), QString("B1"));
    QVERIFY(noteOf(dialog).contains("B1"));
    type("  ");
    QCOMPARE(manager.gradients().keys(), (QStringList{"B", "B1", "Default"}));
    QVERIFY(noteOf(dialog).contains("needs a name"));
}

void TestGradientDialogs::removingAndPuttingBack()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    manager.addGradient("A", gradientTo(Qt::red));
    manager.addGradient("B", gradientTo(Qt::green));
    GradientListDialog dialog(&manager);
    QPushButton* remove = buttonOf(dialog, "Remove");
    QPushButton* restore = buttonOf(dialog, "Put back");
    QVERIFY(!restore->isEnabled());
    dialog.setCurrentName("A");
    remove->click();
    dialog.setCurrentName("B");
    remove->click();
    QCOMPARE(namesIn(dialog), QStringList{"Default"});
    QVERIFY(!remove->isEnabled() && restore->isEnabled());
    restore->click();
    QCOMPARE(dialog.getCurrentName(), QString("B"));
    QCOMPARE(lastColor(manager.gradients()["B"]), QColor(Qt::green));
    manager.addGradient("A", gradientTo(Qt::blue)); // its name was given away
    restore->click();
    QCOMPARE(namesIn(dialog), (QStringList{"A", "A1", "B", "Default"}));
    QCOMPARE(lastColor(manager.gradients()["A1"]), QColor(Qt::red));
    QVERIFY(!restore->isEnabled());
}

void TestGradientDialogs::builtInStays()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    GradientListDialog dialog(&manager);
    QCOMPARE(dialog.getCurrentName(), QString("Default"));
    for (const char* text : {"Remove", "Rename", "Edit..."})
        QVERIFY2(!buttonOf(dialog, text)->isEnabled(), text);
    auto* list = dialog.findChild<QAbstractItemView*>();
    QVERIFY(!(list->currentIndex().flags() & Qt::ItemIsEditable));
    QVERIFY(!list->model()->setData(list->currentIndex(), "X"));
    buttonOf(dialog, "Duplicate")->click();
    QCOMPARE(dialog.getCurrentName(), QString("Default1"));
    QVERIFY(buttonOf(dialog, "Edit...")->isEnabled());
    buttonOf(dialog, "Edit...")->click();
    auto* editor = dialog.findChild<GradientEditDialog*>();
    QVERIFY(editor);
    editor->getModel()->reverse();
    QCOMPARE(lastColor(manager.gradients()["Default1"]), QColor(Qt::black));
    QCOMPARE(lastColor(manager.getDefaultGradient()), QColor(Qt::white));
}

void TestGradientDialogs::filtering()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    manager.addGradient("Sea (cold)", gradientTo(Qt::blue));
    manager.addGradient("Land", gradientTo(Qt::green));
    GradientListDialog dialog(&manager);
    auto* filter = dialog.findChild<QLineEdit*>();
    filter->setText("(COLD");
    QCOMPARE(namesIn(dialog), QStringList{"Sea (cold)"});
    manager.addGradient("Cold", gradientTo(Qt::red));
    QCOMPARE(namesIn(dialog), QStringList{"Sea (cold)"});
    dialog.setCurrentName("Land"); // what is made current can be seen
    QCOMPARE(dialog.getCurrentName(), QString("Land"));
    QVERIFY(filter->text().isEmpty());
}

void TestGradientDialogs::adding()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    GradientListDialog dialog(&manager);
    QMenu* menu = buttonOf(dialog, "Add")->menu();
    int presets = 0;
    for (QMenu* sub : menu->findChildren<QMenu*>()) {
        for (QAction* action : sub->actions()) {
            action->trigger();
            ++presets;
            QCOMPARE(dialog.getCurrentName(), action->text());
            QVERIFY(action->toolTip().contains('\n'));
        }
    }
    QCOMPARE(presets, 10);
    menu->actions().first()->trigger();
    QCOMPARE(dialog.getCurrentName(), QString("New gradient"));
    QCOMPARE(manager.gradients().size(), 12);
    QCOMPARE(editableStops(manager.gradients()["Cool-warm"])[8].second, QColor(0xdd, 0xdd, 0xdd));
}

void TestGradientDialogs::files()
{
    QTemporaryDir folder;
    GradientManager manager(nullptr, gradientTo(Qt::white));
    const QGradientStops edge = {
        {0.0, Qt::red}, {0.5, Qt::red}, {0.5, QColor(0, 0, 255, 7)}, {1.0, Qt::white}};
    manager.addGradient("Edge", gradientOf(edge));
    GradientListDialog dialog(&manager);
    dialog.setCurrentName("Edge");
    const QString path = folder.filePath("saved.gradient");
    dialog.exportFile(path);
    dialog.importFile(path);
    QCOMPARE(dialog.getCurrentName(), QString("Edge1"));
    QCOMPARE(editableStops(manager.gradients()["Edge1"]), edge);
    QVERIFY(manager.gradients()["Edge1"] == manager.gradients()["Edge"]);
    // A file without a name gives its own; its end colours reach the ends.
    write(folder.filePath("my colors.css"), "linear-gradient(red 20%, blue)");
    dialog.importFile(folder.filePath("my colors.css"));
    QCOMPARE(dialog.getCurrentName(), QString("my colors"));
    QCOMPARE(manager.gradients()["my colors"].stops().first().first, 0.0);
    // Damaged and missing files change nothing and are told about.
    const int count = manager.gradients().size();
    write(folder.filePath("bad.cpt"), "0 red 1 blue\n1 red 0 blue");
    dialog.importFile(folder.filePath("bad.cpt"));
    QVERIFY2(noteOf(dialog).contains("Line 2"), qPrintable(noteOf(dialog)));
    dialog.importFile(folder.filePath("missing"));
    QVERIFY(noteOf(dialog).contains("cannot be read"));
    dialog.exportFile(folder.filePath("no/folder"));
    QVERIFY(noteOf(dialog).contains("cannot be written"));
    QCOMPARE(manager.gradients().size(), count);
}

void TestGradientDialogs::buttonFollowsTheStore()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    manager.addGradient("A", gradientTo(Qt::red));
    GradientButton button(&manager);
    QCOMPARE(button.getCurrentName(), QString("Default"));
    QSignalSpy changes(&button, &GradientButton::gradientChanged);
    button.setCurrentName("nothing");
    button.setCurrentName("Default");
    QCOMPARE(changes.size(), 0);
    button.setCurrentName("A");
    manager.changeGradient("A", "A", gradientTo(Qt::green));
    QCOMPARE(changes.size(), 2);
    QCOMPARE(lastColor(button.getCurrentGradient()), QColor(Qt::green));
    manager.changeGradient("A", "B", gradientTo(Qt::green));
    QCOMPARE(button.getCurrentName(), QString("B"));
    // The popup is made anew: what it lists is there, and chosen by its name as it is.
    const QString odd = manager.addGradient("R&D", gradientTo(Qt::cyan));
    emit button.menu()->aboutToShow();
    QStringList texts;
    for (QAction* action : button.menu()->actions())
        texts << action->text();
    QCOMPARE(texts.mid(0, 3), (QStringList{"B", "Default", "R&&D"}));
    QVERIFY(button.menu()->actions().first()->isChecked());
    button.menu()->actions().at(2)->trigger();
    QCOMPARE(button.getCurrentName(), odd);
    manager.removeGradient(odd);
    QCOMPARE(button.getCurrentName(), QString("Default"));
    QCOMPARE(lastColor(button.getCurrentGradient()), QColor(Qt::white));
    manager.clear();
    QCOMPARE(button.getCurrentName(), QString());
    manager.addGradient("New", gradientTo(Qt::blue));
    QCOMPARE(button.getCurrentName(), QString("New"));
}

void TestGradientDialogs::buttonEditsACopyOfTheBuiltIn()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    GradientButton button(&manager);
    const auto editor = [&button] { return button.findChild<GradientEditDialog*>(); };
    const auto settle = [] {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    button.editCurrent();
    QCOMPARE(button.getCurrentName(), QString("Default1"));
    editor()->getModel()->reverse();
    QCOMPARE(lastColor(button.getCurrentGradient()), QColor(Qt::black));
    editor()->reject();
    settle();
    QCOMPARE(button.getCurrentName(), QString("Default"));
    QCOMPARE(manager.gradients().keys(), QStringList{"Default"});
    QVERIFY(!editor());
    button.editCurrent();
    editor()->getModel()->reverse();
    editor()->accept();
    settle();
    QCOMPARE(button.getCurrentName(), QString("Default1"));
    QCOMPARE(lastColor(manager.getDefaultGradient()), QColor(Qt::white));
    button.editCurrent(); // no copy of what may be changed
    QCOMPARE(manager.gradients().size(), 2);
    manager.clear(); // while it is being edited
    settle();
    QVERIFY(manager.gradients().isEmpty());
}

void TestGradientDialogs::colorButtonIsLive()
{
    ColorButton button;
    button.setColor(QColor(10, 20, 30, 40));
    QCOMPARE(button.accessibleDescription(), QString("#0a141e28"));
    QSignalSpy changes(&button, &ColorButton::colorChanged);
    button.setColor(QColor(10, 20, 30, 40));
    QCOMPARE(changes.size(), 0);
    button.click();
    auto* dialog = button.findChild<QColorDialog*>();
    QVERIFY(dialog && dialog->testOption(QColorDialog::ShowAlphaChannel));
    QCOMPARE(dialog->currentColor().alpha(), 40);
    dialog->setCurrentColor(QColor(1, 2, 3, 4));
    QCOMPARE(button.getColor(), QColor(1, 2, 3, 4));
    dialog->reject();
    QCOMPARE(button.getColor(), QColor(10, 20, 30, 40));
    QVERIFY(button.grab().toImage() != ColorButton().grab().toImage());
}

void TestGradientDialogs::everyFieldIsNamed()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    GradientListDialog list(&manager);
    GradientEditDialog edit;
    for (QWidget* window : {static_cast<QWidget*>(&list), static_cast<QWidget*>(&edit)}) {
        QSet<QWidget*> buddies;
        QSet<QString> mnemonics;
        for (const QLabel* label : window->findChildren<QLabel*>()) {
            buddies.insert(label->buddy());
            const int at = label->text().indexOf('&');
            if (label->buddy() && at >= 0) {
                QVERIFY2(!mnemonics.contains(label->text().mid(at + 1, 1).toLower()),
                         qPrintable(label->text()));
                mnemonics.insert(label->text().mid(at + 1, 1).toLower());
            }
        }
        int fields = 0;
        for (QWidget* widget : window->findChildren<QWidget*>()) {
            const bool isInner = !widget->parentWidget() || widget->objectName().startsWith("qt_");
            if (isInner || !(widget->focusPolicy() & Qt::TabFocus))
                continue;
            const auto* button = qobject_cast<QPushButton*>(widget);
            if (button && !button->text().isEmpty()) {
                const QString text = button->text();
                const int at = text.indexOf('&');
                const QString mnemonic = at >= 0 ? text.mid(at + 1, 1).toLower() : text;
                QVERIFY2(!mnemonics.contains(mnemonic), qPrintable(text));
                mnemonics.insert(mnemonic);
                continue;
            }
            ++fields;
            QVERIFY2(buddies.contains(widget), widget->metaObject()->className());
            QVERIFY2(!widget->accessibleName().isEmpty(), widget->metaObject()->className());
            QVERIFY2(!widget->toolTip().isEmpty(), widget->metaObject()->className());
        }
        QVERIFY(fields >= 2);
    }
}

int main(int argc, char* argv[])
{
    qRegisterMetaType<QGradient>("QGradient");
    return harness::run<TestGradientDialogs>(argc, argv);
}

#include "tst_gradientdialogs.moc"
