#include <ktui/docking/layout_record.h>

#include <algorithm>
#include <map>

namespace layouts {

namespace {

void collect(const Tree& tree, std::vector<unsigned>& ids) {
    if (!tree.isSplit()) ids.push_back(tree.id);
    for (const Tree& half : tree.halves) collect(half, ids);
}

/// Hands each tree to `change`, and drops rows and frames for which it answers false.
template <class Change>
void changeTrees(Record& record, const Change& change) {
    std::erase_if(record.rows, [&](Row& row) { return !change(row.panes); });
    std::erase_if(record.frames, [&](Frame& frame) { return !change(frame.panes); });
}

/// Takes every place out for which `goes` is true. False when nothing is left.
template <class Goes>
bool prune(Tree& tree, const Goes& goes) {
    if (!tree.isSplit()) return !goes(tree.id);
    const bool first = prune(tree.halves[0], goes), second = prune(tree.halves[1], goes);
    if (first && second) return true;
    if (!first && !second) return false;
    Tree left = std::move(tree.halves[first ? 0 : 1]);
    tree = std::move(left);
    return true;
}

void rename(Tree& tree, const std::map<unsigned, unsigned>& names) {
    if (const auto found = names.find(tree.id); !tree.isSplit() && found != names.end())
        tree.id = found->second;
    for (Tree& half : tree.halves) rename(half, names);
}

/// A group that is left with one pane gives its places to it; the pane's own place among the docked ones
/// goes.
void dissolveSingles(Record& record) {
    std::map<unsigned, unsigned> names;
    std::set<unsigned> loners;
    for (const Group& group : record.groups)
        if (group.tabs.size() == 1) {
            names[group.id] = group.tabs.front().pane;
            loners.insert(group.tabs.front().pane);
        }
    if (names.empty()) return;
    changeTrees(record,
                [&](Tree& tree) { return prune(tree, [&](unsigned id) { return loners.count(id) != 0; }); });
    changeTrees(record, [&](Tree& tree) {
        rename(tree, names);
        return true;
    });
    std::erase_if(record.groups, [](const Group& group) { return group.tabs.size() == 1; });
}

}  // namespace

bool Tree::operator==(const Tree& other) const {
    if (isSplit() != other.isSplit()) return false;
    if (isSplit()) return upright == other.upright && share == other.share && halves == other.halves;
    return id == other.id && shown == other.shown && hides == other.hides && size == other.size;
}

bool Frame::operator==(const Frame& other) const {
    return CRect(place).EqualRect(&other.place) && panes == other.panes;
}

bool Pane::operator==(const Pane& other) const {
    return id == other.id && name == other.name && CRect(floating).EqualRect(&other.floating) &&
           palette == other.palette;
}

const Group* Record::findGroup(unsigned id) const {
    const auto found = std::ranges::find(groups, id, &Group::id);
    return found != groups.end() ? &*found : nullptr;
}
Group* Record::findGroup(unsigned id) {
    return const_cast<Group*>(static_cast<const Record*>(this)->findGroup(id));
}

const Group* Record::groupOf(unsigned pane) const {
    const auto found = std::ranges::find_if(groups, [&](const Group& group) {
        return std::ranges::find(group.tabs, pane, &Tab::pane) != group.tabs.end();
    });
    return found != groups.end() ? &*found : nullptr;
}
Group* Record::groupOf(unsigned pane) {
    return const_cast<Group*>(static_cast<const Record*>(this)->groupOf(pane));
}

const Pane* Record::findPane(unsigned id) const {
    const auto found = std::ranges::find(panes, id, &Pane::id);
    return found != panes.end() ? &*found : nullptr;
}

std::vector<unsigned> IdsIn(const Tree& tree) {
    std::vector<unsigned> ids;
    collect(tree, ids);
    return ids;
}

const Tree* Find(const Tree& tree, unsigned id) {
    if (!tree.isSplit()) return tree.id == id ? &tree : nullptr;
    const Tree* found = Find(tree.halves[0], id);
    return found != nullptr ? found : Find(tree.halves[1], id);
}
Tree* Find(Tree& tree, unsigned id) { return const_cast<Tree*>(Find(static_cast<const Tree&>(tree), id)); }

std::set<unsigned> PlacedPanes(const Record& record) {
    std::set<unsigned> placed;
    const auto add = [&](const Tree& tree) {
        for (const unsigned id : IdsIn(tree))
            if (id < kFirstGroup) placed.insert(id);
    };
    for (const Row& row : record.rows) add(row.panes);
    for (const Frame& frame : record.frames) add(frame.panes);
    for (const Group& group : record.groups)
        for (const Tab& tab : group.tabs) placed.insert(tab.pane);
    return placed;
}

void Remove(Record& record, const std::set<unsigned>& panes) {
    const auto goes = [&](unsigned id) { return panes.count(id) != 0; };
    for (Group& group : record.groups) {
        std::erase_if(group.tabs, [&](const Tab& tab) { return goes(tab.pane); });
        if (goes(group.active)) group.active = group.tabs.empty() ? 0 : group.tabs.front().pane;
    }
    std::erase_if(record.panes, [&](const Pane& pane) { return goes(pane.id); });
    changeTrees(record, [&](Tree& tree) {
        return prune(tree, [&](unsigned id) {
            const Group* group = record.findGroup(id);
            return goes(id) || (group != nullptr && group->tabs.empty());
        });
    });
    std::erase_if(record.groups, [](const Group& group) { return group.tabs.empty(); });
    dissolveSingles(record);
}

void Tidy(Record& record) {
    std::map<unsigned, unsigned> names;
    std::vector<Group> groups;
    const auto note = [&](const Tree& tree) {
        for (const unsigned id : IdsIn(tree)) {
            const Group* group = record.findGroup(id);
            if (group == nullptr || names.count(id) != 0) continue;
            names[id] = kFirstGroup + static_cast<unsigned>(groups.size());
            groups.push_back(*group);
            groups.back().id = names[id];
        }
    };
    for (const Row& row : record.rows) note(row.panes);
    for (const Frame& frame : record.frames) note(frame.panes);
    changeTrees(record, [&](Tree& tree) {
        rename(tree, names);
        return true;
    });
    record.groups = std::move(groups);
}

}  // namespace layouts
