// CMiniFrameWnd: a small frame that belongs to another one.
#pragma once

#include <kmfc/frame.h>

// Styles of mini frames, beside those of windows.
constexpr DWORD MFS_SYNCACTIVE = 0x00000100;    ///< its caption is active while its owner's is
constexpr DWORD MFS_4THICKFRAME = 0x00000200;   ///< its edges don't size it
constexpr DWORD MFS_THICKFRAME = 0x00000400;    ///< may be sized down to nothing but its edges
constexpr DWORD MFS_MOVEFRAME = 0x00000800;     ///< its edges move it
constexpr DWORD MFS_BLOCKSYSMENU = 0x00001000;  ///< has no system menu

/// A frame with a small caption, without a menu or buttons to minimise and maximise.
class KMFC_API CMiniFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMiniFrameWnd)
public:
    /// Without a class name a class of its own. `rect` in screen coordinates, or of a child in those of its
    /// parent.
    virtual BOOL Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd = nullptr, UINT nID = 0);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd = nullptr, UINT nID = 0);

protected:
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    DECLARE_MESSAGE_MAP()
};
