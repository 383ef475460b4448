#include "settings/bindingsdialog.h"
#include "settings/gestureedit.h"
#include "settingsfixture.h"

#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>

using Zel3D::BindingsDialog;
using Zel3D::BindingsModel;
using Zel3D::Gesture;
using Zel3D::GestureEdit;
using Zel3D::PlotBindings;

namespace {

int row(const char* id)
{
    return PlotBindings::indexOf(id);
}

Gesture keyGesture(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return {Gesture::Key, Qt::NoButton, key, modifiers};
}

Gesture dragGesture(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return {Gesture::Drag, buttons, 0, modifiers};
}

/// Without a window manager no window becomes the active one by itself.
bool showActive(QWidget& window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    return QTest::qWaitForWindowExposed(&window) && window.isActiveWindow();
}

QPushButton* button(const BindingsDialog& dialog, const QString& text)
{
    for (auto* candidate : dialog.findChildren<QPushButton*>()) {
        if (candidate->text().remove('&') == text)
            return candidate;
    }
    return nullptr;
}

} // namespace

class TestBindings : public QObject
{
    Q_OBJECT
private slots:
    void init() { QVERIFY(QFile::remove(path()) || !QFile::exists(path())); }
    void defaultsAreThoseOfThePlot();
    void everyBindingReachesThePlot();
    void storedTexts_data();
    void storedTexts();
    void clashes_data();
    void clashes();
    void badStoresFallBack_data();
    void badStoresFallBack();
    void swapSolvesAClash();
    void shortcutsOfTheHostClash();
    void gesturesAreMadeByHand_data();
    void gesturesAreMadeByHand();
    void keyboardLeavesTheField();
    void dialogWaitsForASolution();
    void resetOneAndAll();

private:
    QString path() const { return m_folder.filePath("bindings.ini"); }
    QTemporaryDir m_folder;
};

void TestBindings::defaultsAreThoseOfThePlot()
{
    const fixture::Plot plot;
    QVERIFY(PlotBindings::of(plot) == PlotBindings());
    QVERIFY(!PlotBindings().hasClash());
    QCOMPARE(PlotBindings::actions().size(), 28);
    QCOMPARE(PlotBindings().gesture(row("drag/zoom")).stored(), QString("Ctrl+Alt+LeftButton"));
    QCOMPARE(PlotBindings().gesture(row("key/zoomIn")).stored(), QString("Ctrl+Shift+Up"));
}

void TestBindings::everyBindingReachesThePlot()
{
    PlotBindings changed;
    for (int i = 0; i < PlotBindings::actions().size(); ++i) {
        Gesture gesture = changed.gesture(i);
        gesture.modifiers = Qt::MetaModifier;
        if (gesture.kind == Gesture::Key)
            gesture.key = Qt::Key_F1 + i;
        if (gesture.kind == Gesture::Drag)
            gesture.buttons = Qt::MouseButtons(i + 1);
        QVERIFY(changed.setGesture(i, gesture));
    }
    fixture::Plot plot;
    changed.applyTo(plot);
    QVERIFY(PlotBindings::of(plot) == changed);

    // In the plot and not only in what it tells of itself.
    PlotBindings zoom;
    QVERIFY(zoom.setGesture(row("key/zoomIn"), keyGesture(Qt::Key_Plus)));
    zoom.applyTo(plot);
    QVERIFY(harness::show(plot, 200, 200));
    const double before = plot.getZoom();
    QTest::keyClick(&plot, Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(plot.getZoom(), before);
    QTest::keyClick(&plot, Qt::Key_Plus);
    QVERIFY(plot.getZoom() > before);
}

void TestBindings::storedTexts_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    const int drag = Gesture::Drag;
    const int key = Gesture::Key;
    const int hover = Gesture::Hover;
    QTest::newRow("drag") << drag << "Ctrl+Alt+LeftButton" << true;
    QTest::newRow("two buttons") << drag << "LeftButton+MiddleButton" << true;
    QTest::newRow("key") << key << "Alt+Shift+Up" << true;
    QTest::newRow("plus key") << key << "Ctrl++" << true;
    QTest::newRow("keypad") << key << "Num+5" << true;
    QTest::newRow("hover") << hover << "Shift" << true;
    QTest::newRow("hover, nothing held") << hover << "None" << true;
    QTest::newRow("empty drag") << drag << "" << false;
    QTest::newRow("empty key") << key << "" << false;
    QTest::newRow("empty hover") << hover << "" << false;
    QTest::newRow("no button") << drag << "Ctrl" << false;
    QTest::newRow("key for drag") << drag << "Ctrl+Up" << false;
    QTest::newRow("two keys") << key << "A+B" << false;
    QTest::newRow("button for hover") << hover << "LeftButton" << false;
    QTest::newRow("garbage") << key << "Ctrl+\x01\x02" << false;
    QTest::newRow("open end") << drag << "LeftButton+" << false;
    QTest::newRow("long") << key << QString(100000, '+') << false;
}

void TestBindings::storedTexts()
{
    QFETCH(int, kind);
    QFETCH(QString, text);
    QFETCH(bool, valid);
    const auto gesture = Gesture::fromStored(Gesture::Kind(kind), text);
    QCOMPARE(gesture.has_value(), valid);
    if (gesture)
        QCOMPARE(gesture->stored(), text);
}

void TestBindings::clashes_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<Gesture>("gesture");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("key of another") << "key/zoomIn" << keyGesture(Qt::Key_Up) << "Turn around X, back";
    QTest::newRow("drag of another") << "drag/rotateY" << dragGesture(Qt::LeftButton) << "Turn around Z";
    QTest::newRow("the other direction of a drag")
        << "drag/scaleZ" << dragGesture(Qt::LeftButton, Qt::ShiftModifier) << "";
    QTest::newRow("right button") << "drag/zoom" << dragGesture(Qt::RightButton) << "menu";
    QTest::newRow("hot key") << "key/zoomIn" << keyGesture(Qt::Key_L, Qt::ControlModifier) << "lighting";
    QTest::newRow("free key") << "key/zoomIn" << keyGesture(Qt::Key_Plus) << "";
    QTest::newRow("free button") << "drag/zoom" << dragGesture(Qt::MiddleButton) << "";
}

void TestBindings::clashes()
{
    QFETCH(QString, action);
    QFETCH(Gesture, gesture);
    QFETCH(QString, sentence);
    PlotBindings bindings;
    const int index = PlotBindings::indexOf(action);
    QVERIFY(bindings.setGesture(index, gesture));
    QCOMPARE(bindings.hasClash(), !sentence.isEmpty());
    QCOMPARE(bindings.clash(index).isEmpty(), sentence.isEmpty());
    QVERIFY2(bindings.clash(index).contains(sentence), qPrintable(bindings.clash(index)));

    // What clashes is kept nowhere; what does not comes back.
    QStringList problems;
    {
        QSettings store(path(), QSettings::IniFormat);
        bindings.save(store);
    }
    QSettings store(path(), QSettings::IniFormat);
    const PlotBindings loaded = PlotBindings::load(store, &problems);
    QCOMPARE(problems.size(), sentence.isEmpty() ? 0 : 1);
    QVERIFY(loaded == (sentence.isEmpty() ? bindings : PlotBindings()));
}

void TestBindings::badStoresFallBack_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("problems");
    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("unknown action") << QByteArray("[bindings]\nkey\\fly=Up\n") << 1;
    QTest::newRow("garbage") << QByteArray("[bindings]\nkey\\zoomIn=\x01\x02\ndrag\\zoom=@Variant(\\0)\n")
                             << 2;
    QTest::newRow("wrong kind") << QByteArray("[bindings]\ndrag\\zoom=Ctrl+Up\n") << 1;
    QTest::newRow("list") << QByteArray("[bindings]\ndrag\\zoom=LeftButton, RightButton\n") << 1;
    QTest::newRow("two of the same") << QByteArray("[bindings]\nkey\\zoomIn=F5\nkey\\zoomOut=F5\n") << 1;
    QTest::newRow("takes a default") << QByteArray("[bindings]\nkey\\zoomIn=Up\n") << 1;
    // The first holds until the second, which clashes, gets its usual keys back.
    QTest::newRow("chain") << QByteArray(
                                  "[bindings]\nkey\\rotateXPlus=Ctrl+Shift+Up\nkey\\zoomIn=Ctrl+Left\n")
                           << 2;
}

void TestBindings::badStoresFallBack()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, problems);
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes + "[other]\nkey=1\n");
        file.write("[bindings]\nkey\\shiftYPlus=PgUp\n");
    }
    QSettings store(path(), QSettings::IniFormat);
    QStringList told;
    const PlotBindings loaded = PlotBindings::load(store, &told);
    QCOMPARE(told.size(), problems);
    QVERIFY(!loaded.hasClash());
    QCOMPARE(loaded.gesture(row("key/shiftYPlus")), keyGesture(Qt::Key_PageUp));
    // Saving leaves what others keep.
    PlotBindings().save(store);
    QCOMPARE(store.allKeys(), QStringList{"other/key"});
}

void TestBindings::swapSolvesAClash()
{
    BindingsModel model((PlotBindings()));
    const int in = row("key/zoomIn");
    const int back = row("key/rotateXMinus");
    QVERIFY(!model.canSwap(in));
    QVERIFY(model.setGesture(in, keyGesture(Qt::Key_Up)));
    for (int clashing : {in, back}) {
        const QModelIndex note = model.index(clashing, BindingsModel::NoteColumn);
        QVERIFY(note.data().toString().contains(PlotBindings::actions().at(in + back - clashing).title()));
        QVERIFY(!note.data(Qt::DecorationRole).isNull());
    }
    QVERIFY(model.swap(in));
    QVERIFY(!model.hasClash());
    QCOMPARE(model.getBindings().gesture(in), keyGesture(Qt::Key_Up));
    QCOMPARE(model.getBindings().gesture(back),
             keyGesture(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier));
}

void TestBindings::shortcutsOfTheHostClash()
{
    BindingsModel model((PlotBindings()));
    model.reserve(Qt::Key_F11, Qt::NoModifier, "Full screen");
    QVERIFY(model.setGesture(row("key/zoomIn"), keyGesture(Qt::Key_F11)));
    QVERIFY(model.clash(row("key/zoomIn")).contains("Full screen"));
    QVERIFY(model.hasClash());
    QVERIFY(model.setGesture(row("key/zoomIn"), keyGesture(Qt::Key_F11, Qt::AltModifier)));
    QVERIFY(!model.hasClash());
}

void TestBindings::gesturesAreMadeByHand_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("mouse");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("made");
    const int alt = Qt::AltModifier;
    QTest::newRow("key") << "key/zoomIn" << false << int(Qt::Key_PageUp) << 0 << "PgUp";
    QTest::newRow("key of a menu") << "key/zoomIn" << false << int(Qt::Key_W) << alt << "Alt+W";
    QTest::newRow("enter") << "key/zoomIn" << false << int(Qt::Key_Return) << 0 << "Return";
    QTest::newRow("modifier alone") << "key/zoomIn" << false << int(Qt::Key_Shift) << 0 << "Ctrl+Shift+Up";
    QTest::newRow("mouse for a key") << "key/zoomIn" << true << int(Qt::LeftButton) << 0 << "Ctrl+Shift+Up";
    QTest::newRow("button") << "drag/zoom" << true << int(Qt::MiddleButton) << alt << "Alt+MiddleButton";
    QTest::newRow("key for a drag") << "drag/zoom" << false << int(Qt::Key_Z) << 0 << "Ctrl+Alt+LeftButton";
    QTest::newRow("hover, by mouse") << "hover/pick" << true << int(Qt::LeftButton) << alt << "Alt";
    QTest::newRow("hover, modifier alone") << "hover/pick" << false << int(Qt::Key_Shift) << alt << "None";
    QTest::newRow("hover, by key") << "hover/pick" << false << int(Qt::Key_Space) << alt << "Alt";
}

void TestBindings::gesturesAreMadeByHand()
{
    QFETCH(QString, action);
    QFETCH(bool, mouse);
    QFETCH(int, code);
    QFETCH(int, modifiers);
    QFETCH(QString, made);
    BindingsDialog dialog((PlotBindings()));
    QVERIFY(showActive(dialog));
    const int index = PlotBindings::indexOf(action);
    dialog.setCurrentRow(index);
    auto* edit = dialog.findChild<GestureEdit*>();
    if (mouse) {
        QTest::mouseClick(edit, Qt::MouseButton(code), Qt::KeyboardModifiers(modifiers));
    } else {
        // Enter in the table leads to the field.
        QTest::keyClick(dialog.findChild<QTableView*>(), Qt::Key_Return);
        QVERIFY(edit->hasFocus());
        QTest::keyClick(edit, Qt::Key(code), Qt::KeyboardModifiers(modifiers));
    }
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.getBindings().gesture(index).stored(), made);
}

void TestBindings::keyboardLeavesTheField()
{
    BindingsDialog dialog((PlotBindings()));
    QVERIFY(showActive(dialog));
    dialog.setCurrentRow(row("key/zoomIn"));
    auto* edit = dialog.findChild<GestureEdit*>();
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(!edit->hasFocus());
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QVERIFY(dialog.getBindings() == PlotBindings());
}

void TestBindings::dialogWaitsForASolution()
{
    BindingsDialog dialog((PlotBindings()));
    QVERIFY(showActive(dialog));
    QPushButton* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    QPushButton* swap = button(dialog, "Swap");
    QVERIFY(ok->isEnabled());
    QVERIFY(!swap->isEnabled());
    dialog.setCurrentRow(row("key/zoomIn"));
    auto* edit = dialog.findChild<GestureEdit*>();
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Up);
    QVERIFY(!ok->isEnabled());
    QVERIFY(swap->isEnabled());
    QTest::mouseClick(swap, Qt::LeftButton);
    QVERIFY(ok->isEnabled());
    QTest::mouseClick(ok, Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.getBindings().gesture(row("key/rotateXMinus")).stored(), QString("Ctrl+Shift+Up"));
}

void TestBindings::resetOneAndAll()
{
    PlotBindings changed;
    QVERIFY(changed.setGesture(row("key/zoomIn"), keyGesture(Qt::Key_Plus)));
    QVERIFY(changed.setGesture(row("key/zoomOut"), keyGesture(Qt::Key_Minus)));
    BindingsDialog dialog(changed);
    dialog.show();
    QPushButton* reset = button(dialog, "Reset");
    QVERIFY(!reset->isEnabled());
    dialog.setCurrentRow(row("key/zoomIn"));
    QTest::mouseClick(reset, Qt::LeftButton);
    QVERIFY(dialog.getBindings().isStandard(row("key/zoomIn")));
    QVERIFY(!dialog.getBindings().isStandard(row("key/zoomOut")));
    QTest::mouseClick(button(dialog, "Reset all"), Qt::LeftButton);
    QVERIFY(dialog.getBindings() == PlotBindings());
}

int main(int argc, char* argv[])
{
    return harness::run<TestBindings>(argc, argv);
}

#include "tst_bindings.moc"
