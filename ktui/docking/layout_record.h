// What a named layout of panes holds, as plain values: rows at the sides of a frame, floating frames, tabs.
//
// Without any window. Panes are named by their control ids, tabbed panes by ids of groups. A pane or group
// that floats or is hidden may have its place among the docked ones as well, where it isn't shown.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <afx.h>

#include <set>
#include <vector>

namespace layouts {

enum class Side : int { left, top, right, bottom };

constexpr int kSides = 4;
constexpr int kWhole = 1'000'000;          ///< a share of all the room
constexpr int kMostPixels = 100'000;       ///< no extent is larger, no corner further from the origin
constexpr unsigned kLastPane = 0xFFFE;     ///< ids of panes begin at 1
constexpr unsigned kFirstGroup = 0x10000;  ///< ids of groups
constexpr unsigned kLastGroup = 0x7FFFFFFF;
constexpr int kDeepest = 64;            ///< splits within splits
constexpr std::size_t kMostOf = 1'000;  ///< rows, frames, groups and tabs of a group
constexpr int kMostPalettes = 1'000;

/// A place within a row or frame: a pane or group, or two places with a divider between them.
struct Tree {
    std::vector<Tree> halves;  ///< two, or none for a pane or group
    bool upright = true;       ///< the first half is left of the second, not above it
    int share = kWhole / 2;    ///< of the first half, millionths of both
    unsigned id = 0;
    bool shown = true;
    bool hides = false;   ///< at the edge of its side; a docked one that is shown
    CSize size = {0, 0};  ///< of one that hides: as large as it was docked, pixels

    bool isSplit() const { return !halves.empty(); }
    bool operator==(const Tree& other) const;
};

/// From the outside in.
struct Row {
    Side side = Side::left;
    int extent = 0;  ///< width at the left and right, height at the top and bottom, pixels
    Tree panes;
    bool operator==(const Row& other) const = default;
};

/// From the lowest to the topmost.
struct Frame {
    CRect place = {0, 0, 0, 0};  ///< screen coordinates
    Tree panes;
    bool operator==(const Frame& other) const;
};

struct Tab {
    unsigned pane = 0;
    bool shown = true;
    bool operator==(const Tab& other) const = default;
};

struct Group {
    unsigned id = 0;
    unsigned active = 0;  ///< the pane whose tab is active
    std::vector<Tab> tabs;
    bool operator==(const Group& other) const = default;
};

/// What is known of a pane wherever it stands.
struct Pane {
    unsigned id = 0;
    CString name;                   ///< for readers of a file; no rule goes by it
    CRect floating = {0, 0, 0, 0};  ///< where it floated last, screen coordinates
    int palette = -1;               ///< the active palette of a set; -1 for none
    bool operator==(const Pane& other) const;
};

struct Record {
    std::vector<Row> rows;
    std::vector<Frame> frames;
    std::vector<Group> groups;
    std::vector<Pane> panes;  ///< also those that stand nowhere
    bool operator==(const Record& other) const = default;

    const Group* findGroup(unsigned id) const;
    Group* findGroup(unsigned id);
    /// The group in which a pane has a tab, or null.
    const Group* groupOf(unsigned pane) const;
    Group* groupOf(unsigned pane);
    const Pane* findPane(unsigned id) const;
};

/// The ids of panes and groups in a tree, from left to right and from top to bottom.
std::vector<unsigned> IdsIn(const Tree& tree);
/// The place of an id, or null.
const Tree* Find(const Tree& tree, unsigned id);
Tree* Find(Tree& tree, unsigned id);
/// Every pane that has a place, in tabs too.
std::set<unsigned> PlacedPanes(const Record& record);

/// Takes panes out of a record: out of rows, frames and tabs. A group of which one pane is left becomes that
/// pane; rows, frames and groups without panes go. What is known of the panes goes too.
void Remove(Record& record, const std::set<unsigned>& panes);
/// Takes out what stands in no row and no frame, and gives groups ids in the order in which they stand.
void Tidy(Record& record);

}  // namespace layouts
