// CMFCToolBar: a toolbar that docks in rows at the edges of a frame, and floats.
#pragma once

#include <vector>

#include <kmfc/pane.h>
#include <kmfc/tool_bar_button.h>
#include <kmfc/tool_bar_images.h>

class CDockSite;

namespace kmfc::docking {
struct AccessiblePart;
struct ToolLayout;
enum class ToolShape;
}  // namespace kmfc::docking

/// Every pane of this kind has a gripper while it is docked.
constexpr DWORD AFX_DEFAULT_TOOLBAR_STYLE =
    WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_SIZE_DYNAMIC;

/// A bar of buttons. Create it in the frame's OnCreate, give it buttons, EnableDocking, and hand it to the
/// frame's DockPane: each bar docked so begins a row, further inside than those before it; DockPaneLeftOf
/// puts one into a row. The frame (or SetOwner's window) gets the command of a button; while the program is
/// idle each command is asked for its state, as those of menus are. The second line of a command's string is
/// its tip, the first is shown in the frame's message bar. Places of buttons count from 0.
///
/// By mouse the gripper drags the bar: along its row, to another row, side or new row, and away from all it
/// floats. Held Ctrl keeps it from docking, Escape puts it back where it was. A double click on the gripper
/// or on the floating bar's caption changes between docked and floating. By keyboard, where the bar has the
/// focus, the arrow keys, Home and End go from button to button, Enter and Space press, Escape leaves.
///
/// A docked bar that is too short for its buttons ends in one for more, which opens a menu of those that have
/// no room. Assistive programs learn of the bar, its buttons and that one.
class KMFC_API CMFCToolBar : public CPane {
    DECLARE_DYNCREATE(CMFCToolBar)
public:
    CMFCToolBar();
    ~CMFCToolBar() override;

    /// FALSE when there is no window. `dwStyle` has window styles and CBRS_ styles.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE,
                        UINT nID = AFX_IDW_TOOLBAR);
    /// The same with room around the buttons, in pixels. Of the styles of controls none has an effect.
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                          DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE, CRect rcBorders = CRect(1, 1, 1, 1),
                          UINT nID = AFX_IDW_TOOLBAR);
    using CPane::CreateEx;

    // Buttons.
    /// Buttons, sizes and the bitmap of the same name, of a TOOLBAR resource. FALSE without one, or when it
    /// is damaged; the bar stays as it is.
    virtual BOOL LoadToolBar(UINT uiResID);
    /// Other pictures for the buttons that there are, as for another resolution: as many of them stand side
    /// by side as there were. FALSE, and nothing changed, when there is no such bitmap.
    virtual BOOL LoadBitmap(UINT uiResID);
    /// Buttons of these commands, with the pictures in turn; 0 is a separator. FALSE for a count below 0.
    virtual BOOL SetButtons(const UINT* lpIDArray, int nIDCount);
    /// Puts a copy of a button at a place (-1: behind all), with all that its class has. The place, or -1.
    virtual int InsertButton(const CMFCToolBarButton& button, INT_PTR iInsertAt = -1);
    /// The same with a button that is the bar's from now on.
    virtual int InsertButton(CMFCToolBarButton* pButton, INT_PTR iInsertAt = -1);
    /// The place, or -1. Behind another separator, and at the beginning, none is put.
    virtual int InsertSeparator(INT_PTR iInsertAt = -1);
    /// Deletes a button. FALSE when there is none at the place.
    virtual BOOL RemoveButton(int iIndex);
    virtual void RemoveAllButtons();
    int GetCount() const { return static_cast<int>(m_Buttons.GetCount()); }
    /// Null for a place without one.
    CMFCToolBarButton* GetButton(int iIndex) const;
    /// ID_SEPARATOR for a gap and for a place without a button.
    UINT GetItemID(int nIndex) const;
    /// The first button of a command behind `iIndexFirst`, or -1.
    int CommandToIndex(UINT nIDFind, int iIndexFirst = 0) const;
    int ButtonToIndex(const CMFCToolBarButton* pButton) const;
    /// Client coordinates; empty for a place without a button.
    virtual void GetItemRect(int nIndex, LPRECT lpRect) const;
    /// The button at a point of the client area, separators included, or -1.
    virtual int HitTest(CPoint point) const;
    UINT GetButtonStyle(int nIndex) const;
    virtual void SetButtonStyle(int nIndex, UINT nStyle);
    void GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const;
    void SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage);
    /// Shows a text in a button, beside its picture. FALSE for a place without one.
    BOOL SetButtonText(int nIndex, LPCTSTR lpszText);
    CString GetButtonText(int nIndex) const;
    CMFCToolBarImages& images() { return m_images; }

    // Sizes, in pixels at 96 dots an inch.
    /// Of the bars that have none of their own: 23 by 22 and 16 by 15. The button must be larger than its
    /// picture.
    static void SetSizes(SIZE sizeButton, SIZE sizeImage);
    /// Of this bar.
    void SetLockedSizes(SIZE sizeButton, SIZE sizeImage);
    /// As drawn at the screen's resolution.
    CSize GetButtonSize() const;
    CSize GetImageSize() const;

    // Layout, in pixels of the screen.
    virtual CSize CalcSize(BOOL bVertDock);
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    /// The size of the floating bar in rows that are no wider than `width`.
    CSize CalcWrappedSize(int width);
    /// How many rows the buttons take in a width, and lays them out so: for a bar that floats.
    virtual int WrapToolBar(int nWidth);
    /// The gripper, client coordinates; empty for none.
    virtual void GetGripperRect(CRect& rect) const;
    void GetMinSize(CSize& size) const override;
    void AdjustLayout() override;
    void RecalcLayout() override { AdjustLayout(); }
    /// Whether its buttons stand one below the other.
    BOOL IsUpright() const;

    // Docking.
    BOOL CanBeResized() const override { return IsFloating(); }
    BOOL CanFocus() const override { return TRUE; }
    BOOL DockToFrameWindow(DWORD dwAlignment, LPCRECT lpRect = nullptr, DWORD dwDockFlags = DT_DOCK_LAST,
                           CBasePane* pRelativeBar = nullptr, int nRelativeIndex = -1,
                           BOOL bOuterEdge = FALSE) override;
    /// `rectFloat` is the frame's, in screen coordinates; its width says how the buttons wrap, a width of 0
    /// that they stand in one row.
    BOOL FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod = DM_UNKNOWN, bool bShow = true) override;
    void ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) override;
    /// Docks where the bar was docked last; at the side of its style when it never was.
    virtual BOOL DockToRecentPos();
    /// Docked and floating in turn, as a double click does.
    virtual BOOL ToggleDocking();
    CDockSite* GetParentDockSite() const;

    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;

    // Hot and marked buttons.
    /// The button under the mouse or the keyboard's mark, or -1.
    int GetHighlightedButton() const { return m_iHighlighted; }
    /// The button that is held down, or -1.
    int GetPressedButton() const { return m_iPressed; }
    /// The button for what has no room, client coordinates; empty while all buttons have. Where a place of a
    /// button is marked, it counts as the one behind all.
    CRect more_rect() const { return m_more; }
    /// What an assistive program learns of the bar (0), a button (from 1 on), or the one for more (the last).
    virtual void describe(int part, kmfc::docking::AccessiblePart& about) const;
    /// How many of the latter two there are.
    int parts() const { return GetCount() + (has_more() ? 1 : 0); }
    /// Does what a press of a part does, without waiting for it; false when it can't be pressed.
    bool press_part(int part);

protected:
    void DoPaint(CDC* pDC) override;
    virtual void DrawButton(CDC* pDC, CMFCToolBarButton* pButton, BOOL bHorz, BOOL bHighlight);
    virtual void DrawSeparator(CDC* pDC, const CRect& rect, BOOL bHorz);
    /// Sends the command of a button to the owner.
    virtual void SendCommand(const CMFCToolBarButton* pButton);
    /// Opens the menu of what has no room, and does what is chosen.
    virtual void open_more();
    /// Fills that menu.
    virtual void fill_more(HMENU menu) const;
    /// A press by keyboard or by an assistive program, of a button or of the one for more, which is enabled.
    virtual void press(int index);

    bool has_more() const { return !m_more.IsRectEmpty(); }
    bool has_room(const CMFCToolBarButton& button) const;
    /// The same as HitTest, and the button for more.
    int part_at(CPoint point) const;
    CRect part_rect(int index) const;
    void buttons_changed();
    void redraw_button(int index);
    void highlight(int index);
    bool is_enabled(int index) const;
    /// Enabled, and with room in the bar.
    bool is_pressable(int index) const;
    /// Marks the next button that can be pressed, `step` places at a time from `from`, around the ends.
    void mark_next(int from, int step);
    void let_go();
    CWnd* frame_of_messages() const;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPressPart(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CObList m_Buttons;  ///< CMFCToolBarButton, the bar's own
    CMFCToolBarImages m_images;
    int m_iHighlighted = -1;
    int m_iPressed = -1;  ///< held by the mouse
    static CSize m_sizeButton, m_sizeImage;

private:
    kmfc::docking::ToolLayout layout_of(kmfc::docking::ToolShape shape, int room);
    kmfc::docking::ToolLayout layout_as_it_stands();
    void tell_frame(int index);

    CSize m_ownButton{0, 0}, m_ownImage{0, 0};  ///< locked sizes; 0 for none
    CRect m_borders{1, 1, 1, 1};
    CRect m_more{0, 0, 0, 0};    ///< the button for what has no room
    int m_told = -1;             ///< the button whose text the frame shows
    int m_wide = 0;              ///< the width that a floating bar was wrapped in last; 0 for one row
    bool m_isDraggable = false;  ///< the gripper is held, and no drag has begun
    CPoint m_pressedAt{0, 0};    ///< screen coordinates

    friend class CBarFrameWnd;
};
