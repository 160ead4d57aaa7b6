#include "layout_record.h"

#include <algorithm>
#include <set>

#include "stored_numbers.h"

namespace kmfc::docking {

namespace {

using Node = SplitTree::Node;

constexpr std::int32_t kVersion = 0x444B0002;
constexpr int kMostRows = 1000, kMostFrames = 1000, kDeepest = 64;
constexpr int kMostGroups = 1000, kMostTabs = 1000, kMostHidden = 1000;
constexpr int kMostPixels = 100'000;
enum Kind : std::int32_t { kNothing = 0, kLeaf = 1, kDivider = 2 };

void write(std::vector<std::int32_t>& to, const Node* node) {
    if (node == nullptr) {
        to.push_back(kNothing);
    } else if (node->first == nullptr) {
        to.insert(to.end(), {kLeaf, static_cast<std::int32_t>(node->pane), node->shown ? 1 : 0});
    } else {
        to.insert(to.end(), {kDivider, node->upright ? 1 : 0, node->share});
        write(to, node->first.get());
        write(to, node->second.get());
    }
}

/// Reads trees as well.
class Reader : public NumberReader {
public:
    using NumberReader::NumberReader;

    std::unique_ptr<Node> tree(std::set<PaneKey>& met, int depth) {
        const std::int32_t kind = next(kLeaf, kDivider);
        if (depth > kDeepest) fail();
        if (!good()) return nullptr;
        auto node = std::make_unique<Node>();
        if (kind == kLeaf) {
            node->pane = static_cast<PaneKey>(next(1, INT32_MAX));
            node->shown = next(0, 1) != 0;
            if (!met.insert(node->pane).second) fail();
            return node;
        }
        node->id = next_divider_id();
        node->upright = next(0, 1) != 0;
        node->share = next(0, kWhole);
        for (auto* half : {&node->first, &node->second}) {
            *half = tree(met, depth + 1);
            if (*half != nullptr) (*half)->parent = node.get();
        }
        return good() ? std::move(node) : nullptr;
    }
};

void read_rows(Reader& reader, FrameLayout& docked) {
    std::set<PaneKey> met;
    for (std::int32_t rows = reader.next(0, kMostRows); rows > 0 && reader.good(); --rows) {
        FrameLayout::Row row;
        row.id = next_divider_id();
        row.side = static_cast<Side>(reader.next(0, kSides - 1));
        row.extent = reader.next(0, kMostPixels);
        row.panes = SplitTree(reader.tree(met, 0));
        docked.add_row(std::move(row));
    }
}

void read_frames(Reader& reader, LayoutRecord& record) {
    std::set<PaneKey> met;
    for (std::int32_t frames = reader.next(0, kMostFrames); frames > 0 && reader.good(); --frames) {
        FloatingRecord frame;
        frame.rect.left = reader.next(-kMostPixels, kMostPixels);
        frame.rect.top = reader.next(-kMostPixels, kMostPixels);
        frame.rect.right = reader.next(frame.rect.left, 2 * kMostPixels);
        frame.rect.bottom = reader.next(frame.rect.top, 2 * kMostPixels);
        frame.panes = SplitTree(reader.tree(met, 0));
        for (const PaneKey pane : frame.panes.panes())
            if (record.docked.shows(pane)) reader.fail();
        record.floating.push_back(std::move(frame));
    }
}

/// Every pane that a tree shows, docked or floating.
std::set<PaneKey> standing(const LayoutRecord& record) {
    std::set<PaneKey> met;
    for (const PaneKey pane : record.docked.panes())
        if (pane >= kFirstGroup || record.docked.shows(pane)) met.insert(pane);
    for (const FloatingRecord& frame : record.floating)
        for (const PaneKey pane : frame.panes.panes()) met.insert(pane);
    return met;
}

void read_groups(Reader& reader, LayoutRecord& record) {
    std::set<PaneKey> met = standing(record), ids;
    for (std::int32_t groups = reader.next(0, kMostGroups); groups > 0 && reader.good(); --groups) {
        GroupRecord group;
        group.id = static_cast<PaneKey>(reader.next(kFirstGroup, INT32_MAX));
        if (met.count(group.id) == 0 || !ids.insert(group.id).second) reader.fail();
        const std::int32_t tabs = reader.next(1, kMostTabs);
        group.active = reader.next(0, std::max(0, tabs - 1));
        for (std::int32_t i = 0; i < tabs && reader.good(); ++i) {
            TabRecord tab;
            tab.pane = static_cast<PaneKey>(reader.next(1, kFirstGroup - 1));
            tab.shown = reader.next(0, 1) != 0;
            if (!met.insert(tab.pane).second) reader.fail();
            group.tabs.push_back(tab);
        }
        record.groups.push_back(std::move(group));
    }
    for (const PaneKey pane : standing(record))
        if (pane >= kFirstGroup && ids.count(pane) == 0) reader.fail();
}

void read_hidden(Reader& reader, LayoutRecord& record) {
    std::set<PaneKey> met;
    for (std::int32_t left = reader.next(0, kMostHidden); left > 0 && reader.good(); --left) {
        HiddenRecord hidden;
        hidden.pane = static_cast<PaneKey>(reader.next(1, INT32_MAX));
        hidden.side = static_cast<Side>(reader.next(0, kSides - 1));
        hidden.size.cx = reader.next(0, kMostPixels);
        hidden.size.cy = reader.next(0, kMostPixels);
        if (!record.docked.contains(hidden.pane) || record.docked.shows(hidden.pane) ||
            !met.insert(hidden.pane).second)
            reader.fail();
        for (const FloatingRecord& frame : record.floating)
            if (frame.panes.contains(hidden.pane)) reader.fail();
        record.hidden.push_back(hidden);
    }
}

void write_hidden(std::vector<std::int32_t>& to, const std::vector<HiddenRecord>& all) {
    to.push_back(static_cast<std::int32_t>(all.size()));
    for (const HiddenRecord& hidden : all)
        to.insert(to.end(),
                  {static_cast<std::int32_t>(hidden.pane), static_cast<std::int32_t>(hidden.side),
                   static_cast<std::int32_t>(hidden.size.cx), static_cast<std::int32_t>(hidden.size.cy)});
}

void write_groups(std::vector<std::int32_t>& to, const std::vector<GroupRecord>& groups) {
    to.push_back(static_cast<std::int32_t>(groups.size()));
    for (const GroupRecord& group : groups) {
        to.insert(to.end(), {static_cast<std::int32_t>(group.id),
                             static_cast<std::int32_t>(group.tabs.size()), group.active});
        for (const TabRecord& tab : group.tabs)
            to.insert(to.end(), {static_cast<std::int32_t>(tab.pane), tab.shown ? 1 : 0});
    }
}

}  // namespace

const GroupRecord* LayoutRecord::find_group(PaneKey id) const {
    const auto found =
        std::find_if(groups.begin(), groups.end(), [&](const GroupRecord& g) { return g.id == id; });
    return found != groups.end() ? &*found : nullptr;
}

std::vector<std::int32_t> encode(const LayoutRecord& record) {
    std::vector<std::int32_t> numbers{kVersion, static_cast<std::int32_t>(record.docked.rows().size())};
    for (const FrameLayout::Row& row : record.docked.rows()) {
        numbers.insert(numbers.end(), {static_cast<std::int32_t>(row.side), row.extent});
        write(numbers, row.panes.root());
    }
    numbers.push_back(static_cast<std::int32_t>(record.floating.size()));
    for (const FloatingRecord& frame : record.floating) {
        for (const LONG edge : {frame.rect.left, frame.rect.top, frame.rect.right, frame.rect.bottom})
            numbers.push_back(static_cast<std::int32_t>(edge));
        write(numbers, frame.panes.root());
    }
    write_groups(numbers, record.groups);
    write_hidden(numbers, record.hidden);
    numbers.push_back(sum_of(numbers));
    return numbers;
}

bool decode(const std::vector<std::int32_t>& numbers, LayoutRecord& record) {
    if (numbers.size() < 2) return false;
    std::vector<std::int32_t> body(numbers.begin(), numbers.end() - 1);
    if (sum_of(body) != numbers.back()) return false;
    Reader reader(body);
    reader.next(kVersion, kVersion);
    LayoutRecord read;
    read_rows(reader, read.docked);
    read_frames(reader, read);
    read_groups(reader, read);
    read_hidden(reader, read);
    if (!reader.done()) return false;
    record = std::move(read);
    return true;
}

}  // namespace kmfc::docking
