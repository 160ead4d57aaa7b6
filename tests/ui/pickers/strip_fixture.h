// A strip of pictures as the library holds it, to compare what a picker draws with.
#pragma once

#include "picker_fixture.h"

namespace ui_test {

class LibraryStrip {
public:
    explicit LibraryStrip(UINT id) {
        m_bitmap.Attach(::LoadBitmapW(::GetModuleHandleW(L"ktui.dll"), MAKEINTRESOURCEW(id)));
        CClientDC screen(nullptr);
        m_dc.CreateCompatibleDC(&screen);
        m_former = m_dc.SelectObject(&m_bitmap);
    }
    ~LibraryStrip() { m_dc.SelectObject(m_former); }
    LibraryStrip(const LibraryStrip&) = delete;
    LibraryStrip& operator=(const LibraryStrip&) = delete;

    CSize size() {
        BITMAP bitmap = {};
        m_bitmap.GetBitmap(&bitmap);
        return CSize(static_cast<int>(bitmap.bmWidth), static_cast<int>(bitmap.bmHeight));
    }
    COLORREF at(int x, int y) const { return m_dc.GetPixel(x, y); }
    /// Whether the rows from `top` on hold anything but paper.
    bool hasInk(int top, int height) {
        const int width = static_cast<int>(size().cx);
        for (int y = top; y < top + height; ++y)
            for (int x = 0; x < width; ++x)
                if (at(x, y) != RGB(255, 255, 255)) return true;
        return false;
    }

private:
    CBitmap m_bitmap;
    CDC m_dc;
    CBitmap* m_former;
};

/// The colour that makeRowStrip gives row `y`.
constexpr COLORREF rowColor(int y) { return RGB(y & 0xFF, y >> 8, 77); }

/// Makes a strip in which each row of pixels has a colour of its own.
inline void makeRowStrip(CBitmap& strip, int width, int height) {
    CClientDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    strip.CreateCompatibleBitmap(&screen, width, height);
    CBitmap* former = dc.SelectObject(&strip);
    for (int y = 0; y < height; ++y) dc.FillSolidRect(CRect(0, y, width, y + 1), rowColor(y));
    dc.SelectObject(former);
}

constexpr COLORREF kUntouched = RGB(200, 100, 50);

/// Whether `canvas` shows `width` by `height` pixels of `strip` from `top` on at `corner`, and nothing
/// beside.
inline bool showsPicture(Canvas& canvas, const LibraryStrip& strip, CPoint corner, int top, CSize size) {
    const CRect picture(corner, size);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 30; ++x) {
            const bool inside = picture.PtInRect(CPoint(x, y)) != FALSE;
            const int column = x - static_cast<int>(corner.x);
            const int row = top + y - static_cast<int>(corner.y);
            if (canvas.dc.GetPixel(x, y) != (inside ? strip.at(column, row) : kUntouched)) return false;
        }
    return true;
}

/// Draws the image of `cargo` into a rectangle at 3, 4 that is larger than any picture.
inline void drawImage(Canvas& canvas, CKtUiMRUComboBox& picker, __int64 cargo) {
    CRect rect(3, 4, 29, 29);
    picker.DrawItemImage(canvas.dc, rect, cargo);
}

}  // namespace ui_test
