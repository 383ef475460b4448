// The settings dialog as a whole: what it keeps, where it opens, how it lives with its plot.

#include "core/datacolor.h"
#include "gradients/gradienteditdialog.h"
#include "gradients/gradientmanager.h"
#include "gradients/gradientstopsmodel.h"
#include "plots/dotaddition.h"
#include "plots/sphereaddition.h"
#include "settings/axesgroupbox.h"
#include "settings/boxpicker.h"
#include "settings/settingssearch.h"
#include "settingsfixture.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QSlider>
#include <QTimer>
#include <QToolTip>

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
    void narrowDialogKeepsItsPages();
    void opensOnTheScreen_data();
    void opensOnTheScreen();
    void plotStaysUsable();
    void closesWithItsPlot();
    void oneDialogForAPlot();
    void searchFinds_data();
    void searchFinds();
    void searchGoesToTheSetting();
    void onlyWhatMustBeIsRebuilt_data();
    void onlyWhatMustBeIsRebuilt();
    void axesOfADirectionAreEditedTogether();
    void chosenAxisIsHighlighted();
    void markersKeepTheHostsOwn();
    void colorsOfOneVisitAreOneStep();
    void editedGradientsReachThePlot();
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
    const auto* list = dialog.findChild<QListWidget*>("pages");
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

void TestSettingsDialog::narrowDialogKeepsItsPages()
{
    LongTexts translator;
    QApplication::installTranslator(&translator);
    {
        StyledPlot plot;
        const auto dialog = openDialog(plot);
        auto* list = dialog->findChild<QListWidget*>("pages");
        auto* search = dialog->findChild<QLineEdit*>("search");
        const int usual = dialog->width();
        const int usualList = list->width();
        dialog->resize(700, 500);
        QTest::qWait(20);
        QCOMPARE(dialog->size(), QSize(700, 500));
        QVERIFY(list->width() < usualList / 2);
        // The titles are told in tool tips, and the search is still there.
        QHelpEvent help(QEvent::ToolTip, QPoint(10, 10), list->viewport()->mapToGlobal(QPoint(10, 10)));
        QApplication::sendEvent(list->viewport(), &help);
        QCOMPARE(QToolTip::text(), list->item(0)->text());
        search->setFocus();
        QVERIFY(search->isVisible() && search->width() > usualList / 2);
        dialog->resize(usual, 500);
        QTest::qWait(20);
        QCOMPARE(list->width(), usualList);
        QVERIFY(search->isVisible() && dialog->focusWidget() == search);
        // A longer title, as in another language, has the room that it needs.
        list->item(0)->setText(list->item(0)->text().repeated(2));
        dialog->resize(2 * usual, 500);
        QTest::qWait(20);
        QVERIFY(list->width() > usualList);
    }
    QApplication::removeTranslator(&translator);
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
    const auto opened = [](BasePlot& plot) {
        int open = 0;
        QTimer::singleShot(100, &plot, [&] {
            plot.slotSettingsDialog();
            for (const QWidget* widget : QApplication::topLevelWidgets())
                open += qobject_cast<const PlotSettingsDialog*>(widget) ? 1 : 0;
            if (PlotSettingsDialog* dialog = PlotSettingsDialog::of(plot))
                dialog->reject();
        });
        plot.slotSettingsDialog();
        return open;
    };
    StyledPlot surface;
    QVERIFY(harness::show(surface, 200, 200));
    QCOMPARE(opened(surface), 1);
    Spectrum spectra("spectra", organization, application);
    QVERIFY(harness::show(spectra, 200, 200));
    QCOMPARE(opened(spectra), 1);
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

namespace {

/// Counts how often the geometry is sent.
class CountingPlot : public StyledPlot
{
public:
    int builds = 0;

protected:
    void createData() override
    {
        ++builds;
        StyledPlot::createData();
    }
};

} // namespace

void TestSettingsDialog::onlyWhatMustBeIsRebuilt_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("builds");
    for (const char* id : {"common/rotationX", "common/zoom", "title/positionX", "title/text",
                           "axes/axis0/line/color", "lighting/light0/phi", "legend/numbers/color",
                           "grid/color", "scales/x/linear/major", "style/meshWidth", "additions/dotSize"})
        QTest::newRow(id) << id << 0;
    QTest::newRow("common/resolution") << QString("common/resolution") << 1;
}

void TestSettingsDialog::onlyWhatMustBeIsRebuilt()
{
    QFETCH(QString, id);
    QFETCH(int, builds);
    CountingPlot plot;
    QVERIFY(harness::show(plot, 200, 200));
    const int before = plot.builds;
    const auto dialog = openDialog(plot);
    harness::grab(plot);
    QCOMPARE(plot.builds, before);
    FieldBinder& binder = dialog->getBinder();
    // The steps of a slider between two frames.
    for (int step = 0; step < 5; ++step)
        binder.edit(id, otherValue(binder.getField(id), binder.value(id)), 1);
    harness::grab(plot);
    QCOMPARE(plot.builds - before, builds);
}

void TestSettingsDialog::axesOfADirectionAreEditedTogether()
{
    StyledPlot plot;
    CoordinateSystem& system = plot.getCoordinateSystem();
    system.getAxis(XBackTop).getSettings().getLine().setColor(Qt::green);
    const auto dialog = openDialog(plot);
    FieldBinder& binder = dialog->getBinder();
    const auto colors = [&system](BaseAxisType direction) {
        QStringList names;
        for (AxisType type : edgesOf(direction))
            names.append(system.getAxis(type).getSettings().getLine().getColor().name());
        return names.join(' ');
    };
    const QString before = colors(XAxis);
    const QString others = colors(YAxis) + colors(ZAxis);
    binder.edit("axes/axis0/line/color", QColor(Qt::red));
    QCOMPARE(colors(XAxis), QString("#ff0000 #ff0000 #ff0000 #ff0000"));
    QCOMPARE(colors(YAxis) + colors(ZAxis), others);
    QCOMPARE(binder.getUndoStack().count(), 1);
    binder.getUndoStack().undo();
    QCOMPARE(colors(XAxis), before);
    editorOf(*dialog, "axes/axis0/line/color");
    dialog->findChild<QCheckBox*>("alike")->click();
    binder.edit("axes/axis0/line/color", QColor(Qt::red));
    QCOMPARE(colors(XAxis).count("#ff0000"), 1);
}

void TestSettingsDialog::chosenAxisIsHighlighted()
{
    StyledPlot plot;
    CoordinateSystem& system = plot.getCoordinateSystem();
    const auto dialog = openDialog(plot);
    QVERIFY(!system.isHighlight());
    editorOf(*dialog, "axes/axis0/line/color");
    auto* box = dialog->findChild<AxesGroupBox*>();
    box->findChild<QCheckBox*>("alike")->click();
    for (AxisType type : {YRightBottom, ZFrontLeft, XBackTop}) {
        // Near one end, where no other edge crosses.
        const QPointF place = box->getPicker().lineOf(type).pointAt(0.3);
        QTest::mouseClick(&box->getPicker(), Qt::LeftButton, {}, place.toPoint());
        QCOMPARE(box->getChosen(), type);
        QVERIFY(system.isHighlight());
        for (int i = 0; i < 12; ++i)
            QCOMPARE(system.getAxis(AxisType(i)).isHighlighted(), i == int(type));
        QVERIFY(editorOf(*dialog, QString("axes/axis%1/line/color").arg(int(type)))->isVisible());
    }
    dialog->setCurrentRow(0);
    QVERIFY(!system.isHighlight());
    editorOf(*dialog, "axes/axis0/line/color");
    QVERIFY(system.isHighlight());
    dialog->reject();
    QVERIFY(!system.isHighlight());
}

void TestSettingsDialog::markersKeepTheHostsOwn()
{
    class OwnMarker : public Dot
    {
    public:
        Addition* clone() const override { return new OwnMarker(*this); }
    };
    StyledPlot plot;
    OwnMarker own;
    const Addition* held = plot.addAddition(own);
    DotAddition dot(2.0, false, Qt::blue);
    const Addition* heldDot = plot.addAddition(dot);
    const auto dialog = openDialog(plot);
    auto* editor = static_cast<MarkersEditor*>(editorOf(*dialog, "additions/markers"));
    editor->add("sphere");
    QCOMPARE(plot.getAdditions().size(), 3);
    emit editor->findChild<ValueEditor*>("radius")->edited(7.0, 0);
    QCOMPARE(dynamic_cast<SphereAddition*>(plot.getAdditions().at(2))->getRadius(), 7.0);
    editor->choose(0);
    QVERIFY(!editor->findChildren<QPushButton*>().at(1)->isEnabled());
    editor->choose(1);
    QCOMPARE(editor->findChildren<QPushButton*>().at(1)->isEnabled(), true);
    editor->removeChosen();
    QCOMPARE(plot.getAdditions().size(), 2);
    QCOMPARE(static_cast<const Addition*>(plot.getAdditions().at(0)), held);
    dialog->getBinder().getUndoStack().undo();
    QCOMPARE(plot.getAdditions().size(), 3);
    QVERIFY(plot.getAdditions().at(1) != heldDot);
    QCOMPARE(dynamic_cast<DotAddition*>(plot.getAdditions().at(1))->getColor(), QColor(Qt::blue));
    dialog->reject();
    QCOMPARE(plot.getAdditions().size(), 2);
    // What the host adds is not doubled by what was stored.
    plot.slotSaveSettings();
    StyledPlot again;
    again.addAddition(own);
    again.slotLoadSettings();
    QCOMPARE(again.getAdditions().size(), 2);
}

void TestSettingsDialog::colorsOfOneVisitAreOneStep()
{
    StyledPlot plot;
    const auto dialog = openDialog(plot);
    auto* button = editorOf(*dialog, "common/background")->findChild<ColorButton*>();
    const QUndoStack& undo = dialog->getBinder().getUndoStack();
    const QColor before = plot.getBackgroundColor();
    const QColor half(10, 20, 30, 128);
    for (bool cancelled : {true, false}) {
        button->click();
        auto* colors = button->findChild<QColorDialog*>();
        colors->setCurrentColor(Qt::red);
        colors->setCurrentColor(half);
        QCOMPARE(plot.getBackgroundColor(), half);
        QCOMPARE(undo.count(), 1);
        if (cancelled)
            colors->reject();
        else
            colors->accept();
        QCOMPARE(undo.count(), cancelled ? 0 : 1);
        QCOMPARE(plot.getBackgroundColor(), cancelled ? before : half);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void TestSettingsDialog::editedGradientsReachThePlot()
{
    StyledPlot plot;
    const auto dialog = openDialog(plot);
    const QUndoStack& undo = dialog->getBinder().getUndoStack();
    ValueEditor* editor = editorOf(*dialog, "style/gradient");
    auto* button = editor->findChild<GradientButton*>();
    QCOMPARE(button->getCurrentName(), QString("ramp"));
    button->editCurrent();
    auto* gradients = button->findChild<GradientEditDialog*>();
    for (const QColor& color : {QColor(Qt::cyan), QColor(Qt::magenta)})
        gradients->getModel()->setColor(0, color);
    QCOMPARE(gradientStops(plot.getCurrentGradient()).first().second, QColor(Qt::magenta));
    QCOMPARE(undo.count(), 1);
    QCOMPARE(gradientStops(plot.getLegend().getGradient()).first().second, QColor(Qt::magenta));
    gradients->accept();
    // A gradient that is not in use is the plot's, too.
    auto* store = editor->findChild<GradientManager*>();
    store->addGradient("third", plain(Qt::yellow));
    QTRY_VERIFY(plot.getSettings().getGradients().getGradients().contains("third"));
    QCOMPARE(plot.getSettings().getGradients().getCurrent(), QString("ramp"));
    dialog->reject();
    QVERIFY(!plot.getSettings().getGradients().getGradients().contains("third"));
    QCOMPARE(gradientStops(plot.getCurrentGradient()).first().second, QColor(Qt::black));
    QCOMPARE(plot.getDataColor()->getGradient(), plot.getCurrentGradient());
}

int main(int argc, char* argv[])
{
    return harness::run<TestSettingsDialog>(argc, argv);
}

#include "tst_settingsdialog.moc"
