// ControlBarDesk: the control bars of a frame that dock, where they stand or float, and the drag that is
// going on.
#pragma once

#include <array>
#include <iterator>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <afxres.h>
#include <kmfc/dock_bar.h>

#include "../docking/core/bar_rows.h"

class CControlBarInfo;
class CDockState;
class CMiniDockFrameWnd;

namespace kmfc {

/// In the order in which they take their room, and in which a bar without a wish docks.
constexpr struct {
    UINT id;
    DWORD alignment;
} kDockEdges[] = {{AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP},
                  {AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM},
                  {AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT},
                  {AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT}};

class ControlBarDesk {
public:
    explicit ControlBarDesk(CFrameWnd& frame) : m_frame(frame) {}

    /// CFrameWnd::EnableDocking.
    void allow(DWORD sides);
    void know(CControlBar& bar);
    /// Of a bar whose window goes.
    void forget(CControlBar& bar);
    CControlBar* bar(UINT id) const;

    /// CFrameWnd::DockControlBar and FloatControlBar.
    void dock(CControlBar& bar, UINT dockBarId, const RECT* rect);
    void float_bar(CControlBar& bar, CPoint corner, bool horizontal);
    /// Docks a floating bar where it was docked last, or floats a docked one where it floated last.
    void toggle(CControlBar& bar);
    /// Shows the frame of a floating bar, or hides it, as the bar says itself.
    void show_floating(const CControlBar& bar) const;
    void update_floating(WPARAM disable) const;

    // A drag by a bar, or by the caption of its frame. The mouse belongs to the dock bar at the top
    // meanwhile.
    void begin_drag(CControlBar& bar, CPoint screen);
    /// With `free` the bar floats wherever it is.
    void drag_to(CPoint screen, bool free);
    /// With `cancel` everything goes back to where it was.
    void end_drag(bool cancel);
    bool is_dragging() const { return m_drag != nullptr; }
    /// Escape ends a drag. Whether the message was that.
    bool takes(const MSG& message);

    void get_state(CDockState& state) const;
    void set_state(const CDockState& state);

private:
    static constexpr size_t kSides = std::size(kDockEdges);

    struct Place {
        size_t side = 0;
        docking::BarPlace place;
    };
    struct Recent {
        std::optional<Place> docked;     ///< of a bar that floats
        std::optional<CPoint> floating;  ///< where its frame's corner was, screen coordinates
    };
    struct Drag {
        CControlBar* bar = nullptr;
        CPoint from{0, 0};             ///< where the mouse was pressed, screen coordinates
        bool hasMoved = false;         ///< further than a click may
        int grip = 0;                  ///< where along the bar the mouse holds it, pixels
        CPoint frameGrip{0, 0};        ///< where in its floating frame
        std::optional<CRect> floated;  ///< its floating frame; nothing for one that was docked
        std::array<docking::BarRows, kSides> rowsBefore;
        Recent recentBefore;
    };

    bool make_dock_bars();
    docking::BarExtents extents_at(size_t side) const;
    bool may_dock(const CControlBar& bar, size_t side) const;
    std::optional<Place> place_of(const CControlBar& bar) const;
    void take_out(CControlBar& bar);
    void move_home(CControlBar& bar, CDockBar& home, DWORD alignment);
    void put(CControlBar& bar, const Place& where);
    bool drop_at(size_t side, CPoint screen);
    void put_back(const Drag& drag);
    void restore(CControlBar& bar, const CControlBarInfo& info);

    CFrameWnd& m_frame;
    DWORD m_sides = 0;
    std::array<std::unique_ptr<CDockBar>, kSides> m_dockBars;
    std::vector<CControlBar*> m_known;
    std::map<const CControlBar*, Recent> m_recent;
    std::unique_ptr<Drag> m_drag;
};

}  // namespace kmfc
