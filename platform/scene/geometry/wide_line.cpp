#include "geometry/wide_line.h"

#include <cmath>

#include "geometry/curve_points.h"
#include "geometry/space_transform.h"

namespace {

/// One piece: its middle line, and half its width at both ends.
struct Piece {
    std::vector<OdGePoint2d> middle;
    std::vector<SceneArc> arcs;
    double startHalf = 0, endHalf = 0;
    bool isStraight() const { return arcs.empty(); }
    OdGePoint2d direction() const { return middle.back() - middle.front(); }
};

OdGePoint2d leftOf(const OdGePoint2d& direction) {
    const double length = Length(direction);
    return length > 0 ? OdGePoint2d{-direction.y / length, direction.x / length} : OdGePoint2d{};
}

/// The left normal at a point of the middle line.
OdGePoint2d normalAt(const Piece& piece, std::size_t index) {
    if (piece.isStraight()) return leftOf(piece.direction());
    const SceneArc& arc = piece.arcs.front();
    const OdGePoint2d outward = piece.middle[index] - arc.center;
    return leftOf(arc.sweep < 0 ? OdGePoint2d{outward.y, -outward.x} : OdGePoint2d{-outward.y, outward.x});
}

/// Where the left edges of two pieces meet, as an offset from their common point; false for a corner so sharp
/// that the mitre would run away.
bool mitre(const OdGePoint2d& first, const OdGePoint2d& second, OdGePoint2d& offset) {
    constexpr double kSharpest = 0.1;
    const double share = 1 + Dot(first, second);
    if (share < kSharpest) return false;
    offset = (first + second) * (1 / share);
    return true;
}

/// The offset of the left edge at an end of a piece, for a half width of 1.
OdGePoint2d edgeAt(const std::vector<Piece>& pieces, std::size_t index, bool atEnd, bool closed) {
    const Piece& piece = pieces[index];
    const OdGePoint2d own = normalAt(piece, atEnd ? piece.middle.size() - 1 : 0);
    const std::size_t count = pieces.size();
    if (!closed && (atEnd ? index + 1 == count : index == 0)) return own;
    const Piece& other = pieces[atEnd ? (index + 1) % count : (index + count - 1) % count];
    const bool meets = atEnd ? piece.endHalf == other.startHalf : piece.startHalf == other.endHalf;
    if (!meets || !piece.isStraight() || !other.isStraight()) return own;
    OdGePoint2d offset;
    return mitre(own, normalAt(other, 0), offset) ? offset : own;
}

}  // namespace

std::vector<std::vector<OdGePoint2d>> WideLine(const std::vector<WideCorner>& corners, bool closed,
                                               double tolerance) {
    std::vector<Piece> pieces;
    const std::size_t count = closed ? corners.size() : corners.size() - 1;
    for (std::size_t i = 0; i < count; ++i) {
        const WideCorner &from = corners[i], &to = corners[(i + 1) % corners.size()];
        Piece piece;
        piece.middle = {from.point};
        AppendBulge(piece.middle, piece.arcs, from.point, to.point, from.bulge, tolerance);
        piece.startHalf = from.startWidth / 2;
        piece.endHalf = from.endWidth / 2;
        if (Length(piece.direction()) > 0 || !piece.isStraight()) pieces.push_back(std::move(piece));
    }
    std::vector<std::vector<OdGePoint2d>> areas;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const Piece& piece = pieces[i];
        if (!(piece.startHalf > 0) && !(piece.endHalf > 0)) {
            areas.push_back(piece.middle);
            continue;
        }
        std::vector<OdGePoint2d> left, right;
        const std::size_t last = piece.middle.size() - 1;
        for (std::size_t k = 0; k <= last; ++k) {
            const double part = static_cast<double>(k) / static_cast<double>(last);
            const double half = piece.startHalf + (piece.endHalf - piece.startHalf) * part;
            const bool isEnd = k == 0 || k == last;
            const OdGePoint2d offset = isEnd ? edgeAt(pieces, i, k == last, closed) : normalAt(piece, k);
            left.push_back(piece.middle[k] + offset * half);
            right.push_back(piece.middle[k] - offset * half);
        }
        left.insert(left.end(), right.rbegin(), right.rend());
        areas.push_back(std::move(left));
    }
    return areas;
}
