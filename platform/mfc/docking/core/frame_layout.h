// FrameLayout: rows of panes at the sides of a frame.
#pragma once

#include "split_tree.h"

namespace kmfc::docking {

/// A row stands at one side, over the whole length that rows further outside leave. It has the width (left
/// and right) or height that the user gave it, as far as there is room: when the frame shrinks, the middle
/// gives first, then the rows from the inside out; when it grows again they have their own extent again.
class KMFC_API FrameLayout {
public:
    struct Row {
        int id = 0;  ///< of its divider
        Side side = Side::left;
        int extent = 0;  ///< wanted, pixels
        SplitTree panes;
    };

    const std::vector<Row>& rows() const { return m_rows; }
    bool contains(PaneKey pane) const { return row_of(pane) != nullptr; }
    bool shows(PaneKey pane) const;
    /// The side at which the pane's row stands; left for a pane that isn't there.
    Side side_of(PaneKey pane) const;
    /// All panes, row by row from the outside in.
    std::vector<PaneKey> panes() const;

    /// Makes a row of a tree: inside all other rows, or with `outer` outside them. Places that its panes had
    /// go. False for an empty tree.
    bool dock(SplitTree panes, Side side, int extent, bool outer);
    /// Adds a row as it is, further inside than all others.
    void add_row(Row row);
    /// Puts the panes of a tree at a side of a pane in the frame. See SplitTree::graft.
    bool dock_beside(SplitTree panes, PaneKey target, Side side, int extent, int targetExtent);
    bool remove(PaneKey pane);
    bool replace(PaneKey pane, PaneKey by);
    bool set_shown(PaneKey pane, bool shown);

    /// Where everything stands in `area`.
    Arrangement arrange(const CRect& area, const Rules& rules) const;
    /// Moves a divider as far as least sizes allow; `now` is the present arrangement. The pixels it moved.
    int move_divider(int id, int delta, const Arrangement& now, const Rules& rules);

private:
    const Row* row_of(PaneKey pane) const;
    Row* row_of(PaneKey pane);
    void drop_empty_rows();
    int move_row(Row& row, int delta, const Arrangement& now, const Rules& rules);

    std::vector<Row> m_rows;  ///< from the outside in
};

}  // namespace kmfc::docking
