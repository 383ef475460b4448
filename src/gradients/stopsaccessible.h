#pragma once

#include <QAccessibleWidget>

namespace Zel3D {

class GradientStopsWidget;

/// Tells screen readers the current stop of a stops widget as its value.
class StopsAccessible : public QAccessibleWidget
{
public:
    explicit StopsAccessible(QWidget* widget);

    QString text(QAccessible::Text kind) const override;

    /// Makes Qt use this class for stops widgets from now on.
    static void install();
    static void valueChanged(GradientStopsWidget& widget);
};

} // namespace Zel3D
