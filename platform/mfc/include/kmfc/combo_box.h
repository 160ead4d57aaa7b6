// CComboBox: a combo box control.
#pragma once

#include <kmfc/wnd.h>

/// A combo box. Items count from 0; CB_ERR and CB_ERRSPACE report failures.
class KMFC_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    CComboBox() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return send(CB_GETCOUNT); }
    int GetCurSel() const { return send(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return send(CB_SETCURSEL, as_index(nSelect)); }
    LCID GetLocale() const { return static_cast<LCID>(SendMessage(CB_GETLOCALE)); }
    LCID SetLocale(LCID nNewLocale) { return static_cast<LCID>(SendMessage(CB_SETLOCALE, nNewLocale)); }
    int GetTopIndex() const { return send(CB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return send(CB_SETTOPINDEX, as_index(nIndex)); }
    int InitStorage(int nItems, UINT nBytes) { return send(CB_INITSTORAGE, as_index(nItems), nBytes); }
    void SetHorizontalExtent(UINT nExtent) { send(CB_SETHORIZONTALEXTENT, nExtent); }
    UINT GetHorizontalExtent() const { return static_cast<UINT>(send(CB_GETHORIZONTALEXTENT)); }
    int SetDroppedWidth(UINT nWidth) { return send(CB_SETDROPPEDWIDTH, nWidth); }
    int GetDroppedWidth() const { return send(CB_GETDROPPEDWIDTH); }
    int GetMinVisible() const { return send(CB_GETMINVISIBLE); }
    BOOL SetMinVisibleItems(int iMinVisible) { return send(CB_SETMINVISIBLE, as_index(iMinVisible)); }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const;
    BOOL SetCueBanner(LPCTSTR lpszText) {
        return send(CB_SETCUEBANNER, 0, reinterpret_cast<LPARAM>(lpszText));
    }

    // The edit field.
    DWORD GetEditSel() const { return static_cast<DWORD>(SendMessage(CB_GETEDITSEL)); }
    BOOL LimitText(int nMaxChars) { return send(CB_LIMITTEXT, as_index(nMaxChars)); }
    BOOL SetEditSel(int nStartChar, int nEndChar) {
        return send(CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar));
    }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }

    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, as_index(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return send(CB_SETITEMDATA, as_index(nIndex), static_cast<LPARAM>(dwItemData));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData) {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    /// Heights in pixels; index -1 is the field itself.
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return send(CB_SETITEMHEIGHT, as_index(nIndex), MAKELONG(cyItemHeight, 0));
    }
    int GetItemHeight(int nIndex) const { return send(CB_GETITEMHEIGHT, as_index(nIndex)); }
    int SetExtendedUI(BOOL bExtended = TRUE) {
        return send(CB_SETEXTENDEDUI, static_cast<WPARAM>(bExtended));
    }
    BOOL GetExtendedUI() const { return send(CB_GETEXTENDEDUI); }
    void GetDroppedControlRect(LPRECT lprect) const {
        send(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(lprect));
    }
    BOOL GetDroppedState() const { return send(CB_GETDROPPEDSTATE); }
    void ShowDropDown(BOOL bShowIt = TRUE) { send(CB_SHOWDROPDOWN, static_cast<WPARAM>(bShowIt)); }

    // Texts. The string form throws CInvalidArgException for an index out of range.
    int GetLBText(int nIndex, LPTSTR lpszText) const {
        return send(CB_GETLBTEXT, as_index(nIndex), reinterpret_cast<LPARAM>(lpszText));
    }
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const { return send(CB_GETLBTEXTLEN, as_index(nIndex)); }

    int AddString(LPCTSTR lpszString) { return send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)); }
    int InsertString(int nIndex, LPCTSTR lpszString) {
        return send(CB_INSERTSTRING, as_index(nIndex), reinterpret_cast<LPARAM>(lpszString));
    }
    int DeleteString(UINT nIndex) { return send(CB_DELETESTRING, nIndex); }
    void ResetContent() { send(CB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) {
        return send(CB_DIR, attr, reinterpret_cast<LPARAM>(lpszWildCard));
    }
    int FindString(int nStartAfter, LPCTSTR lpszString) const {
        return send(CB_FINDSTRING, as_index(nStartAfter), reinterpret_cast<LPARAM>(lpszString));
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return send(CB_FINDSTRINGEXACT, as_index(nIndexStart), reinterpret_cast<LPARAM>(lpszFind));
    }
    int SelectString(int nStartAfter, LPCTSTR lpszString) {
        return send(CB_SELECTSTRING, as_index(nStartAfter), reinterpret_cast<LPARAM>(lpszString));
    }

    // An owner-drawn box asks these. The bases draw and measure nothing, and find all items equal.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    static WPARAM as_index(int index) { return static_cast<WPARAM>(index); }
    int send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, wParam, lParam));
    }
};
