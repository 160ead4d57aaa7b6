// Fonts and bitmaps: what needs a device or a resource.
#include <kmfc/gdi.h>
#include <kmfc/module_state.h>

#include <cwchar>

#include "screen_dc.h"

namespace {

constexpr int kTenthsOfPointPerInch = 720;

using kmfc::ScreenDC;

HDC attributes_of(CDC* dc) { return dc ? dc->m_hAttribDC : nullptr; }

}  // namespace

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                       BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename) {
    return Attach(::CreateFontW(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                                cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality,
                                nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC) {
    LOGFONTW font = {};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    std::wcsncpy(font.lfFaceName, lpszFaceName, LF_FACESIZE - 1);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC) {
    const ScreenDC screen;
    HDC dc = pDC ? pDC->m_hAttribDC : static_cast<HDC>(screen);
    LOGFONTW font = *lpLogFont;
    // Measured between two points, so that the device's mapping counts but its origin doesn't.
    POINT size = {0, ::MulDiv(::GetDeviceCaps(dc, LOGPIXELSY), font.lfHeight, kTenthsOfPointPerInch)};
    POINT origin = {0, 0};
    ::DPtoLP(dc, &size, 1);
    ::DPtoLP(dc, &origin, 1);
    font.lfHeight = -std::abs(size.y - origin.y);
    return CreateFontIndirect(&font);
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName) {
    HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    return Attach(::LoadBitmapW(module, lpszResourceName));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize) {
    HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEW(nIDBitmap), RT_BITMAP);
    return Attach(::CreateMappedBitmap(module, nIDBitmap, nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateDiscardableBitmap(pDC->m_hDC, nWidth, nHeight));
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight) {
    CSize previous;
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &previous);
    return previous;
}

CSize CBitmap::GetBitmapDimension() const {
    CSize size;
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC) { return Attach(::CreateHalftonePalette(attributes_of(pDC))); }

BOOL CRgn::CreateFromPath(CDC* pDC) { return Attach(::PathToRegion(pDC->m_hDC)); }
