#include "kinds/dimension_layout.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <numbers>

#include "geometry/curve_points.h"
#include "kinds/arrowheads.h"
#include "kinds/draw_paragraph.h"
#include "kinds/draw_single_line.h"
#include "rules/dimension_text.h"

namespace {

using namespace dimension_codes;

enum Kind { kRotated, kAligned, kAngular, kDiameter, kRadius, kAngularByPoints, kOrdinate };

constexpr double kUsualTextHeight = 0.18, kUsualArrowSize = 0.18, kUsualGap = 0.09, kUsualOffset = 0.0625,
                 kUsualBeyond = 0.18;

OdGePoint2d unit(const OdGePoint2d& v, const OdGePoint2d& otherwise) {
    const double length = Length(v);
    return length > 0 ? v * (1 / length) : otherwise;
}

/// Draws one dimension in the plane of its normal.
class Layout {
public:
    Layout(const OdDbDimension& dimension, const EntityPen& pen);
    void draw();

private:
    /// A definition point of space, in the plane.
    OdGePoint2d pointAt(int code) const { return Flat(m_toPlane.apply(m_dimension.groups().point(code))); }
    OdGePoint3d raised(const OdGePoint2d& p) const { return {p.x, p.y, m_elevation}; }
    EntityPen penFor(int colorCode, int weightCode) const;
    void line(const EntityPen& pen, const OdGePoint2d& from, const OdGePoint2d& to) const {
        pen.stroke(raised(from), raised(to));
    }
    void arrow(const OdGePoint2d& tip, const OdGePoint2d& direction, bool isSecond) const;
    void extension(const OdGePoint2d& from, const OdGePoint2d& to, int offCode) const;
    void lineWithArrows(const OdGePoint2d& from, const OdGePoint2d& to) const;
    void text(const DimensionMeasure& measure, const OdGePoint2d& usual, double angle) const;
    bool textPlace(OdGePoint2d& place) const;

    /// What an arc of so many radians measures.
    using MeasureOfSweep = std::function<DimensionMeasure(double sweep)>;

    void linear(const OdGePoint2d& direction);
    void diameter();
    void radius();
    void angular(const OdGePoint2d& center, const OdGePoint2d& first, const OdGePoint2d& second,
                 const OdGePoint2d& onArc, const MeasureOfSweep& measureOf);
    DimensionMeasure angleOf(double sweep) const { return AngleMeasure(sweep, m_style); }
    void angularBetweenLines();
    void ordinate();
    void arcLength();
    void joggedRadius();
    DimensionMeasure measured(double value, std::wstring_view sign = {}) const {
        return LengthMeasure(value, sign, m_style);
    }

    const OdDbDimension& m_dimension;
    EntityPen m_pen;
    DimensionStyle m_style;
    SpaceTransform m_toPlane;
    double m_elevation, m_arrowSize, m_textHeight;
};

Layout::Layout(const OdDbDimension& dimension, const EntityPen& pen)
    : m_dimension(dimension),
      m_pen(pen.inPlaneOf(dimension)),
      m_style(pen.work().drawing(), dimension.groups().text(3), dimension) {
    const OdGeVector3d normal = dimension.normal();
    m_toPlane = SpaceTransform::SeenAlong({normal.x, normal.y, normal.z});
    m_elevation = m_toPlane.apply(dimension.definitionPoint()).z;
    m_arrowSize = m_style.length(kArrowSize, kUsualArrowSize);
    m_textHeight = m_style.length(kTextHeight, kUsualTextHeight);
}

EntityPen Layout::penFor(int colorCode, int weightCode) const {
    EntityPen own = m_pen;
    m_pen.rules().setColor(own.look(), m_style.color(colorCode), m_pen.look());
    if (weightCode != 0)
        m_pen.rules().setLineWeight(own.look(), m_style.integer(weightCode, OdDb::kLnWtByBlock),
                                    m_pen.look());
    return own;
}

void Layout::arrow(const OdGePoint2d& tip, const OdGePoint2d& direction, bool isSecond) const {
    const EntityPen own = penFor(kLineColor, kLineWeight);
    if (const double tick = m_style.length(kTickSize, 0); tick > 0) {
        const OdGePoint2d across{direction.x - direction.y, direction.x + direction.y};
        line(own, tip - across * tick, tip + across * tick);
        return;
    }
    const bool hasTwo = m_style.integer(kHasTwoArrows, 0) != 0;
    const int code = !hasTwo ? kArrow : isSecond ? kSecondArrow : kFirstArrow;
    const int nameCode = !hasTwo ? 5 : isSecond ? 7 : 6;
    Arrowhead arrowhead;
    arrowhead.block = m_style.arrowBlock(code, nameCode, arrowhead.name);
    arrowhead.size = m_arrowSize;
    DrawArrowhead(own, arrowhead, raised(tip), direction);
}

/// A line from near the measured place to beyond the dimension line.
void Layout::extension(const OdGePoint2d& from, const OdGePoint2d& to, int offCode) const {
    const OdGePoint2d way = to - from;
    if (m_style.integer(offCode, 0) != 0 || !(Length(way) > 0)) return;
    const OdGePoint2d direction = unit(way, {});
    line(penFor(kExtensionColor, kExtensionWeight),
         from + direction * m_style.length(kExtensionOffset, kUsualOffset),
         to + direction * m_style.length(kExtensionBeyond, kUsualBeyond));
}

/// Arrows stand outside where there is no room for both.
void Layout::lineWithArrows(const OdGePoint2d& from, const OdGePoint2d& to) const {
    constexpr double kRoom = 2.5;  // arrow sizes
    const EntityPen own = penFor(kLineColor, kLineWeight);
    const OdGePoint2d direction = unit(to - from, {1, 0});
    const bool isOutside = Length(to - from) < kRoom * m_arrowSize;
    line(own, from, to);
    arrow(from, isOutside ? direction : direction * -1, false);
    arrow(to, isOutside ? direction * -1 : direction, true);
    if (!isOutside) return;
    line(own, from - direction * (2 * m_arrowSize), from - direction * m_arrowSize);
    line(own, to + direction * m_arrowSize, to + direction * (2 * m_arrowSize));
}

/// Where the file says that the middle of the text is.
bool Layout::textPlace(OdGePoint2d& place) const {
    OdGroup group;
    if (!m_dimension.groups().find(11, group)) return false;
    place = Flat(m_dimension.textPosition());
    return !(place == OdGePoint2d{});
}

void Layout::text(const DimensionMeasure& measure, const OdGePoint2d& usual, double angle) const {
    const OdString words = DimensionWords(m_dimension.dimensionText(), measure);
    if (words.isEmpty()) return;
    // Letters never stand on their heads.
    double turn = std::remainder(angle, 2 * std::numbers::pi);
    if (turn > std::numbers::pi / 2 + 1e-9) turn -= std::numbers::pi;
    if (turn <= -std::numbers::pi / 2 + 1e-9) turn += std::numbers::pi;
    if (m_style.integer(kInsideHorizontal, 0) != 0) turn = 0;
    OdGroup own;
    if (m_dimension.groups().find(53, own) && own.real != 0) turn = own.real * std::numbers::pi / 180;
    OdGePoint2d place;
    if (!textPlace(place)) {
        const double up =
            m_style.integer(kTextAbove, 0) != 0 ? m_style.length(kGap, kUsualGap) + m_textHeight / 2 : 0;
        place = usual + OdGePoint2d{-std::sin(turn), std::cos(turn)} * up;
    }
    PlacedParagraph placed;
    placed.contents = words;
    placed.position = raised(place);
    placed.along = {std::cos(turn), std::sin(turn), 0};
    placed.up = {-std::sin(turn), std::cos(turn), 0};
    placed.attachment = 5;
    placed.height = m_textHeight;
    placed.font = FontOfStyle(m_style.object(kTextStyle));
    DrawPlacedParagraph(placed, penFor(kTextColor, 0));
}

void Layout::linear(const OdGePoint2d& direction) {
    const OdGePoint2d first = pointAt(13), second = pointAt(14), onLine = pointAt(10);
    const OdGePoint2d from = onLine + direction * Dot(first - onLine, direction);
    const OdGePoint2d to = onLine + direction * Dot(second - onLine, direction);
    extension(first, from, kFirstExtensionOff);
    extension(second, to, kSecondExtensionOff);
    lineWithArrows(from, to);
    text(measured(Length(to - from)), (from + to) * 0.5, std::atan2(direction.y, direction.x));
}

void Layout::diameter() {
    const OdGePoint2d from = pointAt(10), to = pointAt(15), way = to - from;
    lineWithArrows(from, to);
    text(measured(Length(way), L"\u00D8"), (from + to) * 0.5, std::atan2(way.y, way.x));
}

void Layout::radius() {
    const OdGePoint2d center = pointAt(10), onArc = pointAt(15), way = onArc - center;
    OdGePoint2d from = center;
    textPlace(from);
    const OdGePoint2d direction = unit(onArc - from, {1, 0});
    line(penFor(kLineColor, kLineWeight), from, onArc);
    arrow(onArc, direction, false);
    text(measured(Length(way), L"R"), (center + onArc) * 0.5, std::atan2(way.y, way.x));
}

void Layout::angular(const OdGePoint2d& center, const OdGePoint2d& first, const OdGePoint2d& second,
                     const OdGePoint2d& onArc, const MeasureOfSweep& measureOf) {
    constexpr double kTurn = 2 * std::numbers::pi;
    const double size = Length(onArc - center);
    const auto angleOf = [&](const OdGePoint2d& p) { return std::atan2(p.y - center.y, p.x - center.x); };
    const auto upTo = [&](double from, double to) {
        const double sweep = std::fmod(to - from, kTurn);
        return sweep < 0 ? sweep + kTurn : sweep;
    };
    double start = angleOf(first), end = angleOf(second);
    // The arc is the one on which the given place lies.
    if (upTo(start, angleOf(onArc)) > upTo(start, end)) std::swap(start, end);
    const double sweep = upTo(start, end);
    const auto at = [&](double angle) {
        return center + OdGePoint2d{std::cos(angle), std::sin(angle)} * size;
    };
    const auto along = [](double angle) { return OdGePoint2d{-std::sin(angle), std::cos(angle)}; };
    extension(first, at(angleOf(first)), kFirstExtensionOff);
    extension(second, at(angleOf(second)), kSecondExtensionOff);
    penFor(kLineColor, kLineWeight).arc(raised(center), {size, 0, 0}, {0, size, 0}, start, sweep);
    arrow(at(start), along(start) * -1, false);
    arrow(at(end), along(end), true);
    const double middle = start + sweep / 2;
    text(measureOf(sweep), at(middle), middle - std::numbers::pi / 2);
}

/// As the angle of three points, with the length of the arc through the measured ones.
void Layout::arcLength() {
    enum { kInFront, kAbove, kNoSign };
    const OdGePoint2d center = pointAt(15), first = pointAt(13);
    if (!(Length(first - center) > 0)) return m_pen.work().noteNotDrawn(m_dimension.dxfName());
    const bool hasSign = m_style.integer(kArcSymbol, kInFront) != kNoSign;
    angular(center, first, pointAt(14), pointAt(10), [&](double sweep) {
        return measured(Length(first - center) * sweep, hasSign ? L"\u2312" : L"");
    });
}

/// From a place that stands for the centre to the arc, with a jog in between.
void Layout::joggedRadius() {
    const OdGePoint2d center = pointAt(10), onArc = pointAt(15), from = pointAt(13), jog = pointAt(14);
    const OdGePoint2d way = onArc - center, direction = unit(way, {1, 0});
    if (!(Length(way) > 0)) return m_pen.work().noteNotDrawn(m_dimension.dxfName());
    const double angle = m_dimension.groups().real(40, std::numbers::pi / 4);
    const double c = std::cos(angle), s = std::sin(angle);
    const OdGePoint2d across = {direction.x * c - direction.y * s, direction.x * s + direction.y * c};
    const auto onJog = [&](const OdGePoint2d& base) {
        const double area = Cross(across, direction);
        return std::abs(area) > 1e-9 ? jog + across * (Cross(base - jog, direction) / area) : jog;
    };
    penFor(kLineColor, kLineWeight)
        .stroke(
            std::vector<OdGePoint3d>{raised(from), raised(onJog(from)), raised(onJog(onArc)), raised(onArc)});
    arrow(onArc, direction, false);
    text(measured(Length(way), L"R"), (onJog(onArc) + onArc) * 0.5, std::atan2(way.y, way.x));
}

void Layout::angularBetweenLines() {
    const OdGePoint2d a = pointAt(13), b = pointAt(14), c = pointAt(15), d = pointAt(10);
    const OdGePoint2d u = b - a, v = d - c;
    const double area = Cross(u, v);
    if (!(std::abs(area) > 0)) return;
    const OdGePoint2d center = a + u * (Cross(c - a, v) / area);
    const OdGePoint2d onArc = Flat(m_dimension.groups().point(16));
    // Of the four angles between the lines that in which the arc lies.
    const auto side = [&](const OdGePoint2d& direction, const OdGePoint2d& other) {
        const bool isAhead = Cross(other, onArc - center) * Cross(other, direction) > 0;
        return isAhead ? direction : direction * -1;
    };
    const auto nearest = [&](const OdGePoint2d& p, const OdGePoint2d& q, const OdGePoint2d& direction) {
        return Dot(p - center, direction) > Dot(q - center, direction) ? p : q;
    };
    angular(center, nearest(a, b, side(u, v)), nearest(c, d, side(v, u)), onArc,
            [this](double sweep) { return angleOf(sweep); });
}

void Layout::ordinate() {
    constexpr int kAlongX = 64;
    const bool isX = (m_dimension.groups().integer(70) & kAlongX) != 0;
    const OdGePoint2d origin = pointAt(10), feature = pointAt(13), end = pointAt(14);
    const OdGePoint2d ahead = isX ? OdGePoint2d{0, 1} : OdGePoint2d{1, 0};
    const OdGePoint2d way = end - feature;
    const double reach = Dot(way, ahead), sign = reach < 0 ? -1 : 1;
    const double jog = std::min(2 * m_arrowSize, std::abs(reach)) * sign;
    const OdGePoint2d start = feature + ahead * (m_style.length(kExtensionOffset, kUsualOffset) * sign);
    const EntityPen own = penFor(kExtensionColor, kExtensionWeight);
    own.stroke(std::vector<OdGePoint3d>{raised(start), raised(feature + ahead * (reach - 2 * jog)),
                                        raised(end - ahead * jog), raised(end)});
    text(measured(isX ? std::abs(feature.x - origin.x) : std::abs(feature.y - origin.y)), end,
         std::atan2(ahead.y, ahead.x));
}

void Layout::draw() {
    if (std::strcmp(m_dimension.dxfName(), "ARC_DIMENSION") == 0) return arcLength();
    if (std::strcmp(m_dimension.dxfName(), "LARGE_RADIAL_DIMENSION") == 0) return joggedRadius();
    const double angle = m_dimension.groups().real(50) * std::numbers::pi / 180;
    switch (m_dimension.dimensionType()) {
        case kRotated: linear({std::cos(angle), std::sin(angle)}); break;
        case kAligned: linear(unit(pointAt(14) - pointAt(13), {1, 0})); break;
        case kAngular: angularBetweenLines(); break;
        case kDiameter: diameter(); break;
        case kRadius: radius(); break;
        case kAngularByPoints:
            angular(pointAt(15), pointAt(13), pointAt(14), pointAt(10),
                    [this](double sweep) { return angleOf(sweep); });
            break;
        case kOrdinate: ordinate(); break;
        default: m_pen.work().noteNotDrawn(m_dimension.dxfName()); break;
    }
}

}  // namespace

void LayOutDimension(const OdDbDimension& dimension, const EntityPen& pen) { Layout(dimension, pen).draw(); }
