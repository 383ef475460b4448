#pragma once

class QVector3D;

namespace Zel3D {

/// Turns the current matrix so that what is drawn along +Z points along \a direction. Also right for a
/// direction along -Z, where the axis of the shortest rotation is undefined. Needs a current context.
void rotateOnto(const QVector3D& direction);

} // namespace Zel3D
