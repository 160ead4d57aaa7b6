// CTabCtrl: a row of tabs.
#pragma once

#include <kmfc/image_list.h>
#include <kmfc/wnd.h>

class CToolTipCtrl;

/// A tab control. Tabs count from 0; -1 and FALSE report failures. Changing the selection by a function
/// notifies nobody.
class KMFC_API CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)
public:
    CTabCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    CImageList* GetImageList() const;
    /// The image list stays the caller's; the result is the one before.
    CImageList* SetImageList(CImageList* pImageList);
    int GetItemCount() const { return send(TCM_GETITEMCOUNT); }
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const { return send(TCM_GETITEMW, nItem, pTabCtrlItem); }
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem) { return send(TCM_SETITEMW, nItem, pTabCtrlItem); }
    BOOL SetItemExtra(int nBytes) { return send(TCM_SETITEMEXTRA, nBytes); }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const { return send(TCM_GETITEMRECT, nItem, lpRect); }
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);
    int GetCurSel() const { return send(TCM_GETCURSEL); }
    int SetCurSel(int nItem) { return send(TCM_SETCURSEL, nItem); }
    int GetCurFocus() const { return send(TCM_GETCURFOCUS); }
    void SetCurFocus(int nItem) { send(TCM_SETCURFOCUS, nItem); }
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size) { SendMessage(TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }
    int SetMinTabWidth(int cx) { return static_cast<int>(SendMessage(TCM_SETMINTABWIDTH, 0, cx)); }
    int GetRowCount() const { return send(TCM_GETROWCOUNT); }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    DWORD GetExtendedStyle() { return static_cast<DWORD>(send(TCM_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0) {
        return static_cast<DWORD>(
            SendMessage(TCM_SETEXTENDEDSTYLE, dwExMask, static_cast<LPARAM>(dwNewStyle)));
    }

    int InsertItem(int nItem, TCITEM* pTabCtrlItem) { return send(TCM_INSERTITEMW, nItem, pTabCtrlItem); }
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage = -1);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                   DWORD dwStateMask);
    BOOL DeleteItem(int nItem) { return send(TCM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return send(TCM_DELETEALLITEMS); }
    /// From the display area to the whole control (`bLarger`), or back.
    void AdjustRect(BOOL bLarger, LPRECT lpRect) { send(TCM_ADJUSTRECT, bLarger, lpRect); }
    void RemoveImage(int nImage) { send(TCM_REMOVEIMAGE, nImage); }
    int HitTest(TCHITTESTINFO* pHitTestInfo) const { return send(TCM_HITTEST, 0, pHitTestInfo); }
    void DeselectAll(BOOL fExcludeFocus) { send(TCM_DESELECTALL, fExcludeFocus); }
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE) {
        return static_cast<BOOL>(
            SendMessage(TCM_HIGHLIGHTITEM, static_cast<WPARAM>(idItem), MAKELONG(fHighlight, 0)));
    }

    /// Draws a tab of a TCS_OWNERDRAWFIXED control. The base does nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    int send(UINT message, int wParam = 0, const void* data = nullptr) const {
        return static_cast<int>(
            SendMessage(message, static_cast<WPARAM>(wParam), reinterpret_cast<LPARAM>(data)));
    }
};
