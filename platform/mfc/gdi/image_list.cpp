#include <kmfc/image_list.h>
#include <kmfc/module_state.h>
#include <kmfc/wnd.h>

#include "gdi_maps.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)

using kmfc::gdi_maps;

CImageList::~CImageList() { DeleteImageList(); }

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList) {
    return gdi_maps().image_lists.FromHandle(hImageList);
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList) {
    return gdi_maps().image_lists.LookupPermanent(hImageList);
}

void PASCAL CImageList::DeleteTempMap() { gdi_maps().image_lists.DeleteTemp(); }

BOOL CImageList::Attach(HIMAGELIST hImageList) {
    if (!hImageList) return FALSE;
    if (m_hImageList != hImageList) Detach();
    m_hImageList = hImageList;
    gdi_maps().image_lists.SetPermanent(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach() {
    HIMAGELIST list = m_hImageList;
    if (list) gdi_maps().image_lists.RemoveHandle(list, this);
    m_hImageList = nullptr;
    return list;
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask) {
    HINSTANCE module = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return Attach(::ImageList_LoadImageW(module, lpszBitmapID, cx, nGrow, crMask, IMAGE_BITMAP, 0));
}

BOOL CImageList::DeleteImageList() {
    HIMAGELIST list = Detach();
    return list && ::ImageList_Destroy(list);
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Add(m_hImageList, *pbmImage, pbmMask ? static_cast<HBITMAP>(*pbmMask) : nullptr);
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask) {
    return ::ImageList_AddMasked(m_hImageList, *pbmImage, crMask);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Replace(m_hImageList, nImage, *pbmImage,
                               pbmMask ? static_cast<HBITMAP>(*pbmMask) : nullptr);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* pimldp) {
    pimldp->cbSize = sizeof *pimldp;
    pimldp->himl = m_hImageList;
    return ::ImageList_DrawIndirect(pimldp);
}

BOOL PASCAL CImageList::DragEnter(CWnd* pWndLock, CPoint point) {
    return ::ImageList_DragEnter(kmfc::safe_handle(pWndLock), point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd* pWndLock) {
    return ::ImageList_DragLeave(kmfc::safe_handle(pWndLock));
}
