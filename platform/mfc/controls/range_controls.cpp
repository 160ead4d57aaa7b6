#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

namespace {

CWnd* window_of(LRESULT result) { return CWnd::FromHandle(reinterpret_cast<HWND>(result)); }

}  // namespace

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(UPDOWN_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(dwExStyle, UPDOWN_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy) {
    return window_of(SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(kmfc::safe_handle(pWndBuddy))));
}

CWnd* CSpinButtonCtrl::GetBuddy() const { return window_of(SendMessage(UDM_GETBUDDY)); }

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(TRACKBAR_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CSliderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(dwExStyle, TRACKBAR_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
}

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const {
    return window_of(SendMessage(TBM_GETBUDDY, static_cast<WPARAM>(fLocation)));
}

CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation) {
    const auto buddy = reinterpret_cast<LPARAM>(kmfc::safe_handle(pWndBuddy));
    return window_of(SendMessage(TBM_SETBUDDY, static_cast<WPARAM>(fLocation), buddy));
}

CToolTipCtrl* CSliderCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(window_of(SendMessage(TBM_GETTOOLTIPS)));
}

void CSliderCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    SendMessage(TBM_SETTOOLTIPS, reinterpret_cast<WPARAM>(kmfc::safe_handle(pWndTip)));
}

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(PROGRESS_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CProgressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(dwExStyle, PROGRESS_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const {
    PBRANGE range = {};
    SendMessage(PBM_GETRANGE, TRUE, reinterpret_cast<LPARAM>(&range));
    nLower = range.iLow;
    nUpper = range.iHigh;
}
