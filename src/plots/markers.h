#pragma once

#include <QVariant>

namespace Zel3D {

class Addition;

/// A marker as values: "kind", one of markerKinds(), and what can be changed of it:
///
/// | kind | values |
/// | --- | --- |
/// | dot | size (pixels), smooth |
/// | coloredDot | size, smooth, color |
/// | sphere | radius (scene units), color |
/// | cylinder | ribNumber, radius, frameVisible, angleZ (degrees), opacity (percent) |
/// | arrow | endX, endY, endZ (scene units), color, quality (sides of the head) |
///
/// A class of the host's has the kind ownMarkerKind() and no values.
QVariantMap describeMarker(const Addition& marker);
/// Gives a marker of the same kind the values; missing ones stay, refused ones too.
void changeMarker(Addition& marker, const QVariantMap& values);
/// A new marker, owned by the caller, with the usual values where some are missing; null for an unknown
/// kind.
Addition* makeMarker(const QVariantMap& values);
/// The kinds that makeMarker() knows, in the order in which lists show them.
QStringList markerKinds();
QString ownMarkerKind();

} // namespace Zel3D
