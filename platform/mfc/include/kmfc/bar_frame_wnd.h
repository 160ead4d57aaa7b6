// CBarFrameWnd: the floating frame of a toolbar.
#pragma once

#include <kmfc/pane_frame_wnd.h>

class CMFCToolBar;

/// As large as its bar needs to be. Dragged by its edges it wraps the buttons in other rows.
class KMFC_API CBarFrameWnd : public CPaneFrameWnd {
    DECLARE_DYNCREATE(CBarFrameWnd)
public:
    /// Wraps the bar in a frame of `width` pixels, 0 for one row, with its corner at a point of the screen.
    /// The frame is then as large as the rows need.
    void wrap_at(CPoint corner, int width);
    /// Where such a frame is held by its caption, pixels below its upper edge.
    static int grip_height();
    BOOL OnDockToRecentPos() override;
    void AdjustLayout() override;

protected:
    CSize least_size() const override;
    CMFCToolBar* bar() const;
    CSize around() const;
    /// The frame's size for a width; see wrap_at.
    CSize wrapped_size(int width) const;

    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);
    DECLARE_MESSAGE_MAP()
};
