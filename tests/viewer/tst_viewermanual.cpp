// The manual's page on the viewer has the keys that the menus have.

#include "docs/manualtables.h"
#include "harness/harness.h"
#include "spectrasource.h"
#include "toroidsource.h"
#include "viewerwindow.h"
#include "watersource.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QtTest>

namespace {

/// "Menu, submenu, entry" by keys; the entry is left out where several entries share a row of the manual.
using Keys = QMap<QString, QString>;

QString plain(QString text)
{
    return text.remove('&');
}

void collect(const QMenu& menu, const QString& path, Keys& keys)
{
    const QList<QAction*> actions = menu.actions();
    for (const QAction* action : actions) {
        const QString entry = path + ", " + plain(action->text());
        if (action->menu())
            collect(*action->menu(), entry, keys);
        for (const QKeySequence& shortcut : action->shortcuts())
            keys.insert(shortcut.toString(QKeySequence::PortableText), entry);
    }
}

/// The keys of a cell: some with commas between them, or a range of their last digits.
QStringList keysOf(const QString& cell)
{
    const QStringList ends = cell.split(" to ");
    if (ends.size() == 1)
        return cell.split(", ");
    QStringList keys;
    for (int digit = ends[0].right(1).toInt(); digit <= ends[1].right(1).toInt(); ++digit)
        keys.append(ends[0].chopped(1) + QString::number(digit));
    return keys;
}

} // namespace

class TestViewerManual : public QObject
{
    Q_OBJECT
private slots:
    void keysOfTheMenus();
};

void TestViewerManual::keysOfTheMenus()
{
    ViewerWindow window;
    Keys real;
    QString error;
    const auto add = [&](std::unique_ptr<PlotSource> source) {
        const bool shown = window.present(std::move(source), error);
        for (const QAction* top : window.menuBar()->actions())
            collect(*top->menu(), plain(top->text()), real);
        return shown;
    };
    QVERIFY(add(std::make_unique<ToroidSource>()));
    QVERIFY(add(std::make_unique<WaterSource>()));
    QVERIFY(
        add(std::make_unique<SpectraSource>(QString(VORAN_SOURCE_DIR "/examples/data/gasoline_nir.csv"))));
    Keys written;
    for (const QStringList& row : manual::table("viewer.md", "menu entry")) {
        for (const QString& key : keysOf(row.at(1))) {
            QVERIFY2(!written.contains(key), qPrintable(key));
            const bool several = row.at(1).contains(" to ");
            written.insert(key, row.at(0));
            if (several && real.contains(key)) {
                const QString menu = row.at(0).section(',', 0, 0);
                QCOMPARE(real.value(key).section(',', 0, 0), menu);
                real.insert(key, row.at(0));
            }
        }
    }
    for (auto key = real.cbegin(); key != real.cend(); ++key)
        QCOMPARE(key.key() + ": " + written.value(key.key()), key.key() + ": " + key.value());
    QCOMPARE(QStringList(written.keys()), QStringList(real.keys()));
}

int main(int argc, char* argv[])
{
    return harness::run<TestViewerManual>(argc, argv);
}

#include "tst_viewermanual.moc"
