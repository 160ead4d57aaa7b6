// What lies below a sheet in the drawing view: the paper with its edge, its shadow, and the margins of the
// printer.
#include "drawing_view.h"

#include <algorithm>

#include <ktui/host/appearance.h>

namespace {

constexpr COLORREF kDeskColor = RGB(128, 128, 128), kShadowColor = RGB(80, 80, 80);
constexpr COLORREF kEdgeColor = RGB(0, 0, 0), kMarginColor = RGB(160, 160, 160);
constexpr int kFarthest = 20000;  // pixels
constexpr int kShadowWidth = 4;   // pixels at 96 dots an inch

/// The pixels of an area; what lies far beside the window would be slow to draw.
CRect pixelsOf(const SceneExtents& area, const ScenePlace& place) {
    const auto within = [](int at) { return std::clamp(at, -kFarthest, kFarthest); };
    const CPoint from = place.ToPixel({area.low.x, area.high.y}),
                 to = place.ToPixel({area.high.x, area.low.y});
    return CRect(within(from.x), within(from.y), within(to.x) + 1, within(to.y) + 1);
}

}  // namespace

void CDrawingView::SetSheet(const std::optional<SheetPlace>& sheet) {
    m_sheet = sheet;
    Invalidate();
}

SceneExtents CDrawingView::shownExtents() const {
    SceneExtents extents = m_scene.extents();
    if (m_sheet && !m_sheet->paper.isEmpty()) {
        extents.add(m_sheet->paper.low);
        extents.add(m_sheet->paper.high);
    }
    return extents;
}

SceneColors CDrawingView::sceneColors() const {
    SceneColors colors = m_colors;
    if (m_sheet) colors.paper = kSheetPaper;
    return colors;
}

void CDrawingView::paintSheet(CDC& dc, const CRect& outdated) const {
    dc.FillSolidRect(&outdated, m_sheet ? kDeskColor : m_colors.paper);
    if (!m_sheet || m_sheet->paper.isEmpty()) return;
    const CRect paper = pixelsOf(m_sheet->paper, place());
    const int shadow = KtUiAppearancePixels(m_hWnd, kShadowWidth);
    dc.FillSolidRect(paper + CPoint(shadow, shadow), kShadowColor);
    dc.FillSolidRect(paper, kEdgeColor);
    dc.FillSolidRect(CRect(paper.left + 1, paper.top + 1, paper.right - 1, paper.bottom - 1), kSheetPaper);
    const CRect printable = pixelsOf(m_sheet->printable, place());
    if (printable.Width() <= 0 || printable.Height() <= 0 || printable == paper) return;
    const int saved = dc.SaveDC();
    CPen dashed(PS_DASH, 1, kMarginColor);
    dc.SelectObject(&dashed);
    dc.SelectStockObject(NULL_BRUSH);
    dc.SetBkMode(TRANSPARENT);
    dc.Rectangle(printable);
    dc.RestoreDC(saved);
}
