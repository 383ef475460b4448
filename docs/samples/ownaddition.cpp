#include "ownaddition.h"
#include "samples.h"

#include "plots/baseplotsettings.h"
#include "plots/vertexaddition.h"

#include <GL/gl.h>

namespace samples {

//! [class]
/// Three crossed lines.
class Cross : public Zel3D::VertexAddition
{
public:
    Cross(double halfLength, const QColor& lineColor) : half(float(halfLength)), color(lineColor) {}

    Zel3D::Addition* clone() const override { return new Cross(*this); }

    void draw(const QVector3D& p) override
    {
        sendColor(color);
        glBegin(GL_LINES);
        for (const QVector3D& arm :
             {QVector3D(half, 0.0F, 0.0F), QVector3D(0.0F, half, 0.0F), QVector3D(0.0F, 0.0F, half)}) {
            const QVector3D from = p - arm;
            const QVector3D to = p + arm;
            glVertex3f(from.x(), from.y(), from.z());
            glVertex3f(to.x(), to.y(), to.z());
        }
        glEnd();
    }

    /// Lets a pick leave out the crosses that are far from the cursor.
    bool reach(Zel3D::Parallelepiped& box) override
    {
        box.minimum -= QVector3D(half, half, half);
        box.maximum += QVector3D(half, half, half);
        return true;
    }

private:
    float half;
    QColor color;
};
//! [class]

void crosses(Zel3D::SHPlot& plot, double size, const QColor& color)
{
    //! [use]
    Cross cross(size, color);
    plot.addAddition(cross); // the plot keeps a copy and draws it with every plot style
    plot.update();
    //! [use]
}

//! [style]
void MarkerPlot::showMarkers(Zel3D::Addition* marker)
{
    setStyleAddition(marker); // the plot owns it
    settingsRecord().setStyle(-1);
    markAllChanged();
    update();
}
//! [style]

void showCrosses(MarkerPlot& plot, double size, const QColor& color)
{
    plot.showMarkers(new Cross(size, color));
}

} // namespace samples
