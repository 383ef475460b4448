// The plugin for Qt Designer, and forms with plots: loaded at run time and compiled.

#include "harness/harness.h"
#include "ui_plots.h"

#include <Zel3D/SHPlot>
#include <Zel3D/Spectrum>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QPluginLoader>
#include <QSet>
#include <QUiLoader>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

using Zel3D::BasePlot;
using Zel3D::SHPlot;
using Zel3D::Spectrum;

namespace {

/// Any address will do: the plugin asks only whether there is Qt Designer.
QDesignerFormEditorInterface* designer()
{
    static int address = 0;
    return reinterpret_cast<QDesignerFormEditorInterface*>(&address);
}

/// The kinds of plots that a fresh copy of the plugin offers.
QList<QDesignerCustomWidgetInterface*> offered()
{
    QPluginLoader loader(VORAN_PLUGIN);
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
}

std::unique_ptr<QWidget> makeForm(bool compiled)
{
    if (compiled) {
        auto form = std::make_unique<QWidget>();
        Ui::Plots().setupUi(form.get());
        return form;
    }
    QFile file(VORAN_SOURCE_DIR "/tests/designer/plots.ui");
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(VORAN_PLUGIN).path());
    return file.open(QIODevice::ReadOnly) ? std::unique_ptr<QWidget>(loader.load(&file)) : nullptr;
}

/// Counts how often the event loop paints a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    int count() const { return painted; }
    bool eventFilter(QObject*, QEvent* event) override
    {
        painted += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int painted = 0;
};

int colorsOf(const QImage& picture)
{
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    }
    return colors.size();
}

/// The names of a plot's own properties, in the order in which forms write them.
QStringList ownProperties(const QMetaObject& meta)
{
    QStringList names;
    for (int i = QGLWidget::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i)
        names.append(meta.property(i).name());
    return names;
}

} // namespace

class TestDesigner : public QObject
{
    Q_OBJECT
private slots:
    void offersBothPlots();
    void samplesShowInsideDesignerAlone();
    void newPlotsAreNotEmpty();
    void formKeepsItsProperties_data();
    void formKeepsItsProperties();
    void looksComeBeforeWhatDiffersFromThem();
    void writingRepaints_data();
    void writingRepaints();
    void unknownGradientChangesNothing();
};

void TestDesigner::offersBothPlots()
{
    QStringList names;
    for (const QDesignerCustomWidgetInterface* plot : offered()) {
        names.append(plot->name() + " " + plot->includeFile());
        QVERIFY(!plot->icon().pixmap(24).isNull());
        QVERIFY(!plot->toolTip().isEmpty());
        QVERIFY(!plot->isContainer());
    }
    QCOMPARE(names, QStringList({"Zel3D::SHPlot Zel3D/SHPlot", "Zel3D::Spectrum Zel3D/Spectrum"}));
}

void TestDesigner::samplesShowInsideDesignerAlone()
{
    for (QDesignerCustomWidgetInterface* kind : offered()) {
        for (const bool inside : {false, true}) {
            kind->initialize(inside ? designer() : nullptr);
            const std::unique_ptr<QWidget> widget(kind->createWidget(nullptr));
            const auto* plot = qobject_cast<BasePlot*>(widget.get());
            QVERIFY(plot);
            QCOMPARE(plot->getHull() == Zel3D::Parallelepiped(), !inside);
            QCOMPARE(plot->getZoom(), 1.0);
        }
        kind->initialize(nullptr);
    }
}

void TestDesigner::newPlotsAreNotEmpty()
{
    for (QDesignerCustomWidgetInterface* kind : offered()) {
        kind->initialize(designer());
        QUiLoader loader;
        loader.addPluginPath(QFileInfo(VORAN_PLUGIN).path());
        QByteArray xml = kind->domXml().toUtf8();
        xml.replace("<ui language=\"c++\"", "<ui version=\"4.0\"");
        QBuffer buffer(&xml);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> widget(loader.load(&buffer));
        kind->initialize(nullptr);
        auto* plot = qobject_cast<BasePlot*>(widget.get());
        QVERIFY2(plot, qPrintable(loader.errorString()));
        QVERIFY(harness::show(*plot, 400, 300));
        const QImage picture = harness::grab(*plot);
        QVERIFY2(colorsOf(picture) > 500, "the sample is not drawn in the colours of the look's gradient");
        picture.save(plot->objectName() + ".png");
    }
}

void TestDesigner::formKeepsItsProperties_data()
{
    QTest::addColumn<bool>("compiled");
    QTest::newRow("loaded at run time") << false;
    QTest::newRow("compiled") << true;
}

void TestDesigner::formKeepsItsProperties()
{
    QFETCH(bool, compiled);
    QCoreApplication::setOrganizationName("forms");
    const std::unique_ptr<QWidget> form = makeForm(compiled);
    QVERIFY(form);
    auto* surface = form->findChild<SHPlot*>("surface");
    auto* spectra = form->findChild<Spectrum*>("spectra");
    QVERIFY(surface && spectra);

    QCOMPARE(surface->getProjectionType(), Zel3D::Perspective);
    QCOMPARE(surface->getZoom(), 0.75);
    QCOMPARE(surface->property("look").toInt(), int(BasePlot::DarkLook));
    QCOMPARE(surface->property("title").toString(), QString("Heights"));
    QCOMPARE(surface->property("gradient").toString(), QString("Viridis"));
    QCOMPARE(surface->getCurrentGradient().stops().size(), 17);
    QCOMPARE(surface->getBackgroundColor(), QColor(10, 20, 90));
    QCOMPARE(surface->property("plotStyle").toInt(), int(SHPlot::FilledMesh));
    QCOMPARE(spectra->property("plotStyle").toInt(), int(Spectrum::FilledFrame));
    QCOMPARE(spectra->property("title").toString(), QString("Lines"));
    QCOMPARE(surface->getOrganization(), QString("forms"));

    QVERIFY(harness::show(*form, 640, 300));
    const QImage picture = harness::grab(*surface);
    QCOMPARE(QColor(picture.pixel(2, picture.height() / 2)), QColor(10, 20, 90));
}

void TestDesigner::looksComeBeforeWhatDiffersFromThem()
{
    for (const QMetaObject* meta : {&SHPlot::staticMetaObject, &Spectrum::staticMetaObject}) {
        QStringList names = ownProperties(*meta);
        QVERIFY(names.indexOf("look") < names.indexOf("gradient"));
        QVERIFY(names.indexOf("look") < names.indexOf("backgroundColor"));
        names.sort();
        QCOMPARE(names, QStringList({"backgroundColor", "gradient", "look", "plotStyle", "projectionType",
                                     "title", "zoom"}));
    }
}

void TestDesigner::writingRepaints_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("look") << "look" << QVariant("DarkLook");
    QTest::newRow("title") << "title" << QVariant("Heights");
    QTest::newRow("gradient") << "gradient" << QVariant("Magma");
    QTest::newRow("background") << "backgroundColor" << QVariant(QColor(Qt::green));
    QTest::newRow("style") << "plotStyle" << QVariant("Wireframe");
    QTest::newRow("projection") << "projectionType" << QVariant("Perspective");
    QTest::newRow("zoom") << "zoom" << QVariant(0.5);
}

void TestDesigner::writingRepaints()
{
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    QDesignerCustomWidgetInterface* kind = offered().first();
    kind->initialize(designer());
    const std::unique_ptr<QWidget> widget(kind->createWidget(nullptr));
    kind->initialize(nullptr);
    auto* plot = qobject_cast<SHPlot*>(widget.get());
    QVERIFY(plot);
    plot->setProperty("look", "LightLook");
    plot->setProperty("plotStyle", "Filled");
    QVERIFY(harness::show(*plot, 300, 300));
    const QImage before = harness::grab(*plot);
    QCoreApplication::processEvents();
    const PaintCounter paints(*plot);
    QVERIFY(plot->setProperty(qPrintable(property), value));
    QTRY_VERIFY(paints.count() > 0);
    QVERIFY(harness::grab(*plot) != before);
}

void TestDesigner::unknownGradientChangesNothing()
{
    SHPlot plot;
    plot.setProperty("gradient", "Magma");
    const harness::Messages messages;
    plot.setProperty("gradient", "no such gradient");
    QCOMPARE(messages.warnings("no gradient \"no such gradient\""), 1);
    QCOMPARE(plot.property("gradient").toString(), QString("Magma"));
}

int main(int argc, char* argv[])
{
    return harness::run<TestDesigner>(argc, argv);
}

#include "tst_designer.moc"
