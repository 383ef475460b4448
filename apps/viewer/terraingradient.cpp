#include "terraingradient.h"

QLinearGradient terrainGradient()
{
    static constexpr QRgb colours[] = {0xff245945, 0xff376c48, 0xff507d47, 0xff6f8b46, 0xff8f9847,
                                       0xffb2a555, 0xffd5b168, 0xffe7c48c, 0xfff6d9b0};
    constexpr int last = static_cast<int>(sizeof colours / sizeof colours[0]) - 1;
    QLinearGradient gradient;
    for (int i = 0; i <= last; ++i)
        gradient.setColorAt(static_cast<double>(i) / last, QColor(colours[i]));
    return gradient;
}
