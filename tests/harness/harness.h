#pragma once

#include <QImage>
#include <QStringList>

#include <functional>
#include <memory>

class QGLWidget;
class QObject;
class QWidget;

namespace harness {

/// Runs the tests of the object that \a make returns; see run<Test>().
int run(int argc, char* argv[], const std::function<std::unique_ptr<QObject>()>& make);

/// Runs the tests of a class with Qt Test in fixed surroundings: platform xcb, style Fusion, font DejaVu Sans
/// 9, pixel ratio 1, locale C and a QSettings store in a temporary folder that starts empty. Returns Qt
/// Test's exit status. Fails where there is no display or no OpenGL.
template <class Test>
int run(int argc, char* argv[])
{
    return run(argc, argv, [] { return std::make_unique<Test>(); });
}

/// Empties the QSettings store.
void clearStore();

/// Shows a widget at a size and waits until it is on the screen and painted. False when that fails.
bool show(QWidget& widget, int width, int height);

/// Does something that opens a message box, which it accepts whenever it comes up, and returns the words of
/// the box; empty where none came.
QString boxText(const std::function<void()>& act);

/// What a GL widget shows now, painted anew.
QImage grab(QGLWidget& widget);

/// Messages of Qt's handler that were written while the object lived, each as "warning: text", "debug: text".
/// While it lives nothing is printed.
class Messages
{
public:
    Messages();
    ~Messages();
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;

    QStringList all() const;
    /// How many warnings contain the text.
    int warnings(const QString& text) const;
};

} // namespace harness
