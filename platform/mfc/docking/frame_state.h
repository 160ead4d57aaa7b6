// What a docking manager keeps: the layout, where it comes to, the dividers, and the drag that is going on.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <kmfc/dockable_pane.h>
#include <kmfc/pane_divider.h>
#include <kmfc/pane_frame_wnd.h>

#include "core/drop_target.h"
#include "core/frame_layout.h"

namespace kmfc::docking {

inline PaneKey key_of(const CBasePane* pane) { return reinterpret_cast<PaneKey>(pane); }
inline CDockablePane* pane_of(PaneKey key) {
    return static_cast<CDockablePane*>(reinterpret_cast<CBasePane*>(key));
}

/// By the CBRS_ALIGN_ bit; the left one for none.
Side side_of(DWORD alignment);
DWORD alignment_of(Side side);
/// Divider widths, and the least sizes that panes ask for.
Rules rules_for_panes();
/// The manager of a frame window, or null.
CDockingManager* manager_of(CWnd* frame);
/// Makes the dividers of an arrangement those windows, new ones as children of `parent`; others go.
using Dividers = std::map<int, std::unique_ptr<CPaneDivider>>;

class GuideWindow;
class ShadeWindow;

/// A drag of a floating frame.
struct Drag {
    CPaneFrameWnd* frame = nullptr;
    CRect from{0, 0, 0, 0};         ///< where the frame stood
    CDockablePane* torn = nullptr;  ///< the docked pane that the drag tore off, or null
    Drop drop;                      ///< what a drop would do now
    std::unique_ptr<GuideWindow> guides;
    std::unique_ptr<ShadeWindow> shade;
    Drag();
    ~Drag();
};

/// What a print preview has taken away that a layout doesn't bring back.
struct Preview {
    /// Floating frames that are to be seen when it is over, from the back to the front.
    std::vector<CPaneFrameWnd*> frames;
    CDockablePane* slidOut = nullptr;
};

struct FrameState {
    FrameState();
    ~FrameState();

    FrameLayout layout;
    Arrangement now;                          ///< client coordinates of the frame
    CRect outer{0, 0, 0, 0};                  ///< what bars leave to panes
    std::map<const CBasePane*, CRect> fixed;  ///< where fixed panes stand
    Dividers dividers;
    std::unique_ptr<Drag> drag;
    std::optional<Preview> preview;    ///< while one stands in the frame
    std::unique_ptr<DockedBars> bars;  ///< from the first question for them on
    CMFCMenuBar* menuBar = nullptr;    ///< what shows the frame's menu, or null
    HWND active = nullptr;             ///< the pane that had the focus when captions were drawn last
};

}  // namespace kmfc::docking
