#include <kmfc/gdi_objects.h>

#include <algorithm>
#include <cwchar>

#include "../window/thread_state.h"
#include "gdi_maps.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

using kmfc::gdi_maps;

kmfc::GdiMaps& kmfc::gdi_maps() { return thread_state().m_gdi; }

CGdiObject::~CGdiObject() { DeleteObject(); }

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject) {
    if (!hObject) return nullptr;
    kmfc::GdiMaps& maps = gdi_maps();
    if (CGdiObject* permanent = maps.objects.LookupPermanent(hObject)) return permanent;
    switch (::GetObjectType(hObject)) {
        case OBJ_PEN:
        case OBJ_EXTPEN: return maps.pens.FromHandle(hObject);
        case OBJ_BRUSH: return maps.brushes.FromHandle(hObject);
        case OBJ_FONT: return maps.fonts.FromHandle(hObject);
        case OBJ_BITMAP: return maps.bitmaps.FromHandle(hObject);
        case OBJ_PAL: return maps.palettes.FromHandle(hObject);
        case OBJ_REGION: return maps.regions.FromHandle(hObject);
        default: return maps.objects.FromHandle(hObject);
    }
}

void PASCAL CGdiObject::DeleteTempMap() { gdi_maps().delete_temporary_objects(); }

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    if (!hObject) return FALSE;
    if (m_hObject != hObject) Detach();
    m_hObject = hObject;
    gdi_maps().objects.SetPermanent(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    HGDIOBJ object = m_hObject;
    if (object) gdi_maps().objects.RemoveHandle(object, this);
    m_hObject = nullptr;
    return object;
}

BOOL CGdiObject::DeleteObject() {
    HGDIOBJ object = Detach();
    return object && ::DeleteObject(object);
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    if (!CreatePen(nPenStyle, nWidth, crColor)) AfxThrowResourceException();
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle) {
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle)) AfxThrowResourceException();
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle) {
    return Attach(::ExtCreatePen(static_cast<DWORD>(nPenStyle), static_cast<DWORD>(nWidth), pLogBrush,
                                 static_cast<DWORD>(nStyleCount), lpStyle));
}

CBrush::CBrush(COLORREF crColor) {
    if (!CreateSolidBrush(crColor)) AfxThrowResourceException();
}

CBrush::CBrush(int nIndex, COLORREF crColor) {
    if (!CreateHatchBrush(nIndex, crColor)) AfxThrowResourceException();
}

CBrush::CBrush(CBitmap* pBitmap) {
    if (!CreatePatternBrush(pBitmap)) AfxThrowResourceException();
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) { return Attach(::CreatePatternBrush(*pBitmap)); }

int CPalette::GetEntryCount() {
    WORD count = 0;
    GetObject(sizeof count, &count);
    return count;
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, *pRgn1, pRgn2 ? static_cast<HRGN>(*pRgn2) : nullptr, nCombineMode);
}

int CRgn::CopyRgn(const CRgn* pRgnSrc) { return CombineRgn(pRgnSrc, nullptr, RGN_COPY); }
