#include "split_tree.h"

#include <algorithm>

namespace kmfc::docking {

namespace {

using Node = SplitTree::Node;

std::unique_ptr<Node> copy(const Node* node, Node* parent) {
    if (node == nullptr) return nullptr;
    auto made = std::make_unique<Node>();
    made->id = node->id;
    made->parent = parent;
    made->upright = node->upright;
    made->share = node->share;
    made->pane = node->pane;
    made->shown = node->shown;
    made->first = copy(node->first.get(), made.get());
    made->second = copy(node->second.get(), made.get());
    return made;
}

template <typename Visit>
void each_leaf(Node* node, const Visit& visit) {
    if (node == nullptr) return;
    if (node->first == nullptr) {
        visit(*node);
        return;
    }
    each_leaf(node->first.get(), visit);
    each_leaf(node->second.get(), visit);
}

bool shows(const Node& node) {
    return node.first == nullptr ? node.shown : shows(*node.first) || shows(*node.second);
}

CSize least_of(const Node& node, const Rules& rules) {
    if (!shows(node)) return CSize(0, 0);
    if (node.first == nullptr) {
        const CSize size = rules.least_of(node.pane);
        return CSize(std::max<int>(0, size.cx), std::max<int>(0, size.cy));
    }
    const CSize a = least_of(*node.first, rules), b = least_of(*node.second, rules);
    const int line = shows(*node.first) && shows(*node.second) ? rules.divider : 0;
    if (node.upright) return CSize(a.cx + b.cx + line, std::max(a.cy, b.cy));
    return CSize(std::max(a.cx, b.cx), a.cy + b.cy + line);
}

/// Cuts `area` across at two distances from its left or top edge.
void cut(const CRect& area, bool upright, int at, int line, CRect& first, CRect& divider, CRect& second) {
    first = divider = second = area;
    if (upright) {
        first.right = divider.left = area.left + at;
        divider.right = second.left = area.left + at + line;
    } else {
        first.bottom = divider.top = area.top + at;
        divider.bottom = second.top = area.top + at + line;
    }
}

int across(const CSize& size, bool upright) { return upright ? size.cx : size.cy; }
int across(const CRect& rect, bool upright) { return upright ? rect.Width() : rect.Height(); }

void place(const Node& node, const CRect& area, const Rules& rules, Arrangement& to) {
    if (node.first == nullptr) {
        to.panes.push_back({node.pane, area});
        return;
    }
    const bool first = shows(*node.first), second = shows(*node.second);
    if (!first || !second) {
        place(first ? *node.first : *node.second, area, rules, to);
        return;
    }
    const int extent = across(area, node.upright), line = std::min(rules.divider, extent);
    const int least1 = across(least_of(*node.first, rules), node.upright);
    const int least2 = across(least_of(*node.second, rules), node.upright);
    CRect one, divider, two;
    cut(area, node.upright, divide(extent - line, node.share, least1, least2), line, one, divider, two);
    place(*node.first, one, rules, to);
    to.dividers.push_back({node.id, divider, area, node.upright, false});
    place(*node.second, two, rules, to);
}

}  // namespace

SplitTree::SplitTree(PaneKey pane) : m_root(std::make_unique<Node>()) { m_root->pane = pane; }
SplitTree::SplitTree(std::unique_ptr<Node> root) : m_root(std::move(root)) {}
SplitTree::SplitTree(const SplitTree& other) : m_root(copy(other.m_root.get(), nullptr)) {}
SplitTree& SplitTree::operator=(SplitTree other) noexcept {
    m_root.swap(other.m_root);
    return *this;
}

Node* SplitTree::find(PaneKey pane) const {
    Node* found = nullptr;
    each_leaf(m_root.get(), [&](Node& node) {
        if (node.pane == pane && pane != 0) found = &node;
    });
    return found;
}

Node* SplitTree::find_divider(int id) const {
    std::vector<Node*> open{m_root.get()};
    while (!open.empty()) {
        Node* node = open.back();
        open.pop_back();
        if (node == nullptr || node->first == nullptr) continue;
        if (node->id == id) return node;
        open.push_back(node->first.get());
        open.push_back(node->second.get());
    }
    return nullptr;
}

bool SplitTree::shows(PaneKey pane) const {
    const Node* node = find(pane);
    return node != nullptr && node->shown;
}

bool SplitTree::shows_any() const { return m_root != nullptr && docking::shows(*m_root); }

std::vector<PaneKey> SplitTree::panes() const {
    std::vector<PaneKey> all;
    each_leaf(m_root.get(), [&](const Node& node) { all.push_back(node.pane); });
    return all;
}

std::unique_ptr<Node>& SplitTree::owner_of(Node& node) {
    if (node.parent == nullptr) return m_root;
    return node.parent->first.get() == &node ? node.parent->first : node.parent->second;
}

bool SplitTree::insert(PaneKey pane, PaneKey target, Side side, int extent, int targetExtent) {
    return pane != 0 && graft(SplitTree(pane), target, side, extent, targetExtent);
}

bool SplitTree::graft(SplitTree other, PaneKey target, Side side, int extent, int targetExtent) {
    if (other.m_root == nullptr) return false;
    for (const PaneKey pane : other.panes())
        if (contains(pane)) return false;
    if (m_root == nullptr && target == 0) {
        m_root = std::move(other.m_root);
        return true;
    }
    Node* at = target == 0 ? m_root.get() : find(target);
    return at != nullptr && join(std::move(other.m_root), at, side, extent, targetExtent);
}

bool SplitTree::join(std::unique_ptr<Node> added, Node* target, Side side, int extent, int targetExtent) {
    int share = kWhole / 2;
    if (extent > 0 && targetExtent > 0) {
        const auto wanted = static_cast<std::int64_t>(extent) * kWhole / targetExtent;
        share = static_cast<int>(std::min<std::int64_t>(kWhole / 2, wanted));
    }
    auto divider = std::make_unique<Node>();
    divider->id = next_divider_id();
    divider->parent = target->parent;
    divider->upright = is_upright(side);
    divider->share = comes_first(side) ? share : kWhole - share;
    std::unique_ptr<Node>& place = owner_of(*target);
    added->parent = target->parent = divider.get();
    divider->first = comes_first(side) ? std::move(added) : std::move(place);
    divider->second = comes_first(side) ? std::move(place) : std::move(added);
    place = std::move(divider);
    return true;
}

bool SplitTree::remove(PaneKey pane) {
    Node* node = find(pane);
    if (node == nullptr) return false;
    Node* divider = node->parent;
    if (divider == nullptr) {
        m_root.reset();
        return true;
    }
    auto kept = std::move(divider->first.get() == node ? divider->second : divider->first);
    kept->parent = divider->parent;
    std::unique_ptr<Node>& place = owner_of(*divider);
    place = std::move(kept);
    return true;
}

bool SplitTree::replace(PaneKey pane, PaneKey by) {
    Node* node = find(pane);
    if (node == nullptr || by == 0 || contains(by)) return false;
    node->pane = by;
    return true;
}

bool SplitTree::set_shown(PaneKey pane, bool shown) {
    Node* node = find(pane);
    if (node == nullptr) return false;
    node->shown = shown;
    return true;
}

CSize SplitTree::least(const Rules& rules) const {
    return m_root != nullptr ? least_of(*m_root, rules) : CSize(0, 0);
}

void SplitTree::arrange(const CRect& area, const Rules& rules, Arrangement& to) const {
    if (shows_any()) place(*m_root, area, rules, to);
}

int SplitTree::move_divider(const PlacedDivider& placed, int delta, const Rules& rules) {
    Node* node = find_divider(placed.id);
    if (node == nullptr) return 0;
    const int total = across(placed.around, node->upright) - rules.divider;
    const int least1 = across(least_of(*node->first, rules), node->upright);
    const int least2 = across(least_of(*node->second, rules), node->upright);
    if (total <= 0 || total < least1 + least2) return 0;
    const int now =
        node->upright ? placed.rect.left - placed.around.left : placed.rect.top - placed.around.top;
    const int next = std::clamp(now + delta, least1, total - least2);
    node->share = static_cast<int>((std::int64_t{next} * kWhole + total / 2) / total);
    return next - now;
}

}  // namespace kmfc::docking
