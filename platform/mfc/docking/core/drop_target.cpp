#include "drop_target.h"

#include <algorithm>

namespace kmfc::docking {

namespace {

constexpr Side kAll[] = {Side::left, Side::top, Side::right, Side::bottom};

bool inside(const CRect& rect, const CPoint& point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

/// A square of `edge` pixels around a point.
CRect square(int x, int y, int edge) {
    return CRect(x - edge / 2, y - edge / 2, x - edge / 2 + edge, y - edge / 2 + edge);
}

/// A square `distance` pixels from the middle of a rectangle towards a side.
CRect square_towards(const CRect& rect, Side side, int distance, int edge) {
    const int x = (rect.left + rect.right) / 2, y = (rect.top + rect.bottom) / 2;
    switch (side) {
        case Side::left: return square(x - distance, y, edge);
        case Side::right: return square(x + distance, y, edge);
        case Side::top: return square(x, y - distance, edge);
        default: return square(x, y + distance, edge);
    }
}

const DropPane* pane_at(const DropScene& scene, const CPoint& point) {
    for (const DropPane& pane : scene.panes)
        if (inside(pane.rect, point)) return &pane;
    return nullptr;
}

bool allows(const DropScene& scene, Side side) { return scene.sides[static_cast<int>(side)]; }

void add_cross(std::vector<Guide>& guides, const DropScene& scene, const CPoint& point) {
    const int step = scene.guide + scene.guide / 8;
    if (const DropPane* pane = pane_at(scene, point)) {
        for (const Side side : kAll)
            if (pane->takesSides)
                guides.push_back({square_towards(pane->rect, side, step, scene.guide),
                                  {DropKind::beside, side, pane->pane}});
        if (pane->takesTabs && scene.tabs)
            guides.push_back({square_towards(pane->rect, Side::left, 0, scene.guide),
                              {DropKind::tab, Side::left, pane->pane}});
        return;
    }
    if (!inside(scene.center, point)) return;
    for (const Side side : kAll)
        if (allows(scene, side))
            guides.push_back(
                {square_towards(scene.center, side, step, scene.guide), {DropKind::innerEdge, side, 0}});
}

/// A guide half its length inside an edge of the frame.
CRect edge_guide(const DropScene& scene, Side side) {
    const int distance = (is_upright(side) ? scene.frame.Width() : scene.frame.Height()) / 2 - scene.guide;
    return square_towards(scene.frame, side, std::max(0, distance), scene.guide);
}

Drop on_caption(const DropScene& scene, const CPoint& point) {
    const DropPane* pane = pane_at(scene, point);
    if (pane == nullptr || !pane->takesTabs || !scene.tabs) return {};
    if (!inside(pane->caption, point) && !inside(pane->tabs, point)) return {};
    return {DropKind::tab, Side::left, pane->pane};
}

/// The side of a rectangle within `reach` pixels of a point inside it, the nearest if there are several.
bool near_side(const CRect& rect, const CPoint& point, int reach, Side& side) {
    if (!inside(rect, point)) return false;
    const int distance[] = {static_cast<int>(point.x - rect.left), static_cast<int>(point.y - rect.top),
                            static_cast<int>(rect.right - 1 - point.x),
                            static_cast<int>(rect.bottom - 1 - point.y)};
    const auto nearest = std::min_element(std::begin(distance), std::end(distance));
    side = static_cast<Side>(nearest - std::begin(distance));
    return *nearest < reach;
}

}  // namespace

std::vector<Guide> guides_at(const DropScene& scene, const CPoint& point) {
    std::vector<Guide> guides;
    // The cross goes first: in a small frame it may lie over a guide of the edge.
    add_cross(guides, scene, point);
    if (inside(scene.frame, point))
        for (const Side side : kAll)
            if (allows(scene, side))
                guides.push_back({edge_guide(scene, side), {DropKind::frameEdge, side, 0}});
    return guides;
}

Drop drop_at(const DropScene& scene, const CPoint& point) {
    for (const Guide& guide : guides_at(scene, point))
        if (inside(guide.rect, point)) return guide.drop;
    return on_caption(scene, point);
}

Drop drop_near(const DropScene& scene, const CPoint& point, int reach) {
    const Drop tab = on_caption(scene, point);
    if (tab.kind != DropKind::none) return tab;
    Side side = Side::left;
    if (near_side(scene.frame, point, reach, side) && allows(scene, side))
        return {DropKind::frameEdge, side, 0};
    const DropPane* pane = pane_at(scene, point);
    if (pane != nullptr)
        return pane->takesSides && near_side(pane->rect, point, reach, side)
                   ? Drop{DropKind::beside, side, pane->pane}
                   : Drop{};
    if (near_side(scene.center, point, reach, side) && allows(scene, side))
        return {DropKind::innerEdge, side, 0};
    return {};
}

}  // namespace kmfc::docking
