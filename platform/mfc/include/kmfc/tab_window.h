// CMFCTabCtrl: windows with a strip of tabs at the top or at the bottom.
#pragma once

#include <kmfc/base_tab_ctrl.h>

/// The tab control of tabbed panes and of documents.
///
///     m_tabs.Create(CMFCTabCtrl::STYLE_3D_SCROLLED, rect, this, 1, CMFCTabCtrl::LOCATION_TOP);
///     m_tabs.AddTab(&m_first, L"One");
///
/// Keys: with the focus on the strip the arrow keys, Home and End choose a tab and F2 opens its label;
/// Ctrl+Tab, Ctrl+Page Down and their opposites work from inside the windows too.
class KMFC_API CMFCTabCtrl : public CMFCBaseTabCtrl {
    DECLARE_DYNCREATE(CMFCTabCtrl)
public:
    /// Tabs of STYLE_3D share the room there is; those of the other styles keep their widths, and scroll.
    enum Style { STYLE_FLAT, STYLE_3D, STYLE_3D_SCROLLED, STYLE_3D_ONENOTE };

    CMFCTabCtrl();
    ~CMFCTabCtrl() override;

    static BOOL m_bEnableActivate;  ///< a tab that is added and becomes active takes the focus

    BOOL Create(Style style, const RECT& rect, CWnd* pParentWnd, UINT nID,
                Location location = LOCATION_BOTTOM, BOOL bCloseBtn = FALSE);
    using CWnd::Create;
    /// Always TRUE.
    BOOL ModifyTabStyle(Style style);
    BOOL IsFlatTab() const override { return m_style == STYLE_FLAT; }
    BOOL IsOneNoteStyle() const override { return m_style == STYLE_3D_ONENOTE; }
    BOOL IsFlatFrame() const override { return m_bFlatFrame; }
    void SetFlatFrame(BOOL bFlat = TRUE, BOOL bRepaint = TRUE);
    BOOL IsDrawFrame() const { return m_bDrawFrame; }
    void SetDrawFrame(BOOL bDraw = TRUE) { m_bDrawFrame = bDraw; }
    BOOL IsActiveTabBoldFont() const { return m_bIsActiveTabBold; }
    void SetActiveTabBoldFont(BOOL bIsBold = TRUE);
    /// Pixels; 0 for no limit.
    int GetTabMaxWidth() const { return m_nTabMaxWidth; }
    void SetTabMaxWidth(int nTabMaxWidth);

    // Buttons of the strip.
    /// The close button stands on the active tab; with FALSE it is at the end of the strip again.
    void EnableActiveTabCloseButton(BOOL bEnable = TRUE);
    BOOL IsActiveTabCloseButton() const override { return m_bActiveTabCloseButton; }
    /// A menu of all tabs takes the place of the scroll buttons.
    void EnableTabDocumentsMenu(BOOL bEnable = TRUE);
    BOOL IsTabDocumentsMenu() const { return m_bTabDocumentsMenu; }
    /// Shows the menu at a point of the screen and activates what is chosen.
    virtual void OnShowTabDocumentsMenu(CPoint point);

    // The active tab.
    /// The focus goes along when it was in the window that was active.
    BOOL SetActiveTab(int iTab) override;
    /// Activates a tab (-1 for the active one) and gives its window the focus.
    void ActivateMDITab(int nTab = -1);
    BOOL EnsureVisible(int iTab) override;
    int GetFirstVisibleTabNum() const override;
    void HideInactiveWindow(BOOL bHide = TRUE) { m_bHideInactiveWnd = bHide; }
    void AutoSizeWindow(BOOL bAutoSize = TRUE) { m_bAutoSizeWindow = bAutoSize; }
    void HideNoTabs(BOOL bHide = TRUE);
    void HideSingleTab(BOOL bHide = TRUE) override;
    virtual BOOL AllowDestroyEmptyTabbedPane() const { return TRUE; }

    // Layout.
    void RecalcLayout() override;
    void GetTabArea(CRect& rectTabAreaTop, CRect& rectTabAreaBottom) const override;
    void GetTabsRect(CRect& rect) const override { rect = m_rectTabsArea; }
    /// Where the windows stand.
    void GetWndArea(CRect& rect) const { rect = m_rectWndArea; }
    /// 0 while the strip is hidden.
    int GetTabsHeight() const override;
    BOOL IsPtInTabArea(CPoint point) const override { return m_rectTabsArea.PtInRect(point); }
    int GetTabFromPoint(CPoint& pt) const override;
    CWnd* FindTargetWnd(const CPoint& pt) override;
    void EnableInPlaceEdit(BOOL bEnable) override { m_bIsInPlaceEdit = bEnable; }
    void CalcRectEdit(CRect& rectEdit) override;
    BOOL SetImageList(UINT uiID, int cx = 15, COLORREF clrTransp = RGB(255, 0, 255)) override;
    BOOL SetImageList(HIMAGELIST hImageList) override;

    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// The buttons at the end of the strip.
    enum class Button { none, scroll_left, scroll_right, menu, close };
    /// Client coordinates; empty for a button that isn't there.
    CRect button_rect(Button button) const;
    Button hot_button() const { return m_hotButton; }
    Button pressed_button() const { return m_pressedButton; }
    /// Pixels that are scrolled away at the left.
    int scroll_offset() const { return m_offset; }
    Style style() const { return m_style; }
    void paint(CDC& dc);

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    DECLARE_MESSAGE_MAP()

private:
    bool scrolls() const { return m_style != STYLE_3D; }
    bool strip_shows() const;
    void measure_tabs();
    std::vector<int> asked_widths() const;
    int overlap() const;
    void split_client();
    int place_buttons();
    void place_tabs(int right);
    void place_close_sign();
    void place_windows();
    void show_active_window(CWnd* former);
    void paint_tabs(CDC& dc);
    void paint_buttons(CDC& dc);
    void paint_frame(CDC& dc);
    Button button_at(CPoint point) const;
    bool is_enabled(Button button) const;
    void press(Button button);
    void close_tab(int index);
    void scroll_by_step(int direction);
    void drag_tab(CPoint point);
    void end_drag();
    void highlight(CPoint point);
    bool choose_by_key(UINT key);
    int neighbour(int index, int step, bool around) const;

    Style m_style = STYLE_3D;
    BOOL m_bDrawFrame = TRUE;
    BOOL m_bIsActiveTabBold = FALSE;
    BOOL m_bCloseButton = FALSE;
    BOOL m_bActiveTabCloseButton = FALSE;
    BOOL m_bTabDocumentsMenu = FALSE;
    BOOL m_bHideInactiveWnd = TRUE;
    BOOL m_bAutoSizeWindow = TRUE;
    BOOL m_bHideNoTabs = FALSE;
    int m_nTabMaxWidth = 0;
    int m_offset = 0;
    int m_maxOffset = 0;
    CRect m_rectWndArea{0, 0, 0, 0};
    CRect m_tabsRoom{0, 0, 0, 0};  ///< the part of the strip that tabs may take
    CRect m_buttonRects[5];
    Button m_hotButton = Button::none;
    Button m_pressedButton = Button::none;
    bool m_isPressed = false;   ///< the mouse went down on the active tab
    bool m_isDragging = false;  ///< and has moved away since
    CPoint m_pressPoint{0, 0};
};
