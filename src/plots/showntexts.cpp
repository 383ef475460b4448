#include "plots/showntexts.h"

#include <QCoreApplication>
#include <QEvent>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace Zel3D {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Zel3D::BasePlot", text);
}

} // namespace

ShownTexts::ShownTexts(QWidget& plot)
{
    plot.installEventFilter(this);
}

void ShownTexts::show(QObject* object, const char* property, const char* text)
{
    all.erase(
        std::remove_if(all.begin(), all.end(), [](const Shown& shown) { return shown.object.isNull(); }),
        all.end());
    const QString words = translated(text);
    object->setProperty(property, words);
    all.append({object, property, text, words});
}

bool ShownTexts::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        for (Shown& shown : all) {
            if (!shown.object || shown.object->property(shown.property).toString() != shown.words)
                continue;
            shown.words = translated(shown.text);
            shown.object->setProperty(shown.property, shown.words);
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zel3D
