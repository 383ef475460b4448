#include "gradients/stopsaccessible.h"

#include "gradients/gradientstopswidget.h"

namespace Zel3D {

namespace {

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    auto* widget = qobject_cast<GradientStopsWidget*>(object);
    return widget && className == GradientStopsWidget::staticMetaObject.className()
               ? new StopsAccessible(widget)
               : nullptr;
}

} // namespace

StopsAccessible::StopsAccessible(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Slider) {}

QString StopsAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? widget()->property("valueText").toString()
                                      : QAccessibleWidget::text(kind);
}

void StopsAccessible::install()
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed)
}

void StopsAccessible::valueChanged(GradientStopsWidget& widget)
{
    QAccessibleValueChangeEvent event(&widget, widget.getValueText());
    QAccessible::updateAccessibility(&event);
}

} // namespace Zel3D
