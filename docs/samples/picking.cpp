#include "samples.h"

#include "plots/baseplot.h"

namespace samples {

void picking(Zel3D::BasePlot& plot, QString& last)
{
    //! [picking]
    plot.setSelecting(true);
    plot.setPickHighlight(true);
    plot.setShowToolTips(true);
    QObject::connect(&plot, &Zel3D::ZelGLWidget::selectedObject, &plot,
                     [&last](const Zel3D::SelectedObjectsInfo& info) {
                         last = info.valid ? QString("%1, %2, %3").arg(info.x).arg(info.y).arg(info.z)
                                           : QString("nothing");
                     });
    //! [picking]
}

void gestures(Zel3D::BasePlot& plot)
{
    //! [gestures]
    const Zel3D::MouseBinding rightDrag(Qt::RightButton, Qt::NoModifier);
    plot.assignMouseShift(rightDrag, rightDrag);
    plot.assignKeyboardZoom({Qt::Key_Minus, Qt::NoModifier}, {Qt::Key_Plus, Qt::NoModifier}); // out, in
    plot.setHotKeyMask(Zel3D::LightingHotKey | Zel3D::SelectingHotKey); // of the letters only L and S
    //! [gestures]
}

} // namespace samples
