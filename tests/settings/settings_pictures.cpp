// Writes pictures of the settings dialog's pages and of the gradient dialogs, in light and dark colours:
// settings_pictures FOLDER [POINTS]

#include "gradients/gradienteditdialog.h"
#include "gradients/gradientlistdialog.h"
#include "gradients/gradientmanager.h"
#include "gradients/gradientpresets.h"
#include "plots/plotfixture.h"
#include "scene/title.h"
#include "settings/plotsettingsdialog.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTest>

using namespace Zel3D;

namespace {

QPalette darkPalette()
{
    QPalette dark;
    const QColor window(45, 45, 48);
    const QColor text(222, 222, 222);
    dark.setColor(QPalette::Window, window);
    dark.setColor(QPalette::Button, QColor(58, 58, 62));
    dark.setColor(QPalette::Base, QColor(32, 32, 34));
    dark.setColor(QPalette::AlternateBase, QColor(40, 40, 43));
    dark.setColor(QPalette::ToolTipBase, window);
    for (QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        dark.setColor(role, text);
    dark.setColor(QPalette::PlaceholderText, QColor(140, 140, 140));
    dark.setColor(QPalette::Highlight, QColor(62, 132, 210));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Link, QColor(110, 170, 240));
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(125, 125, 125));
    return dark;
}

bool write(QWidget& widget, const QString& path)
{
    QTest::qWait(150);
    // Few colours: the pictures belong to the documentation.
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB888).save(path, "PNG", 0);
}

class Pictures
{
public:
    Pictures(const QString& targetFolder, const QString& colors) : folder(targetFolder), suffix(colors)
    {
        plot.setGradient("ramp", fixture::ramp());
        fixture::Heights(8, 8, fixture::plane).into(plot);
        plot.setPlotStyle(4);
        plot.setMarkers({QVariantMap{{"kind", "sphere"}}, QVariantMap{{"kind", "dot"}}});
        plot.getTitle().getSettings().setText("Depth of the lake");
    }

    bool pages()
    {
        PlotSettingsDialog dialog(nullptr, fixture::organization, fixture::application, &plot);
        dialog.show();
        const QVector<SettingsPageEntry> all = PlotSettingsDialog::libraryPages();
        bool written = true;
        for (int i = 0; i < all.size(); ++i) {
            dialog.setCurrentRow(i);
            written = write(dialog, pathOf(all.at(i).id)) && written;
        }
        return written;
    }

    bool gradients()
    {
        QLinearGradient gradient;
        gradient.setStops(gradientPresets().first().stops);
        GradientManager store(nullptr, gradient);
        for (int i = 1; i < 6; ++i) {
            gradient.setStops(gradientPresets().at(i).stops);
            store.addGradient(gradientPresets().at(i).name, gradient);
        }
        GradientListDialog list(&store);
        list.show();
        GradientEditDialog edit;
        edit.setGradient(fixture::ramp());
        edit.show();
        return write(list, pathOf("gradients")) && write(edit, pathOf("gradient"));
    }

private:
    QString pathOf(const QString& name) const { return QString("%1/%2-%3.png").arg(folder, name, suffix); }

    QString folder;
    QString suffix;
    fixture::Plot plot;
};

} // namespace

int main(int argc, char* argv[])
{
    const QTemporaryDir store;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, store.path());
    QLocale::setDefault(QLocale::c());
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2 || !QDir().mkpath(arguments.at(1))) {
        qCritical("Usage: settings_pictures FOLDER [POINTS]");
        return 1;
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setFont(QFont("DejaVu Sans", arguments.value(2, "9").toInt()));
    const QPalette light = QApplication::palette();
    for (bool isDark : {false, true}) {
        QApplication::setPalette(isDark ? darkPalette() : light);
        Pictures pictures(arguments.at(1), isDark ? "dark" : "light");
        if (!pictures.pages() || !pictures.gradients()) {
            qCritical("The pictures could not be written.");
            return 1;
        }
    }
    return 0;
}
