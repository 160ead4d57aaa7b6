#include <ktui/pickers/swatch_painter.h>

#include <ktui/host/appearance.h>
#include <ktui/pickers/color_swatch.h>

SwatchPainter::SwatchPainter(CDC& dc, const RECT& image) : m_dc(dc), m_area(SwatchArea(image)) {
    const RECT frame = SwatchFrame(image);
    if (!IsEmptyRect(frame)) m_dc.FillSolidRect(&frame, KtUiAppearanceColor(RGB(0, 0, 0), COLOR_WINDOWTEXT));
}

void SwatchPainter::fillSolid(COLORREF color) {
    if (!IsEmptyRect(m_area)) m_dc.FillSolidRect(&m_area, color);
}

void SwatchPainter::fillDiagonal() { fillPixels(DiagonalColorAt); }

void SwatchPainter::fillRamp(const std::function<COLORREF(int)>& colorOf) {
    const int width = static_cast<int>(m_area.right - m_area.left);
    const int height = static_cast<int>(m_area.bottom - m_area.top);
    fillPixels([&](int dx, int dy) { return colorOf(RampColorIndexAt(dx, dy, width, height)); });
}

void SwatchPainter::fillPixels(const std::function<COLORREF(int, int)>& colorAt) {
    const CRect area = m_area;
    for (int dy = 0; dy < area.Height(); ++dy)
        for (int dx = 0; dx < area.Width(); ++dx)
            m_dc.SetPixel(area.left + dx, area.top + dy, colorAt(dx, dy));
}
