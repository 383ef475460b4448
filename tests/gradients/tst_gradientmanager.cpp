#include "gradients/gradientmanager.h"
#include "harness/harness.h"

#include <QTranslator>
#include <QtTest>

namespace {

QLinearGradient gradientTo(const QColor& color)
{
    QLinearGradient gradient;
    gradient.setColorAt(0.0, Qt::black);
    gradient.setColorAt(1.0, color);
    return gradient;
}

/// Writes down the signals of a store, each with what the store held under the name at that moment.
class Log
{
public:
    explicit Log(GradientManager& manager)
    {
        const auto write = [this, &manager](const QString& signal, const QString& name) {
            const auto held = manager.gradients();
            lines << signal + ' ' + name +
                         (held.contains(name) ? ' ' + held[name].stops().last().second.name() : QString());
        };
        QObject::connect(&manager, &GradientManager::gradientAdded,
                         [=](const QString& name, const QGradient&) { write("added", name); });
        QObject::connect(&manager, &GradientManager::gradientRemoved,
                         [=](const QString& name) { write("removed", name); });
        QObject::connect(&manager, &GradientManager::gradientChanged,
                         [=](const QString& name, const QGradient& gradient) {
                             lines << "changed " + name + ' ' + gradient.stops().last().second.name();
                         });
        QObject::connect(&manager, &GradientManager::currentChange,
                         [=](const QString& name) { write("current", name); });
    }
    QStringList take()
    {
        QStringList taken;
        taken.swap(lines);
        return taken;
    }

private:
    QStringList lines;
};

} // namespace

class TestGradientManager : public QObject
{
    Q_OBJECT
private slots:
    void uniqueNames_data();
    void uniqueNames();
    void changesAreReported();
    void renaming();
    void clearing();
    void defaultNameIsTranslated();
};

void TestGradientManager::uniqueNames_data()
{
    QTest::addColumn<QStringList>("asked");
    QTest::addColumn<QStringList>("given");
    QTest::newRow("counted") << QStringList{"Blue", "Blue", "Blue1", "Blue"}
                             << QStringList{"Blue", "Blue1", "Blue2", "Blue3"};
    QTest::newRow("digits are stripped") << QStringList{"A97", "A97"} << QStringList{"A97", "A1"};
    QTest::newRow("first gap") << QStringList{"B", "B2", "B", "B"} << QStringList{"B", "B2", "B1", "B3"};
    QTest::newRow("inner digits stay") << QStringList{"1a1b", "1a1b"} << QStringList{"1a1b", "1a1b1"};
    QTest::newRow("digits only") << QStringList{"7", "7"} << QStringList{"7", "1"};
    QTest::newRow("no name") << QStringList{"", ""} << QStringList{"", "1"};
    QTest::newRow("other digits") << QStringList{QString("x") + QChar(0x0663), QString("x") + QChar(0x0663)}
                                  << QStringList{QString("x") + QChar(0x0663), "x1"};
    QTest::newRow("default") << QStringList{"Default"} << QStringList{"Default1"};
}

void TestGradientManager::uniqueNames()
{
    QFETCH(QStringList, asked);
    QFETCH(QStringList, given);
    GradientManager manager(nullptr, gradientTo(Qt::white));
    QStringList found;
    for (const QString& name : asked)
        found << manager.addGradient(name, gradientTo(Qt::red));
    QCOMPARE(found, given);
    QCOMPARE(manager.gradients().size(), given.size() + 1);
    QVERIFY(manager.getDefaultGradient() == gradientTo(Qt::white));
}

void TestGradientManager::changesAreReported()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    Log log(manager);
    manager.addGradient("A", gradientTo(Qt::red));
    QCOMPARE(log.take(), QStringList{"added A #ff0000"});
    manager.changeGradient("A", "A", gradientTo(Qt::red));
    manager.changeGradient("B", "B", gradientTo(Qt::red));
    manager.removeGradient("B");
    QCOMPARE(log.take(), QStringList());
    manager.changeGradient("A", "A", gradientTo(Qt::blue));
    QCOMPARE(log.take(), QStringList{"changed A #0000ff"});
    QVERIFY(manager.gradients()["A"] == gradientTo(Qt::blue));
    // Removal is reported while the gradient can still be asked for.
    manager.removeGradient("A");
    QCOMPARE(log.take(), QStringList{"removed A #0000ff"});
    QCOMPARE(manager.gradients().keys(), QStringList{"Default"});
}

void TestGradientManager::renaming()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    manager.addGradient("A", gradientTo(Qt::red));
    manager.addGradient("B", gradientTo(Qt::green));
    Log log(manager);
    manager.changeGradient("A", "C", gradientTo(Qt::blue));
    QCOMPARE(log.take(), (QStringList{"removed A #ff0000", "added C #0000ff", "current C #0000ff"}));
    // A name that is taken is made unique, but the current name is reported as given.
    manager.changeGradient("C", "B", gradientTo(Qt::red));
    QCOMPARE(log.take(), (QStringList{"removed C #0000ff", "added B1 #ff0000", "current B #00ff00"}));
    manager.changeGradient("absent", "D", gradientTo(Qt::red));
    QCOMPARE(log.take(), (QStringList{"added D #ff0000", "current D #ff0000"}));
    QCOMPARE(manager.gradients().keys(), (QStringList{"B", "B1", "D", "Default"}));
}

void TestGradientManager::clearing()
{
    GradientManager manager(nullptr, gradientTo(Qt::white));
    manager.addGradient("A", gradientTo(Qt::red));
    Log log(manager);
    manager.clear();
    QCOMPARE(log.take(), (QStringList{"removed A #ff0000", "removed Default #ffffff"}));
    QVERIFY(manager.gradients().isEmpty());
    QCOMPARE(manager.getDefaultGradient().type(), QGradient::NoGradient);
}

void TestGradientManager::defaultNameIsTranslated()
{
    class German : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char* context, const char* text, const char*, int) const override
        {
            return context == QByteArray("GradientManager") && text == QByteArray("Default") ? "Vorgabe" : "";
        }
    };
    German german;
    QVERIFY(QCoreApplication::installTranslator(&german));
    GradientManager manager(nullptr, gradientTo(Qt::red));
    QCOMPARE(manager.gradients().keys(), QStringList{"Vorgabe"});
    QVERIFY(manager.getDefaultGradient() == gradientTo(Qt::red));
}

int main(int argc, char* argv[])
{
    return harness::run<TestGradientManager>(argc, argv);
}

#include "tst_gradientmanager.moc"
