#include <kmfc/tool_bar_images.h>

#include <kmfc/module_state.h>

#include "look.h"
#include "picture_drawing.h"

namespace {

using kmfc::PicturePixels;

struct OwnBitmap {
    HBITMAP handle = nullptr;
    explicit OwnBitmap(HBITMAP bitmap) : handle(bitmap) {}
    OwnBitmap(const OwnBitmap&) = delete;
    OwnBitmap& operator=(const OwnBitmap&) = delete;
    ~OwnBitmap() {
        if (handle != nullptr) ::DeleteObject(handle);
    }
};

/// Two pictures of the same height, one beside the other.
PicturePixels joined(const PicturePixels& first, const PicturePixels& second) {
    PicturePixels both;
    both.size = CSize(first.size.cx + second.size.cx, first.size.cy);
    for (int y = 0; y < both.size.cy; ++y)
        for (const PicturePixels* one : {&first, &second}) {
            const auto row = one->pixels.begin() + static_cast<std::ptrdiff_t>(y) * one->size.cx;
            both.pixels.insert(both.pixels.end(), row, row + one->size.cx);
        }
    return both;
}

}  // namespace

CMFCToolBarImages::CMFCToolBarImages() : m_all(std::make_unique<PicturePixels>()) {}
CMFCToolBarImages::~CMFCToolBarImages() = default;

void CMFCToolBarImages::SetImageSize(SIZE sizeImage, BOOL bUpdateCount) {
    m_sizeImage = sizeImage;
    if (!bUpdateCount) return;
    m_iCount = sizeImage.cx > 0 && sizeImage.cy <= m_all->size.cy ? m_all->size.cx / sizeImage.cx : 0;
}

BOOL CMFCToolBarImages::Load(UINT uiResID, HINSTANCE hinstRes, BOOL bAdd) {
    const LPCTSTR name = MAKEINTRESOURCEW(uiResID);
    if (hinstRes == nullptr) hinstRes = AfxFindResourceHandle(name, RT_BITMAP);
    const OwnBitmap bitmap(
        static_cast<HBITMAP>(::LoadImageW(hinstRes, name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    if (bitmap.handle == nullptr || m_sizeImage.cx <= 0) return FALSE;
    PicturePixels loaded = kmfc::pixels_of(bitmap.handle, m_clrTransparent);
    if (loaded.pixels.empty() || loaded.size.cy < m_sizeImage.cy) return FALSE;
    const bool behind = bAdd && m_iCount > 0;
    if (behind && loaded.size.cy != m_all->size.cy) return FALSE;
    *m_all = behind ? joined(*m_all, loaded) : std::move(loaded);
    m_iCount = m_all->size.cx / m_sizeImage.cx;
    return TRUE;
}

void CMFCToolBarImages::Clear() {
    *m_all = PicturePixels();
    m_iCount = 0;
}

COLORREF CMFCToolBarImages::SetTransparentColor(COLORREF clrTransparent) {
    return std::exchange(m_clrTransparent, clrTransparent);
}

BOOL CMFCToolBarImages::PrepareDrawImage(CAfxDrawState& ds, CSize sizeImageDest) {
    if (m_iCount == 0) return FALSE;
    ds.m_size = m_sizeDest;
    m_sizeDest = sizeImageDest == CSize(0, 0) ? m_sizeImage : sizeImageDest;
    return TRUE;
}

void CMFCToolBarImages::EndDrawImage(CAfxDrawState& ds) { m_sizeDest = ds.m_size; }

BOOL CMFCToolBarImages::Draw(CDC* pDC, int x, int y, int iImageIndex, BOOL bDisabled) {
    if (iImageIndex < 0 || iImageIndex >= m_iCount) return FALSE;
    const CPoint corner(iImageIndex * m_sizeImage.cx, 0);
    PicturePixels picture = kmfc::resized(kmfc::cut_out(*m_all, CRect(corner, m_sizeImage)), m_sizeDest);
    if (picture.pixels.empty()) return FALSE;
    if (m_bMapToDark && kmfc::is_dark(kmfc::present_look().bar))
        picture = kmfc::look_on_dark(std::move(picture));
    if (bDisabled) picture = kmfc::disabled_look(std::move(picture));
    kmfc::draw_picture(*pDC, CPoint(x, y), picture);
    return TRUE;
}
