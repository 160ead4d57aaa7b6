#include <ktui/pickers/font_icon.h>

#include <ktui/host/appearance.h>
#include <ktui/host/contrast.h>
#include <ktui/host/loaded_module.h>
#include <ktui/pickers/strip_painter.h>

#include <memory>
#include <type_traits>

namespace {

struct IconDestroyer {
    void operator()(HICON icon) const { ::DestroyIcon(icon); }
};
using Icon = std::unique_ptr<std::remove_pointer_t<HICON>, IconDestroyer>;

/// A picture of `size` by `size` pixels with alpha that can be drawn to and read.
class AlphaPicture {
public:
    explicit AlphaPicture(CDC& like, int size) : m_size(size) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof info.bmiHeader, size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        m_bitmap.Attach(::CreateDIBSection(like.m_hDC, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        m_pixels = static_cast<RGBQUAD*>(bits);
        m_dc.CreateCompatibleDC(&like);
        m_former = m_dc.SelectObject(&m_bitmap);
    }
    ~AlphaPicture() { m_dc.SelectObject(m_former); }
    AlphaPicture(const AlphaPicture&) = delete;
    AlphaPicture& operator=(const AlphaPicture&) = delete;

    /// Takes the shape of an icon and fills it with `ink`.
    void takeShape(HICON icon, COLORREF ink) {
        // On black and on white an opaque pixel looks the same, and a clear one doesn't.
        std::unique_ptr<BYTE[]> onBlack(new BYTE[count()]);
        drawOn(icon, RGB(0, 0, 0));
        for (std::size_t i = 0; i < count(); ++i) onBlack[i] = m_pixels[i].rgbGreen;
        drawOn(icon, RGB(255, 255, 255));
        for (std::size_t i = 0; i < count(); ++i) {
            const int alpha = 255 - (m_pixels[i].rgbGreen - onBlack[i]);
            const auto part = [&](int byte) { return static_cast<BYTE>(byte * alpha / 255); };
            m_pixels[i] = {part(GetBValue(ink)), part(GetGValue(ink)), part(GetRValue(ink)),
                           static_cast<BYTE>(alpha)};
        }
    }
    void drawTo(CDC& dc, CPoint corner) {
        const BLENDFUNCTION blend = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        ::GdiAlphaBlend(dc.m_hDC, static_cast<int>(corner.x), static_cast<int>(corner.y), m_size, m_size,
                        m_dc.m_hDC, 0, 0, m_size, m_size, blend);
    }

private:
    std::size_t count() const { return static_cast<std::size_t>(m_size) * static_cast<std::size_t>(m_size); }
    void drawOn(HICON icon, COLORREF paper) {
        m_dc.FillSolidRect(CRect(0, 0, m_size, m_size), paper);
        ::DrawIconEx(m_dc.m_hDC, 0, 0, icon, m_size, m_size, 0, nullptr, DI_NORMAL);
        ::GdiFlush();
    }

    int m_size;
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_former = nullptr;
    RGBQUAD* m_pixels = nullptr;
};

constexpr COLORREF kTrueTypeInk = RGB(72, 84, 104);  // of the icons as they are drawn

}  // namespace

HICON LoadFontIcon(UINT id, UINT flags) {
    return static_cast<HICON>(
        ::LoadImageW(KtUiOwnModule(), MAKEINTRESOURCEW(id), IMAGE_ICON, kFontIconSize, kFontIconSize, flags));
}

void DrawFontIcon(CDC& dc, CPoint corner, int size, HICON icon) {
    dc.DrawState(corner, CSize(size, size), icon, DST_ICON, static_cast<HBRUSH>(nullptr));
}

int FontIconSize(HWND window) { return StripSize(window, kFontIconSize); }

void DrawFontIconFor(CDC& dc, CPoint corner, int size, HICON agreed, UINT id) {
    if (!KtUiFollowsSystemAppearance()) {
        DrawFontIcon(dc, corner, size, agreed);
        return;
    }
    const COLORREF paper = ::GetSysColor(COLOR_WINDOW);
    const Icon icon(static_cast<HICON>(
        ::LoadImageW(KtUiOwnModule(), MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
    if (!icon) return;
    // The darker of the two icons' inks decides for both, so that they go together.
    if (ContrastRatio(kTrueTypeInk, paper) >= kMarkContrast) {
        ::DrawIconEx(dc.m_hDC, static_cast<int>(corner.x), static_cast<int>(corner.y), icon.get(), size, size,
                     0, nullptr, DI_NORMAL);
        return;
    }
    AlphaPicture picture(dc, size);
    picture.takeShape(icon.get(), ::GetSysColor(COLOR_WINDOWTEXT));
    picture.drawTo(dc, corner);
}
