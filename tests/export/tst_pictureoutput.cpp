// Where pictures go besides files of their own: paper, other programs, animations.

#include "export/pictureclip.h"
#include "export/pictureprinter.h"
#include "export/rasterpicture.h"
#include "export/turntable.h"
#include "exportfixture.h"
#include "harness/harness.h"

#include <QClipboard>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using namespace Zel3D;
using namespace fixture;

namespace {

/// Looks for programs in one folder for a scope.
class PathScope
{
public:
    explicit PathScope(const QString& folder) : before(qgetenv("PATH"))
    {
        qputenv("PATH", folder.toLocal8Bit());
    }
    ~PathScope() { qputenv("PATH", before); }

private:
    QByteArray before;
};

/// An encoder that writes the number of the frames that it is given, or fails.
bool makeEncoder(const QDir& folder, bool works)
{
    QFile file(folder.filePath("ffmpeg"));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write("#!/bin/sh\nPATH=/usr/bin:/bin\nfor word; do\n  [ \"$before\" = -i ] && frames=\"$word\"\n"
               "  before=\"$word\"\ndone\n");
    file.write(works ? "set -- \"${frames%/*}\"/*.png\nprintf 'frames %s' $# >\"$before\"\n"
                     : "printf part >\"$before\"\necho 'no codec' >&2\nexit 1\n");
    return file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestPictureOutput : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void printsThePlotOnThePage();
    void previewShowsThePage();
    void clipboardHasImageAndVectors();
    void turntableWritesFramesThatDiffer();
    void turntableCanBeCancelled();
    void animationIsWholeOrNotAtAll_data();
    void animationIsWholeOrNotAtAll();

private:
    std::unique_ptr<Plot> plot;
};

void TestPictureOutput::init()
{
    harness::clearStore();
    plot = std::make_unique<Plot>();
    QVERIFY(makeHill(*plot, 4));
    plot->resize(320, 240);
}

void TestPictureOutput::printsThePlotOnThePage()
{
    const QTemporaryDir folder;
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setResolution(72);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath("page.pdf"));
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Landscape);
    PicturePrinter picture(*plot);
    QVERIFY2(picture.print(printer), qPrintable(picture.getError()));
    QProcess process;
    process.start("pdftoppm",
                  {"-r", "72", "-png", "-singlefile", folder.filePath("page.pdf"), folder.filePath("page")});
    QVERIFY(process.waitForFinished());
    const QImage page(folder.filePath("page.png"));
    // The picture has the page's height and is in the middle of its width.
    const QRect area = printer.pageRect();
    const QSize size = QSize(320, 240).scaled(area.size(), Qt::KeepAspectRatio);
    const QRect place(area.topLeft() + QPoint((area.width() - size.width()) / 2, 0), size);
    PictureOptions options;
    options.pixels = size;
    const QImage expected = RasterPicture(*plot, options).render();
    QVERIFY(size.height() == area.height() && size.width() < area.width());
    QVERIFY(difference(page.copy(place), expected, 96) < 0.03);
    QVERIFY(difference(page.copy(place.translated(-10, 0)), expected, 96) > 0.03);
}

void TestPictureOutput::previewShowsThePage()
{
    bool seen = false;
    QTimer::singleShot(200, this, [&seen] {
        auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        seen = dialog && dialog->printer()->pageLayout().orientation() == QPageLayout::Landscape;
        if (QWidget* modal = QApplication::activeModalWidget())
            modal->close();
    });
    PicturePrinter(*plot).preview(nullptr);
    QVERIFY(seen);
}

void TestPictureOutput::clipboardHasImageAndVectors()
{
    PictureOptions options;
    options.pixels = QSize(300, 200);
    QVERIFY(PictureClip::copy(*plot, options));
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(qvariant_cast<QImage>(data->imageData()).size(), QSize(300, 200));
    QVERIFY(data->data("image/svg+xml").contains(">North</text>"));
    QVERIFY(data->data("application/pdf").startsWith("%PDF"));
    // Who pastes after the plot has gone gets the image.
    const std::unique_ptr<QMimeData> offered = PictureClip::mimeData(*plot, options);
    plot.reset();
    QVERIFY(offered->hasImage() && offered->data("image/svg+xml").isEmpty());
}

void TestPictureOutput::turntableWritesFramesThatDiffer()
{
    const QTemporaryDir folder;
    const ValueXYZ<double> rotation = plot->getRotation();
    QSignalSpy turned(plot.get(), &ZelGLWidget::rotationChanged);
    PictureOptions options;
    options.pixels = QSize(160, 120);
    Turntable table(*plot, options);
    table.setFrames(4);
    const PictureResult result = table.saveFrames(folder.filePath("turn.png"));
    QVERIFY2(result.done, qPrintable(result.message));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
             QStringList({"turn0001.png", "turn0002.png", "turn0003.png", "turn0004.png"}));
    QVector<QImage> frames;
    for (int number = 1; number <= 4; ++number)
        frames.append(QImage(table.framePath(folder.filePath("turn.png"), number)));
    for (int i = 0; i < 4; ++i)
        QVERIFY(difference(frames.at(i), frames.at((i + 1) % 4), 64) > 0.02);
    // The first is the view itself, the third the view from behind.
    QCOMPARE(difference(frames.at(0), RasterPicture(*plot, options).render(), 1), 0.0);
    plot->setRotation({rotation.x, rotation.y, rotation.z + 180.0});
    QCOMPARE(difference(frames.at(2), RasterPicture(*plot, options).render(), 1), 0.0);
    QCOMPARE(turned.count(), 1);
}

void TestPictureOutput::turntableCanBeCancelled()
{
    const QTemporaryDir folder;
    const ValueXYZ<double> rotation = plot->getRotation();
    PictureOptions options;
    options.progress = [](int done, int) { return done < 2; };
    Turntable table(*plot, options);
    const PictureResult result = table.saveFrames(folder.filePath("turn.png"));
    QVERIFY(result.cancelled && !result.done);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 2);
    QVERIFY(!(plot->getRotation() != rotation));
}

void TestPictureOutput::animationIsWholeOrNotAtAll_data()
{
    QTest::addColumn<QString>("encoder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("works") << "works"
                           << "a.mp4"
                           << "" << QByteArray("frames 3");
    QTest::newRow("fails") << "fails"
                           << "a.mp4"
                           << "ffmpeg says \"no codec\"" << QByteArray("old");
    QTest::newRow("none") << "none"
                          << "a.mp4"
                          << "ffmpeg is not installed" << QByteArray("old");
    QTest::newRow("no animation") << "works"
                                  << "a.png"
                                  << "no animated format" << QByteArray("old");
    QTest::newRow("missing folder") << "works"
                                    << "missing/a.gif"
                                    << "does not exist" << QByteArray();
}

void TestPictureOutput::animationIsWholeOrNotAtAll()
{
    QFETCH(QString, encoder);
    QFETCH(QString, name);
    QFETCH(QString, message);
    QFETCH(QByteArray, file);
    const QTemporaryDir programs;
    const QTemporaryDir folder;
    if (encoder != "none")
        QVERIFY(makeEncoder(QDir(programs.path()), encoder == "works"));
    const PathScope path(programs.path());
    for (const char* old : {"a.mp4", "a.png"}) {
        QFile present(folder.filePath(old));
        QVERIFY(present.open(QIODevice::WriteOnly) && present.write("old") == 3);
    }
    QCOMPARE(Turntable::canAnimate(), encoder != "none");
    PictureOptions options;
    options.pixels = QSize(64, 48);
    Turntable table(*plot, options);
    table.setFrames(3);
    const PictureResult result = table.saveAnimation(folder.filePath(name));
    QCOMPARE(result.done, message.isEmpty());
    QVERIFY2(result.message.contains(message), qPrintable(result.message));
    QCOMPARE(contents(folder.filePath(name)), file);
}

int main(int argc, char* argv[])
{
    return harness::run<TestPictureOutput>(argc, argv);
}

#include "tst_pictureoutput.moc"
