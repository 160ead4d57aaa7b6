// CImageList: a list of equally large images.
#pragma once

#include <kmfc/gdi.h>
#include <kmfc/safe_handle.h>

/// An image list. The destructor destroys one that was created or attached; FromHandle makes a temporary
/// object that lasts until the thread is idle and destroys nothing. Images count from 0; -1 reports failure.
class KMFC_API CImageList : public CObject {
    DECLARE_DYNCREATE(CImageList)
public:
    CImageList() = default;
    ~CImageList() override;

    HIMAGELIST m_hImageList = nullptr;
    operator HIMAGELIST() const { return m_hImageList; }
    HIMAGELIST GetSafeHandle() const;
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();

    /// An empty list of images of `cx` by `cy` pixels.
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
        return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
    }
    /// Images of `cx` pixels side by side in a bitmap resource; `crMask` becomes transparent.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
        return Create(MAKEINTRESOURCEW(nBitmapID), cx, nGrow, crMask);
    }
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    /// One image of the first list merged with one of the second.
    BOOL Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy) {
        return Attach(::ImageList_Merge(imagelist1, nImage1, imagelist2, nImage2, dx, dy));
    }
    /// A copy of another list.
    BOOL Create(CImageList* pImageList) { return Attach(::ImageList_Duplicate(*pImageList)); }
    BOOL DeleteImageList();

    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    BOOL SetImageCount(UINT uNewCount) { return ::ImageList_SetImageCount(m_hImageList, uNewCount); }
    COLORREF GetBkColor() const { return ::ImageList_GetBkColor(m_hImageList); }
    COLORREF SetBkColor(COLORREF cr) { return ::ImageList_SetBkColor(m_hImageList, cr); }
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const {
        return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
    }
    /// The size of every image, in pixels.
    BOOL GetIconSize(int* cx, int* cy) const { return ::ImageList_GetIconSize(m_hImageList, cx, cy); }

    // The bitmaps and icons added stay the caller's.
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon) { return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon); }
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon) { return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon); }
    BOOL Remove(int nImage) { return ::ImageList_Remove(m_hImageList, nImage); }
    /// A new icon owned by the caller.
    HICON ExtractIcon(int nImage) { return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL); }
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE) {
        return ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
    }
    BOOL Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags = ILCF_MOVE) {
        return ::ImageList_Copy(m_hImageList, iDst, *pSrc, iSrc, uFlags);
    }

    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) {
        return ::ImageList_Draw(m_hImageList, nImage, kmfc::safe_handle(pDC), pt.x, pt.y, nStyle);
    }
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle) {
        return ::ImageList_DrawEx(m_hImageList, nImage, kmfc::safe_handle(pDC), pt.x, pt.y, sz.cx, sz.cy,
                                  clrBk, clrFg, nStyle);
    }
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp);
    BOOL SetOverlayImage(int nImage, int nOverlay) {
        return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
    }

    // Dragging an image over a window, in that window's coordinates.
    BOOL BeginDrag(int nImage, CPoint ptHotSpot) {
        return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
    }
    static void PASCAL EndDrag() { ::ImageList_EndDrag(); }
    static BOOL PASCAL DragMove(CPoint pt) { return ::ImageList_DragMove(pt.x, pt.y); }
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot) {
        return ::ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
    }
    static BOOL PASCAL DragShowNolock(BOOL bShow) { return ::ImageList_DragShowNolock(bShow); }
    static BOOL PASCAL DragEnter(CWnd* pWndLock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* pWndLock);
    static CImageList* PASCAL GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot) {
        return FromHandle(::ImageList_GetDragImage(lpPoint, lpPointHotSpot));
    }
};
