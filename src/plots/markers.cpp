#include "plots/markers.h"

#include "plots/arrowaddition.h"
#include "plots/cylinderaddition.h"
#include "plots/dot.h"
#include "plots/dotaddition.h"
#include "plots/sphereaddition.h"

#include <functional>
#include <typeinfo>

namespace Zel3D {

namespace {

using Read = std::function<QVariant()>;
using Write = std::function<void(const QVariant&)>;
/// Called for each value of a marker with its name and the way to read and write it.
using Visit = std::function<void(const QString&, const Read&, const Write&)>;

void visitDot(BaseDot& dot, const Visit& visit)
{
    visit(
        "size", [&dot] { return dot.getSize(); }, [&dot](const QVariant& v) { dot.setSize(v.toDouble()); });
    visit(
        "smooth", [&dot] { return dot.isSmooth(); },
        [&dot](const QVariant& v) { dot.setSmooth(v.toBool()); });
}

template <class Marker>
void visitColor(Marker& marker, const Visit& visit)
{
    visit(
        "color", [&marker] { return marker.getColor(); },
        [&marker](const QVariant& v) { marker.setColor(v.value<QColor>()); });
}

void visitArrow(ArrowAddition& arrow, const Visit& visit)
{
    const char* const names[] = {"endX", "endY", "endZ"};
    for (int k = 0; k < 3; ++k) {
        visit(
            names[k], [&arrow, k] { return double(arrow.getEnd()[k]); },
            [&arrow, k](const QVariant& v) {
                QVector3D end = arrow.getEnd();
                end[k] = v.toFloat();
                arrow.setEnd(end);
            });
    }
    visitColor(arrow, visit);
    visit(
        "quality", [&arrow] { return arrow.getQuality(); },
        [&arrow](const QVariant& v) { arrow.setQuality(v.toInt()); });
}

void visitCylinder(CylinderAddition& cylinder, const Visit& visit)
{
    visit(
        "ribNumber", [&cylinder] { return cylinder.getRibNumber(); },
        [&cylinder](const QVariant& v) { cylinder.setRibNumber(v.toInt()); });
    visit(
        "radius", [&cylinder] { return cylinder.getRadius(); },
        [&cylinder](const QVariant& v) { cylinder.setRadius(v.toDouble()); });
    visit(
        "frameVisible", [&cylinder] { return cylinder.isFrameVisible(); },
        [&cylinder](const QVariant& v) { cylinder.setFrameVisible(v.toBool()); });
    visit(
        "angleZ", [&cylinder] { return cylinder.getAngleZ(); },
        [&cylinder](const QVariant& v) { cylinder.setAngleZ(v.toDouble()); });
    visit(
        "opacity", [&cylinder] { return cylinder.getOpacity(); },
        [&cylinder](const QVariant& v) { cylinder.setOpacity(v.toInt()); });
}

QString kindOf(const Addition& marker)
{
    // A class that a host derives draws something of its own.
    const std::type_info& type = typeid(marker);
    if (type == typeid(Dot))
        return "dot";
    if (type == typeid(DotAddition))
        return "coloredDot";
    if (type == typeid(SphereAddition))
        return "sphere";
    if (type == typeid(CylinderAddition))
        return "cylinder";
    return type == typeid(ArrowAddition) ? QStringLiteral("arrow") : ownMarkerKind();
}

void visitValues(Addition& marker, const Visit& visit)
{
    const QString kind = kindOf(marker);
    if (kind == "dot" || kind == "coloredDot")
        visitDot(static_cast<BaseDot&>(marker), visit);
    if (kind == "coloredDot")
        visitColor(static_cast<DotAddition&>(marker), visit);
    if (kind == "sphere") {
        auto& sphere = static_cast<SphereAddition&>(marker);
        visit(
            "radius", [&sphere] { return sphere.getRadius(); },
            [&sphere](const QVariant& v) { sphere.setRadius(v.toDouble()); });
        visitColor(sphere, visit);
    }
    if (kind == "cylinder")
        visitCylinder(static_cast<CylinderAddition&>(marker), visit);
    if (kind == "arrow")
        visitArrow(static_cast<ArrowAddition&>(marker), visit);
}

} // namespace

QVariantMap describeMarker(const Addition& marker)
{
    QVariantMap values{{"kind", kindOf(marker)}};
    // Only read.
    visitValues(const_cast<Addition&>(marker), [&values](const QString& name, const Read& read,
                                                         const Write&) { values.insert(name, read()); });
    return values;
}

void changeMarker(Addition& marker, const QVariantMap& values)
{
    visitValues(marker, [&values](const QString& name, const Read&, const Write& write) {
        if (values.contains(name))
            write(values.value(name));
    });
}

Addition* makeMarker(const QVariantMap& values)
{
    const QString kind = values.value("kind").toString();
    Addition* marker = nullptr;
    if (kind == "dot")
        marker = new Dot(4.0, true);
    else if (kind == "coloredDot")
        marker = new DotAddition(4.0, true, Qt::red);
    else if (kind == "sphere")
        marker = new SphereAddition(0.1, Qt::red, 12, 12);
    else if (kind == "cylinder")
        marker = new CylinderAddition(10, 0.1, false, 45.0);
    else if (kind == "arrow")
        marker = new ArrowAddition;
    if (marker)
        changeMarker(*marker, values);
    return marker;
}

QStringList markerKinds()
{
    return {"dot", "coloredDot", "sphere", "cylinder", "arrow"};
}

QString ownMarkerKind()
{
    return "own";
}

} // namespace Zel3D
