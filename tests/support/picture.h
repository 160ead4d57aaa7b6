// What a window shows, pixel by pixel, and how well it can be read: contrast as the ratio of luminances.
#pragma once

#include <afxwin.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

namespace ui_test {

/// The pixels of a window's client area, or of one of its rectangles, as the screen shows them now.
class Picture {
public:
    explicit Picture(const CWnd& window) : Picture(window, clientOf(window)) {}
    Picture(const CWnd& window, const CRect& area) : m_width(area.Width()), m_height(area.Height()) {
        const HDC screen = ::GetDC(window.m_hWnd);
        const HDC memory = ::CreateCompatibleDC(screen);
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof info.bmiHeader, m_width, -m_height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        const HBITMAP bitmap = ::CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        const HGDIOBJ former = ::SelectObject(memory, bitmap);
        ::BitBlt(memory, 0, 0, m_width, m_height, screen, static_cast<int>(area.left),
                 static_cast<int>(area.top), SRCCOPY);
        ::GdiFlush();
        const auto* pixels = static_cast<const DWORD*>(bits);
        for (int i = 0; i < m_width * m_height; ++i)
            m_pixels.push_back(RGB(pixels[i] >> 16 & 0xFF, pixels[i] >> 8 & 0xFF, pixels[i] & 0xFF));
        ::SelectObject(memory, former);
        ::DeleteObject(bitmap);
        ::DeleteDC(memory);
        ::ReleaseDC(window.m_hWnd, screen);
    }

    int width() const { return m_width; }
    int height() const { return m_height; }
    COLORREF at(int x, int y) const { return m_pixels[static_cast<std::size_t>(y * m_width + x)]; }
    bool operator==(const Picture& other) const { return m_pixels == other.m_pixels; }

    /// The smallest rectangle around all pixels that differ from `other`, a picture of the same size.
    CRect difference(const Picture& other) const {
        CRect box(m_width, m_height, 0, 0);
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x)
                if (at(x, y) != other.at(x, y))
                    box = CRect(std::min<int>(box.left, x), std::min<int>(box.top, y),
                                std::max<int>(box.right, x + 1), std::max<int>(box.bottom, y + 1));
        return box;
    }
    int count(COLORREF color) const {
        return static_cast<int>(std::count(m_pixels.begin(), m_pixels.end(), color));
    }
    /// The colour that most pixels have: the background.
    COLORREF commonest() const {
        std::map<COLORREF, int> counts;
        for (const COLORREF pixel : m_pixels) ++counts[pixel];
        return std::max_element(counts.begin(), counts.end(),
                                [](const auto& a, const auto& b) { return a.second < b.second; })
            ->first;
    }
    const std::vector<COLORREF>& pixels() const { return m_pixels; }

private:
    static CRect clientOf(const CWnd& window) {
        CRect client;
        window.GetClientRect(&client);
        return client;
    }
    int m_width, m_height;
    std::vector<COLORREF> m_pixels;
};

/// Relative luminance, 0 for black to 1 for white.
inline double luminance(COLORREF color) {
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(GetRValue(color)) + 0.7152 * linear(GetGValue(color)) +
           0.0722 * linear(GetBValue(color));
}

/// 1 for two equal colours to 21 for black and white.
inline double contrast(COLORREF a, COLORREF b) {
    const double one = luminance(a), other = luminance(b);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

/// The highest contrast that any pixel has to the commonest one: that of the strokes, whatever smoothing
/// makes of their edges.
inline double strongestContrast(const Picture& picture) {
    const COLORREF paper = picture.commonest();
    double strongest = 1;
    for (const COLORREF pixel : picture.pixels()) strongest = std::max(strongest, contrast(pixel, paper));
    return strongest;
}

constexpr double kReadable = 4.5;  // of texts
constexpr double kVisible = 3;     // of marks

}  // namespace ui_test
