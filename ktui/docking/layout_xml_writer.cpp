#include <ktui/docking/layout_xml.h>
#include <ktui/docking/layout_xml_names.h>

namespace layouts {

namespace {

using namespace xml;

long numberOf(unsigned id) { return static_cast<long>(id < kFirstGroup ? id : id - kFirstGroup + 1); }

void putPlace(Element& element, const CRect& place) {
    element.put(kLeft, static_cast<long>(place.left));
    element.put(kTop, static_cast<long>(place.top));
    element.put(kWidth, static_cast<long>(place.Width()));
    element.put(kHeight, static_cast<long>(place.Height()));
}

void addTree(Element& parent, const Tree& tree) {
    if (tree.isSplit()) {
        Element& split = parent.add(kSplit);
        split.put(kDirection, tree.upright ? kBeside : kBelow);
        split.put(kShare, static_cast<long>(tree.share));
        for (const Tree& half : tree.halves) addTree(split, half);
        return;
    }
    Element& leaf = parent.add(tree.id < kFirstGroup ? kPane : kTabGroup);
    leaf.put(kId, numberOf(tree.id));
    leaf.put(kShown, tree.shown ? 1L : 0L);
    if (!tree.hides) return;
    leaf.put(kHides, 1L);
    leaf.put(kWidth, static_cast<long>(tree.size.cx));
    leaf.put(kHeight, static_cast<long>(tree.size.cy));
}

void addGroup(Element& parent, const Group& group) {
    Element& element = parent.add(kTabGroup);
    element.put(kId, numberOf(group.id));
    element.put(kActive, numberOf(group.active));
    for (const Tab& tab : group.tabs) {
        Element& child = element.add(kTab);
        child.put(kPane, numberOf(tab.pane));
        child.put(kShown, tab.shown ? 1L : 0L);
    }
}

void addRecord(Element& layout, const Record& record) {
    Element& docked = layout.add(kDocked);
    for (const Row& row : record.rows) {
        Element& element = docked.add(kRow);
        element.put(kSide, kSideNames[static_cast<int>(row.side)]);
        element.put(kExtent, static_cast<long>(row.extent));
        addTree(element, row.panes);
    }
    Element& floating = layout.add(kFloating);
    for (const Frame& frame : record.frames) {
        Element& element = floating.add(kFrame);
        putPlace(element, frame.place);
        addTree(element, frame.panes);
    }
    Element& tabs = layout.add(kTabs);
    for (const Group& group : record.groups) addGroup(tabs, group);
    Element& panes = layout.add(kPanes);
    for (const Pane& pane : record.panes) {
        Element& state = panes.add(kState);
        state.put(kId, numberOf(pane.id));
        state.put(kName, pane.name);
        putPlace(state, pane.floating);
        if (pane.palette >= 0) state.put(kPalette, static_cast<long>(pane.palette));
    }
}

}  // namespace

Element ToElement(const std::vector<NamedRecord>& layouts) {
    Element root{kRoot, {}, {}};
    root.put(kVersion, kFileVersion);
    for (const NamedRecord& each : layouts) {
        Element& layout = root.add(kLayout);
        layout.put(kName, each.name);
        addRecord(layout, each.record);
    }
    return root;
}

}  // namespace layouts
