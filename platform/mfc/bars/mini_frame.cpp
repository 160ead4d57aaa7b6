// CMiniFrameWnd: what its styles say.
#include <kmfc/mini_frame.h>

IMPLEMENT_DYNCREATE(CMiniFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMiniFrameWnd, CFrameWnd)
    ON_WM_NCHITTEST()
    ON_WM_GETMINMAXINFO()
    ON_WM_SYSCOMMAND()
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

BOOL CMiniFrameWnd::Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT& rect,
                           CWnd* pParentWnd, UINT nID) {
    if (lpClassName == nullptr)
        lpClassName =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW));
    return CreateEx(0, lpClassName, lpWindowName, dwStyle, rect, pParentWnd, nID);
}

BOOL CMiniFrameWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle,
                             const RECT& rect, CWnd* pParentWnd, UINT nID) {
    m_strTitle = lpWindowName;
    const CRect place(rect);
    return CWnd::CreateEx(dwExStyle | WS_EX_TOOLWINDOW, lpClassName, lpWindowName, dwStyle, place.left,
                          place.top, place.Width(), place.Height(),
                          pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr,
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)));
}

LRESULT CMiniFrameWnd::OnNcHitTest(CPoint) {
    const LRESULT hit = Default();
    if (hit < HTSIZEFIRST || hit > HTSIZELAST) return hit;
    const DWORD style = GetStyle();
    if (style & MFS_MOVEFRAME) return HTCAPTION;
    return (style & MFS_4THICKFRAME) ? HTBORDER : hit;
}

void CMiniFrameWnd::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
    Default();
    if (!(GetStyle() & MFS_THICKFRAME)) return;
    CRect least(0, 0, 0, 0);
    CalcWindowRect(&least);
    lpMMI->ptMinTrackSize = CPoint(least.Width(), least.Height());
}

void CMiniFrameWnd::OnSysCommand(UINT nID, LPARAM lParam) {
    const UINT command = nID & 0xFFF0;
    if ((GetStyle() & MFS_BLOCKSYSMENU) && (command == SC_KEYMENU || command == SC_MOUSEMENU)) return;
    CFrameWnd::OnSysCommand(nID, lParam);
}

void CMiniFrameWnd::OnContextMenu(CWnd*, CPoint point) {
    const bool onCaption = SendMessage(WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y)) == HTCAPTION;
    if ((GetStyle() & MFS_BLOCKSYSMENU) && onCaption) return;
    Default();
}
