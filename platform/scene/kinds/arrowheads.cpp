#include "kinds/arrowheads.h"

#include <cmath>
#include <numbers>

#include "block_walk.h"

namespace {

/// The figures that go by the names of the usual blocks, with the tip at 0, 0 pointing along x and a size
/// of 1.
bool drawUsual(const EntityPen& pen, const std::wstring& name) {
    const double turn = 2 * std::numbers::pi;
    const auto wings = [&pen](double degrees) {
        const double slope = std::tan(degrees / 2 * std::numbers::pi / 180);
        pen.stroke(std::vector<OdGePoint3d>{{-1, slope, 0}, {0, 0, 0}, {-1, -slope, 0}});
    };
    if (name == L"NONE") return true;
    if (name == L"DOT" || name == L"DOTSMALL") {
        const double radius = name == L"DOT" ? 0.5 : 0.25;
        std::vector<OdGePoint3d> circle;
        constexpr int kCorners = 32;
        circle.reserve(kCorners);
        for (int i = 0; i < kCorners; ++i)
            circle.push_back(
                {radius * std::cos(turn * i / kCorners), radius * std::sin(turn * i / kCorners), 0});
        pen.fill(circle);
        return true;
    }
    if (name == L"ORIGIN" || name == L"SMALL" || name == L"DOTBLANK") {
        const double radius = name == L"SMALL" ? 0.25 : 0.5;
        pen.arc({}, {radius, 0, 0}, {0, radius, 0}, 0, turn);
        return true;
    }
    if (name == L"OBLIQUE" || name == L"ARCHTICK") {
        pen.stroke({-0.5, -0.5, 0}, {0.5, 0.5, 0});
        return true;
    }
    if (name == L"OPEN30") wings(30);
    if (name == L"OPEN90") wings(90);
    if (name == L"OPEN") wings(19);
    return name == L"OPEN30" || name == L"OPEN90" || name == L"OPEN";
}

std::wstring plainName(const OdString& name) {
    std::wstring plain;
    for (const wchar_t c : name.view()) plain += odFoldCase(c);
    if (!plain.empty() && plain[0] == L'_') plain.erase(0, 1);
    return plain;
}

}  // namespace

void DrawArrowhead(const EntityPen& pen, const Arrowhead& arrowhead, const OdGePoint3d& tip,
                   const OdGePoint2d& direction) {
    constexpr double kHalfWidth = 1.0 / 6;  // of the length
    if (!(arrowhead.size > 0)) return;
    EntityPen there = pen.within(SpaceTransform::Moved(tip))
                          .within(SpaceTransform::Turned(std::atan2(direction.y, direction.x)))
                          .within(SpaceTransform::Scaled({arrowhead.size, arrowhead.size, arrowhead.size}));
    there.look().style.dashes.clear();
    there.look().pattern = nullptr;
    if (!arrowhead.block.isNull()) {
        DrawBlockWithin(there, arrowhead.block);
        return;
    }
    if (!drawUsual(there, plainName(arrowhead.name)))
        there.fill({{0, 0, 0}, {-1, kHalfWidth, 0}, {-1, -kHalfWidth, 0}});
}
