#include "od_db_hatch.h"

#include <cmath>

#include "od_angle.h"
#include "od_group_cursor.h"

namespace {

constexpr int kPolylineLoop = 2;

/// Reads the groups of the boundaries one after the other.
class LoopReader {
public:
    /// Takes one group; false when the boundaries are over.
    bool take(const OdGroup& group);
    std::vector<OdDbHatchLoop> result();

private:
    void beginEdge(std::int64_t kind);
    void takeCorner(const OdGroup& group);
    void takeEdge(const OdGroup& group);
    void takeSpline(OdDbHatchEdge& edge, const OdGroup& group);
    void endEdge();

    std::vector<OdDbHatchLoop> m_loops;
    bool m_begun = false;
    double m_startDegrees = 0, m_endDegrees = 0;
    bool m_counterClockwise = true;
};

bool LoopReader::take(const OdGroup& group) {
    constexpr int kStyle = 75, kLoopCount = 91, kLoopKind = 92;
    if (group.code == kLoopCount) m_begun = true;
    if (!m_begun) return true;
    if (group.code == kStyle) return false;
    if (group.code == kLoopKind) {
        endEdge();
        m_loops.emplace_back();
        m_loops.back().isPolyline = (group.integer & kPolylineLoop) != 0;
        return true;
    }
    if (m_loops.empty()) return true;
    if (m_loops.back().isPolyline)
        takeCorner(group);
    else if (group.code == 72)
        beginEdge(group.integer);
    else if (!m_loops.back().edges.empty())
        takeEdge(group);
    return true;
}

void LoopReader::takeCorner(const OdGroup& group) {
    std::vector<OdDbPolylineVertex>& corners = m_loops.back().corners;
    if (group.code == 10) corners.push_back({{group.real, 0}, 0, 0, 0});
    if (corners.empty()) return;
    if (group.code == 20) corners.back().point.y = group.real;
    if (group.code == 42) corners.back().bulge = group.real;
}

void LoopReader::beginEdge(std::int64_t kind) {
    endEdge();
    if (kind < 1 || kind > 4) return;
    OdDbHatchEdge edge;
    edge.kind = static_cast<OdDbHatchEdge::Kind>(kind - 1);
    m_startDegrees = m_endDegrees = 0;
    m_counterClockwise = true;
    m_loops.back().edges.push_back(edge);
}

/// Clockwise angles are kept with the opposite sign.
void LoopReader::endEdge() {
    if (m_loops.empty() || m_loops.back().edges.empty()) return;
    OdDbHatchEdge& edge = m_loops.back().edges.back();
    if (edge.kind != OdDbHatchEdge::Kind::kArc && edge.kind != OdDbHatchEdge::Kind::kEllipse) return;
    double sweep = std::fmod(m_endDegrees - m_startDegrees, 360);
    if (sweep <= 0) sweep += 360;
    const double sign = m_counterClockwise ? 1 : -1;
    edge.startAngle = sign * odRadians(m_startDegrees);
    edge.sweep = sign * odRadians(sweep);
}

void LoopReader::takeEdge(const OdGroup& group) {
    OdDbHatchEdge& edge = m_loops.back().edges.back();
    if (edge.kind == OdDbHatchEdge::Kind::kSpline) {
        takeSpline(edge, group);
        return;
    }
    OdGePoint2d& first = edge.kind == OdDbHatchEdge::Kind::kLine ? edge.start : edge.center;
    OdGePoint2d& second = edge.kind == OdDbHatchEdge::Kind::kLine ? edge.end : edge.majorAxis;
    const bool isArc = edge.kind == OdDbHatchEdge::Kind::kArc;
    switch (group.code) {
        case 10: first.x = group.real; break;
        case 20: first.y = group.real; break;
        case 11: second.x = group.real; break;
        case 21: second.y = group.real; break;
        case 40:
            if (isArc)
                edge.majorAxis = {group.real, 0};
            else
                edge.ratio = group.real;
            break;
        case 50: m_startDegrees = group.real; break;
        case 51: m_endDegrees = group.real; break;
        case 73: m_counterClockwise = group.integer != 0; break;
        default: break;
    }
}

void LoopReader::takeSpline(OdDbHatchEdge& edge, const OdGroup& group) {
    switch (group.code) {
        case 94: edge.degree = static_cast<int>(group.integer); break;
        case 40: edge.knots.push_back(group.real); break;
        case 42: edge.weights.push_back(group.real); break;
        case 10: edge.controlPoints.push_back({group.real, 0}); break;
        case 11: edge.fitPoints.push_back({group.real, 0}); break;
        case 20:
            if (!edge.controlPoints.empty()) edge.controlPoints.back().y = group.real;
            break;
        case 21:
            if (!edge.fitPoints.empty()) edge.fitPoints.back().y = group.real;
            break;
        default: break;
    }
}

std::vector<OdDbHatchLoop> LoopReader::result() {
    endEdge();
    return std::move(m_loops);
}

}  // namespace

OdDbHatchStyle OdDbHatch::style() const {
    const std::int64_t style = m_groups.integer(75);
    return style == 1 || style == 2 ? static_cast<OdDbHatchStyle>(style) : OdDbHatchStyle::kOddParity;
}

std::vector<OdDbHatchLoop> OdDbHatch::loops() const {
    LoopReader reader;
    OdGroupCursor cursor(m_groups);
    OdGroup group;
    while (cursor.next(group) && reader.take(group)) {
    }
    return reader.result();
}

std::vector<OdDbHatchLine> OdDbHatch::patternLines() const {
    constexpr int kStyle = 75, kSeedCount = 98;
    std::vector<OdDbHatchLine> lines;
    OdGroupCursor cursor(m_groups);
    OdGroup group;
    bool begun = false, hasLoops = false;
    while (cursor.next(group)) {
        hasLoops = hasLoops || group.code == 91;
        begun = begun || (hasLoops && group.code == kStyle);
        if (!begun) continue;
        if (group.code == kSeedCount) break;
        if (group.code == 53) lines.push_back({odRadians(group.real), {}, {}, {}});
        if (lines.empty()) continue;
        OdDbHatchLine& line = lines.back();
        switch (group.code) {
            case 43: line.base.x = group.real; break;
            case 44: line.base.y = group.real; break;
            case 45: line.offset.x = group.real; break;
            case 46: line.offset.y = group.real; break;
            case 49: line.dashes.push_back(group.real); break;
            default: break;
        }
    }
    return lines;
}

std::vector<OdCmColor> OdDbHatch::gradientColors() const {
    std::vector<OdCmColor> colors;
    OdGroupCursor cursor(m_groups);
    OdGroup group;
    bool begun = false;
    while (cursor.next(group)) {
        begun = begun || group.code == 453;
        if (!begun) continue;
        if (group.code == 463) colors.emplace_back();
        if (colors.empty()) continue;
        if (group.code == 63) colors.back().setColorIndex(static_cast<int>(group.integer));
        if (group.code == 421)
            colors.back().setRGB(static_cast<std::uint8_t>(group.integer >> 16),
                                 static_cast<std::uint8_t>(group.integer >> 8),
                                 static_cast<std::uint8_t>(group.integer));
    }
    return colors;
}
