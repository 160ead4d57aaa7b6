// ControlBarDesk: what is kept of bars, and bringing it back. CFrameWnd's calls.
#include <algorithm>
#include <iterator>

#include <kmfc/dock_state.h>
#include <kmfc/frame.h>
#include <kmfc/mini_dock_frame.h>

#include "../docking/core/placement.h"
#include "../window/work_areas.h"
#include "control_bar_desk.h"

namespace kmfc {

namespace {

std::optional<size_t> side_with(UINT dockBarId) {
    for (size_t side = 0; side < std::size(kDockEdges); ++side)
        if (kDockEdges[side].id == dockBarId) return side;
    return std::nullopt;
}

}  // namespace

void ControlBarDesk::get_state(CDockState& state) const {
    state.Clear();
    const auto note = [&](const CControlBar& bar, const std::optional<Place>& docked) {
        auto* const info = new CControlBarInfo;  // the state's
        info->m_nBarID = static_cast<UINT>(bar.GetDlgCtrlID());
        info->m_bVisible = bar.IsVisible();
        info->m_bFloating = bar.IsFloating();
        info->m_bHorz = (bar.m_dwStyle & CBRS_ORIENT_HORZ) != 0;
        info->m_nMRUWidth = bar.m_nMRUWidth;
        const auto recent = m_recent.find(&bar);
        if (bar.IsFloating()) {
            CRect window;
            bar.m_pDockBar->GetParent()->GetWindowRect(&window);
            info->m_pointPos = window.TopLeft();
        } else if (recent != m_recent.end() && recent->second.floating) {
            info->m_pointPos = *recent->second.floating;
        }
        if (docked) {
            info->m_nDockBarID = kDockEdges[docked->side].id;
            info->m_nRow = docked->place.row;
            info->m_nOffset = docked->place.offset;
            info->m_bOwnRow = docked->place.isOwnRow;
        }
        state.m_arrBarInfo.Add(info);
    };
    // Docked bars in the order of their rows, which is the one to dock them in again.
    for (size_t side = 0; side < kSides; ++side) {
        if (m_dockBars[side] == nullptr) continue;
        for (const auto& row : m_dockBars[side]->rows().rows())
            for (const auto& one : row) {
                const auto& bar = *reinterpret_cast<const CControlBar*>(one.bar);
                note(bar, place_of(bar));
            }
    }
    for (const CControlBar* const bar : m_known)
        if (bar->IsFloating()) {
            const auto recent = m_recent.find(bar);
            note(*bar, recent != m_recent.end() ? recent->second.docked : std::nullopt);
        }
}

void ControlBarDesk::set_state(const CDockState& state) {
    if (!make_dock_bars()) return;
    std::array<docking::BarRows, kSides> next;
    std::array<int, kSides> lastRow;
    lastRow.fill(-1);
    std::vector<std::pair<CControlBar*, const CControlBarInfo*>> found;
    const auto is_found = [&](const CControlBar* bar) {
        return std::any_of(found.begin(), found.end(), [bar](const auto& one) { return one.first == bar; });
    };
    for (INT_PTR i = 0; i < state.m_arrBarInfo.GetSize(); ++i) {
        const auto& info = *static_cast<const CControlBarInfo*>(state.m_arrBarInfo[i]);
        CControlBar* const known = bar(info.m_nBarID);
        const std::optional<size_t> side = side_with(info.m_nDockBarID);
        if (known == nullptr || is_found(known)) continue;
        if (!info.m_bFloating && !(side && may_dock(*known, *side))) continue;
        found.emplace_back(known, &info);
        if (info.m_bFloating) continue;
        next[*side].append({reinterpret_cast<docking::PaneKey>(known), info.m_nOffset, true},
                           info.m_nRow != lastRow[*side]);
        lastRow[*side] = info.m_nRow;
    }
    // Bars that the state doesn't know keep their edge, further inside.
    for (size_t side = 0; side < kSides; ++side)
        for (const auto& row : m_dockBars[side]->rows().rows()) {
            bool begins = true;
            for (const auto& one : row) {
                if (is_found(reinterpret_cast<const CControlBar*>(one.bar))) continue;
                next[side].append(one, begins);
                begins = false;
            }
        }
    for (const auto& [bar, info] : found) restore(*bar, *info);
    for (size_t side = 0; side < kSides; ++side) m_dockBars[side]->rows() = next[side];
    for (const auto& [bar, info] : found) m_frame.ShowControlBar(bar, info->m_bVisible, TRUE);
    m_frame.RecalcLayout();
}

/// Makes a bar a window of where it stood.
void ControlBarDesk::restore(CControlBar& bar, const CControlBarInfo& info) {
    const std::optional<size_t> side = side_with(info.m_nDockBarID);
    bar.m_nMRUWidth = info.m_nMRUWidth;
    if (!info.m_bFloating) {
        move_home(bar, *m_dockBars[*side], kDockEdges[*side].alignment);
        m_recent[&bar].floating = info.m_pointPos;
        return;
    }
    float_bar(bar, info.m_pointPos, info.m_bHorz != FALSE);
    if (side) m_recent[&bar].docked = Place{*side, {info.m_nRow, info.m_bOwnRow != FALSE, info.m_nOffset}};
    CWnd* const frame = bar.m_pDockBar->GetParent();
    CRect window;
    frame->GetWindowRect(&window);
    const CRect reachable = brought_into_view(window, work_areas());
    frame->SetWindowPos(nullptr, reachable.left, reachable.top, 0, 0,
                        SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace kmfc

// The frame's part.

kmfc::ControlBarDesk& CFrameWnd::bars() {
    if (m_bars == nullptr) m_bars = std::make_unique<kmfc::ControlBarDesk>(*this);
    return *m_bars;
}

void CFrameWnd::EnableDocking(DWORD dwDockStyle) { bars().allow(dwDockStyle & CBRS_ALIGN_ANY); }

void CFrameWnd::DockControlBar(CControlBar* pBar, UINT nDockBarID, LPCRECT lpRect) {
    bars().dock(*pBar, nDockBarID, lpRect);
}

void CFrameWnd::FloatControlBar(CControlBar* pBar, CPoint point, DWORD dwStyle) {
    bars().float_bar(*pBar, point, (dwStyle & CBRS_ORIENT_HORZ) != 0 || !(dwStyle & CBRS_ORIENT_VERT));
}

void CFrameWnd::GetDockState(CDockState& state) const {
    state.Clear();
    if (m_bars != nullptr) m_bars->get_state(state);
}

void CFrameWnd::SetDockState(const CDockState& state) { bars().set_state(state); }

void CFrameWnd::LoadBarState(LPCTSTR lpszProfileName) {
    CDockState state;
    state.LoadState(lpszProfileName);
    SetDockState(state);
}

void CFrameWnd::SaveBarState(LPCTSTR lpszProfileName) const {
    CDockState state;
    GetDockState(state);
    state.SaveState(lpszProfileName);
}
