// CMiniDockFrameWnd: the frame of a control bar that floats.
#pragma once

#include <kmfc/dock_bar.h>
#include <kmfc/mini_frame.h>

/// As large as its bar, dragged by its caption, and, where the bar has
/// CBRS_SIZE_DYNAMIC, by its edges, which puts its tools into other rows. Its close button hides the bar, a
/// double click on the caption docks it where it was.
class KMFC_API CMiniDockFrameWnd : public CMiniFrameWnd {
    DECLARE_DYNCREATE(CMiniDockFrameWnd)
public:
    CMiniDockFrameWnd() = default;

    /// A hidden frame for a bar with these CBRS_ styles.
    virtual BOOL Create(CWnd* pParent, DWORD dwBarStyle);
    void RecalcLayout(BOOL bNotify = TRUE) override;

    CDockBar m_wndDockBar{TRUE};

    /// The bar that floats here, or null.
    CControlBar* bar() const;

protected:
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    /// What edges and caption take.
    CSize around() const;
};
