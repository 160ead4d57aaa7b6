// A picture in memory to draw on, and to compare with another.
#pragma once

#include <vector>

#include <afxwin.h>

namespace ui_test {

class Canvas {
public:
    /// `width` by `height` pixels, all of colour `ground`.
    Canvas(int width, int height, COLORREF ground = RGB(255, 255, 255)) : m_width(width), m_height(height) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        dc.CreateCompatibleDC(nullptr);
        m_bitmap = ::CreateDIBSection(dc.m_hDC, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_bits = static_cast<const DWORD*>(bits);
        m_former = static_cast<HBITMAP>(::SelectObject(dc.m_hDC, m_bitmap));
        dc.FillSolidRect(CRect(0, 0, width, height), ground);
    }
    ~Canvas() {
        ::SelectObject(dc.m_hDC, m_former);
        ::DeleteObject(m_bitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    COLORREF at(int x, int y) const {
        ::GdiFlush();
        const DWORD bits = m_bits[y * m_width + x];
        return RGB(bits >> 16 & 0xFF, bits >> 8 & 0xFF, bits & 0xFF);
    }
    /// How many pixels have colour `color`.
    int count(COLORREF color) const {
        int found = 0;
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x) found += at(x, y) == color;
        return found;
    }
    /// All pixels by rows, as COLORREF.
    std::vector<COLORREF> pixels() const {
        ::GdiFlush();
        std::vector<COLORREF> all(m_bits, m_bits + m_width * m_height);
        for (COLORREF& each : all) each = RGB(each >> 16 & 0xFF, each >> 8 & 0xFF, each & 0xFF);
        return all;
    }
    bool operator==(const Canvas& other) const {
        if (m_width != other.m_width || m_height != other.m_height) return false;
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x)
                if (at(x, y) != other.at(x, y)) return false;
        return true;
    }
    /// Whether every pixel has colour `color`.
    bool isAll(COLORREF color) const { return count(color) == m_width * m_height; }

    CDC dc;

private:
    int m_width, m_height;
    HBITMAP m_bitmap = nullptr, m_former = nullptr;
    const DWORD* m_bits = nullptr;
};

}  // namespace ui_test
