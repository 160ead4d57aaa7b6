// BarRows: the rows of bars at one side of a frame, their order and offsets, and what a drop means.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "arrangement.h"

namespace kmfc::docking {

/// What a bar needs, in pixels, as it would stand at this side.
struct BarExtent {
    int length = 0;     ///< along the row
    int thickness = 0;  ///< across it
    int least = 0;      ///< the least length, with its gripper
};
/// A point of the strip at a side of a frame, along its rows (x) and across them from the outside (y).
KMFC_API CPoint along_and_across(Side side, CSize strip, CPoint point);
/// The way back, for a rectangle.
KMFC_API CRect in_strip(Side side, CSize strip, const CRect& rect);

using BarExtents = std::function<BarExtent(PaneKey)>;

/// Where a bar stands in its row, counted from the outside of the frame.
struct BarPlace {
    int row = 0;
    bool isOwnRow = true;  ///< it begins a new row there, before the one that has the number now
    int offset = 0;        ///< wanted, pixels from the beginning of the row
};

struct PlacedBar {
    PaneKey bar = 0;
    int row = 0;             ///< among all rows
    CRect rect{0, 0, 0, 0};  ///< along the row from left to right, across it from the outside (top) in
};

/// Rows stand from the outside of the frame in, bars in a row from its beginning (left or top). A bar keeps
/// the offset that it wants: it stands there, or behind its neighbour as long as that is in the way, or
/// further ahead while the row has become too short. Where the row is too short for all, the last ones
/// lose length, down to their least. A bar that isn't shown keeps its place and takes no room.
class KMFC_API BarRows {
public:
    struct Bar {
        PaneKey bar = 0;
        int offset = 0;
        bool shown = true;
    };
    using Row = std::vector<Bar>;

    const std::vector<Row>& rows() const { return m_rows; }
    bool contains(PaneKey bar) const { return find(bar) != nullptr; }
    bool shows(PaneKey bar) const;
    /// Where a bar stands; its own row when it is alone in it. Nothing for a bar that isn't here.
    std::optional<BarPlace> place_of(PaneKey bar) const;

    /// Puts a bar at a place, out of the one that it had: in the row in front of the first bar whose middle
    /// lies behind its offset. A row that isn't there is begun behind the last.
    void dock(PaneKey bar, BarPlace place, int length, const BarExtents& extents);
    /// Puts a bar directly before another. False when that isn't here, or is the same.
    bool dock_before(PaneKey bar, PaneKey target);
    /// Adds a bar behind the others of the last row, or with `beginsRow` in a new one.
    void append(const Bar& bar, bool beginsRow);
    bool remove(PaneKey bar);
    bool set_shown(PaneKey bar, bool shown);

    /// How deep all rows are, in pixels.
    int thickness(const BarExtents& extents) const;
    /// Where the shown bars stand in rows of that length. Each is as thick as its row.
    std::vector<PlacedBar> arrange(int length, const BarExtents& extents) const;
    /// The row that a bar is dropped in at `across` pixels from the outside: one that it is over, or a new
    /// one within `reach` pixels outside or inside of all; nothing further away. With a reach, the edge
    /// between two rows (a sixth of either) stands for a new one between them. A bar that is alone in the row
    /// beside a new one stays in it.
    std::optional<BarPlace> row_at(int across, PaneKey bar, int reach, const BarExtents& extents) const;

private:
    const Bar* find(PaneKey bar) const;
    int row_of(PaneKey bar) const;
    void drop_empty_rows();
    bool is_alone(PaneKey bar, int row) const;
    BarPlace between(int outer, int inner, PaneKey bar) const;

    std::vector<Row> m_rows;
};

}  // namespace kmfc::docking
