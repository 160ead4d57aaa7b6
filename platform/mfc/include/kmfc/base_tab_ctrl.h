// CMFCBaseTabCtrl: windows of which one shows at a time, chosen by tabs.
#pragma once

#include <vector>

#include <kmfc/array.h>
#include <kmfc/arrays.h>
#include <kmfc/docking_types.h>
#include <kmfc/image_list.h>
#include <kmfc/registered_messages.h>

class CEdit;
class CToolTipCtrl;

/// One tab.
class KMFC_API CMFCTabInfo : public CObject {
public:
    CString m_strText;
    CWnd* m_pWnd = nullptr;  ///< not owned, but see CMFCBaseTabCtrl::m_bAutoDestroyWindow
    UINT m_uiIcon = static_cast<UINT>(-1);
    HICON m_hIcon = nullptr;
    int m_iTabID = 0;
    BOOL m_bVisible = TRUE;
    BOOL m_bIsDetachable = TRUE;
    BOOL m_bIconOnly = FALSE;
    COLORREF m_clrBack = static_cast<COLORREF>(-1);  ///< -1 for the look's own
    COLORREF m_clrText = static_cast<COLORREF>(-1);
    CRect m_rect{0, 0, 0, 0};  ///< client coordinates; empty while the tab can't be seen
    int m_nFullWidth = 0;      ///< pixels that icon and label ask for
};

/// What AFX_WM_ON_GET_TAB_TOOLTIP asks to be filled.
struct CMFCTabToolTipInfo {
    CMFCBaseTabCtrl* m_pTabWnd = nullptr;
    int m_nTabIndex = -1;
    CString m_strText;
};

namespace kmfc {

/// Who answers for the windows of a tab control: the pane around it. Without one a tab can't be torn off, and
/// its close button sends WM_CLOSE to the window.
class TabOwner {
public:
    virtual ~TabOwner() = default;
    virtual BOOL float_tab(int index, AFX_DOCK_METHOD method, BOOL hide) = 0;
    virtual void close_tab(int index) = 0;
};

}  // namespace kmfc

/// Keeps the tabs; a derived class lays them out and paints them. Tabs count from 0. Functions that are given
/// no such tab answer FALSE or -1 and do nothing.
///
/// The parent hears AFX_WM_CHANGING_ACTIVE_TAB before another tab becomes active and may prevent it by
/// answering TRUE, and AFX_WM_CHANGE_ACTIVE_TAB afterwards, when the other window shows. The frame hears both
/// too, after the parent.
class KMFC_API CMFCBaseTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CMFCBaseTabCtrl)
public:
    enum Location { LOCATION_BOTTOM = 0, LOCATION_TOP = 1 };

    CMFCBaseTabCtrl();
    ~CMFCBaseTabCtrl() override;

    BOOL m_bActivateTabOnRightClick = FALSE;  ///< a right click on a tab activates it too
    BOOL m_bAutoDestroyWindow = FALSE;        ///< windows are destroyed when their tabs are removed

    // Tabs. A window becomes a child of this control, and shows when its tab is active. The first tab becomes
    // active by being added.
    virtual void AddTab(CWnd* pTabWnd, LPCTSTR lpszTabLabel, UINT uiImageId = static_cast<UINT>(-1),
                        BOOL bDetachable = TRUE);
    virtual void AddTab(CWnd* pTabWnd, UINT uiResTabLabel, UINT uiImageId = static_cast<UINT>(-1),
                        BOOL bDetachable = TRUE);
    /// `nInsertAt` -1 adds at the end. A window that has a tab already gets no other.
    virtual void InsertTab(CWnd* pNewWnd, LPCTSTR lpszTabLabel, int nInsertAt,
                           UINT uiImageId = static_cast<UINT>(-1), BOOL bDetachable = TRUE);
    virtual void InsertTab(CWnd* pNewWnd, UINT uiResTabLabel, int nInsertAt,
                           UINT uiImageId = static_cast<UINT>(-1), BOOL bDetachable = TRUE);
    /// The window is hidden, or destroyed with m_bAutoDestroyWindow. When the tab was active, the one that
    /// takes its place becomes so, or the one that was before it.
    virtual BOOL RemoveTab(int iTab, BOOL bRecalcLayout = TRUE);
    virtual void RemoveAllTabs();
    virtual int GetTabsNum() const;
    virtual int GetVisibleTabsNum() const;
    /// Shows or hides a tab with its window. Hiding the active one activates another.
    virtual BOOL ShowTab(int iTab, BOOL bShow = TRUE, BOOL bRecalcLayout = TRUE, BOOL bActivate = TRUE);
    virtual BOOL IsTabVisible(int iTab) const;
    virtual void SwapTabs(int nFisrtTabID, int nSecondTabID);
    /// Takes the tab out and puts it in at `nDest`; -1 for the end. The same window stays active.
    virtual void MoveTab(int nSource, int nDest = -1);
    /// `arOrder` names every tab once, by its present place.
    BOOL SetTabsOrder(const CArray<int, int>& arOrder);
    virtual void OnChangeTabs() {}

    // The active tab.
    virtual BOOL SetActiveTab(int iTab) = 0;
    virtual int GetActiveTab() const { return m_iActiveTab; }
    virtual CWnd* GetActiveWnd() const;
    /// After the active tab has gone, the one that was active before it becomes active.
    void EnableActivateLastActive(BOOL bLastActive = TRUE) { m_bActivateLastActive = bLastActive; }
    virtual void FireChangeActiveTab(int nNewTab);
    /// TRUE when someone prevents the change.
    virtual BOOL FireChangingActiveTab(int nNewTab);

    // Windows.
    virtual CWnd* GetTabWnd(int iTab) const;
    virtual CWnd* GetTabWndNoWrapper(int iTab) const { return GetTabWnd(iTab); }
    virtual CWnd* GetFirstVisibleTab(int& iTabNum);
    virtual CWnd* GetFirstVisibleTab(int iStartFrom, int& iTabNum);
    virtual CWnd* GetLastVisibleTab(int& iTabNum);
    virtual int GetFirstVisibleTabNum() const { return 0; }
    virtual int GetTabFromHwnd(HWND hwnd) const;
    virtual int GetTabByID(int id) const;
    /// Ids are given when tabs are added, from 0, and never again.
    int GetTabID(int iTab) const;
    /// The largest client rectangle that a tab's window wants: what the windows have now.
    virtual CSize GetMaxWindowSize() const;
    void AutoDestroyWindow(BOOL bAutoDestroy = TRUE) { m_bAutoDestroyWindow = bAutoDestroy; }
    BOOL IsAutoDestroyWindow() const { return m_bAutoDestroyWindow; }
    virtual void CleanUp();

    // Labels and icons.
    virtual BOOL GetTabLabel(int iTab, CString& strLabel) const;
    virtual BOOL SetTabLabel(int iTab, const CString& strLabel);
    virtual BOOL SetImageList(UINT uiID, int cx = 15, COLORREF clrTransp = RGB(255, 0, 255));
    /// The list stays the caller's.
    virtual BOOL SetImageList(HIMAGELIST hImageList);
    virtual const CImageList* GetImageList() const;
    virtual CSize GetImageSize() const { return m_sizeImage; }
    virtual void ClearImageList();
    void ResetImageList();
    virtual UINT GetTabIcon(int iTab) const;
    virtual BOOL SetTabIcon(int iTab, UINT uiIcon);
    virtual HICON GetTabHicon(int iTab) const;
    /// The icon stays the caller's.
    virtual BOOL SetTabHicon(int iTab, HICON hIcon);
    virtual BOOL SetTabIconOnly(int iTab, BOOL bIconOnly = TRUE, BOOL bShowTooltipAlways = FALSE);
    virtual BOOL IsTabIconOnly(int iTab) const;
    virtual BOOL HasImage(int iTab) const;
    void SetDrawNoPrefix(BOOL bNoPrefix, BOOL bRedraw = TRUE);
    BOOL IsDrawNoPrefix() const { return m_bDrawNoPrefix; }

    // Colours.
    virtual COLORREF GetTabBkColor(int iTab) const;
    virtual BOOL SetTabBkColor(int iTab, COLORREF color = static_cast<COLORREF>(-1));
    virtual COLORREF GetTabTextColor(int iTab) const;
    virtual BOOL SetTabTextColor(int iTab, COLORREF color = static_cast<COLORREF>(-1));
    virtual COLORREF GetActiveTabColor() const;
    virtual void SetActiveTabColor(COLORREF clr);
    virtual COLORREF GetActiveTabTextColor() const;
    virtual void SetActiveTabTextColor(COLORREF clr);
    /// Each tab without a colour of its own takes the next of a row of colours.
    void EnableAutoColor(BOOL bEnable = TRUE);
    BOOL IsAutoColor() const { return m_bAutoColor; }
    const CArray<COLORREF, COLORREF>& GetAutoColors() const { return m_arAutoColors; }
    /// An empty row stands for the library's own.
    void SetAutoColors(const CArray<COLORREF, COLORREF>& arColors);
    virtual BOOL IsColored() const { return m_bAutoColor; }

    // Layout.
    virtual void RecalcLayout() = 0;
    virtual BOOL GetTabRect(int iTab, CRect& rect) const;
    virtual int GetTabFullWidth(int iTab) const;
    virtual void GetTabsRect(CRect& rect) const;
    virtual void GetTabArea(CRect& rectTabAreaTop, CRect& rectTabAreaBottom) const = 0;
    virtual BOOL IsPtInTabArea(CPoint point) const = 0;
    virtual CWnd* FindTargetWnd(const CPoint& pt) = 0;
    virtual int GetTabFromPoint(CPoint& pt) const;
    virtual BOOL EnsureVisible(int) { return FALSE; }
    virtual int GetTabsHeight() const { return m_nTabsHeight; }
    virtual void SetTabsHeight();
    virtual int GetTabBorderSize() const { return m_nTabBorderSize; }
    virtual void SetTabBorderSize(int nTabBorderSize, BOOL bRepaint = TRUE);
    Location GetLocation() const { return m_location; }
    virtual void SetLocation(Location location);
    void InvalidateTab(int iTab);
    int GetHighlightedTab() const { return m_iHighlighted; }
    virtual void HideSingleTab(BOOL bHide = TRUE);
    virtual BOOL IsHideSingleTab() const { return m_bHideSingleTab; }
    virtual BOOL IsFlatTab() const { return FALSE; }
    virtual BOOL IsFlatFrame() const { return m_bFlatFrame; }
    virtual BOOL IsOneNoteStyle() const { return FALSE; }
    virtual BOOL IsActiveTabCloseButton() const { return FALSE; }
    CRect GetTabCloseButton() const { return m_rectCloseButton; }
    BOOL IsTabCloseButtonHighlighted() const { return m_bTabCloseButtonHighlighted; }
    BOOL IsTabCloseButtonPressed() const { return m_bTabCloseButtonPressed; }
    BOOL IsMDITab() const { return m_bIsMDITab; }
    BOOL IsDialogControl() const { return m_bIsDlgControl; }

    // What the user may do.
    void EnableTabSwap(BOOL bEnable) { m_bIsTabSwapEnabled = bEnable; }
    BOOL IsTabSwapEnabled() const { return m_bIsTabSwapEnabled; }
    virtual BOOL EnableTabDetach(int iTab, BOOL bEnable);
    virtual BOOL IsTabDetachable(int iTab) const;
    /// Makes the tab's pane float, or hides it. FALSE when the tab isn't detachable or not in a tabbed pane.
    virtual BOOL DetachTab(AFX_DOCK_METHOD dockMethod, int nTabNum = -1, BOOL bHide = FALSE);
    virtual void EnableInPlaceEdit(BOOL bEnable) = 0;
    virtual BOOL IsInPlaceEdit() const { return m_bIsInPlaceEdit; }
    /// Whether the user may change this label.
    virtual BOOL StartRenameTab(int iTab);
    /// The user has ended a label: FALSE refuses it. May change the text.
    virtual BOOL OnRenameTab(int, CString&) { return TRUE; }
    /// Takes the text of the edit box, if one is open, and closes it. TRUE when the label has changed.
    virtual BOOL RenameTab();
    virtual void CalcRectEdit(CRect& rectEdit);
    BOOL EnableCustomToolTips(BOOL bEnable = TRUE);
    CToolTipCtrl& GetToolTipCtrl() const { return *m_pToolTip; }

    /// Labels, order and visibility of the tabs and which is active, by the control ids of their windows.
    void Serialize(CArchive& ar) override;
    /// Applies what Serialize read to the tabs that are there now.
    virtual void ApplyRestoredTabInfo(BOOL bUseTabIndexes = FALSE);

    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// The owner stays the caller's, who takes it away with null.
    void set_tab_owner(kmfc::TabOwner* owner) { m_owner = owner; }
    /// The tab, or null.
    const CMFCTabInfo* tab(int index) const;

protected:
    CMFCTabInfo* tab(int index);
    /// The tab that becomes active when `index` no longer can; -1 for none.
    virtual int successor_of(int index) const;
    /// Opens the edit box over a label.
    void edit_label(int index);
    void close_edit(bool accept);
    void update_tips();
    void tabs_changed(bool layout);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnLabelKillFocus();
    afx_msg BOOL OnToolTipText(UINT id, NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

    CObArray m_arTabs;  ///< CMFCTabInfo objects, owned
    int m_iActiveTab = -1;
    int m_iLastActiveTab = -1;  ///< id, not index
    int m_iHighlighted = -1;    ///< the tab under the mouse
    int m_iEdited = -1;         ///< the tab whose label is open
    int m_nNextTabID = 0;
    int m_nTabsHeight = 0;
    int m_nTabBorderSize = 3;
    Location m_location = LOCATION_BOTTOM;
    BOOL m_bActivateLastActive = FALSE;
    BOOL m_bHideSingleTab = FALSE;
    BOOL m_bFlatFrame = TRUE;
    BOOL m_bAutoColor = FALSE;
    BOOL m_bDrawNoPrefix = FALSE;
    BOOL m_bIsTabSwapEnabled = FALSE;
    BOOL m_bIsInPlaceEdit = FALSE;
    BOOL m_bIsMDITab = FALSE;
    BOOL m_bIsDlgControl = FALSE;
    BOOL m_bCustomToolTips = FALSE;
    BOOL m_bTabCloseButtonHighlighted = FALSE;
    BOOL m_bTabCloseButtonPressed = FALSE;
    CRect m_rectTabsArea{0, 0, 0, 0};
    CRect m_rectCloseButton{0, 0, 0, 0};
    COLORREF m_clrActiveTabBk = static_cast<COLORREF>(-1);
    COLORREF m_clrActiveTabFg = static_cast<COLORREF>(-1);
    CArray<COLORREF, COLORREF> m_arAutoColors;
    CImageList m_Images;  ///< made from a resource
    HIMAGELIST m_hImageList = nullptr;
    CSize m_sizeImage{0, 0};
    CToolTipCtrl* m_pToolTip = nullptr;  ///< owned
    kmfc::TabOwner* m_owner = nullptr;
    CEdit* m_pInPlaceEdit = nullptr;  ///< owned, while a label is open

private:
    /// What Serialize read about one tab.
    struct RestoredTab {
        UINT id;
        CString label;
        bool visible;
    };
    void tell_owner(UINT message, WPARAM wParam, LPARAM lParam);
    bool accept_label();

    std::vector<RestoredTab> m_restored;
    int m_restoredActive = -1;
};
