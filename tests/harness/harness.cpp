#include "harness/harness.h"

#include <QApplication>
#include <QFont>
#include <QGLWidget>
#include <QLocale>
#include <QMessageBox>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <cstdio>

#include <dlfcn.h>

// Mesa unloads its driver at exit, after which the leak checker cannot name the driver's own allocations any
// more and its suppressions miss them. Nothing is unloaded in a test.
extern "C" int dlclose(void*)
{
    return 0;
}

// What the software renderer, the desktop bus, a tool tip that fades and a refused context leave at exit is
// theirs.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:swrast_dri\nleak:libdbus-1\nleak:QPropertyAnimation\nleak:QGLContext::chooseContext\n"
           "leak:QOpenGLContext::QOpenGLContext\n";
}

// Asking for more memory than there is fails, as without sanitizers.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "allocator_may_return_null=1";
}

// Mesa 22.3 copies some bytes behind the vertices of a display list that grows.
extern "C" const char* __asan_default_suppressions();
extern "C" const char* __asan_default_suppressions()
{
    return "interceptor_via_lib:swrast_dri.so\n";
}

namespace harness {

namespace {

QStringList& collected()
{
    static QStringList messages;
    return messages;
}

int& collectors()
{
    static int count = 0;
    return count;
}

QtMessageHandler& previousHandler()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

void collect(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    const char* kind = type == QtDebugMsg ? "debug" : type == QtWarningMsg ? "warning" : "other";
    collected().append(QString("%1: %2").arg(QLatin1String(kind), text));
}

} // namespace

int run(int argc, char* argv[], const std::function<std::unique_ptr<QObject>()>& make)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        std::fprintf(stderr, "No display: run the test through tools/with-display or ctest.\n");
        return 1;
    }
    QTemporaryDir store;
    if (!store.isValid()) {
        std::fprintf(stderr, "No temporary folder for the settings store: %s\n",
                     qPrintable(store.errorString()));
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_SCALE_FACTOR",
            qEnvironmentVariableIsSet("VORAN_TEST_SCALE") ? qgetenv("VORAN_TEST_SCALE") : "1");
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "0");
    qputenv("XDG_CONFIG_HOME", store.path().toLocal8Bit());
    // For programs that a test runs; what the driver leaves in them is not theirs.
    qputenv("ASAN_OPTIONS", "detect_leaks=0");
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    QLocale::setDefault(QLocale::c());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, store.path());
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, store.filePath("system"));
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setFont(QFont("DejaVu Sans", 9));
    QApplication::setQuitOnLastWindowClosed(false);
    if (!QGLFormat::hasOpenGL()) {
        std::fprintf(stderr, "The display offers no OpenGL.\n");
        return 1;
    }
    // Made after the application: tests keep widgets as members.
    const std::unique_ptr<QObject> object = make();
    return QTest::qExec(object.get(), argc, argv);
}

void clearStore()
{
    QSettings("voran-test", "voran-test").clear();
}

bool show(QWidget& widget, int width, int height)
{
    widget.resize(width, height);
    widget.show();
    if (!QTest::qWaitForWindowExposed(&widget))
        return false;
    QCoreApplication::processEvents();
    return true;
}

QString boxText(const std::function<void()>& act)
{
    QString text;
    QTimer looking;
    // Boxes of other kinds may come before.
    QObject::connect(&looking, &QTimer::timeout, [&text] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            text = box->text();
            box->accept();
        }
    });
    looking.start(10);
    act();
    return text;
}

QImage grab(QGLWidget& widget)
{
    widget.updateGL();
    return widget.grabFrameBuffer();
}

Messages::Messages()
{
    collected().clear();
    if (collectors()++ == 0)
        previousHandler() = qInstallMessageHandler(collect);
}

Messages::~Messages()
{
    if (--collectors() == 0)
        qInstallMessageHandler(previousHandler());
}

QStringList Messages::all() const
{
    return collected();
}

int Messages::warnings(const QString& text) const
{
    int count = 0;
    for (const QString& message : qAsConst(collected())) {
        if (message.startsWith("warning: ") && message.contains(text))
            ++count;
    }
    return count;
}

} // namespace harness
