#include <ktui/controls/kbui_bitmap_button.h>

#include <ktui/controls/transparent_bitmap.h>
#include <ktui/controls/transparent_pixels.h>
#include <ktui/host/appearance.h>

IMPLEMENT_DYNAMIC(CKbUiBitmapButton, CKbUiOwnerDrawButton)
IMPLEMENT_DYNAMIC(CKbUiToolButton, CKbUiBitmapButton)
IMPLEMENT_DYNAMIC(CKbUiBitmapStatic, CKbUiBitmapButton)
IMPLEMENT_DYNAMIC(CKbUiDropSite, CKbUiBitmapStatic)

namespace {

constexpr wchar_t kNameEnd = L'|';  // between the name of a picture and the caption
constexpr int kNoBitmapSize = 16;   // pixels
constexpr int kWhole = 100;         // per cent
constexpr int kLargerPercents[] = {125, 150, 200};

/// How large in per cent the pictures for `window` are.
int PicturePercent(HWND window) {
    const int wanted = KtUiAppearancePixels(window, kWhole);
    if (wanted <= kWhole) return kWhole;
    for (const int percent : kLargerPercents)
        if (percent >= wanted) return percent;
    return kLargerPercents[2];
}

/// The bitmap `name` of `module`, or its larger companion where `window` wants one. Null if there is none.
HBITMAP LoadPicture(HWND window, HINSTANCE module, const wchar_t* name) {
    const int percent = IS_INTRESOURCE(name) ? kWhole : PicturePercent(window);
    if (percent != kWhole) {
        CString larger;
        larger.Format(L"%s_%d", name, percent);
        if (const HBITMAP found = ::LoadBitmapW(module, larger)) return found;
    }
    return ::LoadBitmapW(module, name);
}

}  // namespace

int CKbUiBitmapButton::pixels(int agreed) const { return KtUiAppearancePixels(m_hWnd, agreed); }

void CKbUiBitmapButton::SetBitmapOffsets(int margin, int extra) {
    m_offsetX = margin;
    m_offsetY = margin;
    m_offsetExtra = extra;
}

int CKbUiBitmapButton::OnLoadBitmap(const wchar_t* name) {
    const HINSTANCE module = AfxFindResourceHandle(name, RT_BITMAP);
    if (!module) return 0;
    m_bitmap.DeleteObject();
    return m_bitmap.Attach(LoadPicture(m_hWnd, module, name));
}

int CKbUiBitmapButton::LoadBitmapW(const wchar_t* name) {
    if (!OnLoadBitmap(name)) return 0;
    m_bitmapName = name;
    CalcBitmapSize();
    return 1;
}

void CKbUiBitmapButton::CalcBitmapSize() {
    BITMAP bitmap = {};
    const bool isThere = m_bitmap.GetSafeHandle() && m_bitmap.GetBitmap(&bitmap);
    m_bitmapWidth = isThere ? static_cast<int>(bitmap.bmWidth) : kNoBitmapSize;
    m_bitmapHeight = isThere ? static_cast<int>(bitmap.bmHeight) : kNoBitmapSize;
}

BOOL CKbUiBitmapButton::LoadBitmapResource(const wchar_t* name, CBitmap& target, HINSTANCE module) {
    const HINSTANCE from = module ? module : AfxFindResourceHandle(name, RT_BITMAP);
    const HBITMAP bitmap = ::LoadBitmapW(from, name);
    if (!bitmap) return FALSE;
    target.DeleteObject();
    return target.Attach(bitmap);
}

void CKbUiBitmapButton::SizeToBitmap() {
    CRect place;
    GetWindowRect(&place);
    SetWindowPos(nullptr, place.left, place.top, m_bitmapWidth + 2 * pixels(m_offsetX),
                 m_bitmapHeight + 2 * pixels(m_offsetY),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
}

int CKbUiBitmapButton::OnAutoLoad() {
    CString text;
    GetWindowText(text);
    const int end = text.Find(kNameEnd);
    CString name = m_bitmapName;
    if (name.IsEmpty()) name = end >= 0 ? text.Left(end) : text;
    if (name.IsEmpty()) return 0;
    // Kept: a picture that was held is gone, though the new one may not be there.
    m_bitmap.DeleteObject();
    if (!OnLoadBitmap(name)) return 1;
    if (end >= 0) SetWindowText(text.Mid(end + 1));
    CalcBitmapSize();
    if (m_autoSizeToBitmap) SizeToBitmap();
    // Kept: the whole caption, not the name.
    m_bitmapName = text;
    return 1;
}

int CKbUiBitmapButton::OnReload(const wchar_t* name) {
    if (LoadBitmapW(name) != 1) return 0;
    if (m_autoSizeToBitmap == 1) SizeToBitmap();
    Invalidate();
    return 1;
}

void CKbUiBitmapButton::DrawButton(CDC& dc, int width, int height, int isDefault, int isDisabled,
                                   int isPressed, int hasFocus) {
    DrawFrame(dc, width, height, isDefault, isDisabled, isPressed, hasFocus);
    const int x = m_autoSizeToBitmap ? pixels(m_offsetX) : (width - m_bitmapWidth) / 2;
    const int y = m_autoSizeToBitmap ? pixels(m_offsetY) : (height - m_bitmapHeight) / 2;
    DrawTransparentBitmap(dc, m_bitmap, x, y, m_bitmapWidth, m_bitmapHeight, isDisabled);
}

void CKbUiBitmapButton::DrawTransparentBitmap(CDC& dc, CBitmap& bitmap, int x, int y, int width, int height,
                                              int isDisabled) {
    if (!dc.m_hDC || !bitmap.GetSafeHandle() || width == 0 || height == 0) return;
    CBitmap shown;
    if (!shown.Attach(ktuiTransparentBitmap(bitmap, isDisabled ? kKeyIsCorner | kGreyPixels : kKeyIsCorner)))
        return;
    BITMAP size = {};
    shown.GetBitmap(&size);
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap* former = memory.SelectObject(&shown);
    dc.AlphaBlend(x, y, width, height, &memory, 0, 0, static_cast<int>(size.bmWidth),
                  static_cast<int>(size.bmHeight), {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA});
    memory.SelectObject(former);
}

CKbUiToolButton::CKbUiToolButton() { m_buttonFlags |= kWantsPointedAt | kToolButton; }

CKbUiBitmapStatic::CKbUiBitmapStatic() { m_buttonFlags |= kStatic; }

CKbUiDropSite::CKbUiDropSite() { m_buttonFlags |= kDragDrop | kStatic; }
