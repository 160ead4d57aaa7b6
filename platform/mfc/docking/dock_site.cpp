#include <kmfc/dock_site.h>

#include <kmfc/docking_manager.h>

#include "docked_bars.h"
#include "frame_state.h"

using namespace kmfc::docking;

IMPLEMENT_DYNAMIC(CDockSite, CBasePane)
IMPLEMENT_DYNAMIC(CDockingPanesRow, CObject)

BEGIN_MESSAGE_MAP(CDockSite, CBasePane)
    ON_MESSAGE(WM_SIZEPARENT, &CDockSite::OnSizeParent)
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
END_MESSAGE_MAP()

namespace {

CPane* bar_of(PaneKey key) { return static_cast<CPane*>(reinterpret_cast<CBasePane*>(key)); }

}  // namespace

// Rows.

CDockingPanesRow::CDockingPanesRow(CDockSite* pParentDockBar, int nOffset, int nRowHeight)
    : m_pParentDockBar(pParentDockBar), m_nOffset(nOffset), m_nRowHeight(nRowHeight) {}

DWORD CDockingPanesRow::GetRowAlignment() const { return m_pParentDockBar->GetCurrentAlignment(); }
BOOL CDockingPanesRow::IsHorizontal() const { return m_pParentDockBar->IsHorizontal(); }

void CDockingPanesRow::GetPaneList(CObList& lst) const {
    for (POSITION at = m_lstControlBars.GetHeadPosition(); at != nullptr;)
        lst.AddTail(m_lstControlBars.GetNext(at));
}

BOOL CDockingPanesRow::HasPane(CBasePane* pControlBar) const {
    return m_lstControlBars.Find(pControlBar) != nullptr;
}

int CDockingPanesRow::GetVisibleCount() const {
    int count = 0;
    for (POSITION at = m_lstControlBars.GetHeadPosition(); at != nullptr;)
        if (static_cast<CPane*>(m_lstControlBars.GetNext(at))->IsVisible()) ++count;
    return count;
}

void CDockingPanesRow::GetClientRect(CRect& rect) const {
    CRect site;
    m_pParentDockBar->GetClientRect(&site);
    const bool isFarSide = (GetRowAlignment() & (CBRS_ALIGN_RIGHT | CBRS_ALIGN_BOTTOM)) != 0;
    const int all = IsHorizontal() ? site.Height() : site.Width();
    const int begin = isFarSide ? all - m_nOffset - m_nRowHeight : m_nOffset;
    if (IsHorizontal())
        rect.SetRect(0, begin, site.right, begin + m_nRowHeight);
    else
        rect.SetRect(begin, 0, begin + m_nRowHeight, site.bottom);
}

void CDockingPanesRow::GetWindowRect(CRect& rect) const {
    GetClientRect(rect);
    m_pParentDockBar->ClientToScreen(&rect);
}

// Sites.

CDockSite::CDockSite(DockedBars* bars) : m_bars(bars), m_rows(std::make_unique<BarRows>()) {}

CDockSite::~CDockSite() {
    while (!m_lstDockBarRows.IsEmpty()) delete m_lstDockBarRows.RemoveHead();
}

Side CDockSite::side() const { return side_of(GetCurrentAlignment()); }

int CDockSite::length() const {
    CRect client;
    GetClientRect(&client);
    return IsHorizontal() ? client.Width() : client.Height();
}

BarExtent CDockSite::extent_of(std::uintptr_t bar) const {
    CPane* const pane = bar_of(bar);
    const CSize size = pane->CalcFixedLayout(FALSE, IsHorizontal());
    CSize least(0, 0);
    pane->GetMinSize(least);
    return IsHorizontal() ? BarExtent{size.cx, size.cy, std::min<int>(least.cx, size.cx)}
                          : BarExtent{size.cy, size.cx, std::min<int>(least.cy, size.cy)};
}

CPoint CDockSite::along_and_across(CPoint screen) const {
    ScreenToClient(&screen);
    CRect client;
    GetClientRect(&client);
    return kmfc::docking::along_and_across(side(), client.Size(), screen);
}

CSize CDockSite::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    CSize size = CBasePane::CalcFixedLayout(bStretch, bHorz);
    const int deep = m_rows->thickness([this](PaneKey bar) { return extent_of(bar); });
    (bHorz ? size.cy : size.cx) = deep;
    return size;
}

/// What stands outside of the classic bars takes its room as they do.
LRESULT CDockSite::OnSizeParent(WPARAM wParam, LPARAM lParam) {
    if (!m_bars->is_outermost(*this)) return CBasePane::OnSizeParent(wParam, lParam);
    if (GetDockingManager()->IsPrintPreviewValid()) return 0;
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    CRect strip(layout.rect);
    strip.bottom = std::min<LONG>(strip.top + CalcFixedLayout(TRUE, TRUE).cy, strip.bottom);
    layout.rect.top = strip.bottom;
    if (layout.hDWP != nullptr)
        layout.hDWP = ::DeferWindowPos(
            layout.hDWP, m_hWnd, nullptr, strip.left, strip.top, strip.Width(), strip.Height(),
            SWP_NOZORDER | SWP_NOACTIVATE | (IsPaneVisible() ? 0u : SWP_SHOWWINDOW));
    return 0;
}

void CDockSite::note_rows() {
    while (!m_lstDockBarRows.IsEmpty()) delete m_lstDockBarRows.RemoveHead();
    int offset = 0;
    for (const BarRows::Row& row : m_rows->rows()) {
        int height = 0;
        for (const BarRows::Bar& bar : row)
            if (bar.shown) height = std::max(height, extent_of(bar.bar).thickness);
        auto* const made = new CDockingPanesRow(this, offset, height);
        for (const BarRows::Bar& bar : row) made->m_lstControlBars.AddTail(bar_of(bar.bar));
        m_lstDockBarRows.AddTail(made);
        offset += height;
    }
}

void CDockSite::RecalcLayout() {
    if (m_hWnd == nullptr) return;
    note_rows();
    const auto placed = m_rows->arrange(length(), [this](PaneKey bar) { return extent_of(bar); });
    for (const BarRows::Row& row : m_rows->rows())
        for (const BarRows::Bar& bar : row)
            if (!bar.shown && bar_of(bar.bar)->IsPaneVisible()) bar_of(bar.bar)->ShowWindow(SW_HIDE);
    HDWP batch = ::BeginDeferWindowPos(static_cast<int>(placed.size()));
    CRect client;
    GetClientRect(&client);
    for (const PlacedBar& bar : placed) {
        const CRect rect = in_strip(side(), client.Size(), bar.rect);
        if (batch != nullptr)
            batch =
                ::DeferWindowPos(batch, bar_of(bar.bar)->m_hWnd, nullptr, rect.left, rect.top, rect.Width(),
                                 rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    }
    if (batch != nullptr) ::EndDeferWindowPos(batch);
}

BOOL CDockSite::DockPaneLeftOf(CPane* pBarToDock, CPane* pTargetBar) {
    auto* const bar = DYNAMIC_DOWNCAST(CMFCToolBar, pBarToDock);
    auto* const target = DYNAMIC_DOWNCAST(CMFCToolBar, pTargetBar);
    return bar != nullptr && target != nullptr && m_rows->contains(key_of(target)) &&
           m_bars->dock_left_of(*bar, *target);
}

CPane* CDockSite::FindPaneByID(UINT nID) {
    for (const BarRows::Row& row : m_rows->rows())
        for (const BarRows::Bar& bar : row)
            if (static_cast<UINT>(bar_of(bar.bar)->GetDlgCtrlID()) == nID) return bar_of(bar.bar);
    return nullptr;
}

CPane* CDockSite::PaneFromPoint(CPoint pt) {
    for (const BarRows::Row& row : m_rows->rows())
        for (const BarRows::Bar& bar : row) {
            CRect rect;
            bar_of(bar.bar)->GetWindowRect(&rect);
            if (bar.shown && rect.PtInRect(pt)) return bar_of(bar.bar);
        }
    return nullptr;
}

BOOL CDockSite::IsLastRow(CDockingPanesRow* pRow) const {
    return !m_lstDockBarRows.IsEmpty() && m_lstDockBarRows.GetTail() == pRow;
}

int CDockSite::FindRowIndex(CDockingPanesRow* pRow) const {
    int index = 0;
    for (POSITION at = m_lstDockBarRows.GetHeadPosition(); at != nullptr; ++index)
        if (m_lstDockBarRows.GetNext(at) == pRow) return index;
    return -1;
}

BOOL CDockSite::CanAcceptPane(const CBasePane* pBar) const {
    return pBar != nullptr && pBar->IsKindOf(RUNTIME_CLASS(CMFCToolBar)) &&
           (pBar->GetEnabledAlignment() & GetCurrentAlignment()) != 0;
}

// The mouse of a drag.

void CDockSite::OnMouseMove(UINT nFlags, CPoint point) {
    Default();
    ClientToScreen(&point);
    m_bars->drag_to(point, (nFlags & MK_CONTROL) != 0);
}

void CDockSite::OnLButtonUp(UINT nFlags, CPoint point) {
    if (!m_bars->is_dragging()) return CBasePane::OnLButtonUp(nFlags, point);
    m_bars->end_drag(false);
}

void CDockSite::OnCaptureChanged(CWnd* pWnd) {
    CBasePane::OnCaptureChanged(pWnd);
    // Something else took the mouse: the drag is off.
    m_bars->end_drag(true);
}

void CDockSite::OnCancelMode() {
    m_bars->end_drag(true);
    CBasePane::OnCancelMode();
}
