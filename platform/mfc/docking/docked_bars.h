// DockedBars: the toolbars of a frame, where they are docked or float, and the drag that is going on.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <kmfc/dock_site.h>
#include <kmfc/tool_bar_ex.h>

#include "core/bar_record.h"
#include "core/bar_rows.h"

class CDockingManager;

namespace kmfc::docking {

/// One belongs to each docking manager. Its four sites come with the first bar.
class DockedBars {
public:
    explicit DockedBars(CDockingManager& manager) : m_manager(manager) {}

    /// Docks a bar: in a new row inside of all, or where `rect` (screen coordinates) says. False where the
    /// bar or the frame doesn't allow it.
    bool dock(CMFCToolBar& bar, Side side, const RECT* rect);
    bool dock_left_of(CMFCToolBar& bar, CMFCToolBar& target);
    bool dock_at_recent(CMFCToolBar& bar);
    /// Floats a bar with its frame's corner at a point of the screen, wrapped in a frame of that width; 0 for
    /// one row.
    bool float_bar(CMFCToolBar& bar, CPoint corner, int width, bool show);
    /// Shows or hides a bar, as it says itself.
    void show(CMFCToolBar& bar, bool delay);
    void remove(const CBasePane* pane);

    /// The site of a side; null before there is one.
    CDockSite* site(Side side) const { return m_sites[static_cast<size_t>(side)].get(); }
    /// Whether a site takes its room before the frame's classic bars: the one above, where there is a menu
    /// bar.
    bool is_outermost(const CDockSite& site) const;
    /// How large that one is; nothing where there is none.
    CSize outermost_size() const;
    /// The frame has got a menu bar, or none any more.
    void menu_bar_changed();
    /// In the order in which they take their room from the frame.
    std::vector<CDockSite*> sites() const;
    /// Moves the bars to where they belong in their sites.
    void arrange();
    /// Asks floating bars for the states of their buttons; docked ones are asked as windows of the frame.
    void update_floating() const;
    void frame_goes();

    // A drag by the gripper, or by the caption of a bar's frame. The mouse belongs to a site until it ends.
    void begin_drag(CMFCToolBar& bar, CPoint screen);
    /// With `free` the bar floats wherever it is.
    void drag_to(CPoint screen, bool free);
    /// With `cancel` everything goes back to where it was.
    void end_drag(bool cancel);
    bool is_dragging() const { return m_drag != nullptr; }

    std::vector<BarRecord> stored() const;
    void restore(const std::vector<BarRecord>& records);

private:
    struct RecentPlace {
        Side side = Side::top;
        BarPlace place;
    };
    struct Drag {
        CMFCToolBar* bar = nullptr;
        int grip = 0;                        ///< where along the bar the mouse holds it, pixels
        CPoint frameGrip{0, 0};              ///< where in its floating frame
        std::optional<CRect> from;           ///< its floating frame; nothing for one that was docked
        std::array<BarRows, kSides> before;  ///< the rows when the drag began
    };

    bool make_sites();
    bool may_dock(const CMFCToolBar& bar, Side side) const;
    std::optional<Side> side_of_bar(const CMFCToolBar& bar) const;
    std::vector<CMFCToolBar*> bars() const;
    void put(CMFCToolBar& bar, Side side, const BarPlace& place);
    void move_home(CMFCToolBar& bar, Side side);
    void note_place(CMFCToolBar& bar);
    bool drop_at(Side side, CPoint screen);
    void put_back(const Drag& drag);
    BarExtents extents_at(Side side) const;

    CDockingManager& m_manager;
    std::array<std::unique_ptr<CDockSite>, kSides> m_sites;
    std::map<const CBasePane*, RecentPlace> m_recent;  ///< of bars that float
    std::unique_ptr<Drag> m_drag;
};

}  // namespace kmfc::docking
