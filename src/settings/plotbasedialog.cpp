#include "settings/plotbasedialog.h"

#include "plots/baseplot.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QShowEvent>
#include <QWindow>

#include <algorithm>

namespace Zel3D {

PlotBaseDialog::PlotBaseDialog(const QString& organizationName, const QString& applicationName,
                               BasePlot* editedPlot, QWidget* parent)
    : QDialog(parent),
      organization(organizationName),
      application(applicationName),
      prefix(editedPlot->objectName()),
      plot(editedPlot)
{
    setModal(false);
    // The program ends with its own windows.
    setAttribute(Qt::WA_QuitOnClose, false);
    connect(plot, &QObject::destroyed, this, [this] {
        plot = nullptr;
        plotDeleted();
        reject();
    });
}

void PlotBaseDialog::plotDeleted() {}

QString PlotBaseDialog::storeKey(const QString& name) const
{
    return QString("%0/settingDialog/%1").arg(prefix, name);
}

QRect PlotBaseDialog::fitted(const QRect& wanted, const QRect& screen)
{
    QRect place(wanted.topLeft(), wanted.size().boundedTo(screen.size()));
    place.moveLeft(std::clamp(place.left(), screen.left(), screen.right() - place.width() + 1));
    place.moveTop(std::clamp(place.top(), screen.top(), screen.bottom() - place.height() + 1));
    return place;
}

int PlotBaseDialog::exec()
{
    // QDialog::exec() would block the other windows.
    setWindowModality(Qt::NonModal);
    setResult(Rejected);
    QEventLoop loop;
    const QPointer<PlotBaseDialog> alive(this);
    connect(this, &QDialog::finished, &loop, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    show();
    loop.exec();
    return alive ? result() : int(Rejected);
}

void PlotBaseDialog::done(int result)
{
    if (isVisible())
        savePlace();
    QDialog::done(result);
}

void PlotBaseDialog::showEvent(QShowEvent* event)
{
    if (!placed && !event->spontaneous()) {
        placed = true;
        restorePlace();
    }
    // Above the plot's window, yet not its child.
    QWindow* window = windowHandle();
    QWindow* plotWindow = plot ? plot->window()->windowHandle() : nullptr;
    if (window && plotWindow && !parentWidget())
        window->setTransientParent(plotWindow);
    QDialog::showEvent(event);
}

void PlotBaseDialog::restorePlace()
{
    const QSettings store(organization, application);
    const QSize hint = sizeHint().expandedTo(minimumSizeHint());
    QRect wanted(QPoint(0, 0), QSize(store.value(storeKey("width"), hint.width()).toInt(),
                                     store.value(storeKey("height"), hint.height()).toInt()));
    if (wanted.isEmpty())
        wanted.setSize(hint);
    const QRect plotArea(plot ? plot->mapToGlobal(QPoint(0, 0)) : QPoint(), plot ? plot->size() : QSize());
    if (store.contains(storeKey("posX")) && store.contains(storeKey("posY")))
        wanted.moveTopLeft({store.value(storeKey("posX")).toInt(), store.value(storeKey("posY")).toInt()});
    else
        wanted.moveCenter(plotArea.center());
    QScreen* screen = QGuiApplication::screenAt(wanted.center());
    if (!screen)
        screen = QGuiApplication::screenAt(plotArea.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect available = screen->availableGeometry();
    setMinimumSize(minimumSizeHint().boundedTo(available.size()));
    const QRect place = fitted(wanted, available);
    resize(place.size());
    move(place.topLeft());
}

void PlotBaseDialog::savePlace() const
{
    QSettings store(organization, application);
    store.setValue(storeKey("posX"), pos().x());
    store.setValue(storeKey("posY"), pos().y());
    store.setValue(storeKey("width"), width());
    store.setValue(storeKey("height"), height());
}

} // namespace Zel3D
