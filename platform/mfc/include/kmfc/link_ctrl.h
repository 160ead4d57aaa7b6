// CLinkCtrl: a text with links in it.
#pragma once

#include <kmfc/wnd.h>

/// A link control. Links count from 0; FALSE reports failures.
class KMFC_API CLinkCtrl : public CWnd {
    DECLARE_DYNAMIC(CLinkCtrl)
public:
    CLinkCtrl() = default;
    /// `lpszLinkMarkup` is the text, with links as <a id="x" href="y">...</a>.
    virtual BOOL Create(LPCTSTR lpszLinkMarkup, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(LPCTSTR lpszLinkMarkup, DWORD dwExStyle, DWORD dwStyle, const RECT& rect,
                          CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// The height in pixels that the text needs at the control's width.
    int GetIdealHeight() const { return static_cast<int>(SendMessage(LM_GETIDEALHEIGHT)); }
    int GetIdealSize(int cxMaxWidth, SIZE* pSize) const {
        return static_cast<int>(
            SendMessage(LM_GETIDEALHEIGHT, static_cast<WPARAM>(cxMaxWidth), reinterpret_cast<LPARAM>(pSize)));
    }
    BOOL HitTest(PLHITTESTINFO phti) const {
        return static_cast<BOOL>(SendMessage(LM_HITTEST, 0, reinterpret_cast<LPARAM>(phti)));
    }

    /// What the mask of the link `iLink` asks for.
    BOOL GetItem(PLITEM pItem) const {
        return static_cast<BOOL>(SendMessage(LM_GETITEM, 0, reinterpret_cast<LPARAM>(pItem)));
    }
    BOOL SetItem(PLITEM pItem) {
        return static_cast<BOOL>(SendMessage(LM_SETITEM, 0, reinterpret_cast<LPARAM>(pItem)));
    }
    BOOL GetItemID(int iLink, CString& strID) const;
    BOOL GetItemID(int iLink, LPTSTR szID, UINT cchID) const;
    BOOL SetItemID(int iLink, LPCTSTR szID);
    BOOL GetItemUrl(int iLink, CString& strUrl) const;
    BOOL GetItemUrl(int iLink, LPTSTR szUrl, UINT cchUrl) const;
    BOOL SetItemUrl(int iLink, LPCTSTR szUrl);
    /// LIS_ bits of the mask.
    BOOL GetItemState(int iLink, UINT* pnState,
                      UINT stateMask = LIS_FOCUSED | LIS_ENABLED | LIS_VISITED) const;
    BOOL SetItemState(int iLink, UINT state, UINT stateMask = LIS_FOCUSED | LIS_ENABLED | LIS_VISITED);
};
