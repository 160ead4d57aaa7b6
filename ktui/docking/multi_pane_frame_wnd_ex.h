// CMultiPaneFrameWndEx: the floating frame of the toolkit's bars. It stays where it is, as large as it is,
// while floating panes are locked (KbUiLockPanel), and remembers of closed bars that they are hidden.
#pragma once

#include <afxcontrolbars.h>

#include <ktui/ktui_api.h>

class KTUI_API CMultiPaneFrameWndEx : public CMultiPaneFrameWnd {
    DECLARE_DYNCREATE(CMultiPaneFrameWndEx)

public:
    CMultiPaneFrameWndEx();

protected:
    /// Clears the visible flag of every bar in the frame, those in tabs too.
    BOOL OnCloseMiniFrame() override;

    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    bool m_blockedDrag = false;  ///< the press was refused, and the cursor says so until the button is up
};
