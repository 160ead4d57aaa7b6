// What the docking classes share: styles, ways to dock, hit codes.
#pragma once

#include <kmfc/control_bar.h>
#include <kmfc/hit_codes.h>

class CBasePane;
class CBaseTabbedPane;
class CDockablePane;
class CDockingManager;
class CMFCAutoHideBar;
class CMFCBaseTabCtrl;
class CMFCCaptionButton;
class CMFCMenuBar;
class CMultiPaneFrameWnd;
class CPane;
class CPaneDivider;
class CPaneFrameWnd;
class CTabbedPane;

// Control bar styles: what the user may do with a pane.
constexpr DWORD AFX_CBRS_FLOAT = 0x0001;         ///< it floats
constexpr DWORD AFX_CBRS_AUTOHIDE = 0x0002;      ///< it hides at the frame's edge
constexpr DWORD AFX_CBRS_RESIZE = 0x0004;        ///< it is sized
constexpr DWORD AFX_CBRS_CLOSE = 0x0008;         ///< it has a close button
constexpr DWORD AFX_CBRS_AUTO_ROLLUP = 0x0010;   ///< its floating frame rolls up
constexpr DWORD AFX_CBRS_REGULAR_TABS = 0x0020;  ///< panes dropped on its caption make tabs
constexpr DWORD AFX_CBRS_OUTLOOK_TABS = 0x0040;  ///< ... tabs in the manner of a button list
constexpr DWORD AFX_DEFAULT_PANE_STYLE = AFX_CBRS_FLOAT | AFX_CBRS_CLOSE;
constexpr DWORD AFX_DEFAULT_DOCKING_PANE_STYLE =
    AFX_CBRS_FLOAT | AFX_CBRS_CLOSE | AFX_CBRS_RESIZE | AFX_CBRS_AUTOHIDE;

/// What made a pane dock or float.
enum AFX_DOCK_METHOD { DM_UNKNOWN, DM_MOUSE, DM_DBL_CLICK, DM_SHOW, DM_RECT, DM_STANDARD };

/// What a dragged pane would do where it is.
enum AFX_CS_STATUS { CS_NOTHING, CS_DELAY_DOCK, CS_DOCK_IMMEDIATELY, CS_DELAY_DOCK_TO_TAB };

/// How a drag shows what it will do. DT_SMART shows guides and a shaded target; with DT_STANDARD and
/// DT_IMMEDIATE the pane docks where it is dropped near an edge, without guides.
enum AFX_DOCK_TYPE : UINT { DT_UNDEFINED = 0, DT_IMMEDIATE = 1, DT_STANDARD = 2, DT_SMART = 0x80 };

/// Where among the panes of a side a pane docks.
enum AFX_DOCK_FLAGS : DWORD { DT_DOCK_FIRST = 0x0001, DT_DOCK_LAST = 0x0002 };

/// Colours and manners of the guides of smart docking.
class KMFC_API CSmartDockingInfo : public CObject {
public:
    COLORREF m_clrToneSrc = static_cast<COLORREF>(-1);   ///< kept for programs that set it
    COLORREF m_clrToneDest = static_cast<COLORREF>(-1);  ///< the shade of the target; -1 for the system's
    COLORREF m_clrTransparent = RGB(255, 0, 255);
    BOOL m_bUseThemeColorInShading = FALSE;  ///< shade by m_clrToneDest
    BOOL m_bCenter = TRUE;                   ///< the middle guide, which makes tabs, is shown
};
