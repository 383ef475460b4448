#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace Zel3D {

/// A point of a curve: the position along the base line and the height over it.
struct CurvePoint
{
    double position = 0.0;
    double height = 0.0;
};

/// Cuts the area between a curve and its base line, the height 0, into bands between given levels.
class SpectrumBands
{
public:
    /// A convex polygon between two neighbouring levels. Over the base line the corners run up, along the
    /// curve, down and back, under it they run down first: as (p1, 0), (p1, z1), (p2, z2), (p2, 0) does.
    struct Band
    {
        double lower = 0.0; ///< the heights between which it lies
        double upper = 0.0;
        std::array<CurvePoint, 5> corners;
        std::size_t count = 0; ///< of the corners in use
    };

    /// Levels are heights in any order; those that are not finite are left out.
    explicit SpectrumBands(const std::vector<double>& levels)
    {
        for (double level : levels) {
            if (std::isfinite(level) && level != 0.0)
                (level > 0.0 ? above : below).push_back(std::abs(level));
        }
        for (std::vector<double>* distances : {&above, &below}) {
            std::sort(distances->begin(), distances->end());
            distances->erase(std::unique(distances->begin(), distances->end()), distances->end());
        }
    }

    /// Where the straight line between two points of different height meets the base line.
    static double crossing(const CurvePoint& from, const CurvePoint& to)
    {
        return from.position + (to.position - from.position) * (from.height / (from.height - to.height));
    }
    /// Whether two points lie strictly on different sides of the base line.
    static bool crosses(const CurvePoint& from, const CurvePoint& to)
    {
        return (from.height < 0.0 && to.height > 0.0) || (from.height > 0.0 && to.height < 0.0);
    }

    /// Calls \a visit(const Band&) for the bands under the straight line between two points, from the base
    /// line outwards. Nothing without area or for values that are not finite.
    template <class Visit>
    void cut(const CurvePoint& from, const CurvePoint& to, const Visit& visit) const
    {
        if (!isFinite(from) || !isFinite(to))
            return;
        if (!crosses(from, to)) {
            cutSide(from, to, visit);
            return;
        }
        const CurvePoint middle{crossing(from, to), 0.0};
        cutSide(from, middle, visit);
        cutSide(middle, to, visit);
    }

private:
    /// One side of the base line, with the heights taken as distances from it.
    struct Piece
    {
        CurvePoint from;
        CurvePoint to;
        double sign;
        double slope; ///< change of the position with the distance

        /// The position where the curve has a distance between those of its ends.
        double at(double distance) const
        {
            if (distance == from.height)
                return from.position;
            if (distance == to.height)
                return to.position;
            const double position = from.position + (distance - from.height) * slope;
            return std::clamp(position, std::min(from.position, to.position),
                              std::max(from.position, to.position));
        }
        Band band(double near, double far) const;
    };

    static bool isFinite(const CurvePoint& p) { return std::isfinite(p.position) && std::isfinite(p.height); }

    template <class Visit>
    void cutSide(const CurvePoint& from, const CurvePoint& to, const Visit& visit) const
    {
        const double sign = from.height < 0.0 || to.height < 0.0 ? -1.0 : 1.0;
        const double rise = sign * (to.height - from.height);
        const Piece piece{{from.position, sign * from.height},
                          {to.position, sign * to.height},
                          sign,
                          (to.position - from.position) / rise};
        const double reach = std::max(piece.from.height, piece.to.height);
        if (!(reach > 0.0))
            return;
        double near = 0.0;
        for (double far : sign > 0.0 ? above : below) {
            if (far >= reach)
                break;
            visit(piece.band(near, far));
            near = far;
        }
        visit(piece.band(near, reach));
    }

    std::vector<double> above; ///< distances of the levels from the base line, ascending and each once
    std::vector<double> below;
};

inline SpectrumBands::Band SpectrumBands::Piece::band(double near, double far) const
{
    Band result;
    // Adding zero turns the negative zero of a mirrored base line into the plain one.
    const auto add = [&](double position, double distance) {
        result.corners[result.count++] = {position, sign * distance + 0.0};
    };
    if (from.height > near) {
        add(from.position, near);
        add(from.position, std::min(from.height, far));
    } else {
        add(at(near), near);
    }
    if ((from.height < far && to.height > far) || (from.height > far && to.height < far))
        add(at(far), far);
    if (to.height > near) {
        add(to.position, std::min(to.height, far));
        add(to.position, near);
    } else {
        add(at(near), near);
    }
    result.lower = sign > 0.0 ? near : -far;
    result.upper = sign > 0.0 ? far : -near + 0.0;
    return result;
}

} // namespace Zel3D
