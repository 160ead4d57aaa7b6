// CHeaderCtrl: column headings.
#pragma once

#include <kmfc/image_list.h>
#include <kmfc/wnd.h>

/// A header control. Items count from 0; -1 and FALSE report failures.
class KMFC_API CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)
public:
    CHeaderCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetItemCount() const { return static_cast<int>(SendMessage(HDM_GETITEMCOUNT)); }
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const { return send(HDM_GETITEMW, nPos, pHeaderItem); }
    BOOL SetItem(int nPos, HDITEM* pHeaderItem) { return send(HDM_SETITEMW, nPos, pHeaderItem); }
    int InsertItem(int nPos, HDITEM* phdi) { return send(HDM_INSERTITEMW, nPos, phdi); }
    BOOL DeleteItem(int nPos) { return send(HDM_DELETEITEM, nPos, nullptr); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const { return send(HDM_GETITEMRECT, nIndex, lpRect); }
    int HitTest(HDHITTESTINFO* phdhti) { return send(HDM_HITTEST, 0, phdhti); }
    /// The index of the item shown at a place.
    int OrderToIndex(int nOrder) const { return send(HDM_ORDERTOINDEX, nOrder, nullptr); }
    BOOL GetOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetOrderArray(int iCount, LPINT piArray) { return send(HDM_SETORDERARRAY, iCount, piArray); }
    BOOL Layout(HDLAYOUT* pHeaderLayout) { return send(HDM_LAYOUT, 0, pHeaderLayout); }
    /// The image list stays the caller's; the result is the one before.
    CImageList* SetImageList(CImageList* pImageList);
    CImageList* GetImageList() const;
    CImageList* CreateDragImage(int nIndex);
    int SetHotDivider(int nIndex) { return static_cast<int>(SendMessage(HDM_SETHOTDIVIDER, FALSE, nIndex)); }
    int GetBitmapMargin() const { return static_cast<int>(SendMessage(HDM_GETBITMAPMARGIN)); }
    int SetBitmapMargin(int nWidth) { return send(HDM_SETBITMAPMARGIN, nWidth, nullptr); }

    /// Draws an HDF_OWNERDRAW item. The base does nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    int send(UINT message, int index, const void* data) const {
        return static_cast<int>(
            SendMessage(message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(data)));
    }
};
