// CImage: a bitmap that loads and saves picture files.
//
//     CImage picture;
//     if (SUCCEEDED(picture.Load(L"tree.png"))) picture.Draw(dc.m_hDC, 10, 10);
#pragma once

#include <afxwin.h>
#include <kmfc/simple_array.h>

struct IStream;

/// A bitmap. The object owns it until Detach. Pictures with an alpha channel have their colours multiplied by
/// it, as the system blends them. Without a bitmap everything that draws answers FALSE, and numbers are 0.
class KMFC_API CImage {
public:
    enum DIBOrientation { DIBOR_DEFAULT, DIBOR_TOPDOWN, DIBOR_BOTTOMUP };
    static constexpr DWORD createAlphaChannel = 0x01;
    static constexpr DWORD excludeGIF = 0x01, excludeBMP = 0x02, excludeEMF = 0x04, excludeWMF = 0x08,
                           excludeJPEG = 0x10, excludePNG = 0x20, excludeTIFF = 0x40, excludeIcon = 0x80,
                           excludeOther = 0x80000000, excludeDefaultLoad = 0,
                           excludeDefaultSave = excludeIcon | excludeEMF | excludeWMF,
                           excludeValid = 0x800000FF;

    CImage() noexcept = default;
    ~CImage();
    CImage(const CImage&) = delete;
    CImage& operator=(const CImage&) = delete;

    operator HBITMAP() const noexcept { return m_hBitmap; }
    bool IsNull() const noexcept { return m_hBitmap == nullptr; }
    void Attach(HBITMAP hBitmap, DIBOrientation eOrientation = DIBOR_DEFAULT) noexcept;
    HBITMAP Detach() noexcept;
    void Destroy() noexcept;

    /// A picture of its own bits; a negative height puts the first line on top. In place of the one before.
    BOOL Create(int nWidth, int nHeight, int nBPP, DWORD dwFlags = 0) noexcept;
    BOOL CreateEx(int nWidth, int nHeight, int nBPP, DWORD eCompression, const DWORD* pdwBitmasks = nullptr,
                  DWORD dwFlags = 0) noexcept;

    // BMP, GIF, JPEG, PNG and TIFF. A file that is none leaves the picture as it was.
    HRESULT Load(LPCTSTR pszFileName) noexcept;
    HRESULT Load(IStream* pStream) noexcept;
    void LoadFromResource(HINSTANCE hInstance, LPCTSTR pszResourceName) noexcept;
    void LoadFromResource(HINSTANCE hInstance, UINT nIDResource) noexcept {
        LoadFromResource(hInstance, MAKEINTRESOURCEW(nIDResource));
    }
    /// The type is Gdiplus::ImageFormatPNG and its like; for a file it may be told by the name instead.
    HRESULT Save(LPCTSTR pszFileName, REFGUID guidFileType = GUID_NULL) const noexcept;
    HRESULT Save(IStream* pStream, REFGUID guidFileType) const noexcept;
    /// Descriptions and patterns for a file dialog, with the type of each.
    static HRESULT GetImporterFilterString(CSimpleString& strImporters, CSimpleArray<GUID>& aguidFileTypes,
                                           LPCTSTR pszAllFilesDescription = nullptr,
                                           DWORD dwExclude = excludeDefaultLoad, TCHAR chSeparator = L'|');
    static HRESULT GetExporterFilterString(CSimpleString& strExporters, CSimpleArray<GUID>& aguidFileTypes,
                                           LPCTSTR pszAllFilesDescription = nullptr,
                                           DWORD dwExclude = excludeDefaultSave, TCHAR chSeparator = L'|');

    int GetWidth() const noexcept { return m_width; }
    int GetHeight() const noexcept { return m_height; }
    int GetBPP() const noexcept { return m_bpp; }
    bool IsDIBSection() const noexcept { return m_isSection; }
    // Of DIB sections only. The first line, and bytes from one line to the next below; these are negative
    // when the lines stand upside down.
    void* GetBits() noexcept { return m_bits; }
    const void* GetBits() const noexcept { return m_bits; }
    int GetPitch() const noexcept { return m_pitch; }
    /// Null outside of the picture.
    void* GetPixelAddress(int x, int y) noexcept;
    const void* GetPixelAddress(int x, int y) const noexcept {
        return const_cast<CImage*>(this)->GetPixelAddress(x, y);
    }
    bool IsIndexed() const noexcept { return m_isSection && m_bpp <= 8; }
    int GetMaxColorTableEntries() const noexcept { return IsIndexed() ? 1 << m_bpp : 0; }
    void GetColorTable(UINT iFirstColor, UINT nColors, RGBQUAD* prgbColors) const noexcept;
    void SetColorTable(UINT iFirstColor, UINT nColors, const RGBQUAD* prgbColors) noexcept;

    /// CLR_INVALID outside of the picture.
    COLORREF GetPixel(int x, int y) const noexcept;
    void SetPixel(int x, int y, COLORREF color) noexcept;
    void SetPixelRGB(int x, int y, BYTE r, BYTE g, BYTE b) noexcept { SetPixel(x, y, RGB(r, g, b)); }
    void SetPixelIndexed(int x, int y, int iIndex) noexcept;
    /// The place in the colour table of what is not drawn, -1 for none. Setting answers the one before.
    LONG GetTransparentColor() const noexcept { return m_transparent; }
    LONG SetTransparentColor(LONG iTransparentColor) noexcept;
    static BOOL IsTransparencySupported() noexcept { return TRUE; }

    /// A device context with the bitmap, good until as many calls of ReleaseDC.
    HDC GetDC() const noexcept;
    void ReleaseDC() const noexcept;
    static void ReleaseGDIPlus() noexcept {}

    /// As the picture asks for: transparent, blended or opaque.
    BOOL Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
              int nSrcWidth, int nSrcHeight) const noexcept;
    BOOL Draw(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc) const noexcept;
    BOOL Draw(HDC hDestDC, int xDest, int yDest) const noexcept;
    BOOL Draw(HDC hDestDC, const POINT& pointDest) const noexcept;
    BOOL Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight) const noexcept;
    BOOL Draw(HDC hDestDC, const RECT& rectDest) const noexcept;

    BOOL StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwROP = SRCCOPY) const noexcept;
    BOOL StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                    DWORD dwROP = SRCCOPY) const noexcept;
    BOOL StretchBlt(HDC hDestDC, const RECT& rectDest, DWORD dwROP = SRCCOPY) const noexcept;
    BOOL StretchBlt(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc,
                    DWORD dwROP = SRCCOPY) const noexcept;

    BOOL BitBlt(HDC hDestDC, int xDest, int yDest, DWORD dwROP = SRCCOPY) const noexcept;
    BOOL BitBlt(HDC hDestDC, const POINT& pointDest, DWORD dwROP = SRCCOPY) const noexcept;
    BOOL BitBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                DWORD dwROP = SRCCOPY) const noexcept;
    BOOL BitBlt(HDC hDestDC, const RECT& rectDest, const POINT& pointSrc,
                DWORD dwROP = SRCCOPY) const noexcept;

    BOOL AlphaBlend(HDC hDestDC, int xDest, int yDest, BYTE bSrcAlpha = 0xff,
                    BYTE bBlendOp = AC_SRC_OVER) const noexcept;
    BOOL AlphaBlend(HDC hDestDC, const POINT& pointDest, BYTE bSrcAlpha = 0xff,
                    BYTE bBlendOp = AC_SRC_OVER) const noexcept;
    BOOL AlphaBlend(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, BYTE bSrcAlpha = 0xff,
                    BYTE bBlendOp = AC_SRC_OVER) const noexcept;
    BOOL AlphaBlend(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc, BYTE bSrcAlpha = 0xff,
                    BYTE bBlendOp = AC_SRC_OVER) const noexcept;

    // CLR_INVALID stands for the picture's own transparent colour; FALSE when it has none.
    BOOL TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        UINT crTransparent = CLR_INVALID) const noexcept;
    BOOL TransparentBlt(HDC hDestDC, const RECT& rectDest, UINT crTransparent = CLR_INVALID) const noexcept;
    BOOL TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                        int ySrc, int nSrcWidth, int nSrcHeight,
                        UINT crTransparent = CLR_INVALID) const noexcept;
    BOOL TransparentBlt(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc,
                        UINT crTransparent = CLR_INVALID) const noexcept;

    BOOL MaskBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                 HBITMAP hbmMask, int xMask, int yMask, DWORD dwROP = SRCCOPY) const noexcept;
    BOOL MaskBlt(HDC hDestDC, const RECT& rectDest, const POINT& pointSrc, HBITMAP hbmMask,
                 const POINT& pointMask, DWORD dwROP = SRCCOPY) const noexcept;
    BOOL MaskBlt(HDC hDestDC, int xDest, int yDest, HBITMAP hbmMask, DWORD dwROP = SRCCOPY) const noexcept;
    BOOL MaskBlt(HDC hDestDC, const POINT& pointDest, HBITMAP hbmMask, DWORD dwROP = SRCCOPY) const noexcept;

    /// `pPoints` are the corners left above, right above and left below.
    BOOL PlgBlt(HDC hDestDC, const POINT* pPoints, HBITMAP hbmMask = nullptr) const noexcept;
    BOOL PlgBlt(HDC hDestDC, const POINT* pPoints, int xSrc, int ySrc, int nSrcWidth, int nSrcHeight,
                HBITMAP hbmMask = nullptr, int xMask = 0, int yMask = 0) const noexcept;
    BOOL PlgBlt(HDC hDestDC, const POINT* pPoints, const RECT& rectSrc, HBITMAP hbmMask = nullptr,
                const POINT& pointMask = CPoint(0, 0)) const noexcept;

private:
    bool has(int x, int y) const { return x >= 0 && y >= 0 && x < m_width && y < m_height; }
    void read_bitmap(DIBOrientation orientation);
    /// Calls `action` with the picture's device context.
    template <class Action>
    BOOL with_dc(Action action) const;

    HBITMAP m_hBitmap = nullptr;
    void* m_bits = nullptr;
    int m_width = 0, m_height = 0, m_pitch = 0, m_bpp = 0;
    bool m_isSection = false;
    bool m_hasAlpha = false;
    LONG m_transparent = -1;
    mutable HDC m_hDC = nullptr;
    mutable HGDIOBJ m_hFormer = nullptr;
    mutable int m_dcUses = 0;

    friend class PictureFile;
};
