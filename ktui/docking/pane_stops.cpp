#include <ktui/docking/pane_stops.h>

#include <algorithm>

#include <ktdsres/pane_keys_ids.h>
#include <ktui/docking/pane_label.h>
#include <ktui/host/string_resources.h>

std::vector<CDockablePane*> PaneStops(const KeyedFrame& keyed) {
    CObList list;
    keyed.manager->GetPaneList(list, TRUE, RUNTIME_CLASS(CDockablePane), FALSE);
    std::vector<CDockablePane*> docked, hidden, floating;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;) {
        auto* pane = static_cast<CDockablePane*>(list.GetNext(at));
        if (pane->GetSafeHwnd() == nullptr) continue;
        if (pane->IsTabbed()) pane = pane->GetParentTabbedPane();
        const bool isHidden = pane->IsAutoHideMode() != FALSE;
        if (!isHidden && !::IsWindowVisible(pane->m_hWnd)) continue;
        auto& kind = isHidden ? hidden : pane->IsDocked() ? docked : floating;
        if (std::ranges::find(kind, pane) == kind.end()) kind.push_back(pane);
    }
    docked.insert(docked.end(), hidden.begin(), hidden.end());
    docked.insert(docked.end(), floating.begin(), floating.end());
    return docked;
}

CDockablePane* PaneStopWithFocus(const KeyedFrame& keyed) {
    const HWND focus = ::GetFocus();
    const std::vector<CDockablePane*> stops = PaneStops(keyed);
    const auto found = std::ranges::find_if(stops, [focus](const CDockablePane* pane) {
        return focus == pane->m_hWnd || ::IsChild(pane->m_hWnd, focus);
    });
    return found != stops.end() ? *found : nullptr;
}

CDockablePane* PaneContent(CDockablePane* pane) {
    auto* tabbed = DYNAMIC_DOWNCAST(CBaseTabbedPane, pane);
    CMFCBaseTabCtrl* tabs = tabbed != nullptr ? tabbed->GetUnderlyingWindow() : nullptr;
    auto* active =
        tabs != nullptr ? DYNAMIC_DOWNCAST(CDockablePane, tabs->GetTabWnd(tabs->GetActiveTab())) : nullptr;
    return active != nullptr ? active : pane;
}

std::vector<HWND> TabStopsIn(HWND window) {
    std::vector<HWND> stops;
    ::EnumChildWindows(
        window,
        [](HWND child, LPARAM found) -> BOOL {
            const bool isStop = (::GetWindowLongW(child, GWL_STYLE) & WS_TABSTOP) != 0 &&
                                ::IsWindowVisible(child) && ::IsWindowEnabled(child);
            if (isStop) reinterpret_cast<std::vector<HWND>*>(found)->push_back(child);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&stops));
    return stops;
}

void FocusFirstStop(HWND window) {
    const std::vector<HWND> stops = TabStopsIn(window);
    ::SetFocus(stops.empty() ? window : stops.front());
}

CString WindowName(CWnd& window) {
    CString name;
    window.GetWindowText(name);
    return name;
}

void GoToPane(CDockablePane* pane) {
    if (pane->IsAutoHideMode()) pane->Slide(TRUE, FALSE);
    CDockablePane* content = PaneContent(pane);
    FocusFirstStop(content->m_hWnd);
    ShowPaneLabel(pane->m_hWnd, WindowName(*content));
}

void GoToMiddle(const KeyedFrame& keyed) {
    keyed.frame->SetActiveWindow();
    keyed.frame->SetFocus();
    CWnd* middle = keyed.frame->GetDlgItem(AFX_IDW_PANE_FIRST);
    ShowPaneLabel(middle != nullptr ? middle->m_hWnd : keyed.frame->m_hWnd,
                  LoadToolkitString(IDS_PANE_KEYS_MIDDLE, L"绘图区"));
}
