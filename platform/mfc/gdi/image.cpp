// CImage: the bitmap, its pixels, and drawing it.
#include <kmfc/image.h>

#include <cstdlib>

template <class Action>
BOOL CImage::with_dc(Action action) const {
    if (m_hBitmap == nullptr) return FALSE;
    const BOOL result = action(GetDC());
    ReleaseDC();
    return result;
}

CImage::~CImage() { Destroy(); }

void CImage::Attach(HBITMAP hBitmap, DIBOrientation eOrientation) noexcept {
    if (hBitmap == m_hBitmap) return;
    Destroy();
    m_hBitmap = hBitmap;
    read_bitmap(eOrientation);
}

HBITMAP CImage::Detach() noexcept {
    while (m_dcUses > 0) ReleaseDC();
    HBITMAP bitmap = m_hBitmap;
    m_hBitmap = nullptr;
    m_bits = nullptr;
    m_width = m_height = m_pitch = m_bpp = 0;
    m_isSection = m_hasAlpha = false;
    m_transparent = -1;
    return bitmap;
}

void CImage::Destroy() noexcept {
    HBITMAP bitmap = Detach();
    if (bitmap != nullptr) ::DeleteObject(bitmap);
}

/// Fills in what the bitmap is.
void CImage::read_bitmap(DIBOrientation orientation) {
    DIBSECTION section = {};
    const int size = ::GetObjectW(m_hBitmap, sizeof section, &section);
    if (size < static_cast<int>(sizeof(BITMAP))) {
        // No bitmap at all: nothing to own.
        m_hBitmap = nullptr;
        return;
    }
    m_width = section.dsBm.bmWidth;
    m_height = std::abs(section.dsBm.bmHeight);
    m_bpp = section.dsBm.bmBitsPixel * section.dsBm.bmPlanes;
    m_isSection = size == sizeof section;
    if (!m_isSection) return;
    m_bpp = section.dsBmih.biBitCount;
    const bool isTopDown =
        orientation == DIBOR_TOPDOWN || (orientation == DIBOR_DEFAULT && section.dsBmih.biHeight < 0);
    m_pitch = section.dsBm.bmWidthBytes;
    m_bits = section.dsBm.bmBits;
    if (isTopDown) return;
    m_bits = static_cast<BYTE*>(m_bits) + static_cast<ptrdiff_t>(m_height - 1) * m_pitch;
    m_pitch = -m_pitch;
}

BOOL CImage::Create(int nWidth, int nHeight, int nBPP, DWORD dwFlags) noexcept {
    return CreateEx(nWidth, nHeight, nBPP, BI_RGB, nullptr, dwFlags);
}

BOOL CImage::CreateEx(int nWidth, int nHeight, int nBPP, DWORD eCompression, const DWORD* pdwBitmasks,
                      DWORD dwFlags) noexcept {
    const bool masked = eCompression == BI_BITFIELDS && pdwBitmasks != nullptr && (nBPP == 16 || nBPP == 32);
    const bool alpha = (dwFlags & createAlphaChannel) != 0;
    if (!masked && (eCompression != BI_RGB || pdwBitmasks != nullptr)) return FALSE;
    if (alpha && (nBPP != 32 || masked)) return FALSE;
    if (nWidth <= 0 || nHeight == 0 || nHeight == INT_MIN) return FALSE;
    struct {
        BITMAPINFOHEADER header;
        DWORD colors[256];
    } info = {};
    info.header = {sizeof info.header,
                   nWidth,
                   nHeight,
                   1,
                   static_cast<WORD>(nBPP),
                   masked ? DWORD{BI_BITFIELDS} : DWORD{BI_RGB},
                   0,
                   0,
                   0,
                   0,
                   0};
    if (masked) memcpy(info.colors, pdwBitmasks, 3 * sizeof(DWORD));
    void* bits = nullptr;
    HBITMAP bitmap =
        ::CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap == nullptr) return FALSE;
    Attach(bitmap, nHeight < 0 ? DIBOR_TOPDOWN : DIBOR_BOTTOMUP);
    m_hasAlpha = alpha;
    return TRUE;
}

void CImage::LoadFromResource(HINSTANCE hInstance, LPCTSTR pszResourceName) noexcept {
    Attach(static_cast<HBITMAP>(
        ::LoadImageW(hInstance, pszResourceName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

void* CImage::GetPixelAddress(int x, int y) noexcept {
    if (m_bits == nullptr || !has(x, y)) return nullptr;
    return static_cast<BYTE*>(m_bits) + static_cast<ptrdiff_t>(y) * m_pitch +
           static_cast<ptrdiff_t>(x) * m_bpp / 8;
}

void CImage::GetColorTable(UINT iFirstColor, UINT nColors, RGBQUAD* prgbColors) const noexcept {
    if (!IsIndexed() || prgbColors == nullptr) return;
    ::GetDIBColorTable(GetDC(), iFirstColor, nColors, prgbColors);
    ReleaseDC();
}

void CImage::SetColorTable(UINT iFirstColor, UINT nColors, const RGBQUAD* prgbColors) noexcept {
    if (!IsIndexed() || prgbColors == nullptr) return;
    ::SetDIBColorTable(GetDC(), iFirstColor, nColors, prgbColors);
    ReleaseDC();
}

COLORREF CImage::GetPixel(int x, int y) const noexcept {
    if (!has(x, y)) return CLR_INVALID;
    const COLORREF color = ::GetPixel(GetDC(), x, y);
    ReleaseDC();
    return color;
}

void CImage::SetPixel(int x, int y, COLORREF color) noexcept {
    with_dc([&](HDC dc) { return ::SetPixelV(dc, x, y, color); });
}

void CImage::SetPixelIndexed(int x, int y, int iIndex) noexcept {
    auto* at = static_cast<BYTE*>(GetPixelAddress(x, y));
    if (!IsIndexed() || at == nullptr || iIndex < 0 || iIndex >= GetMaxColorTableEntries()) return;
    ::GdiFlush();
    // The pixel's bits are the higher ones of the byte the farther left it stands.
    const int shift = 8 - m_bpp - (x * m_bpp) % 8;
    const int mask = (GetMaxColorTableEntries() - 1) << shift;
    *at = static_cast<BYTE>((*at & ~mask) | (iIndex << shift));
}

LONG CImage::SetTransparentColor(LONG iTransparentColor) noexcept {
    const LONG former = m_transparent;
    m_transparent =
        iTransparentColor >= 0 && iTransparentColor < GetMaxColorTableEntries() ? iTransparentColor : -1;
    return former;
}

HDC CImage::GetDC() const noexcept {
    if (m_hBitmap == nullptr) return nullptr;
    if (m_dcUses++ == 0) {
        m_hDC = ::CreateCompatibleDC(nullptr);
        m_hFormer = ::SelectObject(m_hDC, m_hBitmap);
    }
    return m_hDC;
}

void CImage::ReleaseDC() const noexcept {
    if (m_dcUses == 0 || --m_dcUses > 0) return;
    ::SelectObject(m_hDC, m_hFormer);
    ::DeleteDC(m_hDC);
    m_hDC = nullptr;
}

namespace {

int width(const RECT& rect) { return rect.right - rect.left; }
int height(const RECT& rect) { return rect.bottom - rect.top; }

}  // namespace

BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                  int nSrcWidth, int nSrcHeight) const noexcept {
    if (m_transparent != -1)
        return TransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth,
                              nSrcHeight);
    if (m_hasAlpha)
        return AlphaBlend(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth, nSrcHeight);
    return StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth, nSrcHeight);
}
BOOL CImage::Draw(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc) const noexcept {
    return Draw(hDestDC, rectDest.left, rectDest.top, width(rectDest), height(rectDest), rectSrc.left,
                rectSrc.top, width(rectSrc), height(rectSrc));
}
BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest) const noexcept {
    return Draw(hDestDC, xDest, yDest, m_width, m_height);
}
BOOL CImage::Draw(HDC hDestDC, const POINT& pointDest) const noexcept {
    return Draw(hDestDC, pointDest.x, pointDest.y);
}
BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight) const noexcept {
    return Draw(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, m_width, m_height);
}
BOOL CImage::Draw(HDC hDestDC, const RECT& rectDest) const noexcept {
    return Draw(hDestDC, rectDest.left, rectDest.top, width(rectDest), height(rectDest));
}

BOOL CImage::StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                        int ySrc, int nSrcWidth, int nSrcHeight, DWORD dwROP) const noexcept {
    return with_dc([&](HDC dc) {
        return ::StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, dc, xSrc, ySrc, nSrcWidth,
                            nSrcHeight, dwROP);
    });
}
BOOL CImage::StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        DWORD dwROP) const noexcept {
    return StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, m_width, m_height, dwROP);
}
BOOL CImage::StretchBlt(HDC hDestDC, const RECT& rectDest, DWORD dwROP) const noexcept {
    return StretchBlt(hDestDC, rectDest.left, rectDest.top, width(rectDest), height(rectDest), dwROP);
}
BOOL CImage::StretchBlt(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc, DWORD dwROP) const noexcept {
    return StretchBlt(hDestDC, rectDest.left, rectDest.top, width(rectDest), height(rectDest), rectSrc.left,
                      rectSrc.top, width(rectSrc), height(rectSrc), dwROP);
}

BOOL CImage::BitBlt(HDC hDestDC, int xDest, int yDest, DWORD dwROP) const noexcept {
    return BitBlt(hDestDC, xDest, yDest, m_width, m_height, 0, 0, dwROP);
}
BOOL CImage::BitBlt(HDC hDestDC, const POINT& pointDest, DWORD dwROP) const noexcept {
    return BitBlt(hDestDC, pointDest.x, pointDest.y, dwROP);
}
BOOL CImage::BitBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                    DWORD dwROP) const noexcept {
    return with_dc([&](HDC dc) {
        return ::BitBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, dc, xSrc, ySrc, dwROP);
    });
}
BOOL CImage::BitBlt(HDC hDestDC, const RECT& rectDest, const POINT& pointSrc, DWORD dwROP) const noexcept {
    return BitBlt(hDestDC, rectDest.left, rectDest.top, width(rectDest), height(rectDest), pointSrc.x,
                  pointSrc.y, dwROP);
}

BOOL CImage::AlphaBlend(HDC hDestDC, int xDest, int yDest, BYTE bSrcAlpha, BYTE bBlendOp) const noexcept {
    return AlphaBlend(hDestDC, xDest, yDest, m_width, m_height, 0, 0, m_width, m_height, bSrcAlpha, bBlendOp);
}
BOOL CImage::AlphaBlend(HDC hDestDC, const POINT& pointDest, BYTE bSrcAlpha, BYTE bBlendOp) const noexcept {
    return AlphaBlend(hDestDC, pointDest.x, pointDest.y, bSrcAlpha, bBlendOp);
}
BOOL CImage::AlphaBlend(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                        int ySrc, int nSrcWidth, int nSrcHeight, BYTE bSrcAlpha,
                        BYTE bBlendOp) const noexcept {
    const BLENDFUNCTION blend = {bBlendOp, 0, bSrcAlpha, static_cast<BYTE>(m_hasAlpha ? AC_SRC_ALPHA : 0)};
    return with_dc([&](HDC dc) {
        return ::AlphaBlend(hDestDC, xDest, yDest, nDestWidth, nDestHeight, dc, xSrc, ySrc, nSrcWidth,
                            nSrcHeight, blend);
    });
}
BOOL CImage::AlphaBlend(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc, BYTE bSrcAlpha,
                        BYTE bBlendOp) const noexcept {
    return AlphaBlend(hDestDC, rectDest.left, rectDest.top, width(rectDest), height(rectDest), rectSrc.left,
                      rectSrc.top, width(rectSrc), height(rectSrc), bSrcAlpha, bBlendOp);
}

BOOL CImage::TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                            UINT crTransparent) const noexcept {
    return TransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, m_width, m_height,
                          crTransparent);
}
BOOL CImage::TransparentBlt(HDC hDestDC, const RECT& rectDest, UINT crTransparent) const noexcept {
    return TransparentBlt(hDestDC, rectDest.left, rectDest.top, width(rectDest), height(rectDest),
                          crTransparent);
}
BOOL CImage::TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                            int ySrc, int nSrcWidth, int nSrcHeight, UINT crTransparent) const noexcept {
    if (crTransparent == CLR_INVALID) {
        if (m_transparent < 0) return FALSE;
        RGBQUAD color = {};
        GetColorTable(static_cast<UINT>(m_transparent), 1, &color);
        crTransparent = RGB(color.rgbRed, color.rgbGreen, color.rgbBlue);
    }
    return with_dc([&](HDC dc) {
        return ::TransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, dc, xSrc, ySrc, nSrcWidth,
                                nSrcHeight, crTransparent);
    });
}
BOOL CImage::TransparentBlt(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc,
                            UINT crTransparent) const noexcept {
    return TransparentBlt(hDestDC, rectDest.left, rectDest.top, width(rectDest), height(rectDest),
                          rectSrc.left, rectSrc.top, width(rectSrc), height(rectSrc), crTransparent);
}

BOOL CImage::MaskBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                     HBITMAP hbmMask, int xMask, int yMask, DWORD dwROP) const noexcept {
    return with_dc([&](HDC dc) {
        return ::MaskBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, dc, xSrc, ySrc, hbmMask, xMask,
                         yMask, dwROP);
    });
}
BOOL CImage::MaskBlt(HDC hDestDC, const RECT& rectDest, const POINT& pointSrc, HBITMAP hbmMask,
                     const POINT& pointMask, DWORD dwROP) const noexcept {
    return MaskBlt(hDestDC, rectDest.left, rectDest.top, width(rectDest), height(rectDest), pointSrc.x,
                   pointSrc.y, hbmMask, pointMask.x, pointMask.y, dwROP);
}
BOOL CImage::MaskBlt(HDC hDestDC, int xDest, int yDest, HBITMAP hbmMask, DWORD dwROP) const noexcept {
    return MaskBlt(hDestDC, xDest, yDest, m_width, m_height, 0, 0, hbmMask, 0, 0, dwROP);
}
BOOL CImage::MaskBlt(HDC hDestDC, const POINT& pointDest, HBITMAP hbmMask, DWORD dwROP) const noexcept {
    return MaskBlt(hDestDC, pointDest.x, pointDest.y, hbmMask, dwROP);
}

BOOL CImage::PlgBlt(HDC hDestDC, const POINT* pPoints, HBITMAP hbmMask) const noexcept {
    return PlgBlt(hDestDC, pPoints, 0, 0, m_width, m_height, hbmMask);
}
BOOL CImage::PlgBlt(HDC hDestDC, const POINT* pPoints, int xSrc, int ySrc, int nSrcWidth, int nSrcHeight,
                    HBITMAP hbmMask, int xMask, int yMask) const noexcept {
    if (pPoints == nullptr) return FALSE;
    return with_dc([&](HDC dc) {
        return ::PlgBlt(hDestDC, pPoints, dc, xSrc, ySrc, nSrcWidth, nSrcHeight, hbmMask, xMask, yMask);
    });
}
BOOL CImage::PlgBlt(HDC hDestDC, const POINT* pPoints, const RECT& rectSrc, HBITMAP hbmMask,
                    const POINT& pointMask) const noexcept {
    return PlgBlt(hDestDC, pPoints, rectSrc.left, rectSrc.top, width(rectSrc), height(rectSrc), hbmMask,
                  pointMask.x, pointMask.y);
}
