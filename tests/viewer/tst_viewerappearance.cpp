// Templates and gestures in the viewer.

#include "formulasource.h"
#include "harness/harness.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "scene/coordinatesystem.h"
#include "scene/title.h"
#include "settings/bindingsdialog.h"
#include "settings/plotsettingsdialog.h"
#include "toroidsource.h"
#include "viewerbindings.h"
#include "viewerplot.h"
#include "viewerwindow.h"

#include <QAction>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using Zel3D::Gesture;
using Zel3D::PlotBindings;

namespace {

const Gesture pageUp{Gesture::Key, Qt::NoButton, Qt::Key_PageUp, Qt::NoModifier};

int zoomIn()
{
    return PlotBindings::indexOf("key/zoomIn");
}

void showToroid(ViewerWindow& window)
{
    QString error;
    if (!window.present(std::make_unique<ToroidSource>(), error))
        qFatal("%s", qPrintable(error));
}

QString writeTemplate(const QTemporaryDir& folder, const QByteArray& version, const QByteArray& lines)
{
    QFile file(folder.filePath("look.plottemplate"));
    if (file.open(QIODevice::WriteOnly))
        file.write("[template]\ntype=plot appearance\nversion=" + version + "\n" + lines);
    return file.fileName();
}

} // namespace

class TestViewerAppearance : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();
    void gesturesAreKeptAndReachEveryPlot();
    void dialogKnowsTheShortcuts();
    void fullScreenFromOutside();
    void settingsOpenFromTheMenu();
    void editsComeBackWithTheirData();
    void templateOnTheCommandLine_data();
    void templateOnTheCommandLine();
};

void TestViewerAppearance::gesturesAreKeptAndReachEveryPlot()
{
    {
        QWidget window;
        ViewerPlot first;
        ViewerBindings bindings(&window, &first);
        {
            // A plot may go before the window.
            ViewerPlot gone;
            bindings.attach(&gone);
        }
        ViewerPlot second;
        bindings.attach(&second);
        PlotBindings changed;
        QVERIFY(changed.setGesture(zoomIn(), pageUp));
        bindings.setBindings(changed);
        QVERIFY(PlotBindings::of(first) == changed);
        QVERIFY(PlotBindings::of(second) == changed);
    }
    ViewerPlot alone;
    QVERIFY(PlotBindings::of(alone) == PlotBindings());
    QSettings().setValue("bindings/key/zoomOut", "Left");
    const harness::Messages messages;
    ViewerWindow window;
    showToroid(window);
    QCOMPARE(PlotBindings::of(window.page()->plot()).gesture(zoomIn()), pageUp);
    QCOMPARE(messages.warnings("\"Left\" is not used for \"Zoom out\""), 1);
}

void TestViewerAppearance::dialogKnowsTheShortcuts()
{
    ViewerWindow window;
    showToroid(window);
    window.show();
    QAction* entry = nullptr;
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->text() == "&Mouse and keys...")
            entry = action;
    }
    QVERIFY(entry != nullptr);
    QString note;
    const auto answer = [&](Qt::Key key, bool accept) {
        QTimer::singleShot(0, [&note, key, accept] {
            auto* dialog = qobject_cast<Zel3D::BindingsDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            dialog->getModel().setGesture(zoomIn(), {Gesture::Key, Qt::NoButton, key, Qt::NoModifier});
            note = dialog->getModel().clash(zoomIn());
            accept ? dialog->accept() : dialog->reject();
        });
        entry->trigger();
    };
    answer(Qt::Key_F11, false);
    QVERIFY2(note.contains("Full screen"), qPrintable(note));
    QVERIFY(PlotBindings::of(window.page()->plot()) == PlotBindings());
    answer(Qt::Key_PageUp, true);
    QCOMPARE(note, QString());
    QCOMPARE(PlotBindings::of(window.page()->plot()).gesture(zoomIn()), pageUp);
    QCOMPARE(QSettings().value("bindings/key/zoomIn").toString(), QString("PgUp"));
}

void TestViewerAppearance::settingsOpenFromTheMenu()
{
    ViewerWindow window;
    showToroid(window);
    window.show();
    bool opened = false;
    QTimer::singleShot(0, &window, [&] {
        opened = Zel3D::PlotSettingsDialog::of(window.page()->plot()) != nullptr;
        // The dialog goes with its plot, and so does the entry of the menu that opened it.
        window.closePlot();
    });
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->text() == "Settin&gs...") {
            action->trigger();
            break;
        }
    }
    QVERIFY(opened);
}

void TestViewerAppearance::editsComeBackWithTheirData()
{
    const QColor red(200, 10, 20);
    const auto axis = [](ViewerWindow& window) -> Zel3D::Axis& {
        return window.page()->plot().getCoordinateSystem().getAxis(Zel3D::XFrontBottom);
    };
    {
        ViewerWindow window;
        showToroid(window);
        Zel3D::BasePlot& plot = window.page()->plot();
        Zel3D::PlotSettingsDialog dialog(nullptr, plot.getOrganization(), plot.getApplication(), &plot);
        dialog.getBinder().edit("title/text", "Ring");
        dialog.getBinder().edit("axes/axis0/line/color", red);
        dialog.accept();
        // Whatever is chosen later goes with it.
        window.page()->view().setLook(Zel3D::Look::dark());
        plot.setRotation({10.0, 0.0, 20.0});
        window.close();
    }
    ViewerWindow again;
    showToroid(again);
    QCOMPARE(again.page()->plot().getTitle().getSettings().getText(), QString("Ring"));
    QCOMPARE(again.page()->plot().getBackgroundColor(), Zel3D::Look::dark().background);
    QCOMPARE(axis(again).getSettings().getLine().getColor(), Zel3D::Look::dark().ink);
    QCOMPARE(again.page()->plot().getRotation().z, 20.0);
    axis(again).getSettings().getLine().setColor(red);
    again.page()->plot().slotSaveSettings();
    // Other data have settings of their own; coming back to the first finds its last.
    QString error;
    QVERIFY(again.present(std::make_unique<FormulaSource>("x*y", FormulaArea()), error));
    QCOMPARE(again.page()->plot().getTitle().getSettings().getText(), QString("x*y"));
    QVERIFY(axis(again).getSettings().getLine().getColor() != red);
    showToroid(again);
    QCOMPARE(axis(again).getSettings().getLine().getColor(), red);
}

void TestViewerAppearance::cleanup()
{
    QSettings().clear();
    QSettings("VORAN", "voranview").clear();
}

void TestViewerAppearance::fullScreenFromOutside()
{
    ViewerWindow window;
    window.show();
    const auto checked = [&window] {
        for (const QAction* action : window.findChildren<QAction*>()) {
            if (action->shortcut() == QKeySequence(Qt::Key_F11))
                return action->isChecked();
        }
        return false;
    };
    QVERIFY(!checked());
    window.setWindowState(Qt::WindowFullScreen);
    QTRY_VERIFY(checked());
    window.setWindowState(Qt::WindowNoState);
    QTRY_VERIFY(!checked());
}

void TestViewerAppearance::templateOnTheCommandLine_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("errors");
    const QByteArray background = "[common]\nbackground=#102030\n";
    QTest::newRow("whole") << QByteArray("1") << background << 0 << "";
    QTest::newRow("damaged") << QByteArray("1") << background + "shading=round\n"
                             << 0 << "common/shading = round";
    QTest::newRow("newer") << QByteArray("9") << background << 1 << "newer version";
}

void TestViewerAppearance::templateOnTheCommandLine()
{
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, lines);
    QFETCH(int, status);
    QFETCH(QString, errors);
    const QTemporaryDir folder;
    const QString picture = folder.filePath("plot.png");
    QProcess viewer;
    viewer.start(VORANVIEW, {"--template", writeTemplate(folder, version, lines), "--png", picture, "--size",
                             "300x200", QString(VORAN_SOURCE_DIR) + "/examples/data/jacksboro_dem.asc"});
    QVERIFY(viewer.waitForFinished(60000));
    const QString told = QString::fromUtf8(viewer.readAllStandardError());
    QCOMPARE(viewer.exitCode(), status);
    QVERIFY2(told.contains(errors), qPrintable(told));
    QCOMPARE(told.isEmpty(), errors.isEmpty());
    QCOMPARE(QFile::exists(picture), status == 0);
    if (status == 0)
        QCOMPARE(QColor(QImage(picture).pixel(0, 0)), QColor(0x10, 0x20, 0x30));
}

int main(int argc, char* argv[])
{
    return harness::run<TestViewerAppearance>(argc, argv);
}

#include "tst_viewerappearance.moc"
