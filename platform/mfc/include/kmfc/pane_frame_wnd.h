// CPaneFrameWnd and CMultiPaneFrameWnd: floating frames of panes.
#pragma once

#include <memory>

#include <kmfc/lists.h>
#include <kmfc/dockable_pane.h>

namespace kmfc::docking {
class SplitTree;
struct Arrangement;
enum class Side : int;
}  // namespace kmfc::docking

/// A small frame, owned by the main frame, that floats one pane. It draws its own caption and buttons, whose
/// hit code is HTCLIENT as in CDockablePane. It goes with its last pane.
class KMFC_API CPaneFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CPaneFrameWnd)
public:
    CPaneFrameWnd();
    ~CPaneFrameWnd() override;

    static BOOL m_bUseSaveBits;  ///< the window class has CS_SAVEBITS

    /// `rect` in screen coordinates; `pParentWnd` is the main frame, which becomes the owner.
    virtual BOOL Create(LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        CCreateContext* pContext = nullptr);
    virtual BOOL CreateEx(DWORD dwStyleEx, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                          CWnd* pParentWnd, CCreateContext* pContext = nullptr);
    using CWnd::Create;
    using CWnd::CreateEx;

    // Panes.
    virtual void AddPane(CBasePane* pWnd);
    /// Takes a pane out; the frame destroys itself without one, with `bDestroy` at once.
    virtual void RemovePane(CBasePane* pWnd, BOOL bDestroy = FALSE, BOOL bNoDelayedDestroy = FALSE);
    virtual void ReplacePane(CBasePane* pBarOrg, CBasePane* pBarReplaceWith);
    virtual CWnd* GetPane() const {
        return m_hEmbeddedBar != nullptr ? CWnd::FromHandle(m_hEmbeddedBar) : nullptr;
    }
    virtual int GetPaneCount() const { return m_hEmbeddedBar != nullptr ? 1 : 0; }
    virtual int GetVisiblePaneCount() const;
    virtual CWnd* GetFirstVisiblePane() const;
    /// The pane at a screen point, also within `nSensitivity` pixels of it; null when there is none, and with
    /// `bCheckVisibility` when it isn't to be seen.
    virtual CBasePane* PaneFromPoint(CPoint point, int nSensitivity, BOOL bCheckVisibility = FALSE);
    /// Called when a pane in the frame was shown or hidden: the frame is hidden with the last.
    virtual void OnShowPane(CDockablePane* pBar, BOOL bShow);
    virtual void OnPaneRecalcLayout() { AdjustLayout(); }
    virtual void RemoveNonValidPanes();

    // Look and place.
    virtual void CalcBorderSize(CRect& rectBorderSize) const;
    virtual int GetCaptionHeight() const;
    /// Coordinates of the window's corner.
    virtual void GetCaptionRect(CRect& rectCaption) const;
    virtual CString GetCaptionText();
    /// Decides which panes in the frame have captions of their own.
    virtual void CheckGripperVisibility() {}
    virtual void SetCaptionButtons(DWORD dwButtons);
    virtual void AdjustLayout();
    virtual void AdjustPaneFrames();
    virtual void SizeToContent();
    /// The part at a screen point: HTCAPTION, a button's code, an edge's (HTLEFT …), HTNOWHERE, HTCLIENT.
    virtual LRESULT HitTest(CPoint point, BOOL bDetectCaption);
    CMFCCaptionButton* FindButton(CPoint ptScreen) const;
    CMFCCaptionButton* FindButtonByHit(LRESULT nHit) const;
    BOOL IsCaptured() const { return m_bCaptured; }
    CPoint GetHotPoint() const { return m_ptHot; }
    void SetHotPoint(const CPoint& ptNew) { m_ptHot = ptNew; }
    const CRect& GetRecentFloatingRect() const { return m_rectRecentFloatingRect; }
    void SetDockingManager(CDockingManager* pManager) { m_pDockManager = pManager; }
    CDockingManager* GetDockingManager() const { return m_pDockManager; }

    // Docking.
    /// Goes on with a drag that the mouse, whose button is down, began elsewhere; `torn` is the docked pane
    /// that it tore off, which Escape docks again.
    void start_caption_drag(CPoint screen, CDockablePane* torn = nullptr);
    virtual BOOL CanBeAttached() const;
    virtual BOOL CanBeDockedToPane(const CDockablePane* pDockingBar) const;
    /// A double click on the caption: every pane goes where it was docked last.
    virtual BOOL OnDockToRecentPos();

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    /// The close button: hides the panes. FALSE keeps the frame.
    virtual BOOL OnCloseMiniFrame() { return TRUE; }
    virtual void OnPressButtons(UINT nHit);
    virtual void OnDrawBorder(CDC* pDC);
    virtual void DrawCaption(CDC* pDC, CRect rectCaption);
    /// The pane that the frame's buttons speak for.
    virtual CPane* leading_pane() const;
    /// Hides what the frame holds.
    virtual void hide_panes();
    virtual CSize least_size() const;
    void place_caption_buttons(CSize window);
    void redraw_caption();
    /// Makes a pane a child of the frame; makes it a hidden child of the main frame again.
    void adopt(CBasePane* pane);
    void let_go(CBasePane* pane);
    /// Destroys the frame when no pane is left in it.
    void end_when_empty(bool atOnce);
    /// Tells the panes where they float.
    virtual void note_place();
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg void OnNcPaint();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnPaint();
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CObArray m_arrButtons;  ///< CMFCCaptionButton objects, owned
    CDockingManager* m_pDockManager = nullptr;
    HWND m_hEmbeddedBar = nullptr;  ///< the one pane
    CRect m_rectRecentFloatingRect{0, 0, 0, 0};
    BOOL m_bActive = FALSE;
    BOOL m_bCaptured = FALSE;  ///< the caption is held or dragged
    CPoint m_ptHot{0, 0};      ///< where in the window the mouse holds it
    UINT m_nHit = HTNOWHERE;   ///< hit code of the button that is pressed
    UINT m_nHot = HTNOWHERE;   ///< hit code of the button under the mouse
    CPoint m_pressedAt{0, 0};  ///< where the caption was pressed, screen coordinates
    bool m_isGoing = false;    ///< being destroyed

private:
    void press_button(UINT hit);
    void follow_buttons(CPoint screen);

    friend class CDockingManager;
};

/// A floating frame of several panes, which stand in it as they do in the main frame.
class KMFC_API CMultiPaneFrameWnd : public CPaneFrameWnd {
    DECLARE_DYNCREATE(CMultiPaneFrameWnd)
public:
    CMultiPaneFrameWnd();
    ~CMultiPaneFrameWnd() override;

    void AddPane(CBasePane* pWnd) override;
    virtual BOOL AddRecentPane(CDockablePane* pBar);
    /// Puts a pane at a side of one that is in the frame, or of all of them when the target is null.
    BOOL dock_beside(CDockablePane* pane, CDockablePane* target, DWORD alignment, int extent);
    void RemovePane(CBasePane* pWnd, BOOL bDestroy = FALSE, BOOL bNoDelayedDestroy = FALSE) override;
    void ReplacePane(CBasePane* pBarOrg, CBasePane* pBarReplaceWith) override;
    CWnd* GetPane() const override;
    int GetPaneCount() const override;
    int GetVisiblePaneCount() const override;
    CWnd* GetFirstVisiblePane() const override;
    CBasePane* PaneFromPoint(CPoint point, int nSensitivity, BOOL bCheckVisibility = FALSE) override;
    /// All panes in the frame, from left to right and from top to bottom.
    void GetPaneList(CObList& lstBars) const;
    void OnShowPane(CDockablePane* pBar, BOOL bShow) override;
    CString GetCaptionText() override;
    void CheckGripperVisibility() override;
    void AdjustLayout() override;
    void AdjustPaneFrames() override;
    BOOL OnDockToRecentPos() override;
    void RemoveNonValidPanes() override;

    /// Where the panes stand; for the docking manager.
    kmfc::docking::SplitTree& tree() const;
    const kmfc::docking::Arrangement& arrangement() const;
    /// Takes in all panes of another tree at a side of `target`, of all panes when that is null.
    BOOL take_over(kmfc::docking::SplitTree panes, CDockablePane* target, kmfc::docking::Side side,
                   int extent);
    void move_divider(int id, int delta);

protected:
    CPane* leading_pane() const override;
    void hide_panes() override;
    CSize least_size() const override;
    void note_place() override;

private:
    struct Inside;
    void take_in(CDockablePane* pane);
    void layout_panes();

    std::unique_ptr<Inside> m_inside;
};
