// CControlBar: a bar of controls along an edge of a frame.
#pragma once

#include <kmfc/wnd.h>

// Styles of bars. Where one stands, what lines it has, and what it does.
constexpr DWORD CBRS_NOALIGN = 0x0000;
constexpr DWORD CBRS_FLOATING = 0x0001;
constexpr DWORD CBRS_SIZE_FIXED = 0x0002;
constexpr DWORD CBRS_SIZE_DYNAMIC = 0x0004;
constexpr DWORD CBRS_HIDE_INPLACE = 0x0008;
constexpr DWORD CBRS_TOOLTIPS = 0x0010;
constexpr DWORD CBRS_FLYBY = 0x0020;
constexpr DWORD CBRS_FLOAT_MULTI = 0x0040;
constexpr DWORD CBRS_BORDER_3D = 0x0080;
constexpr DWORD CBRS_BORDER_LEFT = 0x0100;
constexpr DWORD CBRS_BORDER_TOP = 0x0200;
constexpr DWORD CBRS_BORDER_RIGHT = 0x0400;
constexpr DWORD CBRS_BORDER_BOTTOM = 0x0800;
constexpr DWORD CBRS_BORDER_ANY = 0x0F00;
constexpr DWORD CBRS_ALIGN_LEFT = 0x1000;
constexpr DWORD CBRS_ALIGN_TOP = 0x2000;
constexpr DWORD CBRS_ALIGN_RIGHT = 0x4000;
constexpr DWORD CBRS_ALIGN_BOTTOM = 0x8000;
constexpr DWORD CBRS_ALIGN_ANY = 0xF000;
constexpr DWORD CBRS_ORIENT_HORZ = CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM;
constexpr DWORD CBRS_ORIENT_VERT = CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT;
constexpr DWORD CBRS_ORIENT_ANY = CBRS_ORIENT_HORZ | CBRS_ORIENT_VERT;
constexpr DWORD CBRS_GRIPPER = 0x00400000;  ///< a docked bar has a handle to drag it by
constexpr DWORD CBRS_ALL = 0x0040FFFF;
constexpr DWORD CBRS_LEFT = CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT;
constexpr DWORD CBRS_TOP = CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM;
constexpr DWORD CBRS_RIGHT = CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT;
constexpr DWORD CBRS_BOTTOM = CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP;

// Modes of CControlBar::CalcDynamicLayout.
constexpr DWORD LM_STRETCH = 0x01;   ///< take all the room of the edge
constexpr DWORD LM_HORZ = 0x02;      ///< along the top or the bottom
constexpr DWORD LM_MRUWIDTH = 0x04;  ///< floating, as wide as it was last
constexpr DWORD LM_HORZDOCK = 0x08;  ///< docked at the top or the bottom
constexpr DWORD LM_VERTDOCK = 0x10;  ///< docked at the left or the right
constexpr DWORD LM_LENGTHY = 0x20;   ///< the length asked for is a height
constexpr DWORD LM_COMMIT = 0x40;    ///< the bar takes that form; a floating one keeps its width

/// Sent by RepositionBars to every child window: one that wants a part of the room takes it off the
/// rectangle.
constexpr UINT WM_SIZEPARENT = 0x0361;

/// What lParam of WM_SIZEPARENT points to.
struct AFX_SIZEPARENTPARAMS {
    HDWP hDWP;       ///< moves are collected here; null when nothing is to be moved
    RECT rect;       ///< the room that is left, parent client coordinates
    SIZE sizeTotal;  ///< the largest extent of the bars so far
    BOOL bStretch;   ///< bars take all the room of their edge
};

class CDockBar;

/// A bar. Its frame (RepositionBars) gives it a place by its alignment style, in the order of the child
/// windows. What its controls tell it and it doesn't handle goes on to its owner.
class KMFC_API CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)
public:
    CControlBar() = default;
    ~CControlBar() override;

    /// How many items the bar has that are no windows.
    int GetCount() const { return m_nCount; }
    /// Room around the items in pixels, for bars that draw their own.
    CRect GetBorders() const { return m_rectBorder; }
    void SetBorders(int cxLeft = 0, int cyTop = 0, int cxRight = 0, int cyBottom = 0) {
        m_rectBorder.SetRect(cxLeft, cyTop, cxRight, cyBottom);
    }
    void SetBorders(LPCRECT lpRect) { m_rectBorder = *lpRect; }
    /// CBRS_ styles. Changing them draws the bar anew; the frame's RecalcLayout gives it its new place. With
    /// CBRS_TOOLTIPS tips are shown for the bar's tools, with CBRS_FLYBY their messages in the frame.
    DWORD GetBarStyle() { return m_dwStyle; }
    void SetBarStyle(DWORD dwStyle);
    /// Lets the bar be docked at the edges of CBRS_ALIGN_ styles that its frame allows too, and be dragged,
    /// from the next DockControlBar or FloatControlBar of the frame on. 0 for a bar that only floats. Each
    /// bar floats in a frame of its own, with CBRS_FLOAT_MULTI too.
    void EnableDocking(DWORD dwDockStyle);
    BOOL IsFloating() const;
    /// Whether the bar is shown, or will be at the next layout.
    virtual BOOL IsVisible() const;
    /// The frame that the bar belongs to, which is that of its docking for a floating one too; or null.
    CFrameWnd* GetDockingFrame() const;

    /// The size of the bar in pixels: for `bStretch` with all the room of its edge (32767).
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    /// The same by LM_ flags. A bar that takes several forms overrides it.
    virtual CSize CalcDynamicLayout(int nLength, DWORD dwMode);
    /// Takes lines and handle off `rect`, the bar's whole room as it stands along a row, or (`bHorz` FALSE)
    /// upright.
    virtual void CalcInsideRect(CRect& rect, BOOL bHorz) const;
    /// Brings the bar's controls up to date: called when the program is idle.
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL DestroyWindow() override;

    // For the docking of bars: a drag from a point of the screen, and what a double click does.
    void begin_drag(CPoint screen);
    void toggle_floating();

    BOOL m_bAutoDelete = FALSE;        ///< the object goes with its window
    DWORD m_dwStyle = 0;               ///< CBRS_ styles
    DWORD m_dwDockStyle = 0;           ///< EnableDocking's
    UINT m_nMRUWidth = 32767;          ///< pixels: what a floating bar's tools are arranged for
    CDockBar* m_pDockBar = nullptr;    ///< where it is docked or floats; null for a bar that does neither
    CFrameWnd* m_pDockSite = nullptr;  ///< the frame of EnableDocking

protected:
    /// Draws the lines of the bar's CBRS_BORDER_ styles and takes them off `rect` (window coordinates).
    virtual void DrawBorders(CDC* pDC, CRect& rect);
    /// Draws the handle of a docked bar at the beginning of `rect` (window coordinates, inside of the lines).
    virtual void DrawGripper(CDC* pDC, const CRect& rect);
    /// Pixels of the handle, along the bar; 0 for a bar that has none now.
    int gripper_extent() const;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg void OnNcPaint();
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnMouseLeave();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    int m_nCount = 0;
    CRect m_rectBorder{0, 0, 0, 0};

private:
    enum class Pending { none, show, hide };

    /// Shows or hides the bar at the next layout.
    void delay_show(bool show) { m_pending = show ? Pending::show : Pending::hide; }
    void end_pending();

    /// Whether a press there, in client coordinates, holds the bar and not a tool.
    bool is_held_at(CPoint point) const;

    /// Tells the frame which tool of the bar is under the mouse.
    void follow_mouse(const MSG& message);
    void tell_frame(INT_PTR tool);

    Pending m_pending = Pending::none;
    INT_PTR m_flyTool = -1;  ///< the tool whose message the frame shows

    friend class CDockBar;
    friend class CFrameWnd;
};
