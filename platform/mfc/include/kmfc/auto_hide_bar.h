// CMFCAutoHideBar: the strip at an edge of the frame with the names of the panes that hide there.
#pragma once

#include <memory>
#include <vector>

#include <kmfc/dockable_pane.h>
#include <kmfc/pane_divider.h>

class CMFCAutoHideBar;

/// The name of one hidden pane on the strip. It has no window.
class KMFC_API CMFCAutoHideButton : public CObject {
    DECLARE_DYNCREATE(CMFCAutoHideButton)
public:
    virtual BOOL Create(CMFCAutoHideBar* pParentBar, CDockablePane* pAutoHideWnd, DWORD dwAlignment);

    /// The pane, which is a tab of another when that hides as a whole.
    CDockablePane* GetAutoHideWindow() const { return m_pAutoHideWindow; }
    CMFCAutoHideBar* GetParentToolBar() const { return m_pParentBar; }
    DWORD GetAlignment() const { return m_dwAlignment & CBRS_ALIGN_ANY; }
    BOOL IsHorizontal() const { return (m_dwAlignment & CBRS_ORIENT_HORZ) != 0; }
    BOOL IsTop() const { return GetAlignment() == CBRS_ALIGN_TOP; }
    /// The pane has slid out.
    virtual BOOL IsActive() const;
    BOOL IsVisible() const { return m_bVisible; }
    BOOL IsHighlighted() const { return m_bHighlighted; }
    void HighlightButton(BOOL bHighlight) { m_bHighlighted = bHighlight; }
    virtual void ShowButton(BOOL bShow) { m_bVisible = bShow; }
    /// Client coordinates of the strip.
    CRect GetRect() const { return m_rect; }
    /// Along and across the strip, turned with it.
    virtual CSize GetSize() const;
    CSize GetTextSize() const;
    /// Along the strip, pixels from its beginning.
    void Move(int nOffset);
    /// Slides the pane out or in.
    virtual void ShowAttachedWindow(BOOL bShow);
    /// Puts the pane back where it was docked.
    virtual void UnSetAutoHideMode(CDockablePane* pFirstBarInGroup);
    virtual void OnDraw(CDC* pDC);

protected:
    CMFCAutoHideBar* m_pParentBar = nullptr;
    CDockablePane* m_pAutoHideWindow = nullptr;
    DWORD m_dwAlignment = 0;
    BOOL m_bVisible = TRUE;
    BOOL m_bHighlighted = FALSE;
    CRect m_rect{0, 0, 0, 0};
};

/// Made by CDockablePane::SetAutoHideMode for the side that needs one; it deletes itself with its window, and
/// hides without buttons. A pane slides out when the mouse rests on its name or clicks it, lies over the
/// frame's middle, and slides in when neither the focus nor the mouse is in it.
class KMFC_API CMFCAutoHideBar : public CPane {
    DECLARE_DYNCREATE(CMFCAutoHideBar)
public:
    CMFCAutoHideBar();
    ~CMFCAutoHideBar() override;

    static int m_nShowAHWndDelay;  ///< milliseconds that the mouse rests on a name before its pane slides out

    /// The strip of a side, made when it isn't there yet; null when it can't be.
    static CMFCAutoHideBar* at_side(CDockingManager& manager, DWORD alignment);
    /// What slides for a pane: the tabbed pane around a tab.
    static CDockablePane* sliding_pane(CDockablePane* pane);
    /// The strips of a frame, in the order of their windows.
    static std::vector<CMFCAutoHideBar*> of_frame(CWnd* frame);
    /// The slid-out pane of any side of a frame comes in.
    static void slide_all_in(CWnd* frame);

    /// Adds a button for a pane, or for each tab that shows of a tabbed one; the answer is the first.
    CMFCAutoHideButton* AddAutoHideWindow(CDockablePane* pAutoHideWnd, DWORD dwAlignment);
    /// Takes the buttons of a pane away, or those of its tabs. FALSE when there are none.
    BOOL RemoveAutoHideWindow(CDockablePane* pAutoHideWnd);
    /// Slides a pane out (the tab of a tabbed one becomes active), or in. With `bDelay` it slides by a timer,
    /// unless CDockablePane::m_bDisableAnimation.
    BOOL ShowAutoHideWindow(CDockablePane* pAutoHideWnd, BOOL bShow, BOOL bDelay);
    CDockablePane* GetFirstAHWindow() const;
    int GetVisibleCount() const;
    void UpdateVisibleState();
    const std::vector<std::unique_ptr<CMFCAutoHideButton>>& buttons() const { return m_buttons; }
    CMFCAutoHideButton* button_at(CPoint point) const;
    /// The pane that is out, or null; of tabs the pane around them.
    CDockablePane* slid_out() const { return m_slidOut; }
    /// Slides the pane in when neither focus nor mouse is in it; TRUE when it did.
    bool check_condition();
    /// The frame was laid out: a pane that is out goes with its side.
    void follow_frame();
    /// The inner edge of the pane that is out goes `delta` pixels right or down, as far as the pane's least
    /// size and the room allow. The answer is how far it went.
    int move_inner_edge(int delta);
    /// What moves that edge by the mouse; null while no pane stands out.
    const CPaneDivider* inner_edge() const { return m_edge.get(); }

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void RecalcLayout() override;

protected:
    void DoPaint(CDC* pDC) override;
    void PostNcDestroy() override { delete this; }
    CRect slid_out_rect(const CDockablePane& pane) const;
    void slide_step();
    void place_inner_edge();
    void slide_in();
    void highlight(CMFCAutoHideButton* button);

    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

    std::vector<std::unique_ptr<CMFCAutoHideButton>> m_buttons;
    CMFCAutoHideButton* m_waiting = nullptr;  ///< the button that the mouse rests on
    CDockablePane* m_slidOut = nullptr;
    int m_step = 0;  ///< of the sliding; 0 when it stands
    std::unique_ptr<CPaneDivider> m_edge;
};
