// CListBox: a list box control.
#pragma once

#include <kmfc/wnd.h>

/// A list box. Items count from 0; LB_ERR and LB_ERRSPACE report failures.
class KMFC_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
public:
    CListBox() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return send(LB_GETCOUNT); }
    int SetCount(UINT nCount) { return send(LB_SETCOUNT, nCount); }
    int GetTopIndex() const { return send(LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return send(LB_SETTOPINDEX, as_index(nIndex)); }
    int InitStorage(int nItems, UINT nBytes) { return send(LB_INITSTORAGE, as_index(nItems), nBytes); }
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    LCID GetLocale() const { return static_cast<LCID>(SendMessage(LB_GETLOCALE)); }
    LCID SetLocale(LCID nNewLocale) { return static_cast<LCID>(SendMessage(LB_SETLOCALE, nNewLocale)); }
    int GetHorizontalExtent() const { return send(LB_GETHORIZONTALEXTENT); }
    void SetHorizontalExtent(int cxExtent) { send(LB_SETHORIZONTALEXTENT, as_index(cxExtent)); }
    void SetColumnWidth(int cxWidth) { send(LB_SETCOLUMNWIDTH, as_index(cxWidth)); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops) {
        return send(LB_SETTABSTOPS, as_index(nTabStops), reinterpret_cast<LPARAM>(rgTabStops));
    }
    void SetTabStops() { send(LB_SETTABSTOPS); }
    BOOL SetTabStops(const int& cxEachStop) {
        return send(LB_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&cxEachStop));
    }
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return send(LB_SETITEMHEIGHT, as_index(nIndex), MAKELONG(cyItemHeight, 0));
    }
    int GetItemHeight(int nIndex) const { return send(LB_GETITEMHEIGHT, as_index(nIndex)); }
    int GetItemRect(int nIndex, LPRECT lpRect) const {
        return send(LB_GETITEMRECT, as_index(nIndex), reinterpret_cast<LPARAM>(lpRect));
    }

    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, as_index(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return send(LB_SETITEMDATA, as_index(nIndex), static_cast<LPARAM>(dwItemData));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData) {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }

    // Selection, of a single-selection and of a multiple-selection box.
    int GetCurSel() const { return send(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return send(LB_SETCURSEL, as_index(nSelect)); }
    int GetSel(int nIndex) const { return send(LB_GETSEL, as_index(nIndex)); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) {
        return send(LB_SETSEL, static_cast<WPARAM>(bSelect), nIndex);
    }
    int GetSelCount() const { return send(LB_GETSELCOUNT); }
    int GetSelItems(int nMaxItems, LPINT rgIndex) const {
        return send(LB_GETSELITEMS, as_index(nMaxItems), reinterpret_cast<LPARAM>(rgIndex));
    }
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    void SetAnchorIndex(int nIndex) { send(LB_SETANCHORINDEX, as_index(nIndex)); }
    int GetAnchorIndex() const { return send(LB_GETANCHORINDEX); }
    int GetCaretIndex() const { return send(LB_GETCARETINDEX); }
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE) {
        return send(LB_SETCARETINDEX, as_index(nIndex), MAKELONG(!bScroll, 0));
    }

    // Texts. The string form throws CInvalidArgException for an index out of range.
    int GetText(int nIndex, LPTSTR lpszBuffer) const {
        return send(LB_GETTEXT, as_index(nIndex), reinterpret_cast<LPARAM>(lpszBuffer));
    }
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const { return send(LB_GETTEXTLEN, as_index(nIndex)); }

    int AddString(LPCTSTR lpszItem) { return send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)); }
    int InsertString(int nIndex, LPCTSTR lpszItem) {
        return send(LB_INSERTSTRING, as_index(nIndex), reinterpret_cast<LPARAM>(lpszItem));
    }
    int DeleteString(UINT nIndex) { return send(LB_DELETESTRING, nIndex); }
    void ResetContent() { send(LB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) {
        return send(LB_DIR, attr, reinterpret_cast<LPARAM>(lpszWildCard));
    }
    int FindString(int nStartAfter, LPCTSTR lpszItem) const {
        return send(LB_FINDSTRING, as_index(nStartAfter), reinterpret_cast<LPARAM>(lpszItem));
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return send(LB_FINDSTRINGEXACT, as_index(nIndexStart), reinterpret_cast<LPARAM>(lpszFind));
    }
    int SelectString(int nStartAfter, LPCTSTR lpszItem) {
        return send(LB_SELECTSTRING, as_index(nStartAfter), reinterpret_cast<LPARAM>(lpszItem));
    }

    // An owner-drawn box asks these. The bases draw and measure nothing, and find all items equal.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    /// A key in a box with LBS_WANTKEYBOARDINPUT: -2 done, -1 the usual, else the item to go to.
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    static WPARAM as_index(int index) { return static_cast<WPARAM>(index); }
    int send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, wParam, lParam));
    }
};
