// CPaneDivider: the line between panes, or between a side of the frame and the middle.
#pragma once

#include <kmfc/base_pane.h>

/// Made and placed by the docking manager or a floating frame. Dragging it moves the edge between what lies
/// on its two sides; Escape puts it back.
class KMFC_API CPaneDivider : public CBasePane {
    DECLARE_DYNCREATE(CPaneDivider)
public:
    /// Styles: a divider between left and right stands, one between above and below lies.
    enum SS : DWORD { SS_VERT = 0x0001, SS_HORZ = 0x0002 };

    CPaneDivider() = default;
    CPaneDivider(BOOL bDefaultSlider, CWnd* pParent = nullptr) { Init(bDefaultSlider, pParent); }
    ~CPaneDivider() override;

    static int m_nDefaultWidth;  ///< pixels

    void Init(BOOL bDefaultSlider = FALSE, CWnd* pParent = nullptr);
    using CBasePane::CreateEx;
    /// `dwStyle` is SS_VERT or SS_HORZ.
    virtual BOOL CreateEx(DWORD dwStyleEx, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                          CCreateContext* pContext = nullptr);
    virtual DWORD GetPaneDividerStyle() const { return m_dwDividerStyle; }
    BOOL IsHorizontal() const { return (m_dwDividerStyle & SS_HORZ) != 0; }
    /// Whether it stands between a side of the frame and the middle.
    BOOL IsDefault() const { return m_bDefaultSlider; }
    int GetWidth() const { return m_nWidth; }
    /// Moves the edge by the part of `ptOffset` (pixels) that lies across it, as far as the panes' least
    /// sizes allow. The layout is brought up to date in any case.
    virtual void Move(CPoint& ptOffset, BOOL bAdjustLayout = TRUE);
    BOOL CanFloat() const override { return FALSE; }
    BOOL CanFocus() const override { return FALSE; }
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void set_id(int id) { m_id = id; }

protected:
    void DoPaint(CDC* pDC) override;
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    DECLARE_MESSAGE_MAP()

    DWORD m_dwDividerStyle = SS_VERT;
    BOOL m_bDefaultSlider = FALSE;
    int m_nWidth = m_nDefaultWidth;
    int m_id = 0;            ///< the edge of the layout that it moves
    CPoint m_ptTrack{0, 0};  ///< where the drag began or came to, screen coordinates
    int m_moved = 0;         ///< pixels moved since the drag began
    bool m_isTracking = false;

    /// Moves the edge; the answer is how many pixels it went.
    virtual int move_edge(int delta);

    friend class CDockingManager;
    friend class CMultiPaneFrameWnd;

private:
    void stop(bool keep);
};

/// The divider between a side of the frame and the middle.
class KMFC_API CDefaultPaneDivider : public CPaneDivider {
    DECLARE_DYNCREATE(CDefaultPaneDivider)
public:
    CDefaultPaneDivider() { Init(TRUE); }
};
