// The icons as the tool bars, the dialogs and the viewer load them: through QIcon and the resource path.

#include "harness/harness.h"

#include <QDir>
#include <QIcon>
#include <QImage>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

const QString folder = QStringLiteral(":/plot/images/");

const QStringList names = {
    // views and grid planes
    "viewtop", "viewbottom", "viewleft", "viewright", "viewfront", "viewback", "topgrig", "bottomgrig",
    "leftgrig", "rightgrig", "frontgrig", "backgrig",
    // styles
    "noplot", "points", "wireframe", "hiddenline", "filled", "filledmesh", "histogram", "spectrum",
    "spectrumfilled", "spectrumframe",
    // settings
    "settings", "pagecommon", "pagetitle", "pagegrid", "pageadditions", "pageaxes", "pagescales",
    "pagelegend", "pagelighting", "pagestyle",
    // gradient editor
    "gradientreverse", "gradientdistribute", "stopadd", "stopremove",
    // viewer
    "open", "savepicture", "dragpicture", "fullscreen", "linkviews", "select", "resetview", "voranview"};

/// Null where the file or the plugin that draws it is missing.
QImage picture(const QString& name, int size)
{
    return QIcon(folder + name + ".svg").pixmap(size, size).toImage().convertToFormat(QImage::Format_ARGB32);
}

QRgb overlaid(QRgb pixel, QRgb background)
{
    const auto mixed = [alpha = qAlpha(pixel)](int over, int under) {
        return (over * alpha + under * (255 - alpha)) / 255;
    };
    return qRgb(mixed(qRed(pixel), qRed(background)), mixed(qGreen(pixel), qGreen(background)),
                mixed(qBlue(pixel), qBlue(background)));
}

/// Relative luminance of WCAG 2.1.
double luminance(QRgb color)
{
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

/// Contrast ratio of WCAG 2.1, from 1 to 21.
double contrast(QRgb a, QRgb b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

template <class Use>
void eachPixel(const QImage& image, Use use)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            use(x, y, image.pixel(x, y));
    }
}

/// How many pixels of two pictures an eye can tell apart on a background.
int differences(const QImage& first, const QImage& second, QRgb background)
{
    int count = 0;
    eachPixel(first, [&](int x, int y, QRgb pixel) {
        const QRgb a = overlaid(pixel, background);
        const QRgb b = overlaid(second.pixel(x, y), background);
        const int largest = std::max(
            {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
        count += largest > 48 ? 1 : 0;
    });
    return count;
}

} // namespace

class TestIcons : public QObject
{
    Q_OBJECT
private slots:
    void resourcesAreTheTable();
    void drawn_data();
    void drawn();
    void visible_data();
    void visible();
    void unlikeTheOthers_data();
    void unlikeTheOthers();
};

void TestIcons::resourcesAreTheTable()
{
    QStringList expected;
    for (const QString& name : names)
        expected.append(name + ".svg");
    expected.sort();
    QCOMPARE(QDir(folder).entryList(QDir::Files, QDir::Name), expected);
    QCOMPARE(QDir(VORAN_SOURCE_DIR "/resources/plot/images").entryList(QDir::Files, QDir::Name), expected);
}

void TestIcons::drawn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("size");
    for (const QString& name : names) {
        for (int size : {16, 22, 32})
            QTest::addRow("%s at %d", qPrintable(name), size) << name << size;
    }
}

void TestIcons::drawn()
{
    QFETCH(QString, name);
    QFETCH(int, size);
    const harness::Messages messages;
    const QImage image = picture(name, size);
    QVERIFY2(!image.isNull(), "the file or the icon plugin of Qt SVG is missing");
    QCOMPARE(messages.all(), QStringList());
    QCOMPARE(image.size(), QSize(size, size));
    int painted = 0;
    QRect extent;
    eachPixel(image, [&](int x, int y, QRgb pixel) {
        if (qAlpha(pixel) > 0) {
            ++painted;
            extent |= QRect(x, y, 1, 1);
        }
    });
    // More than a speck, less than a tile, and as large as its neighbours in the tool bar.
    const double share = double(painted) / (size * size);
    QVERIFY2(share > 0.15 && share < 0.9, qPrintable(QString::number(share)));
    QVERIFY(std::max(extent.width(), extent.height()) >= 0.8 * size);
}

void TestIcons::visible_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRgb>("background");
    for (const QString& name : names) {
        QTest::addRow("%s on light", qPrintable(name)) << name << qRgb(0xff, 0xff, 0xff);
        QTest::addRow("%s on dark", qPrintable(name)) << name << qRgb(0x2b, 0x2b, 0x2b);
    }
}

void TestIcons::visible()
{
    QFETCH(QString, name);
    QFETCH(QRgb, background);
    const QImage image = picture(name, 32);
    QVERIFY(!image.isNull());
    double sum = 0.0;
    int count = 0;
    eachPixel(image, [&](int, int, QRgb pixel) {
        if (qAlpha(pixel) >= 224) {
            sum += contrast(pixel, background);
            ++count;
        }
    });
    QVERIFY(count > 0);
    // WCAG 2.1 asks graphics for 3 : 1.
    QVERIFY2(sum / count >= 3.0, qPrintable(QString::number(sum / count)));
}

void TestIcons::unlikeTheOthers_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void TestIcons::unlikeTheOthers()
{
    QFETCH(QString, name);
    const QImage image = picture(name, 16);
    QVERIFY(!image.isNull());
    for (const QString& other : names) {
        if (other == name)
            continue;
        const QImage otherImage = picture(other, 16);
        QCOMPARE(otherImage.size(), image.size());
        for (QRgb background : {qRgb(0xff, 0xff, 0xff), qRgb(0x2b, 0x2b, 0x2b)}) {
            const int count = differences(image, otherImage, background);
            // A sixteenth of the picture.
            QVERIFY2(count >= 16, qPrintable(QString("%1 differs in %2 pixels").arg(other).arg(count)));
        }
    }
}

int main(int argc, char* argv[])
{
    return harness::run<TestIcons>(argc, argv);
}

#include "tst_icons.moc"
