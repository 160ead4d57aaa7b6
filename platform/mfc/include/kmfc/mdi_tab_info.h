// CMDITabInfo: parameters of groups of tabbed documents.
#pragma once

#include <kmfc/tab_window.h>

/// What CMDIFrameWndEx::EnableMDITabbedGroups applies to the strip of tabs of each group.
struct KMFC_API CMDITabInfo {
    CMFCTabCtrl::Location m_tabLocation = CMFCTabCtrl::LOCATION_TOP;
    CMFCTabCtrl::Style m_style = CMFCTabCtrl::STYLE_3D_SCROLLED;
    BOOL m_bTabCloseButton = TRUE;         ///< at the end of the strip
    BOOL m_bActiveTabCloseButton = FALSE;  ///< on the active tab instead
    BOOL m_bTabIcons = FALSE;
    BOOL m_bAutoColor = FALSE;     ///< each tab has a colour of its own
    BOOL m_bDocumentMenu = FALSE;  ///< a menu of the documents takes the place of the scroll buttons
    BOOL m_bEnableTabSwap = TRUE;  ///< the user may change the order of tabs
    BOOL m_bFlatFrame = TRUE;
    BOOL m_bTabCustomTooltips = FALSE;  ///< the main frame is asked (AFX_WM_ON_GET_TAB_TOOLTIP)
    int m_nTabBorderSize;               ///< pixels; by default what the visual manager says

    CMDITabInfo();
    /// Writes or reads all members; reading what can't be one of them throws CArchiveException and changes
    /// nothing.
    void Serialize(CArchive& ar);
};

// What the user may do with the active tab of a group: CMDIFrameWndEx::GetMDITabsContextMenuAllowedItems.
constexpr DWORD AFX_MDI_CREATE_VERT_GROUP = 0x0001;  ///< begin a group beside the others
constexpr DWORD AFX_MDI_CREATE_HORZ_GROUP = 0x0002;  ///< begin a group below the others
constexpr DWORD AFX_MDI_CAN_MOVE_PREV = 0x0004;
constexpr DWORD AFX_MDI_CAN_MOVE_NEXT = 0x0008;
// The names that they have in the reference.
constexpr DWORD BCGP_MDI_CREATE_VERT_GROUP = AFX_MDI_CREATE_VERT_GROUP;
constexpr DWORD BCGP_MDI_CREATE_HORZ_GROUP = AFX_MDI_CREATE_HORZ_GROUP;
constexpr DWORD BCGP_MDI_CAN_MOVE_PREV = AFX_MDI_CAN_MOVE_PREV;
constexpr DWORD BCGP_MDI_CAN_MOVE_NEXT = AFX_MDI_CAN_MOVE_NEXT;
