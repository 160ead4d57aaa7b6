// CListCtrl: a list view.
#pragma once

#include <kmfc/header_ctrl.h>
#include <kmfc/edit.h>

/// A list view. Items, columns and groups' places count from 0; -1 and FALSE report failures. Image lists
/// stay the caller's.
class KMFC_API CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)
public:
    CListCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Looks.
    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETBKCOLOR)); }
    BOOL SetBkColor(COLORREF cr) { return send(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(cr)); }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETTEXTCOLOR)); }
    BOOL SetTextColor(COLORREF cr) { return send(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(cr)); }
    COLORREF GetTextBkColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETTEXTBKCOLOR)); }
    BOOL SetTextBkColor(COLORREF cr) { return send(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(cr)); }
    CImageList* GetImageList(int nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwNewStyle) {
        return static_cast<DWORD>(send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(dwNewStyle)));
    }
    DWORD GetView() const { return static_cast<DWORD>(SendMessage(LVM_GETVIEW)); }
    DWORD SetView(int iView) { return static_cast<DWORD>(send(LVM_SETVIEW, as_index(iView))); }
    UINT GetCallbackMask() const { return static_cast<UINT>(SendMessage(LVM_GETCALLBACKMASK)); }
    BOOL SetCallbackMask(UINT nMask) { return send(LVM_SETCALLBACKMASK, nMask); }
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size) { return SetIconSpacing(size.cx, size.cy); }
    CSize ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const;

    // Items.
    int GetItemCount() const { return send(LVM_GETITEMCOUNT); }
    void SetItemCount(int nItems) { send(LVM_SETITEMCOUNT, as_index(nItems)); }
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL) {
        return send(LVM_SETITEMCOUNT, as_index(iCount), static_cast<LPARAM>(dwFlags));
    }
    BOOL GetItem(LVITEM* pItem) const { return send(LVM_GETITEMW, 0, as_param(pItem)); }
    BOOL SetItem(const LVITEM* pItem) { return send(LVM_SETITEMW, 0, as_param(pItem)); }
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam, int nIndent);
    int InsertItem(const LVITEM* pItem) { return send(LVM_INSERTITEMW, 0, as_param(pItem)); }
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                   LPARAM lParam);
    BOOL DeleteItem(int nItem) { return send(LVM_DELETEITEM, as_index(nItem)); }
    BOOL DeleteAllItems() { return send(LVM_DELETEALLITEMS); }
    int GetNextItem(int nItem, int nFlags) const {
        return send(LVM_GETNEXTITEM, as_index(nItem), MAKELPARAM(nFlags, 0));
    }
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const {
        return send(LVM_FINDITEMW, as_index(nStart), as_param(pFindInfo));
    }
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
        return send(LVM_SORTITEMS, dwData, reinterpret_cast<LPARAM>(pfnCompare));
    }
    BOOL SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
        return send(LVM_SORTITEMSEX, dwData, reinterpret_cast<LPARAM>(pfnCompare));
    }
    CString GetItemText(int nItem, int nSubItem) const;
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    UINT GetItemState(int nItem, UINT nMask) const {
        return static_cast<UINT>(send(LVM_GETITEMSTATE, as_index(nItem), static_cast<LPARAM>(nMask)));
    }
    BOOL SetItemState(int nItem, LVITEM* pItem) {
        return send(LVM_SETITEMSTATE, as_index(nItem), as_param(pItem));
    }
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    BOOL GetCheck(int nItem) const;
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const;
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const {
        return send(LVM_GETITEMPOSITION, as_index(nItem), as_param(lpPoint));
    }
    BOOL SetItemPosition(int nItem, POINT pt) {
        return send(LVM_SETITEMPOSITION32, as_index(nItem), as_param(&pt));
    }
    int HitTest(LVHITTESTINFO* pHitTestInfo) const { return send(LVM_HITTEST, 0, as_param(pHitTestInfo)); }
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    int SubItemHitTest(LVHITTESTINFO* pInfo) { return send(LVM_SUBITEMHITTEST, 0, as_param(pInfo)); }
    BOOL EnsureVisible(int nItem, BOOL bPartialOK) {
        return send(LVM_ENSUREVISIBLE, as_index(nItem), MAKELPARAM(bPartialOK, 0));
    }
    BOOL Scroll(CSize size) { return send(LVM_SCROLL, as_index(size.cx), size.cy); }
    BOOL RedrawItems(int nFirst, int nLast) { return send(LVM_REDRAWITEMS, as_index(nFirst), nLast); }
    BOOL Update(int nItem) { return send(LVM_UPDATE, as_index(nItem)); }
    BOOL Arrange(UINT nCode) { return send(LVM_ARRANGE, nCode); }
    int GetTopIndex() const { return send(LVM_GETTOPINDEX); }
    int GetCountPerPage() const { return send(LVM_GETCOUNTPERPAGE); }
    BOOL GetOrigin(LPPOINT lpPoint) const { return send(LVM_GETORIGIN, 0, as_param(lpPoint)); }
    BOOL GetViewRect(LPRECT lpRect) const { return send(LVM_GETVIEWRECT, 0, as_param(lpRect)); }
    int GetStringWidth(LPCTSTR lpsz) const { return send(LVM_GETSTRINGWIDTHW, 0, as_param(lpsz)); }

    // Selection.
    UINT GetSelectedCount() const { return static_cast<UINT>(SendMessage(LVM_GETSELECTEDCOUNT)); }
    /// A walk over the selected items: start here, go on with GetNextSelectedItem until the position is null.
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& pos) const;
    int GetSelectionMark() { return send(LVM_GETSELECTIONMARK); }
    int SetSelectionMark(int iIndex) { return send(LVM_SETSELECTIONMARK, 0, iIndex); }
    int GetHotItem() { return send(LVM_GETHOTITEM); }
    int SetHotItem(int iIndex) { return send(LVM_SETHOTITEM, as_index(iIndex)); }

    // Columns.
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const {
        return send(LVM_GETCOLUMNW, as_index(nCol), as_param(pColumn));
    }
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn) {
        return send(LVM_SETCOLUMNW, as_index(nCol), as_param(pColumn));
    }
    int InsertColumn(int nCol, const LVCOLUMN* pColumn) {
        return send(LVM_INSERTCOLUMNW, as_index(nCol), as_param(pColumn));
    }
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    BOOL DeleteColumn(int nCol) { return send(LVM_DELETECOLUMN, as_index(nCol)); }
    int GetColumnWidth(int nCol) const { return send(LVM_GETCOLUMNWIDTH, as_index(nCol)); }
    BOOL SetColumnWidth(int nCol, int cx) {
        return send(LVM_SETCOLUMNWIDTH, as_index(nCol), MAKELPARAM(cx, 0));
    }
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray) {
        return send(LVM_SETCOLUMNORDERARRAY, as_index(iCount), as_param(piArray));
    }
    CHeaderCtrl* GetHeaderCtrl() const;

    // Label editing, tips, backgrounds, work areas.
    CEdit* EditLabel(int nItem);
    CEdit* GetEditControl() const;
    void CancelEditLabel() { send(LVM_CANCELEDITLABEL); }
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);
    class CToolTipCtrl* GetToolTips() const;
    class CToolTipCtrl* SetToolTips(class CToolTipCtrl* pWndTip);
    BOOL GetBkImage(LVBKIMAGE* plvbkImage) const { return send(LVM_GETBKIMAGEW, 0, as_param(plvbkImage)); }
    BOOL SetBkImage(LVBKIMAGE* plvbkImage) { return send(LVM_SETBKIMAGEW, 0, as_param(plvbkImage)); }

    // Groups.
    LRESULT EnableGroupView(BOOL fEnable) {
        return SendMessage(LVM_ENABLEGROUPVIEW, static_cast<WPARAM>(fEnable));
    }
    BOOL IsGroupViewEnabled() const { return send(LVM_ISGROUPVIEWENABLED); }
    LRESULT InsertGroup(int index, PLVGROUP pgrp) {
        return SendMessage(LVM_INSERTGROUP, as_index(index), as_param(pgrp));
    }
    int SetGroupInfo(int iGroupId, PLVGROUP pgrp) {
        return send(LVM_SETGROUPINFO, as_index(iGroupId), as_param(pgrp));
    }
    int GetGroupInfo(int iGroupId, PLVGROUP pgrp) const {
        return send(LVM_GETGROUPINFO, as_index(iGroupId), as_param(pgrp));
    }
    LRESULT RemoveGroup(int iGroupId) { return SendMessage(LVM_REMOVEGROUP, as_index(iGroupId)); }
    void RemoveAllGroups() { send(LVM_REMOVEALLGROUPS); }
    BOOL HasGroup(int iGroupId) const { return send(LVM_HASGROUP, as_index(iGroupId)); }

    /// Draws an item of an LVS_OWNERDRAWFIXED list. The base does nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    static WPARAM as_index(int index) { return static_cast<WPARAM>(index); }
    static LPARAM as_param(const void* data) { return reinterpret_cast<LPARAM>(data); }
    int send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, wParam, lParam));
    }
};
