// The settings dialog as a whole: what it keeps, where it opens, how it lives with its plot.

#include "settings/settingssearch.h"
#include "settingsfixture.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QSlider>
#include <QTimer>

#include <memory>

using namespace Zel3D;
using namespace fixture;

namespace {

/// A page of a host with values of its own; one setter refuses odd numbers.
class HostPage : public AbstractSettingsPage
{
public:
    explicit HostPage(int* value) : number(value) {}

    QVector<FieldGroup> describe(BasePlot& /*plot*/) const override
    {
        int* held = number;
        return {{"Host",
                 {Field::integer("host/even", "Even number", "Only even numbers.")
                      .within(0, 10, 1)
                      .bind([held] { return *held; },
                            [held](int value) {
                                if (value % 2 != 0 || *held == value)
                                    return false;
                                *held = value;
                                return true;
                            })},
                 {}}};
    }

private:
    int* number;
};

QVariant stored(const QString& key)
{
    return QSettings(organization, application).value("plot/" + key);
}

std::unique_ptr<PlotSettingsDialog> openDialog(StyledPlot& plot)
{
    auto dialog = std::make_unique<PlotSettingsDialog>(nullptr, organization, application, &plot);
    dialog->show();
    (void)QTest::qWaitForWindowExposed(dialog.get());
    return dialog;
}

ValueEditor* editorOf(PlotSettingsDialog& dialog, const QString& id)
{
    dialog.goTo(id);
    return dialog.findChild<ValueEditor*>(id);
}

} // namespace

class TestSettingsDialog : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void applyAndOkSave();
    void cancelGoesBackToApply();
    void dragsAreUndoneAtOnce();
    void refusedValuesGoBack();
    void valuesOutOfRangeCannotBeTyped();
    void enterDoesNotClose();
    void pagesOfTheOptions();
    void pageAndPlaceComeBack();
    void opensOnTheScreen_data();
    void opensOnTheScreen();
    void plotStaysUsable();
    void closesWithItsPlot();
    void oneDialogForAPlot();
    void searchFinds_data();
    void searchFinds();
    void searchGoesToTheSetting();
};

void TestSettingsDialog::applyAndOkSave()
{
    StyledPlot plot;
    const auto dialog = openDialog(plot);
    dialog->getBinder().edit("common/zoom", 2.0);
    QVERIFY(!stored("zoom").isValid());
    QPushButton* apply = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply);
    QVERIFY(apply->isEnabled());
    apply->click();
    QCOMPARE(stored("zoom").toDouble(), 2.0);
    QVERIFY(!apply->isEnabled());
    dialog->getBinder().edit("common/zoom", 3.0);
    dialog->accept();
    QCOMPARE(stored("zoom").toDouble(), 3.0);
    QCOMPARE(plot.getZoom(), 3.0);
}

void TestSettingsDialog::cancelGoesBackToApply()
{
    StyledPlot plot;
    const auto dialog = openDialog(plot);
    dialog->getBinder().edit("common/zoom", 2.0);
    dialog->apply();
    dialog->getBinder().edit("common/zoom", 3.0);
    dialog->getBinder().edit("grid/top", true);
    dialog->reject();
    QCOMPARE(plot.getZoom(), 2.0);
    QCOMPARE(plot.getCoordinateSystem().getSettings().getGridStyle(), 0);
}

void TestSettingsDialog::dragsAreUndoneAtOnce()
{
    StyledPlot plot;
    const auto dialog = openDialog(plot);
    QUndoStack& undo = dialog->getBinder().getUndoStack();
    auto* slider = editorOf(*dialog, "common/rotationX")->findChild<QSlider*>();
    for (int drag = 1; drag <= 2; ++drag) {
        slider->setSliderDown(true);
        for (int step = 1; step <= 5; ++step)
            slider->setSliderPosition(500 + 100 * drag + 10 * step);
        slider->setSliderDown(false);
    }
    const double turned = plot.getRotation().x;
    QCOMPARE(undo.count(), 2);
    undo.undo();
    QCOMPARE(plot.getRotation().x, 108.0);
    undo.undo();
    QCOMPARE(plot.getRotation().x, 0.0);
    undo.redo();
    undo.redo();
    QCOMPARE(plot.getRotation().x, turned);
}

void TestSettingsDialog::refusedValuesGoBack()
{
    int value = 4;
    auto* options = new SettingsDialogOptions;
    options->addPage({"host", "Host", QString(), [&value] { return new HostPage(&value); }});
    StyledPlot plot;
    plot.setSettingsDialogOptions(options);
    PlotSettingsDialog dialog(options, organization, application, &plot);
    dialog.show();
    auto* box = qobject_cast<QDoubleSpinBox*>(editorOf(dialog, "host/even")->focusTarget());
    box->stepUp();
    QCOMPARE(value, 4);
    QCOMPARE(box->value(), 4.0);
    QCOMPARE(dialog.getBinder().getUndoStack().count(), 0);
    box->setValue(6.0);
    QCOMPARE(value, 6);
    dialog.reject();
    QCOMPARE(value, 4);
}

void TestSettingsDialog::valuesOutOfRangeCannotBeTyped()
{
    StyledPlot plot;
    const auto dialog = openDialog(plot);
    auto* box = qobject_cast<QDoubleSpinBox*>(editorOf(*dialog, "common/resolution")->focusTarget());
    box->selectAll();
    QTest::keyClicks(box, "-99999");
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(plot.getSettings().getResolution(), 999);
    box->selectAll();
    QTest::keyClicks(box, "0");
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(plot.getSettings().getResolution(), 1);
    // A host may set what nobody can type.
    plot.setZoom(1000.0);
    QCOMPARE(qobject_cast<QDoubleSpinBox*>(editorOf(*dialog, "common/zoom")->focusTarget())->value(), 1000.0);
}

void TestSettingsDialog::enterDoesNotClose()
{
    StyledPlot plot;
    const auto dialog = openDialog(plot);
    auto* box = qobject_cast<QDoubleSpinBox*>(editorOf(*dialog, "common/resolution")->focusTarget());
    box->selectAll();
    QTest::keyClicks(box, "3");
    QTest::keyClick(box, Qt::Key_Return);
    QVERIFY(dialog->isVisible());
    QCOMPARE(plot.getSettings().getResolution(), 3);
    // What is half typed goes with the dialog.
    QTest::keyClicks(box, "5");
    QTest::keyClick(box, Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(plot.getSettings().getResolution(), 1);
}

void TestSettingsDialog::pagesOfTheOptions()
{
    int value = 0;
    SettingsDialogOptions options;
    options.setPageVisible("title", false);
    options.addPage({"host", "Host", QString(), [&value] { return new HostPage(&value); }});
    StyledPlot plot;
    const PlotSettingsDialog dialog(&options, organization, application, &plot);
    QStringList titles;
    const auto* list = dialog.findChild<QListWidget*>();
    for (int i = 0; i < list->count(); ++i)
        titles.append(list->item(i)->text());
    QCOMPARE(titles.size(), PlotSettingsDialog::libraryPages().size());
    QVERIFY(!titles.contains("Title"));
    QCOMPARE(titles.last(), QString("Host"));
}

void TestSettingsDialog::pageAndPlaceComeBack()
{
    StyledPlot plot;
    QRect place;
    {
        const auto dialog = openDialog(plot);
        dialog->setCurrentRow(2);
        dialog->setGeometry(300, 200, dialog->minimumWidth() + 50, dialog->minimumHeight() + 30);
        QTest::qWait(50);
        place = QRect(dialog->pos(), dialog->size());
        dialog->reject();
    }
    QCOMPARE(stored("settingDialog/currentRow").toInt(), 2);
    QCOMPARE(stored("settingDialog/posX").toInt(), place.x());
    QCOMPARE(stored("settingDialog/posY").toInt(), place.y());
    QCOMPARE(stored("settingDialog/width").toInt(), place.width());
    QCOMPARE(stored("settingDialog/height").toInt(), place.height());
    const auto dialog = openDialog(plot);
    QCOMPARE(dialog->getCurrentRow(), 2);
    QCOMPARE(QRect(dialog->pos(), dialog->size()), place);
}

void TestSettingsDialog::opensOnTheScreen_data()
{
    QTest::addColumn<QRect>("wanted");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("inside") << QRect(10, 20, 100, 200) << QRect(10, 20, 100, 200);
    QTest::newRow("left and above") << QRect(-50, -60, 100, 200) << QRect(0, 0, 100, 200);
    QTest::newRow("right and below") << QRect(780, 590, 100, 200) << QRect(700, 400, 100, 200);
    QTest::newRow("larger than the screen") << QRect(-50, 20, 2000, 1000) << QRect(0, 0, 800, 600);
}

void TestSettingsDialog::opensOnTheScreen()
{
    QFETCH(QRect, wanted);
    QFETCH(QRect, expected);
    QCOMPARE(PlotBaseDialog::fitted(wanted, QRect(0, 0, 800, 600)), expected);
    QSettings store(organization, application);
    store.setValue("plot/settingDialog/posX", 5000);
    store.setValue("plot/settingDialog/posY", -5000);
    store.sync();
    StyledPlot plot;
    const auto dialog = openDialog(plot);
    QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(dialog->geometry()));
}

void TestSettingsDialog::plotStaysUsable()
{
    StyledPlot plot;
    QVERIFY(harness::show(plot, 200, 200));
    bool turned = false;
    bool followed = false;
    QTimer::singleShot(200, &plot, [&] {
        PlotSettingsDialog* dialog = PlotSettingsDialog::of(plot);
        QTest::mousePress(&plot, Qt::LeftButton, {}, QPoint(50, 50));
        QMouseEvent move(QEvent::MouseMove, QPointF(90, 50), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&plot, &move);
        turned = plot.getRotation().z != 0.0 && QApplication::activeModalWidget() == nullptr;
        const Field& field = dialog->getBinder().getField("common/rotationZ");
        followed = shows(field, *dialog->findChild<ValueEditor*>(field.id), plot.getRotation().z);
        dialog->accept();
    });
    plot.slotSettingsDialog();
    QVERIFY(turned);
    QVERIFY(followed);
    QVERIFY(plot.getRotation().z != 0.0);
}

void TestSettingsDialog::closesWithItsPlot()
{
    auto* plot = new StyledPlot;
    QVERIFY(harness::show(*plot, 200, 200));
    QTimer::singleShot(100, plot, [plot] {
        PlotSettingsDialog::of(*plot)->getBinder().edit("common/zoom", 2.0);
        QTimer::singleShot(0, plot, [plot] { delete plot; });
    });
    plot->slotSettingsDialog();
    // Returned: the dialog is closed.
    for (const QWidget* widget : QApplication::topLevelWidgets())
        QVERIFY(!qobject_cast<const PlotSettingsDialog*>(widget));
}

void TestSettingsDialog::oneDialogForAPlot()
{
    StyledPlot plot;
    QVERIFY(harness::show(plot, 200, 200));
    int open = 0;
    QTimer::singleShot(100, &plot, [&] {
        plot.slotSettingsDialog();
        for (const QWidget* widget : QApplication::topLevelWidgets())
            open += qobject_cast<const PlotSettingsDialog*>(widget) ? 1 : 0;
        PlotSettingsDialog::of(plot)->reject();
    });
    plot.slotSettingsDialog();
    QCOMPARE(open, 1);
}

void TestSettingsDialog::searchFinds_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVector<int>>("found");
    QTest::newRow("nothing") << " " << QVector<int>{};
    QTest::newRow("unknown") << "teapot" << QVector<int>{};
    QTest::newRow("labels before the rest") << "color" << QVector<int>{1, 0};
    QTest::newRow("words in any order") << "GRID width" << QVector<int>{2};
    QTest::newRow("page alone") << "grid" << QVector<int>{1, 2};
}

void TestSettingsDialog::searchFinds()
{
    QFETCH(QString, typed);
    QFETCH(QVector<int>, found);
    const QVector<SearchEntry> entries{
        {"a", 0, "Common \u203A Background", "Background", "The color behind."},
        {"b", 1, "Grid \u203A Color", "Color", "Of all lines."},
        {"c", 1, "Grid \u203A Major \u203A Width", "Width", "Of the lines."}};
    QCOMPARE(searchSettings(entries, typed), found);
}

void TestSettingsDialog::searchGoesToTheSetting()
{
    StyledPlot plot;
    const auto dialog = openDialog(plot);
    dialog->activateWindow();
    auto* line = dialog->findChild<QLineEdit*>("search");
    line->setFocus();
    QTest::keyClicks(line, "legend position");
    QTest::keyClick(line, Qt::Key_Return);
    const ValueEditor* editor = dialog->findChild<ValueEditor*>("legend/position");
    QTRY_VERIFY(editor->isVisible());
    QTRY_VERIFY(dialog->focusWidget() && editor->isAncestorOf(dialog->focusWidget()));
    QVERIFY(dialog->isVisible());
}

int main(int argc, char* argv[])
{
    return harness::run<TestSettingsDialog>(argc, argv);
}

#include "tst_settingsdialog.moc"
