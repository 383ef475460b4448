#include "aboutbox.h"

#include "plots/baseplot.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace {

constexpr int iconSide = 64;

} // namespace

/// What draws a plot, as the driver names itself; empty without a usable context.
QString AboutBox::driverOf(Zel3D::BasePlot& plot)
{
    if (!plot.isValid())
        return {};
    plot.makeCurrent();
    QOpenGLContext* context = QOpenGLContext::currentContext();
    if (!context)
        return {};
    const auto said = [context](unsigned int name) {
        return QString::fromLatin1(reinterpret_cast<const char*>(context->functions()->glGetString(name)));
    };
    return tr("OpenGL %1 by %2").arg(said(GL_VERSION), said(GL_RENDERER));
}

void AboutBox::open(QWidget& window, Zel3D::BasePlot* plot)
{
    QStringList runsWith{tr("Qt %1").arg(qVersion())};
    const QString driver = plot ? driverOf(*plot) : QString();
    if (!driver.isEmpty())
        runsWith.append(driver);
    auto* box = new QMessageBox(&window);
    box->setObjectName("about");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(tr("About VORAN Viewer"));
    box->setIconPixmap(window.windowIcon().pixmap(iconSide));
    box->setText(tr("VORAN Viewer %1").arg(QCoreApplication::applicationVersion()));
    box->setInformativeText(tr("Surfaces, meshes and spectra in three dimensions, to turn, zoom and pick.") +
                            "\n\n" + runsWith.join('\n'));
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setStandardButtons(QMessageBox::Close);
    box->open();
}
