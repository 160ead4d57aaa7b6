// CMFCMenuBar: the frame's menu in a bar that docks and floats.
#pragma once

#include <kmfc/tool_bar_ex.h>

/// The id of the menu bar, and the key of its place.
constexpr UINT AFX_IDW_MENUBAR = 0xE806;

/// Shows the menu of a CFrameWndEx or CMDIFrameWndEx, which no longer has it as a window then; in a frame of
/// several documents that of the document in front. Create it in the frame's OnCreate, EnableDocking, and
/// hand it to the frame's DockPane before the toolbars. While a frame has a menu bar, the rows at its top
/// stand outside of its classic bars as well. The bar can't be hidden.
///
/// The menus that drop down are the system's own, so that WM_INITMENUPOPUP, WM_MENUSELECT and the like reach
/// the frame as ever, and a command is a WM_COMMAND to the owner. Alt with a letter opens an item; Alt or F10
/// alone gives the bar the focus, arrow keys, letters, Enter and Escape do what they do in menus, and the
/// focus goes back to where it was. When the bar or the frame goes, the frame has its menu again.
class KMFC_API CMFCMenuBar : public CMFCToolBar {
    DECLARE_DYNCREATE(CMFCMenuBar)
public:
    CMFCMenuBar();
    ~CMFCMenuBar() override;

    /// FALSE when there is no window. Takes the menu off the frame that `pParentWnd` is.
    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE,
                UINT nID = AFX_IDW_MENUBAR) override;
    BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                  DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE, CRect rcBorders = CRect(1, 1, 1, 1),
                  UINT nID = AFX_IDW_MENUBAR) override;

    /// Shows a menu, which stays the caller's and has to last as long as it is shown. The one that is shown
    /// already is read anew only with `bForceUpdate`. With `bDefaultMenu` it is what the bar goes back to.
    virtual void CreateFromMenu(HMENU hMenu, BOOL bDefaultMenu = FALSE, BOOL bForceUpdate = FALSE);
    /// The menu that is shown; null for none.
    HMENU GetHMenu() const { return m_hMenu; }
    /// The menu of the frame itself.
    HMENU GetDefaultMenu() const { return m_hDefaultMenu; }
    /// The resource that RestoreOriginalstate loads; 0 for none.
    void SetDefaultMenuResId(UINT uiResId) { m_uiDefMenuResId = uiResId; }
    UINT GetDefaultMenuResId() const { return m_uiDefMenuResId; }
    /// Shows the menu of that resource, anew. FALSE, and nothing changed, without one.
    virtual BOOL RestoreOriginalstate();
    /// Shows the icon of a maximised document before the items, and its buttons behind them; FALSE takes them
    /// away. The bar does so by itself when the program is idle. While documents have tabs or stand in groups
    /// it shows none.
    virtual void SetMaximizeMode(BOOL bMax, CWnd* pWnd = nullptr, BOOL bRecalcLayout = TRUE);
    /// The button of an item, from 0 (of a maximised document's icon, where that shows); null for a place
    /// without one.
    CMFCToolBarButton* GetMenuItem(int iItem) const { return GetButton(iItem); }
    /// The menu of the frame was taken over, in Create or later.
    virtual void OnDefaultMenuLoaded(HMENU /*hMenu*/) {}

    BOOL CanBeClosed() const override { return FALSE; }
    BOOL AllowShowOnPaneMenu() const override { return FALSE; }
    void ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void describe(int part, kmfc::docking::AccessiblePart& about) const override;

    /// The item whose menu is open, or -1.
    int open_item() const { return m_open; }
    /// Opens the item with that letter, as Alt with it does; false without one that can be opened.
    bool open_by_letter(wchar_t letter);
    /// Gives the bar the focus with its first item marked, or takes it back; false without an item.
    bool toggle_focus();
    /// The frame is about to go, and gets its menu back.
    void frame_goes();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void open_more() override;
    void fill_more(HMENU menu) const override;
    void press(int index) override;
    void SendCommand(const CMFCToolBarButton* pButton) override;

    afx_msg void OnDestroy();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    void take_from_frame();
    void fill();
    void follow_documents();
    bool is_icon(int index) const;
    bool is_outdated() const;
    HMENU popup_of(int index) const;
    UINT position_of(int index) const;
    int item_of_letter(wchar_t letter) const;
    int neighbour_with_menu(int from, int step) const;

    void follow(int index, bool byKeys);
    UINT track(int index, bool byKeys);
    void do_command(UINT command);
    void remember_focus();
    void give_focus_back();
    bool filters(const MSG& message);
    bool filters_key(WPARAM key);
    bool filters_mouse(UINT message, CPoint screen);
    void go_on_with(int index, bool byKeys);
    LRESULT on_menu_message(UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK message_filter(int code, WPARAM wParam, LPARAM lParam);

    HMENU m_hMenu = nullptr;
    HMENU m_hDefaultMenu = nullptr;
    UINT m_uiDefMenuResId = 0;
    HWND m_maximized = nullptr;  ///< the document whose icon and buttons show, or null
    CMenu m_original;            ///< what RestoreOriginalstate loaded
    CMenu m_overflow;            ///< items without room, while their menu is open
    int m_open = -1;             ///< the item whose menu is open
    int m_next = -1;             ///< the item that comes when that is closed
    bool m_isNextByKeys = false;
    bool m_isEscaped = false;        ///< the menu was closed by Escape
    bool m_isDoubleClicked = false;  ///< it was closed by a double click on a document's icon
    CPoint m_lastMove{0, 0};         ///< where the pointer was seen last, screen coordinates
    std::vector<HMENU> m_popups;     ///< those that are open, the innermost last
    HWND m_focusBefore = nullptr;    ///< what had the focus before the bar
};
