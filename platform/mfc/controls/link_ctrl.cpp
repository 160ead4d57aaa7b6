#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CLinkCtrl, CWnd)

namespace {

LITEM link(int index, UINT mask) {
    LITEM item = {};
    item.mask = LIF_ITEMINDEX | mask;
    item.iLink = index;
    return item;
}

}  // namespace

BOOL CLinkCtrl::Create(LPCTSTR lpszLinkMarkup, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(lpszLinkMarkup, 0, dwStyle, rect, pParentWnd, nID);
}
BOOL CLinkCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(nullptr, 0, dwStyle, rect, pParentWnd, nID);
}
BOOL CLinkCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(nullptr, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::CreateEx(LPCTSTR lpszLinkMarkup, DWORD dwExStyle, DWORD dwStyle, const RECT& rect,
                         CWnd* pParentWnd, UINT nID) {
    // The system registers this class on request only.
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LINK_CLASS};
    ::InitCommonControlsEx(&classes);
    return CWnd::CreateEx(dwExStyle, WC_LINK, lpszLinkMarkup, dwStyle, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::GetItemID(int iLink, CString& strID) const {
    LITEM item = link(iLink, LIF_ITEMID);
    if (!GetItem(&item)) return FALSE;
    strID = item.szID;
    return TRUE;
}

BOOL CLinkCtrl::GetItemID(int iLink, LPTSTR szID, UINT cchID) const {
    LITEM item = link(iLink, LIF_ITEMID);
    if (szID == nullptr || cchID == 0 || !GetItem(&item)) return FALSE;
    ::lstrcpynW(szID, item.szID, static_cast<int>(cchID));
    return TRUE;
}

BOOL CLinkCtrl::SetItemID(int iLink, LPCTSTR szID) {
    LITEM item = link(iLink, LIF_ITEMID);
    ::lstrcpynW(item.szID, szID, MAX_LINKID_TEXT);
    return SetItem(&item);
}

BOOL CLinkCtrl::GetItemUrl(int iLink, CString& strUrl) const {
    LITEM item = link(iLink, LIF_URL);
    if (!GetItem(&item)) return FALSE;
    strUrl = item.szUrl;
    return TRUE;
}

BOOL CLinkCtrl::GetItemUrl(int iLink, LPTSTR szUrl, UINT cchUrl) const {
    LITEM item = link(iLink, LIF_URL);
    if (szUrl == nullptr || cchUrl == 0 || !GetItem(&item)) return FALSE;
    ::lstrcpynW(szUrl, item.szUrl, static_cast<int>(cchUrl));
    return TRUE;
}

BOOL CLinkCtrl::SetItemUrl(int iLink, LPCTSTR szUrl) {
    LITEM item = link(iLink, LIF_URL);
    ::lstrcpynW(item.szUrl, szUrl, static_cast<int>(L_MAX_URL_LENGTH));
    return SetItem(&item);
}

BOOL CLinkCtrl::GetItemState(int iLink, UINT* pnState, UINT stateMask) const {
    LITEM item = link(iLink, LIF_STATE);
    item.stateMask = stateMask;
    if (pnState == nullptr || !GetItem(&item)) return FALSE;
    *pnState = item.state & stateMask;
    return TRUE;
}

BOOL CLinkCtrl::SetItemState(int iLink, UINT state, UINT stateMask) {
    LITEM item = link(iLink, LIF_STATE);
    item.state = state;
    item.stateMask = stateMask;
    return SetItem(&item);
}
