#include "color_palette.h"

#include <od_cm_color.h>

#include <cstdlib>

namespace {

// Indexes 10 to 249 in ten rows of 24 hues, below them 1 to 9 and the greys 250 to 255.
constexpr int kHues = 24;
constexpr int kShades = 10;
constexpr int kRows = kShades + 2;
constexpr int kPlainFirst = 1, kPlainLast = 9, kGreyFirst = 250, kGreyLast = 255;
constexpr int kGreyColumn = 12;
constexpr int kLeastDifference = 60;  // of red, green or blue, so that a swatch needs no outline

/// Whether a swatch of this colour would be taken for the paper around it.
bool isLikePaper(COLORREF color, COLORREF paper) {
    const int differences[] = {GetRValue(color) - GetRValue(paper), GetGValue(color) - GetGValue(paper),
                               GetBValue(color) - GetBValue(paper)};
    for (const int difference : differences)
        if (std::abs(difference) >= kLeastDifference) return false;
    return true;
}

}  // namespace

IMPLEMENT_DYNAMIC(CColorPalette, CStatic)

BEGIN_MESSAGE_MAP(CColorPalette, CStatic)
    ON_WM_GETDLGCODE()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

void CColorPalette::Prepare(const std::uint32_t* palette, std::function<void(int)> chosen) {
    m_palette = palette;
    m_chosen = std::move(chosen);
}

void CColorPalette::Select(int index) {
    m_index = index;
    Invalidate(FALSE);
}

UINT CColorPalette::OnGetDlgCode() { return DLGC_WANTARROWS; }

void CColorPalette::OnLButtonDown(UINT, CPoint point) {
    SetFocus();
    go(indexAt(point, area()));
}

void CColorPalette::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    switch (key) {
        case VK_LEFT: go(neighbour(m_index, -1, 0)); break;
        case VK_RIGHT: go(neighbour(m_index, 1, 0)); break;
        case VK_UP: go(neighbour(m_index, 0, -1)); break;
        case VK_DOWN: go(neighbour(m_index, 0, 1)); break;
        default: CStatic::OnKeyDown(key, repeat, flags);
    }
}

void CColorPalette::OnSetFocus(CWnd* former) {
    CStatic::OnSetFocus(former);
    Invalidate(FALSE);
}

void CColorPalette::OnKillFocus(CWnd* next) {
    CStatic::OnKillFocus(next);
    Invalidate(FALSE);
}

void CColorPalette::go(int index) {
    if (index == 0 || index == m_index) return;
    Select(index);
    if (m_chosen) m_chosen(index);
}

CRect CColorPalette::area() const {
    CRect client;
    GetClientRect(&client);
    client.DeflateRect(1, 1);  // for the mark of the focus
    return client;
}

CRect CColorPalette::cellOf(int index, const CRect& area) {
    int row, column;
    if (index >= kGreyFirst) {
        row = kRows - 1;
        column = kGreyColumn + index - kGreyFirst;
    } else if (index <= kPlainLast) {
        row = kRows - 1;
        column = index - kPlainFirst;
    } else {
        column = index / 10 - 1;
        // Odd indexes are pale: they lie above, from pale to full; the even ones below, from full to dark.
        const int shade = index % 10;
        row = shade % 2 ? 4 - shade / 2 : 5 + shade / 2;
    }
    const int width = area.Width() / kHues, height = area.Height() / kRows;
    return CRect(CPoint(area.left + column * width, area.top + row * height), CSize(width, height));
}

int CColorPalette::indexAt(CPoint point, const CRect& area) {
    for (int index = kPlainFirst; index <= kGreyLast; ++index)
        if (cellOf(index, area).PtInRect(point)) return index;
    return 0;
}

int CColorPalette::neighbour(int from, int stepX, int stepY) const {
    if (from == 0) return kPlainFirst;
    const CRect whole = area(), cell = cellOf(from, whole);
    CPoint at = cell.CenterPoint();
    // Gaps are passed over, such as the row between hues and plain colours.
    for (at.Offset(stepX * cell.Width(), stepY * cell.Height()); whole.PtInRect(at);
         at.Offset(stepX * cell.Width(), stepY * cell.Height()))
        if (const int index = indexAt(at, whole)) return index;
    return from;
}

void CColorPalette::DrawItem(LPDRAWITEMSTRUCT item) {
    CDC& dc = *CDC::FromHandle(item->hDC);
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE), ink = ::GetSysColor(COLOR_BTNTEXT);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, face);
    for (int index = kPlainFirst; index <= kGreyLast; ++index) {
        CRect cell = cellOf(index, area());
        const COLORREF color = odcmLookupRGB(index, m_palette);
        if (index == m_index) dc.FillSolidRect(&cell, ink);
        cell.DeflateRect(1, 1);
        if (index == m_index) {
            dc.FillSolidRect(&cell, face);
            cell.DeflateRect(1, 1);
        }
        if (isLikePaper(color, face)) {
            dc.FillSolidRect(&cell, ink);
            cell.DeflateRect(1, 1);
        }
        dc.FillSolidRect(&cell, color);
    }
    if (CWnd::GetFocus() == this) dc.DrawFocusRect(&client);
}
