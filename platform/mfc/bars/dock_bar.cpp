// CDockBar: where bars stand, and the mouse of a drag.
#include <kmfc/dock_bar.h>

#include <algorithm>

#include "control_bar_desk.h"

using kmfc::docking::BarExtent;
using kmfc::docking::BarRows;
using kmfc::docking::PaneKey;
using kmfc::docking::PlacedBar;
using kmfc::docking::Side;

IMPLEMENT_DYNAMIC(CDockBar, CControlBar)

BEGIN_MESSAGE_MAP(CDockBar, CControlBar)
    ON_MESSAGE(WM_SIZEPARENT, &CDockBar::OnSizeParent)
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

namespace {

CControlBar* bar_of(PaneKey key) { return reinterpret_cast<CControlBar*>(key); }

Side side_of(DWORD style) {
    if (style & CBRS_ALIGN_BOTTOM) return Side::bottom;
    if (style & CBRS_ALIGN_LEFT) return Side::left;
    return (style & CBRS_ALIGN_RIGHT) ? Side::right : Side::top;
}

}  // namespace

CDockBar::CDockBar(BOOL bFloating) : m_bFloating(bFloating), m_rows(std::make_unique<BarRows>()) {}

CDockBar::~CDockBar() {
    m_bAutoDelete = FALSE;
    DestroyWindow();
}

BOOL CDockBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    m_dwStyle = dwStyle & CBRS_ALL;
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                                    reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    return CWnd::Create(windowClass, nullptr, dwStyle & ~CBRS_ALL, CRect(0, 0, 0, 0), pParentWnd, nID);
}

int CDockBar::GetDockedCount() const {
    size_t count = 0;
    for (const BarRows::Row& row : m_rows->rows()) count += row.size();
    return static_cast<int>(count);
}

int CDockBar::GetDockedVisibleCount() const {
    int count = 0;
    for (const BarRows::Row& row : m_rows->rows())
        for (const BarRows::Bar& bar : row) count += bar_of(bar.bar)->IsVisible() ? 1 : 0;
    return count;
}

BarExtent CDockBar::extent_of(std::uintptr_t bar) const {
    const DWORD mode = is_horizontal() ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK;
    const CSize size = bar_of(bar)->CalcDynamicLayout(-1, mode);
    const int length = is_horizontal() ? size.cx : size.cy;
    const int thickness = is_horizontal() ? size.cy : size.cx;
    // One that has no room keeps its handle and the first tool.
    return {length, thickness, std::min(length, thickness)};
}

int CDockBar::length() const {
    CRect client;
    GetClientRect(&client);
    return is_horizontal() ? client.Width() : client.Height();
}

int CDockBar::thickness() const {
    return m_rows->thickness([this](PaneKey bar) { return extent_of(bar); });
}

CSize CDockBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    CSize size = CControlBar::CalcFixedLayout(bStretch, bHorz);
    (bHorz ? size.cy : size.cx) = thickness();
    return size;
}

CPoint CDockBar::along_and_across(CPoint screen) const {
    ScreenToClient(&screen);
    CRect client;
    GetClientRect(&client);
    return kmfc::docking::along_and_across(side_of(m_dwStyle), client.Size(), screen);
}

void CDockBar::arrange(int length) {
    for (const BarRows::Row& row : m_rows->rows())
        for (const BarRows::Bar& one : row) {
            CControlBar& bar = *bar_of(one.bar);
            bar.end_pending();
            m_rows->set_shown(one.bar, bar.IsVisible() != FALSE);
        }
    const CSize strip = is_horizontal() ? CSize(length, thickness()) : CSize(thickness(), length);
    for (const PlacedBar& one : m_rows->arrange(length, [this](PaneKey bar) { return extent_of(bar); })) {
        CControlBar& bar = *bar_of(one.bar);
        const CRect place = kmfc::docking::in_strip(side_of(m_dwStyle), strip, one.rect);
        bar.CalcDynamicLayout(-1, LM_COMMIT | (is_horizontal() ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK));
        bar.SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                         SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

LRESULT CDockBar::OnSizeParent(WPARAM wParam, LPARAM lParam) {
    const auto& layout = *reinterpret_cast<const AFX_SIZEPARENTPARAMS*>(lParam);
    if (layout.hDWP != nullptr)
        arrange(is_horizontal() ? layout.rect.right - layout.rect.left
                                : layout.rect.bottom - layout.rect.top);
    return CControlBar::OnSizeParent(wParam, lParam);
}

void CDockBar::OnMouseMove(UINT nFlags, CPoint point) {
    Default();
    ClientToScreen(&point);
    if (m_desk != nullptr) m_desk->drag_to(point, (nFlags & MK_CONTROL) != 0);
}

void CDockBar::OnLButtonUp(UINT, CPoint) {
    Default();
    if (m_desk != nullptr) m_desk->end_drag(false);
}

void CDockBar::OnCaptureChanged(CWnd* pWnd) {
    CControlBar::OnCaptureChanged(pWnd);
    // Something else took the mouse: the drag is off.
    if (m_desk != nullptr) m_desk->end_drag(true);
}
