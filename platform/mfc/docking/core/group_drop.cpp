#include "group_drop.h"

namespace kmfc::docking {

namespace {

constexpr int kPart = 4;  // of the documents' extent stands for a new group at an edge

struct Edge {
    Side side;
    int distance, extent;
    bool allowed;
};

CRect half_at(const CRect& rect, Side side) {
    CRect half(rect);
    switch (side) {
        case Side::left: half.right = half.CenterPoint().x; break;
        case Side::right: half.left = half.CenterPoint().x; break;
        case Side::top: half.bottom = half.CenterPoint().y; break;
        case Side::bottom: half.top = half.CenterPoint().y; break;
    }
    return half;
}

}  // namespace

GroupDrop drop_on_group(const GroupTarget& target, CPoint point) {
    GroupDrop drop;
    if (!target.rect.PtInRect(point)) return drop;
    drop.place = target.rect;
    drop.changes = !target.own;
    if (target.strip.PtInRect(point)) return drop;
    const CRect& all = target.rect;
    const Edge edges[] = {
        {Side::left, point.x - all.left, all.Width(), target.mayStand},
        {Side::right, all.right - 1 - point.x, all.Width(), target.mayStand},
        {Side::top, point.y - all.top, all.Height(), target.mayLie},
        {Side::bottom, all.bottom - 1 - point.y, all.Height(), target.mayLie},
    };
    const Edge* nearest = nullptr;
    for (const Edge& edge : edges) {
        if (!edge.allowed || edge.distance * kPart >= edge.extent) continue;
        if (nearest == nullptr || edge.distance < nearest->distance) nearest = &edge;
    }
    if (nearest == nullptr) return drop;
    drop.side = nearest->side;
    drop.place = half_at(all, nearest->side);
    drop.changes = true;
    return drop;
}

}  // namespace kmfc::docking
