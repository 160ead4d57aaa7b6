// SplitTree: panes beside and below each other.
#pragma once

#include <memory>

#include "arrangement.h"

namespace kmfc::docking {

/// A tree whose leaves are panes and whose inner nodes are dividers. A pane that isn't shown keeps its place
/// and takes no room. Copies are deep and keep the numbers of their dividers.
class KMFC_API SplitTree {
public:
    struct Node {
        int id = 0;  ///< of the divider; 0 for a pane
        Node* parent = nullptr;
        std::unique_ptr<Node> first, second;  ///< both, or none for a pane
        bool upright = true;                  ///< first is left of second; otherwise above it
        int share = kWhole / 2;               ///< of first, millionths of the room of both
        PaneKey pane = 0;
        bool shown = true;
    };

    SplitTree() = default;
    explicit SplitTree(PaneKey pane);
    explicit SplitTree(std::unique_ptr<Node> root);
    SplitTree(const SplitTree& other);
    SplitTree(SplitTree&&) noexcept = default;
    SplitTree& operator=(SplitTree other) noexcept;
    ~SplitTree() = default;

    bool empty() const { return m_root == nullptr; }
    const Node* root() const { return m_root.get(); }
    bool contains(PaneKey pane) const { return find(pane) != nullptr; }
    bool shows(PaneKey pane) const;
    bool shows_any() const;
    /// All panes, from left to right and from top to bottom.
    std::vector<PaneKey> panes() const;

    /// Puts a pane at a side of `target`, or of all panes when that is 0. It gets `extent` of the
    /// `targetExtent` pixels that the target has across, at most half; half where one of them isn't known.
    /// False, and nothing changed, for a pane that is there or a target that is not.
    bool insert(PaneKey pane, PaneKey target, Side side, int extent, int targetExtent);
    /// The same with all panes of another tree, which keep their order.
    bool graft(SplitTree other, PaneKey target, Side side, int extent, int targetExtent);
    /// Takes a pane out; its neighbour takes its room. False when it isn't there.
    bool remove(PaneKey pane);
    /// Puts another pane in a pane's place. False when the one isn't there or the other is.
    bool replace(PaneKey pane, PaneKey by);
    bool set_shown(PaneKey pane, bool shown);

    /// The least size in which every shown pane has its least size.
    CSize least(const Rules& rules) const;
    /// Adds where the shown panes and the dividers stand in `area`.
    void arrange(const CRect& area, const Rules& rules, Arrangement& to) const;
    /// Moves a divider by pixels as far as least sizes allow; `placed` says where it stands. The pixels that
    /// it moved.
    int move_divider(const PlacedDivider& placed, int delta, const Rules& rules);

private:
    Node* find(PaneKey pane) const;
    Node* find_divider(int id) const;
    bool join(std::unique_ptr<Node> added, Node* target, Side side, int extent, int targetExtent);
    std::unique_ptr<Node>& owner_of(Node& node);

    std::unique_ptr<Node> m_root;
};

}  // namespace kmfc::docking
