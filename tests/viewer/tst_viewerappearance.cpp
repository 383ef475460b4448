// Templates and gestures in the viewer.

#include "harness/harness.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "settings/bindingsdialog.h"
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
    void cleanup() { QSettings().clear(); }
    void gesturesAreKeptAndReachEveryPlot();
    void dialogKnowsTheShortcuts();
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
