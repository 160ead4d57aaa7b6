// How the strip and its tabs are painted.
#include <ktui/docking/xt_tool_tab_ctrl.h>

#include <ktui/docking/quarter_turn.h>
#include <ktui/docking/tab_strip_layout.h>
#include <ktui/docking/xt_mem_dc.h>
#include <ktui/host/contrast.h>

namespace {

/// A pen, selected for as long as the object lives.
class SelectedPen {
public:
    SelectedPen(CDC* dc, COLORREF color)
        : m_dc(dc), m_pen(PS_SOLID, 1, color), m_former(dc->SelectObject(&m_pen)) {}
    ~SelectedPen() { m_dc->SelectObject(m_former); }
    SelectedPen(const SelectedPen&) = delete;
    SelectedPen& operator=(const SelectedPen&) = delete;

private:
    CDC* m_dc;
    CPen m_pen;
    CPen* m_former;
};

constexpr int kArrowStep = 5;   // pixels from one chevron to the next
constexpr int kArrowDepth = 3;  // pixels from a chevron's point to its ends

BITMAPINFO infoOf(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    return info;
}

/// The pixels of a picture, row by row.
std::vector<std::uint32_t> pixelsOf(CDC& picture, int width, int height) {
    const BITMAPINFO info = infoOf(width, height);
    void* bits = nullptr;
    CBitmap bitmap;
    CDC copy;
    if (!bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)) ||
        !copy.CreateCompatibleDC(&picture))
        return {};
    CBitmap* former = copy.SelectObject(&bitmap);
    copy.BitBlt(0, 0, width, height, &picture, 0, 0, SRCCOPY);
    ::GdiFlush();
    const auto* first = static_cast<const std::uint32_t*>(bits);
    std::vector<std::uint32_t> pixels(first, first + width * height);
    copy.SelectObject(former);
    return pixels;
}

/// Shows `picture` turned to read upward at the target's origin. The system's PlgBlt stretches in the place
/// of turning on some systems, so the pixels are turned here.
void showTurned(CDC& dc, CDC& picture, CSize size) {
    const int width = static_cast<int>(size.cx), height = static_cast<int>(size.cy);
    const std::vector<std::uint32_t> pixels = pixelsOf(picture, width, height);
    if (pixels.empty()) return;
    const std::vector<std::uint32_t> turned = TurnedToReadUpward(pixels, width, height);
    const BITMAPINFO info = infoOf(height, width);
    ::SetDIBitsToDevice(dc.m_hDC, 0, 0, static_cast<DWORD>(height), static_cast<DWORD>(width), 0, 0, 0,
                        static_cast<UINT>(width), turned.data(), &info, DIB_RGB_COLORS);
}

}  // namespace

BOOL CXToolTabCtrl::OnEraseBkgnd(CDC* dc) {
    CRect client;
    GetClientRect(&client);
    dc->FillSolidRect(&client, ::GetSysColor(COLOR_3DFACE));
    return TRUE;
}

void CXToolTabCtrl::OnPaint() {
    CPaintDC dc(this);
    const CSize size = turnedSize();
    if (size.cx <= 0 || size.cy <= 0) return;
    CXTMemDC picture(&dc, CRect(CPoint(0, 0), size), m_background);
    if (!picture.IsValid()) return;
    CFont* former = picture.SelectObject(&m_font);
    if (!m_tabs.IsEmpty()) {
        for (int index = m_firstVisible; index <= m_lastVisible; ++index) DrawTab(&picture, index);
        if (hidesTabs()) DrawScrollArea(&picture);
        DrawBaseLine(&picture);
    }
    picture.SelectObject(former);
    if (IsTurned())
        showTurned(dc, picture, size);
    else
        dc.BitBlt(0, 0, static_cast<int>(size.cx), static_cast<int>(size.cy), &picture, 0, 0, SRCCOPY);
}

void CXToolTabCtrl::fillOutline(CDC* dc, CRgn& region) {
    CBrush brush(m_background);
    dc->FillRgn(&region, &brush);
}

void CXToolTabCtrl::DrawTab(CDC* dc, int index) {
    XTTabItem& tab = *GetTab(index);
    const bool active = index == m_activeTab;
    fillOutline(dc, tab.m_region);
    dc->MoveTo(tab.m_points[1]);
    {
        const SelectedPen dark(dc, m_darkColor);
        dc->LineTo(tab.m_points[2]);
        dc->LineTo(tab.m_points[3]);
    }
    {
        const SelectedPen shadow(dc, m_shadowColor);
        dc->LineTo(tab.m_points[4]);
        dc->LineTo(tab.m_points[5]);
    }
    {
        const SelectedPen closing(dc, active ? m_background : m_shadowColor);
        dc->LineTo(tab.m_points[0]);
    }
    drawText(dc, tab, active);
}

void CXToolTabCtrl::drawText(CDC* dc, const XTTabItem& tab, bool active) {
    LOGFONTW wanted = {};
    m_font.GetLogFont(&wanted);
    if (active) wanted.lfWeight = FW_BOLD;
    CFont font;
    font.CreateFontIndirect(&wanted);
    CFont* former = dc->SelectObject(&font);
    CRect area = tab.m_rect;
    area.DeflateRect(m_marginX, m_marginY);
    dc->SetBkMode(TRANSPARENT);
    dc->SetTextColor(ReadableColor(RGB(0, 0, 0), m_background, kTextContrast, RGB(255, 255, 255)));
    dc->DrawText(tab.m_text, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    dc->SelectObject(former);
}

void CXToolTabCtrl::DrawScrollArea(CDC* dc) {
    fillOutline(dc, m_scrollRgn);
    const int middle = m_scrollRect.CenterPoint().y;
    {
        const SelectedPen dark(dc, m_darkColor);
        for (int arrow = 0; arrow < 3; ++arrow) {
            const int x = m_scrollRect.left + 1 + arrow * kArrowStep;
            dc->MoveTo(x + kArrowDepth, middle - kArrowDepth);
            dc->LineTo(x, middle);
            dc->LineTo(x + kArrowDepth + 1, middle + kArrowDepth + 1);
        }
    }
    const SelectedPen shadow(dc, m_shadowColor);
    dc->MoveTo(m_scrollPoints[5]);
    dc->LineTo(m_scrollPoints[0]);
}

void CXToolTabCtrl::DrawBaseLine(CDC* dc) {
    const bool hides = hidesTabs();
    if (m_lastVisible < m_firstVisible && !hides) return;
    const POINT& start = hides ? m_scrollPoints[0] : GetTab(m_firstVisible)->m_points[0];
    const SelectedPen shadow(dc, m_shadowColor);
    dc->MoveTo(start);
    dc->LineTo(0, start.y);
}
