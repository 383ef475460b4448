#pragma once

#include <QProxyStyle>

namespace Zel3D {

/// The style of the application with wide icons, for menus that show swatches of gradients.
class SwatchMenuStyle : public QProxyStyle
{
    Q_OBJECT
public:
    /// The width of the icons is in pixels. The owner is the parent.
    SwatchMenuStyle(int iconWidth, QObject* parent);

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

private:
    int width;
};

} // namespace Zel3D
