// CStatusBarCtrl: a status bar as the system draws it.
#pragma once

#include <kmfc/wnd.h>

/// A status bar. Panes count from 0; SB_SIMPLEID is the simple pane.
class KMFC_API CStatusBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CStatusBarCtrl)
public:
    CStatusBarCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// Sets a pane's text; `nType` is 0 or SBT_ flags, with SBT_OWNERDRAW the text is handed to DrawItem.
    BOOL SetText(LPCTSTR lpszText, int nPane, int nType) {
        return static_cast<BOOL>(
            SendMessage(SB_SETTEXTW, static_cast<WPARAM>(nPane | nType), as_param(lpszText)));
    }
    CString GetText(int nPane, int* pType = nullptr) const;
    int GetTextLength(int nPane, int* pType = nullptr) const;
    /// The right edges of the panes in pixels; -1 for the bar's own.
    BOOL SetParts(int nParts, int* pWidths) {
        return static_cast<BOOL>(SendMessage(SB_SETPARTS, static_cast<WPARAM>(nParts), as_param(pWidths)));
    }
    int GetParts(int nParts, int* pParts) const {
        return static_cast<int>(SendMessage(SB_GETPARTS, static_cast<WPARAM>(nParts), as_param(pParts)));
    }
    BOOL GetBorders(int* pBorders) const {
        return static_cast<BOOL>(SendMessage(SB_GETBORDERS, 0, as_param(pBorders)));
    }
    BOOL GetBorders(int& nHorz, int& nVert, int& nSpacing) const;
    void SetMinHeight(int nMin) { SendMessage(SB_SETMINHEIGHT, static_cast<WPARAM>(nMin)); }
    BOOL SetSimple(BOOL bSimple = TRUE) {
        return static_cast<BOOL>(SendMessage(SB_SIMPLE, static_cast<WPARAM>(bSimple)));
    }
    BOOL IsSimple() const { return static_cast<BOOL>(SendMessage(SB_ISSIMPLE)); }
    BOOL GetRect(int nPane, LPRECT lpRect) const {
        return static_cast<BOOL>(SendMessage(SB_GETRECT, static_cast<WPARAM>(nPane), as_param(lpRect)));
    }
    COLORREF SetBkColor(COLORREF cr) { return static_cast<COLORREF>(SendMessage(SB_SETBKCOLOR, 0, cr)); }
    HICON GetIcon(int iPart) const {
        return reinterpret_cast<HICON>(SendMessage(SB_GETICON, static_cast<WPARAM>(iPart)));
    }
    BOOL SetIcon(int nPane, HICON hIcon) {
        return static_cast<BOOL>(SendMessage(SB_SETICON, static_cast<WPARAM>(nPane), as_param(hIcon)));
    }
    void SetTipText(int nPane, LPCTSTR pszTipText) {
        SendMessage(SB_SETTIPTEXTW, static_cast<WPARAM>(nPane), as_param(pszTipText));
    }
    CString GetTipText(int nPane) const;

    /// Draws an SBT_OWNERDRAW pane. The base does nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    static LPARAM as_param(const void* data) { return reinterpret_cast<LPARAM>(data); }
};
