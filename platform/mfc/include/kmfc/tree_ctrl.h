// CTreeCtrl: a tree view.
#pragma once

#include <kmfc/edit.h>
#include <kmfc/image_list.h>

class CToolTipCtrl;

/// A tree view. Null and FALSE report failures; image lists stay the caller's.
class KMFC_API CTreeCtrl : public CWnd {
    DECLARE_DYNAMIC(CTreeCtrl)
public:
    CTreeCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Looks.
    UINT GetIndent() const { return static_cast<UINT>(SendMessage(TVM_GETINDENT)); }
    void SetIndent(UINT nIndent) { SendMessage(TVM_SETINDENT, nIndent); }
    CImageList* GetImageList(UINT nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETBKCOLOR)); }
    COLORREF SetBkColor(COLORREF clr) { return static_cast<COLORREF>(SendMessage(TVM_SETBKCOLOR, 0, clr)); }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETTEXTCOLOR)); }
    COLORREF SetTextColor(COLORREF clr) {
        return static_cast<COLORREF>(SendMessage(TVM_SETTEXTCOLOR, 0, clr));
    }
    COLORREF GetInsertMarkColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETINSERTMARKCOLOR)); }
    COLORREF SetInsertMarkColor(COLORREF clr) {
        return static_cast<COLORREF>(SendMessage(TVM_SETINSERTMARKCOLOR, 0, clr));
    }
    BOOL SetInsertMark(HTREEITEM hItem, BOOL fAfter = TRUE) {
        return static_cast<BOOL>(
            SendMessage(TVM_SETINSERTMARK, static_cast<WPARAM>(fAfter), as_param(hItem)));
    }
    SHORT GetItemHeight() const { return static_cast<SHORT>(SendMessage(TVM_GETITEMHEIGHT)); }
    SHORT SetItemHeight(SHORT cyHeight) {
        return static_cast<SHORT>(SendMessage(TVM_SETITEMHEIGHT, static_cast<WPARAM>(cyHeight)));
    }
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);

    // Walking the tree.
    UINT GetCount() const { return static_cast<UINT>(SendMessage(TVM_GETCOUNT)); }
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const {
        return as_item(SendMessage(TVM_GETNEXTITEM, nCode, as_param(hItem)));
    }
    HTREEITEM GetChildItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PARENT); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(nullptr, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXTVISIBLE); }
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE); }
    HTREEITEM GetLastVisibleItem() const { return GetNextItem(nullptr, TVGN_LASTVISIBLE); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(nullptr, TVGN_DROPHILITE); }
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    BOOL ItemHasChildren(HTREEITEM hItem) const;
    UINT GetVisibleCount() const { return static_cast<UINT>(SendMessage(TVM_GETVISIBLECOUNT)); }

    // Items.
    BOOL GetItem(TVITEM* pItem) const {
        return static_cast<BOOL>(SendMessage(TVM_GETITEMW, 0, as_param(pItem)));
    }
    BOOL SetItem(TVITEM* pItem) { return static_cast<BOOL>(SendMessage(TVM_SETITEMW, 0, as_param(pItem))); }
    BOOL SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    CString GetItemText(HTREEITEM hItem) const;
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL GetCheck(HTREEITEM hItem) const;
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);
    /// FALSE when the item is not in view; with `bTextOnly` the rectangle of its text alone.
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;

    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct) {
        return as_item(SendMessage(TVM_INSERTITEMW, 0, as_param(lpInsertStruct)));
    }
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                         UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST) {
        return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
    }
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST) {
        return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage, 0, 0,
                          0, hParent, hInsertAfter);
    }
    BOOL DeleteItem(HTREEITEM hItem) {
        return static_cast<BOOL>(SendMessage(TVM_DELETEITEM, 0, as_param(hItem)));
    }
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    BOOL Expand(HTREEITEM hItem, UINT nCode) {
        return static_cast<BOOL>(SendMessage(TVM_EXPAND, nCode, as_param(hItem)));
    }
    BOOL Select(HTREEITEM hItem, UINT nCode) {
        return static_cast<BOOL>(SendMessage(TVM_SELECTITEM, nCode, as_param(hItem)));
    }
    BOOL SelectItem(HTREEITEM hItem) { return Select(hItem, TVGN_CARET); }
    BOOL SelectDropTarget(HTREEITEM hItem) { return Select(hItem, TVGN_DROPHILITE); }
    BOOL SelectSetFirstVisible(HTREEITEM hItem) { return Select(hItem, TVGN_FIRSTVISIBLE); }
    BOOL EnsureVisible(HTREEITEM hItem) {
        return static_cast<BOOL>(SendMessage(TVM_ENSUREVISIBLE, 0, as_param(hItem)));
    }
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const {
        return as_item(SendMessage(TVM_HITTEST, 0, as_param(pHitTestInfo)));
    }
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    BOOL SortChildren(HTREEITEM hItem) {
        return static_cast<BOOL>(SendMessage(TVM_SORTCHILDREN, 0, as_param(hItem)));
    }
    BOOL SortChildrenCB(LPTVSORTCB pSort) {
        return static_cast<BOOL>(SendMessage(TVM_SORTCHILDRENCB, 0, as_param(pSort)));
    }
    CEdit* EditLabel(HTREEITEM hItem);
    CEdit* GetEditControl() const;
    BOOL EndEditLabelNow(BOOL fCancel) {
        return static_cast<BOOL>(SendMessage(TVM_ENDEDITLABELNOW, static_cast<WPARAM>(fCancel)));
    }
    CImageList* CreateDragImage(HTREEITEM hItem);

private:
    static LPARAM as_param(const void* data) { return reinterpret_cast<LPARAM>(data); }
    static HTREEITEM as_item(LRESULT result) { return reinterpret_cast<HTREEITEM>(result); }
};
