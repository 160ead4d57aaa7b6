#include <ktui/docking/pane_keys.h>

#include <commctrl.h>

#include <algorithm>
#include <map>
#include <vector>

#include <ktdsres/pane_keys_ids.h>
#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/pane_label.h>
#include <ktui/host/string_resources.h>

namespace {

constexpr UINT_PTR kFrameWatch = 0x4B50;  // what is added to the frame's window procedure

struct KeyedFrame {
    CFrameWnd* frame;
    CDockingManager* manager;
};

std::map<HWND, KeyedFrame> keyedFrames;
HHOOK messageHook = nullptr;

CDockingManager* managerOf(CFrameWnd& frame) {
    if (auto* many = DYNAMIC_DOWNCAST(CMDIFrameWndEx, &frame)) return many->GetDockingManager();
    if (auto* one = DYNAMIC_DOWNCAST(CFrameWndEx, &frame)) return one->GetDockingManager();
    return nullptr;
}

bool isHeld(int key) { return ::GetKeyState(key) < 0; }

/// All panes that the focus can go to: of tabs the pane around them.
std::vector<CDockablePane*> stopsOf(const KeyedFrame& keyed) {
    CObList list;
    keyed.manager->GetPaneList(list, TRUE, RUNTIME_CLASS(CDockablePane), FALSE);
    std::vector<CDockablePane*> docked, hidden, floating;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;) {
        auto* pane = static_cast<CDockablePane*>(list.GetNext(at));
        if (pane->GetSafeHwnd() == nullptr || pane->IsTabbed()) continue;
        if (pane->IsAutoHideMode())
            hidden.push_back(pane);
        else if (::IsWindowVisible(pane->m_hWnd))
            (pane->IsDocked() ? docked : floating).push_back(pane);
    }
    docked.insert(docked.end(), hidden.begin(), hidden.end());
    docked.insert(docked.end(), floating.begin(), floating.end());
    return docked;
}

bool holds(const CWnd& pane, HWND window) {
    return window != nullptr && (window == pane.m_hWnd || ::IsChild(pane.m_hWnd, window));
}

/// What shows in a pane: of tabs the active one.
CDockablePane* contentOf(CDockablePane* pane) {
    auto* tabbed = DYNAMIC_DOWNCAST(CBaseTabbedPane, pane);
    CMFCBaseTabCtrl* tabs = tabbed != nullptr ? tabbed->GetUnderlyingWindow() : nullptr;
    auto* active =
        tabs != nullptr ? DYNAMIC_DOWNCAST(CDockablePane, tabs->GetTabWnd(tabs->GetActiveTab())) : nullptr;
    return active != nullptr ? active : pane;
}

/// The first control of a window that the focus stops at, or the window itself.
HWND firstStop(HWND window) {
    HWND found = nullptr;
    ::EnumChildWindows(
        window,
        [](HWND child, LPARAM result) -> BOOL {
            const bool stops = (::GetWindowLongW(child, GWL_STYLE) & WS_TABSTOP) != 0 &&
                               ::IsWindowVisible(child) && ::IsWindowEnabled(child);
            if (stops) *reinterpret_cast<HWND*>(result) = child;
            return !stops;
        },
        reinterpret_cast<LPARAM>(&found));
    return found != nullptr ? found : window;
}

CString nameOf(CWnd& window) {
    CString name;
    window.GetWindowText(name);
    return name;
}

void goTo(CDockablePane* pane) {
    if (pane->IsAutoHideMode()) pane->Slide(TRUE, FALSE);
    CDockablePane* content = contentOf(pane);
    ::SetFocus(firstStop(content->m_hWnd));
    ShowPaneLabel(pane->m_hWnd, nameOf(*content));
}

void goToMiddle(const KeyedFrame& keyed) {
    keyed.frame->SetActiveWindow();
    keyed.frame->SetFocus();
    CWnd* middle = keyed.frame->GetDlgItem(AFX_IDW_PANE_FIRST);
    ShowPaneLabel(middle != nullptr ? middle->m_hWnd : keyed.frame->m_hWnd,
                  LoadToolkitString(IDS_PANE_KEYS_MIDDLE, L"绘图区"));
}

/// Place 0 is the middle.
void goOn(const KeyedFrame& keyed, int by) {
    const std::vector<CDockablePane*> stops = stopsOf(keyed);
    const HWND focus = ::GetFocus();
    const auto now =
        std::ranges::find_if(stops, [&](const CDockablePane* pane) { return holds(*pane, focus); });
    const int count = static_cast<int>(stops.size()) + 1;
    const int place = now != stops.end() ? static_cast<int>(now - stops.begin()) + 1 : 0;
    const int next = (place + by + count) % count;
    if (next == 0)
        goToMiddle(keyed);
    else
        goTo(stops[static_cast<std::size_t>(next - 1)]);
}

bool turnPalette(CDockablePane& pane, int by) {
    auto* set = DYNAMIC_DOWNCAST(CKbUiPaletteSet, &pane);
    const int count = set != nullptr ? set->GetPaletteCount() : 0;
    if (count < 2) return false;
    const int next = (std::max(0, set->GetActivePaletteTabIndex()) + by + count) % count;
    set->SetActivePalette(next);
    CKbUiPalette* palette = set->GetPalette(next);
    ::SetFocus(firstStop(palette->m_hWnd));
    ShowPaneLabel(set->m_hWnd, palette->GetName());
    return true;
}

bool turnTab(CDockablePane& pane, int by) {
    auto* tabbed = DYNAMIC_DOWNCAST(CBaseTabbedPane, &pane);
    CMFCBaseTabCtrl* tabs = tabbed != nullptr ? tabbed->GetUnderlyingWindow() : nullptr;
    const int count = tabs != nullptr ? tabs->GetTabsNum() : 0;
    for (int i = 1; i < count; ++i) {
        const int next = (tabs->GetActiveTab() + by * i + count * i) % count;
        if (!tabs->IsTabVisible(next)) continue;
        tabs->SetActiveTab(next);
        goTo(&pane);
        return true;
    }
    return false;
}

bool turn(const KeyedFrame& keyed, int by) {
    for (CDockablePane* pane : stopsOf(keyed))
        if (holds(*pane, ::GetFocus())) return turnPalette(*contentOf(pane), by) || turnTab(*pane, by);
    return false;
}

/// The main window that a window belongs to, by itself or by a floating frame; null while that is disabled.
const KeyedFrame* frameOf(HWND window) {
    const HWND root = ::GetAncestor(window, GA_ROOT);
    for (const auto& [handle, keyed] : keyedFrames) {
        const CWnd* floating = CWnd::FromHandlePermanent(root);
        const bool isOurs =
            root == handle || (floating != nullptr &&
                               keyed.manager->GetMiniFrames().Find(const_cast<CWnd*>(floating)) != nullptr);
        if (isOurs) return ::IsWindowEnabled(handle) && ::GetCapture() == nullptr ? &keyed : nullptr;
    }
    return nullptr;
}

/// Whether the message was ours.
bool takes(const MSG& message) {
    if (message.message != WM_KEYDOWN || message.wParam != VK_F6 || isHeld(VK_MENU)) return false;
    const KeyedFrame* keyed = frameOf(message.hwnd);
    if (keyed == nullptr) return false;
    const int by = isHeld(VK_SHIFT) ? -1 : 1;
    if (isHeld(VK_CONTROL)) return turn(*keyed, by);
    goOn(*keyed, by);
    return true;
}

LRESULT CALLBACK onMessage(int code, WPARAM removes, LPARAM message) {
    auto* const taken = reinterpret_cast<MSG*>(message);
    if (code == HC_ACTION && removes == PM_REMOVE && takes(*taken)) taken->message = WM_NULL;
    return ::CallNextHookEx(messageHook, code, removes, message);
}

void leave(HWND frame);

LRESULT CALLBACK watchFrame(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    if (message == WM_NCDESTROY) leave(window);
    return ::DefSubclassProc(window, message, wParam, lParam);
}

void leave(HWND frame) {
    if (keyedFrames.erase(frame) == 0) return;
    ::RemoveWindowSubclass(frame, watchFrame, kFrameWatch);
    HidePaneLabel();
    if (!keyedFrames.empty()) return;
    ::UnhookWindowsHookEx(messageHook);
    messageHook = nullptr;
}

}  // namespace

BOOL KtUiEnablePaneKeys(CFrameWnd& frame, BOOL enable) {
    CDockingManager* const manager = managerOf(frame);
    if (frame.m_hWnd == nullptr || manager == nullptr) return FALSE;
    if (!enable) {
        leave(frame.m_hWnd);
        return TRUE;
    }
    if (messageHook == nullptr)
        messageHook = ::SetWindowsHookExW(WH_GETMESSAGE, onMessage, nullptr, ::GetCurrentThreadId());
    if (messageHook == nullptr || !::SetWindowSubclass(frame.m_hWnd, watchFrame, kFrameWatch, 0))
        return FALSE;
    keyedFrames[frame.m_hWnd] = {&frame, manager};
    return TRUE;
}
