#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)

namespace {
constexpr int kMostTipText = 1024;  // characters with the closing zero
}

BOOL CStatusBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(STATUSCLASSNAMEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(dwExStyle, STATUSCLASSNAMEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CStatusBarCtrl::GetTextLength(int nPane, int* pType) const {
    const DWORD result = static_cast<DWORD>(SendMessage(SB_GETTEXTLENGTHW, static_cast<WPARAM>(nPane)));
    if (pType) *pType = HIWORD(result);
    return LOWORD(result);
}

CString CStatusBarCtrl::GetText(int nPane, int* pType) const {
    int type = 0;
    const int length = GetTextLength(nPane, &type);
    if (pType) *pType = type;
    CString text;
    if (length == 0 || (type & SBT_OWNERDRAW)) return text;
    SendMessage(SB_GETTEXTW, static_cast<WPARAM>(nPane), as_param(text.GetBufferSetLength(length)));
    text.ReleaseBuffer();
    return text;
}

BOOL CStatusBarCtrl::GetBorders(int& nHorz, int& nVert, int& nSpacing) const {
    int borders[3] = {};
    if (!GetBorders(borders)) return FALSE;
    nHorz = borders[0];
    nVert = borders[1];
    nSpacing = borders[2];
    return TRUE;
}

CString CStatusBarCtrl::GetTipText(int nPane) const {
    CString text;
    SendMessage(SB_GETTIPTEXTW, MAKEWPARAM(nPane, kMostTipText),
                as_param(text.GetBufferSetLength(kMostTipText)));
    text.ReleaseBuffer();
    return text;
}

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) {
    if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
