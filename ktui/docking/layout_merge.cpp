#include <ktui/docking/layout_merge.h>

#include <algorithm>

namespace layouts {

namespace {

/// How one half of a split lies to the other.
struct Neighbor {
    const Tree* other = nullptr;  ///< what lies beside
    bool upright = true;
    int share = 0;        ///< of the first half
    bool isFirst = true;  ///< the pane's half is the first
};

/// The neighbours of a place, the nearest first. False when it isn't in the tree.
bool neighborsOf(const Tree& tree, unsigned id, std::vector<Neighbor>& neighbors) {
    if (!tree.isSplit()) return tree.id == id;
    for (int i = 0; i < 2; ++i) {
        const auto half = static_cast<std::size_t>(i);
        if (!neighborsOf(tree.halves[half], id, neighbors)) continue;
        neighbors.push_back({&tree.halves[1 - half], tree.upright, tree.share, i == 0});
        return true;
    }
    return false;
}

/// The smallest part of a tree with all those of `ids` that are in it; null without any.
Tree* smallestWith(Tree& tree, const std::set<unsigned>& ids) {
    if (!tree.isSplit()) return ids.count(tree.id) != 0 ? &tree : nullptr;
    Tree* first = smallestWith(tree.halves[0], ids);
    Tree* second = smallestWith(tree.halves[1], ids);
    if (first != nullptr && second != nullptr) return &tree;
    return first != nullptr ? first : second;
}

int depthOf(const Tree& tree) {
    return tree.isSplit() ? 1 + std::max(depthOf(tree.halves[0]), depthOf(tree.halves[1])) : 0;
}

void join(Tree& target, Tree added, const Neighbor& like) {
    Tree split;
    split.upright = like.upright;
    split.share = like.share;
    Tree former = std::move(target);
    Tree& first = like.isFirst ? added : former;
    Tree& second = like.isFirst ? former : added;
    split.halves.push_back(std::move(first));
    split.halves.push_back(std::move(second));
    target = std::move(split);
}

class Bringer {
public:
    Bringer(const Record& from, Record& into) : m_from(from), m_into(into) {}

    void bring(unsigned pane);

private:
    bool joinTabs(const Group& group, unsigned pane);
    void placeAt(unsigned id, unsigned pane, bool shown);
    void dock(std::size_t row, unsigned id, const Tree& added);
    std::size_t indexOfRow(std::size_t row);
    void addFrame(const Frame& frame, unsigned id, const Tree& added);
    bool joinNeighbors(const Tree& source, unsigned id, Tree added, const std::vector<Tree*>& targets) const;
    std::set<unsigned> namesHere(const Tree& part) const;
    void mergeKnowledge(unsigned pane);

    const Record& m_from;
    Record& m_into;
};

/// What the panes of a part of `from` are called in `into`: of tabs the group that holds them.
std::set<unsigned> Bringer::namesHere(const Tree& part) const {
    std::set<unsigned> names;
    const auto add = [&](unsigned pane) {
        const Group* group = m_into.groupOf(pane);
        names.insert(group != nullptr ? group->id : pane);
    };
    for (const unsigned id : IdsIn(part))
        if (const Group* group = m_from.findGroup(id))
            for (const Tab& tab : group->tabs) add(tab.pane);
        else
            add(id);
    return names;
}

bool Bringer::joinNeighbors(const Tree& source, unsigned id, Tree added,
                            const std::vector<Tree*>& targets) const {
    std::vector<Neighbor> neighbors;
    neighborsOf(source, id, neighbors);
    for (const Neighbor& each : neighbors) {
        const std::set<unsigned> names = namesHere(*each.other);
        for (Tree* target : targets)
            if (Tree* found = smallestWith(*target, names); found != nullptr && depthOf(*target) < kDeepest) {
                join(*found, std::move(added), each);
                return true;
            }
    }
    return false;
}

/// Where a row of `from` goes among those of `into`: inside all that stand outside it there, else outside
/// all that stand inside it, else innermost.
std::size_t Bringer::indexOfRow(std::size_t row) {
    const auto matches = [&](std::size_t of, std::size_t at) {
        return smallestWith(m_into.rows[at].panes, namesHere(m_from.rows[of].panes)) != nullptr;
    };
    for (std::size_t at = m_into.rows.size(); at-- > 0;)
        for (std::size_t outer = 0; outer < row; ++outer)
            if (matches(outer, at)) return at + 1;
    for (std::size_t at = 0; at < m_into.rows.size(); ++at)
        for (std::size_t inner = row + 1; inner < m_from.rows.size(); ++inner)
            if (matches(inner, at)) return at;
    return m_into.rows.size();
}

void Bringer::dock(std::size_t row, unsigned id, const Tree& added) {
    const Row& source = m_from.rows[row];
    std::vector<Tree*> targets;
    for (Row& each : m_into.rows)
        if (each.side == source.side) targets.push_back(&each.panes);
    if (joinNeighbors(source.panes, id, added, targets)) return;
    const auto at = static_cast<std::ptrdiff_t>(indexOfRow(row));
    m_into.rows.insert(m_into.rows.begin() + at, {source.side, source.extent, added});
}

void Bringer::addFrame(const Frame& frame, unsigned id, const Tree& added) {
    std::vector<Tree*> targets;
    for (Frame& each : m_into.frames) targets.push_back(&each.panes);
    if (!joinNeighbors(frame.panes, id, added, targets)) m_into.frames.push_back({frame.place, added});
}

/// Puts a pane where `id`, itself or the group that it has a tab in, stands in `from`.
void Bringer::placeAt(unsigned id, unsigned pane, bool shown) {
    const auto leaf = [&](const Tree& place) {
        Tree own = place;
        own.id = pane;
        own.shown = own.shown && shown;
        own.hides = own.hides && own.shown;
        return own;
    };
    for (std::size_t i = 0; i < m_from.rows.size(); ++i)
        if (const Tree* place = Find(m_from.rows[i].panes, id)) dock(i, id, leaf(*place));
    for (const Frame& frame : m_from.frames)
        if (const Tree* place = Find(frame.panes, id)) addFrame(frame, id, leaf(*place));
}

/// Makes a tab of a pane with those that share tabs with it in `from`. False when none of them is there.
bool Bringer::joinTabs(const Group& group, unsigned pane) {
    const std::set<unsigned> placed = PlacedPanes(m_into);
    const auto mate = std::ranges::find_if(
        group.tabs, [&](const Tab& tab) { return tab.pane != pane && placed.count(tab.pane) != 0; });
    if (mate == group.tabs.end()) return false;
    const Tab& own = *std::ranges::find(group.tabs, pane, &Tab::pane);
    Group* target = m_into.groupOf(mate->pane);
    if (target == nullptr) {
        unsigned id = kFirstGroup;
        for (const Group& each : m_into.groups) id = std::max(id, each.id + 1);
        m_into.groups.push_back({id, mate->pane, {{mate->pane, mate->shown}}});
        const auto rename = [&](Tree& tree) {
            if (Tree* place = Find(tree, mate->pane)) place->id = id;
        };
        for (Row& row : m_into.rows) rename(row.panes);
        for (Frame& frame : m_into.frames) rename(frame.panes);
        target = &m_into.groups.back();
    }
    // Behind the last of those that stand before it in `from`.
    auto at = target->tabs.begin();
    for (const Tab& tab : group.tabs) {
        if (tab.pane == pane) break;
        const auto before = std::ranges::find(target->tabs, tab.pane, &Tab::pane);
        if (before != target->tabs.end()) at = std::max(at, before + 1);
    }
    target->tabs.insert(at, own);
    if (group.active == pane) target->active = pane;
    return true;
}

void Bringer::mergeKnowledge(unsigned pane) {
    const Pane* known = m_from.findPane(pane);
    if (known != nullptr && m_into.findPane(pane) == nullptr) m_into.panes.push_back(*known);
}

void Bringer::bring(unsigned pane) {
    mergeKnowledge(pane);
    const Group* group = m_from.groupOf(pane);
    if (group == nullptr) return placeAt(pane, pane, true);
    if (!joinTabs(*group, pane))
        placeAt(group->id, pane, std::ranges::find(group->tabs, pane, &Tab::pane)->shown);
}

}  // namespace

void Bring(const Record& from, const std::set<unsigned>& panes, Record& into) {
    const std::set<unsigned> there = PlacedPanes(into);
    // In the order in which they stand, so that neighbours find each other.
    Bringer bringer(from, into);
    std::vector<unsigned> order;
    const auto add = [&](const Tree& tree) {
        for (const unsigned id : IdsIn(tree)) {
            if (const Group* group = from.findGroup(id))
                for (const Tab& tab : group->tabs) order.push_back(tab.pane);
            else
                order.push_back(id);
        }
    };
    for (const Row& row : from.rows) add(row.panes);
    for (const Frame& frame : from.frames) add(frame.panes);
    std::set<unsigned> done = there;
    for (const unsigned pane : order)
        if (panes.count(pane) != 0 && done.insert(pane).second) bringer.bring(pane);
    Tidy(into);
}

}  // namespace layouts
